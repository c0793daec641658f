#include <SoDialogLabel.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogLabel, SoDialogComponent, "DialogLabel")

SoDialogLabel::SoDialogLabel()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogLabel);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogLabel::~SoDialogLabel() = default;
