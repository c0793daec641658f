#pragma once

#include "SoDialogGroup.h"

// A container that puts its components side by side, one column each.
class SoColumnDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoColumnDialog)

public:
  SoSFInt32 columnSpacing;

  SoColumnDialog();

protected:
  ~SoColumnDialog() override;
};
