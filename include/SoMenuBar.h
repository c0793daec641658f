#pragma once

#include "SoTopComponent.h"

// The menu bar of a window: a child of a window, but no labelled component.
class SoMenuBar : public SoTopComponent {
  SO_FORMWRIGHT_HEADER(SoMenuBar)

public:
  SoMenuBar();

protected:
  ~SoMenuBar() override;
};
