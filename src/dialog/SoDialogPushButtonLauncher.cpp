#include <SoDialogPushButtonLauncher.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogPushButtonLauncher, SoDialogPushButton, "DialogPushButtonLauncher")

SoDialogPushButtonLauncher::SoDialogPushButtonLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogPushButtonLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogPushButtonLauncher::~SoDialogPushButtonLauncher() = default;
