#pragma once

#include "SoDialogGroup.h"

class SoTabDialogAuditor;

// A container that shows one page of components at a time.
class SoTabDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoTabDialog)
  SO_FORMWRIGHT_SKIN_HEADER(TabDialog)

public:
  SoTabDialog();

  void addAuditor(SoTabDialogAuditor* auditor);
  void removeAuditor(SoTabDialogAuditor* auditor);

protected:
  ~SoTabDialog() override;
};
