#pragma once

#include "SoDialogComponent.h"

class SoDialogChoiceAuditor;

// The base of controls that choose one entry of a list.
class SoDialogChoice : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogChoice)

public:
  SoDialogChoice();

  void addAuditor(SoDialogChoiceAuditor* auditor);
  void removeAuditor(SoDialogChoiceAuditor* auditor);

protected:
  ~SoDialogChoice() override;
};
