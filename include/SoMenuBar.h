#pragma once

#include "SoTopComponent.h"

// The menu bar of a window: a child of a window, but no labelled component.
class SoMenuBar : public SoTopComponent {
  SO_FORMWRIGHT_HEADER(SoMenuBar)
  SO_FORMWRIGHT_SKIN_HEADER(MenuBar)

public:
  SoMenuBar();

  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a menu entry below the menu to the menu's auditors, or passes it
  // up. A menu has no default auditor.
  void applyAuditor(SoFormwright* control) override;

protected:
  ~SoMenuBar() override;
};
