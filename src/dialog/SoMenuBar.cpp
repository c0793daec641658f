#include <SoMenuBar.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuBar, SoTopComponent, "MenuBar")

SoMenuBar::SoMenuBar()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuBar);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuBar::~SoMenuBar() = default;
