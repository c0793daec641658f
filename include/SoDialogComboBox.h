#pragma once

#include "SoDialogChoice.h"

// A drop-down list of entries.
class SoDialogComboBox : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogComboBox)
  SO_FORMWRIGHT_SKIN_HEADER(DialogComboBox)

public:
  SoDialogComboBox();

protected:
  ~SoDialogComboBox() override;
};
