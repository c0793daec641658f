#pragma once

#include "SoDialogComponent.h"

// A check box.
class SoDialogCheckBox : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogCheckBox)

public:
  SoDialogCheckBox();

protected:
  ~SoDialogCheckBox() override;
};
