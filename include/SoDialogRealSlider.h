#pragma once

#include "SoDialogSlider.h"

// A slider over real numbers.
class SoDialogRealSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogRealSlider)

public:
  SoDialogRealSlider();

protected:
  ~SoDialogRealSlider() override;
};
