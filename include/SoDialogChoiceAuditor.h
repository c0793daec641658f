#pragma once

#include "SoAuditor.h"

class SoDialogChoice;

// Hears of changes of a SoDialogChoice through dialogChoice.
class SoDialogChoiceAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogChoiceAuditor)

public:
  virtual void dialogChoice(SoDialogChoice* node) = 0;

protected:
  SoDialogChoiceAuditor() = default;
};
