#include <SoDialogComponent.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogComponent, SoTopComponent, "DialogComponent")

SoDialogComponent::SoDialogComponent()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogComponent);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogComponent::~SoDialogComponent() = default;
