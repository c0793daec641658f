#pragma once

#include "SoDialogComponent.h"

// The base of controls that choose one entry of a list.
class SoDialogChoice : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogChoice)

public:
  SoDialogChoice();

protected:
  ~SoDialogChoice() override;
};
