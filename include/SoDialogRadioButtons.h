#pragma once

#include "SoDialogChoice.h"

// A column of mutually exclusive buttons.
class SoDialogRadioButtons : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogRadioButtons)

public:
  SoDialogRadioButtons();

protected:
  ~SoDialogRadioButtons() override;
};
