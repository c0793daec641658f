#pragma once

#include "SoDialogComponent.h"

// A frame in which the application puts a widget of its own.
class SoDialogCustom : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogCustom)

public:
  SoDialogCustom();

protected:
  ~SoDialogCustom() override;
};
