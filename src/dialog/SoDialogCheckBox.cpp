#include <SoDialogCheckBox.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogCheckBox, SoDialogComponent, "DialogCheckBox")

SoDialogCheckBox::SoDialogCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCheckBox);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogCheckBox::~SoDialogCheckBox() = default;
