#include <SoMenuFileSelection.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuFileSelection, SoMenuPushButton, "MenuFileSelection")

SoMenuFileSelection::SoMenuFileSelection()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuFileSelection);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuFileSelection::~SoMenuFileSelection() = default;
