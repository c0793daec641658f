#pragma once

#include "SoAuditor.h"

class SoMenuRadioButtons;

// Hears of changes of a SoMenuRadioButtons through menuRadioButtons.
class SoMenuRadioButtonsAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoMenuRadioButtonsAuditor)

public:
  virtual void menuRadioButtons(SoMenuRadioButtons* node) = 0;

protected:
  SoMenuRadioButtonsAuditor() = default;
};
