#include <SoMenuPopup.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuPopup, SoMenuItem, "MenuPopup")

SoMenuPopup::SoMenuPopup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPopup);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPopup::~SoMenuPopup() = default;
