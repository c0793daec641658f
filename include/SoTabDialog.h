#pragma once

#include "SoDialogGroup.h"

// A container that shows one page of components at a time.
class SoTabDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoTabDialog)

public:
  SoTabDialog();

protected:
  ~SoTabDialog() override;
};
