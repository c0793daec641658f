#include <SoDialogChoice.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogChoice, SoDialogComponent, "DialogChoice")

SoDialogChoice::SoDialogChoice()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogChoice);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogChoice::~SoDialogChoice() = default;
