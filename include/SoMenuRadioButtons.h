#pragma once

#include "SoMenuItem.h"

// A group of mutually exclusive menu entries.
class SoMenuRadioButtons : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuRadioButtons)

public:
  SoMenuRadioButtons();

protected:
  ~SoMenuRadioButtons() override;
};
