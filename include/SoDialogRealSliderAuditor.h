#pragma once

#include "SoAuditor.h"

class SoDialogRealSlider;

// Hears of changes of a SoDialogRealSlider through dialogRealSlider.
class SoDialogRealSliderAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogRealSliderAuditor)

public:
  virtual void dialogRealSlider(SoDialogRealSlider* node) = 0;

protected:
  SoDialogRealSliderAuditor() = default;
};
