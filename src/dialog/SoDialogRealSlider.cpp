#include <SoDialogRealSlider.h>

#include <SoDialogRealSliderAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogRealSlider, SoDialogSlider, "DialogRealSlider")

SoDialogRealSlider::SoDialogRealSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogRealSlider);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogRealSlider::~SoDialogRealSlider() = default;

void SoDialogRealSlider::addAuditor(SoDialogRealSliderAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogRealSlider::removeAuditor(SoDialogRealSliderAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
