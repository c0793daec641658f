#pragma once

#include "SoMenuPushButton.h"

// A menu entry that opens a dialog.
class SoMenuPushButtonLauncher : public SoMenuPushButton {
  SO_FORMWRIGHT_HEADER(SoMenuPushButtonLauncher)

public:
  SoMenuPushButtonLauncher();

protected:
  ~SoMenuPushButtonLauncher() override;
};
