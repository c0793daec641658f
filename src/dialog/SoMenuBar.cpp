#include <SoMenuBar.h>

#include <SoMenuPopup.h>
#include <SoTopLevelDialog.h>

#include "SoAuditorDispatch.h"
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoMenuChildren.h"

#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QLayout>
#include <QMenuBar>

SO_FORMWRIGHT_SOURCE(SoMenuBar, SoTopComponent, "MenuBar")

SoMenuBar::SoMenuBar()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuBar);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

// The QMenuBar belongs to the window it was given to.
SoMenuBar::~SoMenuBar() = default;

SoMenuChildren<SoMenuBar, SoMenuPopup> SoMenuBar::childList() const
{
  return {const_cast<SoMenuBar&>(*this), "SoMenuBar"};
}

SoFormwrightChildren<SoMenuBar, SoMenuPopup> SoMenuBar::fileForm() const
{
  return {const_cast<SoMenuBar&>(*this), "SoMenuBar"};
}

void SoMenuBar::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoFormwright::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    createMenuBar(parent);
    updateChildren();
  } else {
    if (!isBuilt3D())
      create3DBar();
    update3DBar();
    update3DChildren();
  }
  firstBuild = 0;
}

void SoMenuBar::create3DBar()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("frame", "MenuBarFrame", TRUE);
  SoGroup* switchNode = get3DPart("geomSwitch");
  SoGroup* frameGroup = get3DPart("frameSep");
  barScale = new SoScale;
  frameGroup->insertChild(barScale, 0);
  barTranslation = new SoTranslation;
  switchNode->insertChild(barTranslation, switchNode->findChild(frameGroup));
  barTransform = new SoTransform;
  switchNode->addChild(barTransform);
  // Greying and dead picks come first, so that they reach all the bar.
  switchNode->insertChild(pickStyle, 0);
  switchNode->insertChild(enableMaterial, 0);
  apply3DParentTranslation();
  setBuilt3D(1);
  change3DEnable();
  depth = -1.0f;
  update3DChildrenSize();
  show3DChildren(0);
  show3D(1);
}

void SoMenuBar::update3DBar()
{
  int32_t w = 0;
  if (parentNode && parentNode->isOfType(SoTopLevelDialog::getClassTypeId())) {
    auto* window = static_cast<SoTopLevelDialog*>(parentNode);
    if (!window->isBuilt3D()) {
      SbVec2i32 size, min, max;
      window->getSize(size, min, max);
      w = size[0];
    } else {
      w = window->width.getValue();
    }
  }
  if (hiddenInScene())
    show3D(0);
  else
    barScale->scaleFactor.setValue(static_cast<float>(w - 6), 20.0f, 1.0f);
  barTranslation->translation.setValue(static_cast<float>((w - 6) / 2 - 1), 10.0f, 0.0f);
  undoTransformMatrix(frameSep.getValue(), barTransform);
}

SbVec3f SoMenuBar::titlesOrigin()
{
  SbVec3f origin(0.0f, 0.0f, 0.0f);
  apply3DTranslation(frameSep.getValue(), depth, origin);
  return origin;
}

void SoMenuBar::update3DChildren()
{
  SbVec3f pos = titlesOrigin();
  for (int i = 0; i < numChildren; ++i) {
    SoMenuPopup* child = childList().at(i);
    child->set3DParentTranslation(pos);
    child->buildMenu(menuBar.data(), 0, i);
    child->show3D(shown3D);
    pos[0] += static_cast<float>(child->getItemSize()[0] + 1);
  }
  if (parentNode)
    return;
  // A bar of its own is as long as its titles.
  const float w = pos[0] - parentTranslation[0];
  if (numChildren != 0)
    barScale->scaleFactor.setValue(w + 1, 20.0f, 1.0f);
  else
    show3D(0);
  barTranslation->translation.setValue((w + 1) / 2 - 1, 10.0f, 0.0f);
}

void SoMenuBar::change3DPosition()
{
  if (!isBuilt3D())
    return;
  SbVec3f pos = titlesOrigin();
  for (int i = 0; i < numChildren; ++i) {
    SoMenuPopup* child = childList().at(i);
    child->set3DParentTranslation(pos);
    child->change3DPosition();
    pos[0] += static_cast<float>(child->getItemSize()[0] + 1);
  }
}

void SoMenuBar::update3DChildrenSize()
{
  for (int i = 0; i < numChildren; ++i) {
    SoMenuPopup* child = childList().at(i);
    child->setItemSize(child->getItemInitSize(), 1);
  }
}

void SoMenuBar::show3D(int show)
{
  // Whatever shows the plate again.
  if (hiddenInScene())
    show = 0;
  // A hidden bar leaves no menu open in the air.
  if (!show)
    show3DChildren(0);
  for (int i = 0; i < numChildren; ++i)
    if (childList().at(i)->isBuilt3D())
      childList().at(i)->show3D(show);
  SoFormwright::show3D(show);
}

void SoMenuBar::show3DChildren(int show)
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->show3DChildren(show);
}

void SoMenuBar::rayPick(SoRayPickAction* action)
{
  SoDragger::rayPick(action);
  addInterfaceDetails(action);
}

// A rebuild keeps the bar that holds the popups' menus: a new one would
// stay empty, as the popups build their menus once.
void SoMenuBar::createMenuBar(QWidget* parent)
{
  if (!menuBar)
    menuBar = new QMenuBar(parent);
  // A bar belongs to a window; one built on its own has no layout to go in.
  if (!parentNode || !parentNode->isOfType(SoTopLevelDialog::getClassTypeId()))
    return;
  QWidget* window = static_cast<SoTopLevelDialog*>(parentNode)->getBaseWidget();
  if (window && window->layout() && window->layout()->menuBar() != menuBar)
    window->layout()->setMenuBar(menuBar);
}

void SoMenuBar::updateChildren()
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->buildMenu(menuBar.data(), 1, i);
}

void SoMenuBar::destroyWidget()
{
  for (int i = 0; i < numChildren; ++i)
    childList().at(i)->destroyWidget();
  // The menus go with the bar; the entries make their actions anew when the
  // bar is built again.
  delete menuBar.data();
  SoFormwright::destroyWidget();
}

void* SoMenuBar::getMenu(void* parent)
{
  if (!menuBar) {
    SbVec2i32 useSize(0, 0), size(0, 0);
    buildWidget(static_cast<QWidget*>(parent), useSize, size, 1);
  }
  return menuBar.data();
}

void SoMenuBar::destroyNoDeleteMenuItems() {}

void SoMenuBar::getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  int32_t width = 0;
  for (int i = 0; i < numChildren; ++i)
    width += getLabelPixelSize(childList().at(i)->label.getValue(), nullptr)[0] + 9;
  size.setValue(width + 10, 19);
  min.setValue(0, 0);
  max.setValue(32767, 32767);
}

void SoMenuBar::changeEnable()
{
  if (menuBar)
    menuBar->setEnabled(enable.getValue() != 0);
}

void SoMenuBar::addAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuBar::removeAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuBar::applyAuditor(SoFormwright* control)
{
  applyContainerAuditors(control, &SoAuditorDispatch::applyMenuTests, nullptr);
}

SoFormwright* SoMenuBar::searchForAuditorId(SbString id)
{
  for (int i = 0; i < numChildren; ++i) {
    SoMenuPopup* child = childList().at(i);
    if (child->auditorID.getValue() == id)
      return child;
    if (SoFormwright* found = child->searchForAuditorId(id))
      return found;
  }
  return nullptr;
}

void SoMenuBar::addChild(SoMenuPopup* child)
{
  if (childList().insert(child, numChildren, "addChild"))
    buildNewChild(child, -1);
}

void SoMenuBar::insertChild(SoMenuPopup* child, int index)
{
  if (childList().insert(child, index, "insertChild"))
    buildNewChild(child, index);
}

SoNode* SoMenuBar::getChild(int index) const
{
  return childList().get(index, "");
}

int SoMenuBar::getNumChildren() const
{
  return numChildren;
}

int SoMenuBar::findChild(const SoMenuPopup* child) const
{
  return childList().find(child);
}

void SoMenuBar::removeChild(SoMenuPopup* child)
{
  removeChild(findChild(child));
}

void SoMenuBar::removeChild(int index)
{
  childList().remove(index, numChildren);
}

void SoMenuBar::removeAllChildren()
{
  childList().removeAll();
}

void SoMenuBar::replaceChild(SoMenuPopup* oldChild, SoMenuPopup* newChild)
{
  replaceChild(findChild(oldChild), newChild);
}

void SoMenuBar::replaceChild(int index, SoMenuPopup* newChild)
{
  if (childList().replace(index, newChild, numChildren))
    buildNewChild(newChild, -1);
}

void SoMenuBar::buildNewChild(SoMenuPopup* child, int position)
{
  if (firstBuild)
    return;
  if (buildMode)
    child->buildMenu(menuBar.data(), buildMode, position);
  updateAfterSceneGraphChange();
}

void SoMenuBar::updateAfterSceneGraphChange()
{
  if (!isBuilt3D())
    return;
  update3DChildrenSize();
  update3DChildren();
}

SoChildList* SoMenuBar::getChildren() const
{
  return children;
}

SbBool SoMenuBar::readInstance(SoInput* in, unsigned short flags)
{
  return fileForm().readInstance(in, flags);
}

int SoMenuBar::readChildren(SoInput* in)
{
  return fileForm().readChildren(in);
}

void SoMenuBar::write(SoWriteAction* action)
{
  fileForm().write(action, true, false);
}

void SoMenuBar::addWriteReference(SoOutput* out, SbBool isFromField)
{
  fileForm().addWriteReference(out, isFromField);
}
