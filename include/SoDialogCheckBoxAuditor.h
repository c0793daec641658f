#pragma once

#include "SoAuditor.h"

class SoDialogCheckBox;

// Hears of changes of a SoDialogCheckBox through dialogCheckBox.
class SoDialogCheckBoxAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogCheckBoxAuditor)

public:
  virtual void dialogCheckBox(SoDialogCheckBox* node) = 0;

protected:
  SoDialogCheckBoxAuditor() = default;
};
