#pragma once

#include "SoAuditor.h"

class SoMenuPushButton;

// Hears of changes of a SoMenuPushButton through menuPushButton.
class SoMenuPushButtonAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoMenuPushButtonAuditor)

public:
  virtual void menuPushButton(SoMenuPushButton* node) = 0;

protected:
  SoMenuPushButtonAuditor() = default;
};
