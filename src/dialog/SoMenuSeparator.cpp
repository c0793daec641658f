#include <SoMenuSeparator.h>

#include "SoFormwrightSubNodeSource.h"

#include <QMenu>

SO_FORMWRIGHT_SOURCE(SoMenuSeparator, SoMenuItem, "MenuSeparator")

SoMenuSeparator::SoMenuSeparator()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuSeparator);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuSeparator::~SoMenuSeparator() = default;

void SoMenuSeparator::buildMenu(void* holder, int is2D, int position)
{
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && menuParent)
    static_cast<QMenu*>(menuParent)->addSeparator();
}

SbVec2i32 SoMenuSeparator::getItemInitSize()
{
  return SbVec2i32(16, 8);
}

void SoMenuSeparator::setItemSize(SbVec2i32 size, int force)
{
  storeItemSize(size, force, 8);
}
