#include <SoDialogIntegerSlider.h>

#include <SoDialogIntegerSliderAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogIntegerSlider, SoDialogSlider, "DialogIntegerSlider")

SoDialogIntegerSlider::SoDialogIntegerSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogIntegerSlider);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogIntegerSlider::~SoDialogIntegerSlider() = default;

void SoDialogIntegerSlider::addAuditor(SoDialogIntegerSliderAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogIntegerSlider::removeAuditor(SoDialogIntegerSliderAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
