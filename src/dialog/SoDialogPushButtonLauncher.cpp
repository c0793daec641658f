#include <SoDialogPushButtonLauncher.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoLauncherChildren.h"

SO_FORMWRIGHT_SOURCE(SoDialogPushButtonLauncher, SoDialogPushButton, "DialogPushButtonLauncher")
SO_FORMWRIGHT_LAUNCHER_OPERATIONS(SoDialogPushButtonLauncher, numChildren)

SoDialogPushButtonLauncher::SoDialogPushButtonLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogPushButtonLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

// The dialogs go with the child list unless the application holds them.
SoDialogPushButtonLauncher::~SoDialogPushButtonLauncher() = default;

void SoDialogPushButtonLauncher::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogPushButton::buildWidget(parent, useSize, size, mode);
  for (int i = 0; i < numChildren; ++i) {
    SoTopLevelDialog* dialog = childList().at(i);
    const bool builtBefore = dialog->isBuilt3D();
    SoLauncherDialogs::build(dialog, this);
    // In the scene a new dialog waits, hidden, for the button.
    if (mode == 0 && !builtBefore && dialog->isBuilt3D())
      dialog->show3D(0);
  }
}

void SoDialogPushButtonLauncher::eventNotify(unsigned int event, unsigned long long value)
{
  SoDialogPushButton::eventNotify(event, value);
  showDialogs();
}

void SoDialogPushButtonLauncher::draggerFinishCallback3D()
{
  const bool fires = pressHitsButton(getPressPath());
  SoDialogPushButton::draggerFinishCallback3D();
  if (fires)
    showDialogs();
}

void SoDialogPushButtonLauncher::showDialogs()
{
  SoLauncherDialogs::showAll(*this, true);
}

void SoDialogPushButtonLauncher::applyAuditors()
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->applyAuditors();
}
