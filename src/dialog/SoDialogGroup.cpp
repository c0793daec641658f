#include <SoDialogGroup.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogGroup, SoDialogComponent, "DialogGroup")

SoDialogGroup::SoDialogGroup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogGroup);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogGroup::~SoDialogGroup() = default;
