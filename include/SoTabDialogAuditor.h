#pragma once

#include "SoAuditor.h"

class SoTabDialog;

// Hears of changes of a SoTabDialog through tabDialog.
class SoTabDialogAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoTabDialogAuditor)

public:
  virtual void tabDialog(SoTabDialog* node) = 0;

protected:
  SoTabDialogAuditor() = default;
};
