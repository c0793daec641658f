#include <SoMenuCheckBoxLauncher.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuCheckBoxLauncher, SoMenuCheckBox, "MenuCheckBoxLauncher")

SoMenuCheckBoxLauncher::SoMenuCheckBoxLauncher()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuCheckBoxLauncher);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuCheckBoxLauncher::~SoMenuCheckBoxLauncher() = default;
