#pragma once

#include "SoDialogGroup.h"

// A container that stacks its components from top to bottom, one row each.
class SoRowDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoRowDialog)

public:
  SoSFInt32 rowSpacing;

  SoRowDialog();

protected:
  ~SoRowDialog() override;
};
