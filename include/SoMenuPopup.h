#pragma once

#include "SoMenuItem.h"

// A menu that opens from a menu bar or from another popup.
class SoMenuPopup : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPopup)

public:
  SoMenuPopup();

protected:
  ~SoMenuPopup() override;
};
