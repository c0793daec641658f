#include <SoMenuItem.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuItem, SoFormwright, "MenuItem")

SoMenuItem::SoMenuItem()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuItem);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuItem::~SoMenuItem() = default;
