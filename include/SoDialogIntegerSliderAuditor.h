#pragma once

#include "SoAuditor.h"

class SoDialogIntegerSlider;

// Hears of changes of a SoDialogIntegerSlider through dialogIntegerSlider.
class SoDialogIntegerSliderAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogIntegerSliderAuditor)

public:
  virtual void dialogIntegerSlider(SoDialogIntegerSlider* node) = 0;

protected:
  SoDialogIntegerSliderAuditor() = default;
};
