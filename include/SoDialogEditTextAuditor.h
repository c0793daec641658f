#pragma once

#include "SoAuditor.h"

class SoDialogEditText;

// Hears of changes of a SoDialogEditText through dialogEditText.
class SoDialogEditTextAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogEditTextAuditor)

public:
  virtual void dialogEditText(SoDialogEditText* node) = 0;

protected:
  SoDialogEditTextAuditor() = default;
};
