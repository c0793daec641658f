#pragma once

#include "SoMenuItem.h"

// A line between menu entries.
class SoMenuSeparator : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuSeparator)

public:
  SoMenuSeparator();

protected:
  ~SoMenuSeparator() override;
};
