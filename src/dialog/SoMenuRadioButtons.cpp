#include <SoMenuRadioButtons.h>

#include <SoMenuRadioButtonsAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuRadioButtons, SoMenuItem, "MenuRadioButtons")

SoMenuRadioButtons::SoMenuRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuRadioButtons);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuRadioButtons::~SoMenuRadioButtons() = default;

void SoMenuRadioButtons::addAuditor(SoMenuRadioButtonsAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuRadioButtons::removeAuditor(SoMenuRadioButtonsAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
