#pragma once

#include "SoDialogGroup.h"

// A container that stacks its components from top to bottom.
class SoColumnDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoColumnDialog)

public:
  SoColumnDialog();

protected:
  ~SoColumnDialog() override;
};
