#include <SoDialogSlider.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogSlider, SoDialogComponent, "DialogSlider")

SoDialogSlider::SoDialogSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogSlider);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogSlider::~SoDialogSlider() = default;
