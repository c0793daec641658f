#pragma once

#include "SoDialogComponent.h"

// A container of components.
class SoDialogGroup : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogGroup)

public:
  SoDialogGroup();

protected:
  ~SoDialogGroup() override;
};
