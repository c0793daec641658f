#pragma once

#include "SoDialogCheckBox.h"

// A check box that opens and closes a dialog.
class SoDialogCheckBoxLauncher : public SoDialogCheckBox {
  SO_FORMWRIGHT_HEADER(SoDialogCheckBoxLauncher)

public:
  SoDialogCheckBoxLauncher();

protected:
  ~SoDialogCheckBoxLauncher() override;
};
