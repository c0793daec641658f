#pragma once

#include "SoAuditor.h"

class SoTabDialog;

// Hears of changes of a SoTabDialog through tabDialog. It hears nothing of
// the controls in the pages, and leaves them to the general auditors above.
class SoTabDialogAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoTabDialogAuditor)

public:
  virtual void tabDialog(SoTabDialog* node) = 0;

protected:
  SoTabDialogAuditor() = default;
};
