#pragma once

#include "SoAuditor.h"

class SoMenuFileSelection;

// Hears of changes of a SoMenuFileSelection through menuFileSelection.
class SoMenuFileSelectionAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoMenuFileSelectionAuditor)

public:
  virtual void menuFileSelection(SoMenuFileSelection* node) = 0;

protected:
  SoMenuFileSelectionAuditor() = default;
};
