#include <SoDialogGroup.h>

#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogGroup, SoDialogComponent, "DialogGroup")

SoDialogGroup::SoDialogGroup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogGroup);
  SO_FORMWRIGHT_ADD_FIELD(windowResizedByChildren, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(margin, 0);
  SO_FORMWRIGHT_ADD_FIELD(vScrollVisibility, AUTO);
  SO_FORMWRIGHT_ADD_FIELD(hScrollVisibility, AUTO);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, NEVER);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, ALWAYS);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, AUTO);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(vScrollVisibility, ScrollVisibility);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(hScrollVisibility, ScrollVisibility);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogGroup::~SoDialogGroup()
{
  for (int i = 0; i < numChildren; ++i)
    if (auto* child = static_cast<SoDialogComponent*>((*children)[i]))
      child->destroyWidget();
}

SoFormwrightChildren<SoDialogGroup, SoDialogComponent> SoDialogGroup::childList() const
{
  return {const_cast<SoDialogGroup&>(*this), "SoDialogGroup"};
}

void SoDialogGroup::addChild(SoDialogComponent* child)
{
  childList().insert(child, numChildren, "addChild");
}

void SoDialogGroup::insertChild(SoDialogComponent* child, int index)
{
  childList().insert(child, index, "insertChild");
}

SoNode* SoDialogGroup::getChild(int index) const
{
  return childList().get(index);
}

int SoDialogGroup::getNumChildren() const
{
  return numChildren;
}

int SoDialogGroup::findChild(const SoDialogComponent* child) const
{
  return childList().find(child);
}

void SoDialogGroup::removeChild(SoDialogComponent* child)
{
  removeChild(findChild(child));
}

void SoDialogGroup::removeChild(int index)
{
  childList().remove(index);
}

void SoDialogGroup::removeAllChildren()
{
  childList().removeAll();
}

void SoDialogGroup::replaceChild(SoDialogComponent* oldChild, SoDialogComponent* newChild)
{
  replaceChild(findChild(oldChild), newChild);
}

void SoDialogGroup::replaceChild(int index, SoDialogComponent* newChild)
{
  childList().replace(index, newChild);
}

SoChildList* SoDialogGroup::getChildren() const
{
  return children;
}

SbBool SoDialogGroup::readInstance(SoInput* in, unsigned short flags)
{
  return childList().readInstance(in, flags);
}

int SoDialogGroup::readChildren(SoInput* in)
{
  return childList().readChildren(in);
}

void SoDialogGroup::write(SoWriteAction* action)
{
  childList().write(action, false, true);
}
