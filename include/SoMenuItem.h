#pragma once

#include "SoFormwright.h"

// The base of every menu node: an entry of a menu bar or popup, not a labelled component.
class SoMenuItem : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoMenuItem)

public:
  SoMenuItem();

protected:
  ~SoMenuItem() override;
};
