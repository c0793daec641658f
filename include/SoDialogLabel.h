#pragma once

#include "SoDialogComponent.h"

// A line or block of text.
class SoDialogLabel : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogLabel)

public:
  SoDialogLabel();

protected:
  ~SoDialogLabel() override;
};
