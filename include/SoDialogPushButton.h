#pragma once

#include "SoDialogComponent.h"

// A push button.
class SoDialogPushButton : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogPushButton)

public:
  SoDialogPushButton();

protected:
  ~SoDialogPushButton() override;
};
