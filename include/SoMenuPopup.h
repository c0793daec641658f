#pragma once

#include "SoMenuItem.h"

// A menu that opens from a menu bar or from another popup.
class SoMenuPopup : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPopup)
  SO_FORMWRIGHT_SKIN_HEADER(MenuPopup)

public:
  SoMenuPopup();

  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a menu entry below the menu to the menu's auditors, or passes it
  // up. A menu has no default auditor.
  void applyAuditor(SoFormwright* control) override;

protected:
  ~SoMenuPopup() override;
};
