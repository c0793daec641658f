#include <SoMenuPopup.h>

#include <SoMenuBar.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuPushButtonLauncher.h>

#include "SoAuditorDispatch.h"
#include "SoControlWidgets.h"
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoMenuChildren.h"

#include <QMenu>
#include <QMenuBar>

SO_FORMWRIGHT_SOURCE(SoMenuPopup, SoMenuItem, "MenuPopup")

SoMenuPopup::SoMenuPopup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPopup);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

// The Qt menu belongs to the bar or menu that made it.
SoMenuPopup::~SoMenuPopup() = default;

SoMenuChildren<SoMenuPopup, SoMenuItem> SoMenuPopup::childList() const
{
  return {const_cast<SoMenuPopup&>(*this), "SoMenuPopup"};
}

SoFormwrightChildren<SoMenuPopup, SoMenuItem> SoMenuPopup::fileForm() const
{
  return {const_cast<SoMenuPopup&>(*this), "SoMenuPopup"};
}

void SoMenuPopup::buildMenu(void* holder, int is2D, int position)
{
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && !menu)
    insertMenuItem(position);
  firstBuild = 0;
}

void SoMenuPopup::insertMenuItem(int)
{
  // A title keeps the whole of Unicode, unlike the entries' texts.
  const QString title = SoControlWidgets::toWidgetText(label.getValue());
  if (parentNode && parentNode->isOfType(SoMenuBar::getClassTypeId()))
    menu = static_cast<QMenuBar*>(static_cast<SoMenuBar*>(parentNode)->getMenu(nullptr))->addMenu(title);
  else if (menuParent)
    menu = static_cast<QMenu*>(menuParent)->addMenu(title);
  else
    menu = new QMenu(title); // a popup of its own, held by nothing
  // The enabled state is left to the first change of `enable`.
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->buildMenu(menu.data(), 1, -1);
}

void SoMenuPopup::changeLabel()
{
  if (menu)
    menu->setTitle(SoControlWidgets::toWidgetText(label.getValue()));
}

void SoMenuPopup::changeEnable()
{
  if (menu)
    menu->setEnabled(enable.getValue() != 0);
}

SbVec2i32 SoMenuPopup::getItemInitSize()
{
  SbVec2i32 size = SoMenuItem::getItemInitSize();
  if (parentNode && parentNode->isOfType(SoMenuPopup::getClassTypeId()))
    size[0] += 20;
  return size;
}

void SoMenuPopup::addAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuPopup::removeAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuPopup::applyAuditor(SoFormwright* control)
{
  applyContainerAuditors(control, &SoAuditorDispatch::applyMenuTests, nullptr);
}

SoFormwright* SoMenuPopup::searchForAuditorId(SbString id)
{
  for (int i = 0; i < numChildren; ++i) {
    SoMenuItem* child = childList().at(i);
    if (child->auditorID.getValue() == id)
      return child;
    SoFormwright* found = nullptr;
    if (child->isOfType(SoMenuPopup::getClassTypeId()))
      found = static_cast<SoMenuPopup*>(child)->searchForAuditorId(id);
    else if (child->isOfType(SoMenuCheckBoxLauncher::getClassTypeId()))
      found = static_cast<SoMenuCheckBoxLauncher*>(child)->searchForAuditorId(id);
    else if (child->isOfType(SoMenuPushButtonLauncher::getClassTypeId()))
      found = static_cast<SoMenuPushButtonLauncher*>(child)->searchForAuditorId(id);
    if (found)
      return found;
  }
  return nullptr;
}

void SoMenuPopup::addChild(SoMenuItem* child)
{
  if (childList().insert(child, numChildren, "addChild"))
    buildNewChild(child, -1);
}

void SoMenuPopup::insertChild(SoMenuItem* child, int index)
{
  if (childList().insert(child, index, "insertChild"))
    buildNewChild(child, index);
}

SoNode* SoMenuPopup::getChild(int index) const
{
  return childList().get(index, "");
}

int SoMenuPopup::getNumChildren() const
{
  return numChildren;
}

int SoMenuPopup::findChild(const SoMenuItem* child) const
{
  return childList().find(child);
}

void SoMenuPopup::removeChild(SoMenuItem* child)
{
  removeChild(findChild(child));
}

void SoMenuPopup::removeChild(int index)
{
  childList().remove(index, numChildren);
}

void SoMenuPopup::removeAllChildren()
{
  childList().removeAll();
}

void SoMenuPopup::replaceChild(SoMenuItem* oldChild, SoMenuItem* newChild)
{
  replaceChild(findChild(oldChild), newChild);
}

void SoMenuPopup::replaceChild(int index, SoMenuItem* newChild)
{
  if (childList().replace(index, newChild, numChildren))
    buildNewChild(newChild, index);
}

void SoMenuPopup::buildNewChild(SoMenuItem* child, int position)
{
  if (firstBuild)
    return;
  if (buildMode)
    child->buildMenu(menu.data(), buildMode, position);
  updateAfterSceneGraphChange();
}

void SoMenuPopup::updateAfterSceneGraphChange() {}

SoChildList* SoMenuPopup::getChildren() const
{
  return children;
}

SbBool SoMenuPopup::readInstance(SoInput* in, unsigned short flags)
{
  return fileForm().readInstance(in, flags);
}

int SoMenuPopup::readChildren(SoInput* in)
{
  return fileForm().readChildren(in);
}

void SoMenuPopup::write(SoWriteAction* action)
{
  fileForm().write(action, true, false);
}

void SoMenuPopup::addWriteReference(SoOutput* out, SbBool isFromField)
{
  fileForm().addWriteReference(out, isFromField);
}
