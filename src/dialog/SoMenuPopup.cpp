#include <SoMenuPopup.h>

#include <SoMenuBar.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuPushButtonLauncher.h>

#include "SoAuditorDispatch.h"
#include "SoControlWidgets.h"
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoMenuChildren.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QMenu>
#include <QMenuBar>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoMenuPopup, SoMenuItem, "MenuPopup")

SoMenuPopup::SoMenuPopup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPopup);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSwitch, SoSwitch, SoSwitch, frameSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(released, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pressed, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(shapeReleased, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(shapePressed, SoGroup, SoGroup, frameSwitch, true);
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
  const bool first3D = !is2D && !isBuilt3D();
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && !menu)
    insertMenuItem(position);
  if (!is2D) {
    if (first3D)
      create3DPopup(position);
    update3DPopup();
    update3DChildren();
  }
  firstBuild = 0;
}

bool SoMenuPopup::isCascade() const
{
  return hangsInMenu() && canBeTraversed();
}

void SoMenuPopup::create3DPopup(int)
{
  loadSkinOnce();
  if (hangsInMenu()) {
    setPartAsDefault("shapeReleased", "MenuPopupReleasedShape", TRUE);
    setPartAsDefault("shapePressed", "MenuPopupPressedShape", TRUE);
  } else {
    setPartAsDefault("released", "MenuPopupReleasedFrame", TRUE);
    setPartAsDefault("pressed", "MenuPopupPressedFrame", TRUE);
  }
  SoGroup* frameGroup = get3DPart("frameSep");
  buttonScale = new SoScale;
  frameGroup->insertChild(buttonScale, 0);
  buttonTranslation = new SoTranslation;
  frameGroup->insertChild(buttonTranslation, 0);
  // A cascade's title shows the arrow; the others a block the title stands on.
  if (isCascade()) {
    buttonScale->scaleFactor.setValue(14.0f, 14.0f, 1.0f);
  } else {
    buttonTransform = new SoTransform;
    get3DPart("geomSwitch")->addChild(buttonTransform);
  }
  setSwitchValue(frameSwitch.getValue(), 0);
  moveLabelToEnd();
  addStartCallback(&SoMenuPopup::startCB3D);
  setBuilt3D(1);
  depth = -1.0f;
  update3DChildrenSize();
  show3DChildren(0);
}

void SoMenuPopup::update3DPopup()
{
  SbVec3f min, max;
  get3DLabelCachedBBox(min, max);
  const float w = static_cast<float>(itemSize[0]);
  const float h = static_cast<float>(itemSize[1]);
  const float textMiddle = -(max[1] + min[1]) / 2;
  // A popup moved between a bar and a menu after its build keeps the parts
  // it was made with, and makes those it lacks.
  if (isCascade()) {
    buttonScale->scaleFactor.setValue(14.0f, 14.0f, 1.0f);
    buttonTranslation->translation.setValue(w / 2 - 10, 0.0f, 0.0f);
    labelTranslation->translation.setValue(-(max[0] - min[0]) / 2 - 10, textMiddle, 0.0f);
    return;
  }
  if (!buttonTransform) {
    buttonTransform = new SoTransform;
    get3DPart("geomSwitch")->addChild(buttonTransform);
  }
  if (parentNode && parentNode->canBeTraversed()) {
    buttonScale->scaleFactor.setValue(w, h, 1.0f);
    buttonTranslation->translation.setValue(w / 2, 10.0f, 0.0f);
  } else {
    if (frameScale) {
      frameScale->scaleFactor.setValue(w, h, 1.0f);
      frameTranslation->translation.setValue(w / 2, h / 2, 0.0f);
      undoTransformMatrix(itemFrameSep.getValue(), frameTransform);
    }
    buttonScale->scaleFactor.setValue(w - 2, h - 2, 1.0f);
    buttonTranslation->translation.setValue(0.0f, 0.0f, 0.0f);
  }
  undoTransformMatrix(frameSep.getValue(), buttonTransform);
  labelTranslation->translation.setValue(-(max[0] - min[0]) / 2, textMiddle, 0.0f);
}

void SoMenuPopup::change3DLabel()
{
  SoMenuItem::change3DLabel();
  if (buttonScale)
    update3DPopup();
}

SbVec3f SoMenuPopup::itemsOrigin()
{
  SbVec3f pos(0.0f, 0.0f, 0.0f);
  apply3DTranslation(frameSep.getValue(), depth, pos);
  if (isCascade()) {
    pos[0] += static_cast<float>(itemSize[0]);
    pos[1] += static_cast<float>(itemSize[1] / 2);
  }
  return pos;
}

// Items hang downward from the title, each centred on its own half height.
void SoMenuPopup::place3DChildren(SbVec3f pos, bool build)
{
  for (int i = 0; i < numChildren; ++i) {
    SoMenuItem* child = childList().at(i);
    const float half = static_cast<float>(child->getItemSize()[1] / 2);
    pos[1] -= half;
    child->set3DParentTranslation(pos);
    if (build) {
      child->buildMenu(menu.data(), 0, i);
      child->show3D(childrenShown);
    } else {
      child->change3DPosition();
    }
    pos[1] -= half;
  }
}

void SoMenuPopup::update3DChildren()
{
  place3DChildren(itemsOrigin(), true);
}

void SoMenuPopup::change3DPosition()
{
  if (!childrenShown)
    return;
  SbVec3f pos = itemsOrigin();
  SoFormwright* top = isCascade() ? nullptr : getFirstTopParent(0, 0);
  if (top) {
    // Closed for the measure, lest the popup count itself.
    show3DChildren(0);
    bboxAction->apply(top);
    pos[2] = bboxAction->getBoundingBox().getMax()[2];
    show3DChildren(1);
  }
  place3DChildren(pos, false);
}

void SoMenuPopup::update3DChildrenSize()
{
  int32_t widest = 0;
  for (int i = 0; i < numChildren; ++i)
    widest = std::max(widest, childList().at(i)->getItemInitSize()[0]);
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->setItemSize(SbVec2i32(widest, 0), 1);
}

void SoMenuPopup::show3DChildren(int show)
{
  if (childrenShown == show)
    return;
  for (int i = 0; i < numChildren; ++i) {
    SoMenuItem* child = childList().at(i);
    if (!show && child->isOfType(SoMenuPopup::getClassTypeId()))
      static_cast<SoMenuPopup*>(child)->show3DChildren(0);
    if (child->isBuilt3D())
      child->show3D(show);
  }
  childrenShown = show;
  setSwitchValue(frameSwitch.getValue(), show ? 1 : 0);
  if (!isCascade() && buttonTransform)
    undoTransformMatrix(frameSep.getValue(), buttonTransform);
}

void SoMenuPopup::startCB3D(void*, SoDragger* dragger)
{
  auto* popup = static_cast<SoMenuPopup*>(dragger);
  const SoPath* path = popup->getPickPath();
  if (path && path->containsNode(popup->geomSwitch.getValue()))
    popup->draggerStartCallback3D();
}

void SoMenuPopup::draggerStartCallback3D()
{
  const bool onBar = parentNode && parentNode->isOfType(SoMenuBar::getClassTypeId());
  if (childrenShown) {
    if (onBar)
      set3DInactive();
    else
      show3DChildren(0);
    return;
  }
  // The one active control: another bar popup that is open closes now.
  if (onBar)
    set3DCurrentActive(this);
  show3DChildren(1);
  change3DPosition();
}

void SoMenuPopup::set3DInactive()
{
  show3DChildren(0);
  SoMenuItem::set3DInactive();
}

void SoMenuPopup::rayPick(SoRayPickAction* action)
{
  SoDragger::rayPick(action);
  addInterfaceDetails(action);
}

void SoMenuPopup::insertMenuItem(int)
{
  // A title keeps the whole of Unicode, unlike the entries' texts.
  const QString title = SoControlWidgets::toWidgetText(label.getValue());
  if (parentNode && parentNode->isOfType(SoMenuBar::getClassTypeId()))
    menu = static_cast<QMenuBar*>(static_cast<SoMenuBar*>(parentNode)->getMenu(nullptr))->addMenu(title);
  else if (menuParent)
    menu = static_cast<QMenu*>(menuParent.data())->addMenu(title);
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

void SoMenuPopup::get3DDefaultSize(SbVec3f& size)
{
  if (!labelText) {
    const SbVec2i32 pixels = getItemInitSize();
    size.setValue(static_cast<float>(pixels[0]), static_cast<float>(pixels[1]), 0.0f);
    return;
  }
  SbVec3f min, max;
  get3DLabelCachedBBox(min, max);
  const bool cascade = parentNode && parentNode->isOfType(SoMenuPopup::getClassTypeId());
  size.setValue(max[0] - min[0] + (cascade ? 28.0f : 8.0f), 18.0f, 0.0f);
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

void SoMenuPopup::updateAfterSceneGraphChange()
{
  if (!isBuilt3D())
    return;
  update3DChildrenSize();
  update3DChildren();
  change3DPosition();
}

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
