#include <SoDialogSeparator.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogSeparator, SoDialogComponent, "DialogSeparator")

SoDialogSeparator::SoDialogSeparator()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogSeparator);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogSeparator::~SoDialogSeparator() = default;
