#pragma once

#include "SoMenuItem.h"

// A menu entry that acts when chosen.
class SoMenuPushButton : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPushButton)

public:
  SoMenuPushButton();

protected:
  ~SoMenuPushButton() override;
};
