#pragma once

#include "SoDialogComponent.h"

// A line between components, across its container's direction.
class SoDialogSeparator : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogSeparator)

public:
  SoDialogSeparator();

protected:
  ~SoDialogSeparator() override;
};
