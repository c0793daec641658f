#pragma once

#include "SoDialogSlider.h"

class SoDialogRealSliderAuditor;

// A slider over real numbers.
class SoDialogRealSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogRealSlider)

public:
  SoDialogRealSlider();

  void addAuditor(SoDialogRealSliderAuditor* auditor);
  void removeAuditor(SoDialogRealSliderAuditor* auditor);

protected:
  ~SoDialogRealSlider() override;
};
