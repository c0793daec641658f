#pragma once

#include "SoDialogPushButton.h"

// A push button that opens a dialog.
class SoDialogPushButtonLauncher : public SoDialogPushButton {
  SO_FORMWRIGHT_HEADER(SoDialogPushButtonLauncher)

public:
  SoDialogPushButtonLauncher();

protected:
  ~SoDialogPushButtonLauncher() override;
};
