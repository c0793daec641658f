#pragma once

#include "SoFormwright.h"

// A message box.
class SoMessageDialog : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoMessageDialog)

public:
  SoMessageDialog();

protected:
  ~SoMessageDialog() override;
};
