#include <SoMenuPushButtonLauncher.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoLauncherChildren.h"

SO_FORMWRIGHT_SOURCE(SoMenuPushButtonLauncher, SoMenuPushButton, "MenuPushButtonLauncher")
SO_FORMWRIGHT_LAUNCHER_OPERATIONS(SoMenuPushButtonLauncher, numChildren - 1)

SoMenuPushButtonLauncher::SoMenuPushButtonLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPushButtonLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPushButtonLauncher::~SoMenuPushButtonLauncher()
{
  removeAllChildren();
}

void SoMenuPushButtonLauncher::buildMenu(void* holder, int is2D, int position)
{
  SoMenuPushButton::buildMenu(holder, is2D, position);
  if (!isBuilt3D())
    return;
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->show3D(0);
}

void SoMenuPushButtonLauncher::menuEvent(void* data, int id)
{
  SoMenuPushButton::menuEvent(data, id);
  SoLauncherDialogs::showAll(*this, true);
}

void SoMenuPushButtonLauncher::draggerFinishCallback3D()
{
  SoMenuPushButton::draggerFinishCallback3D();
  SoLauncherDialogs::showAll(*this, true);
}
