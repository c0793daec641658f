#pragma once

#include "SoAuditor.h"

class SoDialogPushButton;

// Hears of changes of a SoDialogPushButton through dialogPushButton.
class SoDialogPushButtonAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogPushButtonAuditor)

public:
  virtual void dialogPushButton(SoDialogPushButton* node) = 0;

protected:
  SoDialogPushButtonAuditor() = default;
};
