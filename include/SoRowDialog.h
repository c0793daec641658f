#pragma once

#include "SoDialogGroup.h"

// A container that lines its components up from left to right.
class SoRowDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoRowDialog)

public:
  SoRowDialog();

protected:
  ~SoRowDialog() override;
};
