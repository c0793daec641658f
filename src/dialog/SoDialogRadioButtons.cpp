#include <SoDialogRadioButtons.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogRadioButtons, SoDialogChoice, "DialogRadioButtons")

SoDialogRadioButtons::SoDialogRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogRadioButtons);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogRadioButtons::~SoDialogRadioButtons() = default;
