#include <SoDialogCheckBoxLauncher.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoLauncherChildren.h"

SO_FORMWRIGHT_SOURCE(SoDialogCheckBoxLauncher, SoDialogCheckBox, "DialogCheckBoxLauncher")
SO_FORMWRIGHT_LAUNCHER_OPERATIONS(SoDialogCheckBoxLauncher, numChildren)

SoDialogCheckBoxLauncher::SoDialogCheckBoxLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCheckBoxLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

// The dialogs go with the child list unless the application holds them.
SoDialogCheckBoxLauncher::~SoDialogCheckBoxLauncher() = default;

void SoDialogCheckBoxLauncher::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogCheckBox::buildWidget(parent, useSize, size, mode);
  if (mode == 0 || buildMode)
    showDialogsAsChecked();
}

void SoDialogCheckBoxLauncher::eventNotify(unsigned int event, unsigned long long value)
{
  SoDialogCheckBox::eventNotify(event, value);
  showDialogsAsChecked();
}

void SoDialogCheckBoxLauncher::draggerFinishCallback3D()
{
  SoDialogCheckBox::draggerFinishCallback3D();
  showDialogsAsChecked();
}

void SoDialogCheckBoxLauncher::showDialogsAsChecked()
{
  SoLauncherDialogs::showAll(*this, state.getValue() != 0);
}

void SoDialogCheckBoxLauncher::applyAuditors()
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->applyAuditors();
}
