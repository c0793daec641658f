#pragma once

#include "SoDialogSlider.h"

// A slider over whole numbers.
class SoDialogIntegerSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogIntegerSlider)

public:
  SoDialogIntegerSlider();

protected:
  ~SoDialogIntegerSlider() override;
};
