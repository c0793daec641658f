#pragma once

#include "SoFormwright.h"

// The base of every menu node: an entry of a menu bar or popup, not a labelled component.
class SoMenuItem : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoMenuItem)
  SO_FORMWRIGHT_SKIN_HEADER(MenuItem)

public:
  SoMenuItem();

protected:
  ~SoMenuItem() override;
};
