#include <SoDialogPushButton.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogPushButton, SoDialogComponent, "DialogPushButton")

SoDialogPushButton::SoDialogPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogPushButton);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogPushButton::~SoDialogPushButton() = default;
