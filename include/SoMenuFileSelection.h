#pragma once

#include "SoMenuPushButton.h"

class SoMenuFileSelectionAuditor;

// A menu entry that asks the user for a file.
class SoMenuFileSelection : public SoMenuPushButton {
  SO_FORMWRIGHT_HEADER(SoMenuFileSelection)

public:
  SoMenuFileSelection();

  void addAuditor(SoMenuFileSelectionAuditor* auditor);
  void removeAuditor(SoMenuFileSelectionAuditor* auditor);

protected:
  ~SoMenuFileSelection() override;
};
