#pragma once

#include "SoMenuItem.h"

// A menu entry with a check mark.
class SoMenuCheckBox : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBox)

public:
  SoMenuCheckBox();

protected:
  ~SoMenuCheckBox() override;
};
