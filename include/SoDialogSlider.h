#pragma once

#include "SoDialogComponent.h"

// The base of the sliders.
class SoDialogSlider : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogSlider)
  SO_FORMWRIGHT_SKIN_HEADER(DialogSlider)

public:
  SoDialogSlider();

protected:
  ~SoDialogSlider() override;
};
