#include <SoMenuSeparator.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuSeparator, SoMenuItem, "MenuSeparator")

SoMenuSeparator::SoMenuSeparator()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuSeparator);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuSeparator::~SoMenuSeparator() = default;
