#pragma once

#include "SoDialogSlider.h"

class SoDialogIntegerSliderAuditor;

// A slider over whole numbers.
class SoDialogIntegerSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogIntegerSlider)

public:
  SoDialogIntegerSlider();

  void addAuditor(SoDialogIntegerSliderAuditor* auditor);
  void removeAuditor(SoDialogIntegerSliderAuditor* auditor);

protected:
  ~SoDialogIntegerSlider() override;
};
