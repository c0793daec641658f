#pragma once

#include "SoMenuItem.h"

class SoMenuPushButtonAuditor;

// A menu entry that acts when chosen.
class SoMenuPushButton : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPushButton)
  SO_FORMWRIGHT_SKIN_HEADER(MenuPushButton)

public:
  SoMenuPushButton();

  void addAuditor(SoMenuPushButtonAuditor* auditor);
  void removeAuditor(SoMenuPushButtonAuditor* auditor);

protected:
  ~SoMenuPushButton() override;
};
