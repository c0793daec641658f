#pragma once

#include "SoDialogChoice.h"

// A column of mutually exclusive buttons.
class SoDialogRadioButtons : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogRadioButtons)
  SO_FORMWRIGHT_SKIN_HEADER(DialogRadioButtons)

public:
  SoDialogRadioButtons();

protected:
  ~SoDialogRadioButtons() override;
};
