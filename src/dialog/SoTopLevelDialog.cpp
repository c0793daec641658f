#include <SoTopLevelDialog.h>

#include <SoTopComponent.h>

#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>

SO_FORMWRIGHT_SOURCE(SoTopLevelDialog, SoFormwright, "TopLevelDialog")

SoTopLevelDialog::SoTopLevelDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTopLevelDialog);
  SO_FORMWRIGHT_ADD_FIELD(width, 0);
  SO_FORMWRIGHT_ADD_FIELD(height, 0);
  SO_FORMWRIGHT_ADD_FIELD(position, SbVec2i32(0, 0));
  SO_FORMWRIGHT_ADD_FIELD(position3D, SbVec3f(0.0f, 0.0f, 0.0f));
  SO_FORMWRIGHT_ADD_FIELD(resizable, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(minWidth, 0);
  SO_FORMWRIGHT_ADD_FIELD(minHeight, 0);
  SO_FORMWRIGHT_ADD_FIELD(maxWidth, 16777215);
  SO_FORMWRIGHT_ADD_FIELD(maxHeight, 16777215);
  SO_FORMWRIGHT_ADD_FIELD(margin, 0);
  SO_FORMWRIGHT_ADD_FIELD(rowSpacing, 0);
  SO_FORMWRIGHT_ADD_FIELD(modalFrame, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(hideChildren, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(minimized, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(minimized3DPosition, SbVec3f(0.0f, 0.0f, 0.0f));
  SO_FORMWRIGHT_ADD_FIELD(independentMinimizedPosition, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(windowResizedByChildren, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(vScrollVisibility, AUTO);
  SO_FORMWRIGHT_ADD_FIELD(hScrollVisibility, AUTO);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, NEVER);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, ALWAYS);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(ScrollVisibility, AUTO);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(vScrollVisibility, ScrollVisibility);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(hScrollVisibility, ScrollVisibility);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(minSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(minSwtch, SoSwitch, SoSwitch, minSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(minReleased, SoGroup, SoGroup, minSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(minPressed, SoGroup, SoGroup, minSwtch, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoTopLevelDialog::~SoTopLevelDialog()
{
  for (int i = 0; i < numChildren; ++i)
    static_cast<SoTopComponent*>((*children)[i])->destroyWidget();
}

SoFormwrightChildren<SoTopLevelDialog, SoTopComponent> SoTopLevelDialog::childList() const
{
  return {const_cast<SoTopLevelDialog&>(*this), "SoTopLevelDialog"};
}

void SoTopLevelDialog::addChild(SoTopComponent* child)
{
  childList().insert(child, numChildren, "addChild");
}

void SoTopLevelDialog::insertChild(SoTopComponent* child, int index)
{
  childList().insert(child, index, "insertChild");
}

SoNode* SoTopLevelDialog::getChild(int index) const
{
  return childList().get(index);
}

int SoTopLevelDialog::getNumChildren() const
{
  return numChildren;
}

int SoTopLevelDialog::findChild(const SoTopComponent* child) const
{
  return childList().find(child);
}

void SoTopLevelDialog::removeChild(SoTopComponent* child)
{
  removeChild(findChild(child));
}

void SoTopLevelDialog::removeChild(int index)
{
  childList().remove(index);
}

void SoTopLevelDialog::removeAllChildren()
{
  childList().removeAll();
}

void SoTopLevelDialog::replaceChild(SoTopComponent* oldChild, SoTopComponent* newChild)
{
  replaceChild(findChild(oldChild), newChild);
}

void SoTopLevelDialog::replaceChild(int index, SoTopComponent* newChild)
{
  childList().replace(index, newChild);
}

SoChildList* SoTopLevelDialog::getChildren() const
{
  return children;
}

SbBool SoTopLevelDialog::readInstance(SoInput* in, unsigned short flags)
{
  return childList().readInstance(in, flags);
}

int SoTopLevelDialog::readChildren(SoInput* in)
{
  return childList().readChildren(in);
}

void SoTopLevelDialog::write(SoWriteAction* action)
{
  childList().write(action, true, false);
}
