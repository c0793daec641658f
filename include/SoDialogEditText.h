#pragma once

#include "SoDialogComponent.h"

// A one-line or multi-line text field.
class SoDialogEditText : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogEditText)

public:
  SoDialogEditText();

protected:
  ~SoDialogEditText() override;
};
