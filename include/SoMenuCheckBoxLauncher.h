#pragma once

#include "SoMenuCheckBox.h"

// A checkable menu entry that opens and closes a dialog.
class SoMenuCheckBoxLauncher : public SoMenuCheckBox {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBoxLauncher)

public:
  SoMenuCheckBoxLauncher();

protected:
  ~SoMenuCheckBoxLauncher() override;
};
