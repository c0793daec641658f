#pragma once

#include "SoMenuItem.h"

// A line between menu entries.
class SoMenuSeparator : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuSeparator)
  SO_FORMWRIGHT_SKIN_HEADER(MenuSeparator)

public:
  SoMenuSeparator();

protected:
  ~SoMenuSeparator() override;
};
