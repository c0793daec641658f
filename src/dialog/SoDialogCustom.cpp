#include <SoDialogCustom.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogCustom, SoDialogComponent, "DialogCustom")

SoDialogCustom::SoDialogCustom()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCustom);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogCustom::~SoDialogCustom() = default;
