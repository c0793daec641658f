#pragma once

#include "SoFormwright.h"

// A window: the top of a dialog.
class SoTopLevelDialog : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoTopLevelDialog)

public:
  SoTopLevelDialog();

protected:
  ~SoTopLevelDialog() override;
};
