#pragma once

#include "SoMenuItem.h"

class SoMenuRadioButtonsAuditor;

// A group of mutually exclusive menu entries.
class SoMenuRadioButtons : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuRadioButtons)
  SO_FORMWRIGHT_SKIN_HEADER(MenuRadioButtons)

public:
  SoMenuRadioButtons();

  void addAuditor(SoMenuRadioButtonsAuditor* auditor);
  void removeAuditor(SoMenuRadioButtonsAuditor* auditor);

protected:
  ~SoMenuRadioButtons() override;
};
