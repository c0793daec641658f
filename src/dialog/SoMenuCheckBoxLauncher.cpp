#include <SoMenuCheckBoxLauncher.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoLauncherChildren.h"

SO_FORMWRIGHT_SOURCE(SoMenuCheckBoxLauncher, SoMenuCheckBox, "MenuCheckBoxLauncher")
SO_FORMWRIGHT_LAUNCHER_OPERATIONS(SoMenuCheckBoxLauncher, numChildren - 1)

SoMenuCheckBoxLauncher::SoMenuCheckBoxLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuCheckBoxLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

// The dialogs are hidden and left to the child list.
SoMenuCheckBoxLauncher::~SoMenuCheckBoxLauncher()
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->hide();
}

void SoMenuCheckBoxLauncher::menuEvent(void* data, int id)
{
  SoMenuCheckBox::menuEvent(data, id);
  SoLauncherDialogs::showAll(*this, state.getValue() != 0);
}

void SoMenuCheckBoxLauncher::draggerFinishCallback3D()
{
  SoMenuCheckBox::draggerFinishCallback3D();
  SoLauncherDialogs::showAll(*this, state.getValue() != 0);
}
