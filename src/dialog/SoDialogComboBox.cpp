#include <SoDialogComboBox.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogComboBox, SoDialogChoice, "DialogComboBox")

SoDialogComboBox::SoDialogComboBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogComboBox);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogComboBox::~SoDialogComboBox() = default;
