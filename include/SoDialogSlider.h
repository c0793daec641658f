#pragma once

#include "SoDialogComponent.h"

// The base of the sliders.
class SoDialogSlider : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogSlider)

public:
  SoDialogSlider();

protected:
  ~SoDialogSlider() override;
};
