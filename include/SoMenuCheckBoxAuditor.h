#pragma once

#include "SoAuditor.h"

class SoMenuCheckBox;

// Hears of changes of a SoMenuCheckBox through menuCheckBox.
class SoMenuCheckBoxAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoMenuCheckBoxAuditor)

public:
  virtual void menuCheckBox(SoMenuCheckBox* node) = 0;

protected:
  SoMenuCheckBoxAuditor() = default;
};
