#pragma once

#include "SoTopComponent.h"

// The labelled, sizeable frame of every control and container.
class SoDialogComponent : public SoTopComponent {
  SO_FORMWRIGHT_HEADER(SoDialogComponent)

public:
  SoDialogComponent();

protected:
  ~SoDialogComponent() override;
};
