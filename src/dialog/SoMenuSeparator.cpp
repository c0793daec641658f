#include <SoMenuSeparator.h>

#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QMenu>

SO_FORMWRIGHT_SOURCE(SoMenuSeparator, SoMenuItem, "MenuSeparator")

SoMenuSeparator::SoMenuSeparator()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuSeparator);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(sepSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(sepFrame, SoGroup, SoGroup, sepSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuSeparator::~SoMenuSeparator() = default;

void SoMenuSeparator::buildMenu(void* holder, int is2D, int position)
{
  const bool first3D = !is2D && !isBuilt3D();
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && menuParent)
    static_cast<QMenu*>(menuParent.data())->addSeparator();
  if (!is2D) {
    if (first3D)
      create3DSeparator(position);
    update3DSeparator();
  }
}

void SoMenuSeparator::create3DSeparator(int)
{
  loadSkinOnce();
  setPartAsDefault("sepFrame", "MenuSeparatorFrame", TRUE);
  lineScale = new SoScale;
  get3DPart("sepSep")->insertChild(lineScale, 0);
}

void SoMenuSeparator::update3DSeparator()
{
  lineScale->scaleFactor.setValue(static_cast<float>(itemSize[0] - 6), static_cast<float>(itemSize[1] - 6), 1.0f);
}

SbVec2i32 SoMenuSeparator::getItemInitSize()
{
  return SbVec2i32(16, 8);
}

void SoMenuSeparator::setItemSize(SbVec2i32 size, int force)
{
  storeItemSize(size, force, 8);
}
