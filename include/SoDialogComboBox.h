#pragma once

#include "SoDialogChoice.h"

// A drop-down list of entries.
class SoDialogComboBox : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogComboBox)

public:
  SoDialogComboBox();

protected:
  ~SoDialogComboBox() override;
};
