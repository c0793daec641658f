#include <SoDialogCheckBoxLauncher.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogCheckBoxLauncher, SoDialogCheckBox, "DialogCheckBoxLauncher")

SoDialogCheckBoxLauncher::SoDialogCheckBoxLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCheckBoxLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogCheckBoxLauncher::~SoDialogCheckBoxLauncher() = default;
