#include <SoMenuPushButtonLauncher.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuPushButtonLauncher, SoMenuPushButton, "MenuPushButtonLauncher")

SoMenuPushButtonLauncher::SoMenuPushButtonLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPushButtonLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPushButtonLauncher::~SoMenuPushButtonLauncher() = default;
