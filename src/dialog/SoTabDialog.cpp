#include <SoTabDialog.h>

#include <SoTabDialogAuditor.h>
#include <SoTopLevelDialog.h>

#include "Qt/SoDialogQTabDialog.h"
#include "SoChildCheck.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoScenePass.h"
#include "SoSizeRules.h"

#include <Inventor/SoPath.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoClipPlane.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <QBoxLayout>
#include <QWidget>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoTabDialog, SoDialogGroup, "TabDialog")

namespace {
// The room the tabs take beside the pages: the tab bar's height and the
// frame of the pages, across the side that holds the tabs and along it.
constexpr int32_t kTabBarAllowance = 33;
constexpr int32_t kPageFrameAllowance = 10;
}

SoTabDialog::SoTabDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTabDialog);
  SO_FORMWRIGHT_ADD_FIELD(selectedPage, 0);
  SO_FORMWRIGHT_ADD_FIELD(tabsLocation, TOP);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(TabsLocation, TOP);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(TabsLocation, BOTTOM);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(TabsLocation, LEFT);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(TabsLocation, RIGHT);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(tabsLocation, TabsLocation);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pageSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, pageSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pagesSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonsSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(lButtonSep, SoSeparator, SoSeparator, buttonsSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(lButtonSwtch, SoSwitch, SoSwitch, lButtonSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(lButtonReleased, SoGroup, SoGroup, lButtonSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(lButtonPressed, SoGroup, SoGroup, lButtonSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rButtonSep, SoSeparator, SoSeparator, buttonsSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rButtonSwtch, SoSwitch, SoSwitch, rButtonSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rButtonReleased, SoGroup, SoGroup, rButtonSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rButtonPressed, SoGroup, SoGroup, rButtonSwtch, true);
  // Never drawn itself: it holds the looks that every tab shares.
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pageSwitch, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(unselected, SoGroup, SoGroup, pageSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(selected, SoGroup, SoGroup, pageSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(textProp, SoGroup, SoGroup, pageSwitch, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
  // The tab widget's frame is the group's frame.
  usesGroupFrame = false;
}

SoTabDialog::~SoTabDialog()
{
  delete selectedPageSensor;
  delete childrenNodeSensor;
}

void SoTabDialog::addAuditor(SoTabDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoTabDialog::removeAuditor(SoTabDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoTabDialog::applyDlgCptAuditor()
{
  // General auditors share the list: they hear of the controls in the pages,
  // never of a change of page.
  bool heard = false;
  for (SoAuditor* each : getAuditorsNow()) {
    if (auto* auditor = dynamic_cast<SoTabDialogAuditor*>(each)) {
      auditor->tabDialog(this);
      heard = true;
    }
  }
  if (!heard && parentNode)
    parentNode->applyAuditor(this);
}

void SoTabDialog::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  const bool firstWidgetBuild = mode != 0 && !existWidget(componentWidget);
  const bool firstSceneBuild = mode == 0 && !isBuilt3D();
  SoDialogGroup::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(tabWidget)) {
      createTabWidget();
    } else {
      updatePages();
      // The negotiation may have changed the size while Qt kept the bridge's
      // old one, and with it no resize event places the tabs. The new size
      // and a layout request bring the bridge back to its slot, and that
      // resize places them.
      tabWidget->resize(SoSizeRules::toQtSize(width.getValue()), SoSizeRules::toQtSize(height.getValue()));
      tabWidget->updateGeometry();
    }
    if (numChildren != 0)
      updateTabPageWidget(selectedPage.getValue());
    updateTabWidget();
  } else {
    if (!isBuilt3D())
      create3DTabDialog();
    update3DTabDialog();
  }
  if (firstWidgetBuild)
    changeWidgetEnable(enable.getValue());
  if (firstSceneBuild)
    change3DWidgetEnable(enable.getValue());
  makeFieldSensor(selectedPageSensor, selectedPage);
  if (!childrenNodeSensor) {
    // At priority 0 the sensor still knows which node and field changed.
    childrenNodeSensor = new SoNodeSensor(childrenSensor, this);
    childrenNodeSensor->setPriority(0);
    childrenNodeSensor->attach(this);
  }
}

void SoTabDialog::createTabWidget()
{
  tabWidget = new SoDialogQTabDialog(componentWidget, this);
  componentWidget = tabWidget;
  // Frames of a tab widget that Qt deleted under the node are no pages.
  childrenWidgets.truncate(0);
  for (int i = 0; i < numChildren; ++i)
    createTabPageWidget(i);
  changeEdgeStyle();
  tabWidget->setMinimumSize(SoSizeRules::toQtSize(minWidth.getValue()), SoSizeRules::toQtSize(minHeight.getValue()));
  componentLayout->addWidget(tabWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoTabDialog::createTabPageWidget(int page)
{
  SoDialogComponent* child = getComponent(page);
  QWidget* pageWidget = tabWidget->insertPage(page, SoControlWidgets::toWidgetText(child->label.getValue()));
  changeMargin();
  SbVec2i32 useSize(0, 0), size(0, 0);
  child->buildWidget(pageWidget, useSize, size, 1);
  childrenWidgets.insert(child->getWidget(), page);
  // Once every page stands, the selected one is shown.
  if (childrenWidgets.getLength() == numChildren)
    changeSelectedPage();
}

void SoTabDialog::changeMargin()
{
  const int inset = SoSizeRules::usable(margin);
  for (int i = 0; isBuilt2D() && i < numChildren; ++i)
    if (QLayout* layout = tabWidget->getLayout(i))
      layout->setContentsMargins(inset, inset, inset, inset);
}

void SoTabDialog::updatePages()
{
  for (int i = 0; i < numChildren; ++i) {
    SbVec2i32 useSize(0, 0), size(0, 0);
    getComponent(i)->buildWidget(tabWidget->getPage(i), useSize, size, 1);
    childrenWidgets[i] = getComponent(i)->getWidget();
  }
}

void SoTabDialog::destroyWidget()
{
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->destroyWidget();
  childrenWidgets.truncate(0);
  // The tab widget is the component's frame, which the base deletes.
  tabWidget = nullptr;
  SoDialogGroup::destroyWidget();
}

void SoTabDialog::updateFromSensor(SoSensor* sensor)
{
  if (sensor == selectedPageSensor) {
    if (buildMode && isBuilt2D())
      changeSelectedPage();
    if (follows3DForm())
      change3DSelectedPage();
  } else {
    SoDialogGroup::updateFromSensor(sensor);
  }
}

void SoTabDialog::eventNotify(unsigned int page, unsigned long long)
{
  const auto index = static_cast<int32_t>(page);
  // A change of tab that the node made itself, or one to no page, is no
  // choice of the person's.
  if (index == selectedPage.getValue() || index < 0 || index >= numChildren)
    return;
  // The sensor stays off while the auditors run: a page that one of them
  // writes does not move the tab away from the person's choice.
  const bool attached = selectedPageSensor && selectedPageSensor->getAttachedField() == &selectedPage;
  if (attached)
    selectedPageSensor->detach();
  setSelectedPage(index);
  changeSelectedPage();
  if (isBuilt3D())
    change3DSelectedPage();
  applyDlgCptAuditor();
  if (attached)
    selectedPageSensor->attach(&selectedPage);
}

void SoTabDialog::changeSelectedPage()
{
  int32_t page = selectedPage.getValue();
  if (page > numChildren - 1)
    page = numChildren - 1;
  if (page < 0)
    page = 0;
  setSelectedPage(page);
  if (!isBuilt2D())
    return;
  tabWidget->changeSelectedPage(page);
  updateTabPageWidget(page);
}

void SoTabDialog::setSelectedPage(int32_t page)
{
  if (selectedPage.getValue() != page)
    setFieldUnwatched(selectedPage, selectedPageSensor, page);
}

void SoTabDialog::updateTabPageWidget(int)
{
  // A component that stands on two pages has one frame: while a change of
  // the other page rebuilds it, the list may still hold the frame that went.
  const auto standing = [this](int i) {
    QWidget* frame = childrenWidgets[i];
    return frame && frame == getComponent(i)->getWidget() ? frame : nullptr;
  };
  const int count = std::min(static_cast<int>(numChildren), childrenWidgets.getLength());
  for (int i = 0; i < count; ++i)
    if (QWidget* frame = standing(i))
      frame->hide();
  const int32_t page = selectedPage.getValue();
  if (page >= 0 && page < count)
    if (QWidget* frame = standing(page))
      frame->show();
}

void SoTabDialog::updateTabWidget()
{
  if (isBuilt2D())
    tabWidget->setTabGeometry(3, 3, std::max(0, width.getValue() - 6), std::max(0, height.getValue() - 6));
}

void* SoTabDialog::getLayout(int page)
{
  return isBuilt2D() ? tabWidget->getLayout(page) : nullptr;
}

void SoTabDialog::changeWidgetEnable(int enabled)
{
  if (isBuilt2D())
    tabWidget->setEnabled(enabled != 0 && enable.getValue());
  SoDialogGroup::changeWidgetEnable(enabled);
}

void SoTabDialog::changeEnableChild(int) {}
void SoTabDialog::changePageLabel(int) {}

void SoTabDialog::childrenSensor(void* data, SoSensor* sensor)
{
  auto* tabs = static_cast<SoTabDialog*>(data);
  auto* nodeSensor = static_cast<SoNodeSensor*>(sensor);
  SoNode* node = nodeSensor->getTriggerNode();
  if (!node || !node->isOfType(SoDialogComponent::getClassTypeId()))
    return;
  auto* child = static_cast<SoDialogComponent*>(node);
  const int page = tabs->findChild(child);
  if (page >= 0 && page < tabs->numChildren && nodeSensor->getTriggerField() == &child->label)
    tabs->changePageLabel(page);
}

void SoTabDialog::addChild(SoDialogComponent* child)
{
  if (!SoChildCheck::accepts(child, this, "SoTabDialog::addChild"))
    return;
  placeChild(child, numChildren);
}

void SoTabDialog::insertChild(SoDialogComponent* child, int index)
{
  if (!SoChildCheck::accepts(child, this, "SoTabDialog::insertChild"))
    return;
  if (index < 0 || index > numChildren) {
    SoDebugError::post("SoDialogGroup::insertChild", "Index %d is out of range %d - %d", index, 0, numChildren);
    return;
  }
  placeChild(child, index);
}

void SoTabDialog::placeChild(SoDialogComponent* child, int index)
{
  children->insert(child, index);
  ++numChildren;
  child->setParent(this);
  if (isBuilt2D())
    createTabPageWidget(index);
  childrenChanged();
}

void SoTabDialog::removeChild(SoDialogComponent* child)
{
  removeChild(findChild(child));
}

void SoTabDialog::removeChild(int index)
{
  if (index < 0 || index >= numChildren) {
    SoDebugError::post("SoTabDialog::removeChild", "Index %d is out of range %d - %d", index, 0, numChildren - 1);
    return;
  }
  getComponent(index)->destroyWidget();
  --numChildren;
  SoDialogComponent* removed = getComponent(index);
  removed->ref();
  children->remove(index);
  if (isBuilt2D())
    removePage(index);
  rebuildStayingPage(removed);
  removed->unref();
  fallBackFromRemovedPage();
  childrenChanged();
}

void SoTabDialog::removeAllChildren()
{
  while (numChildren > 0) {
    const int last = numChildren - 1;
    getComponent(last)->destroyWidget();
    numChildren = last;
    children->remove(last);
    if (isBuilt2D())
      removePage(last);
  }
  fallBackFromRemovedPage();
  childrenChanged();
}

void SoTabDialog::replaceChild(SoDialogComponent* oldChild, SoDialogComponent* newChild)
{
  replaceChild(findChild(oldChild), newChild);
}

void SoTabDialog::replaceChild(int index, SoDialogComponent* newChild)
{
  if (!SoChildCheck::accepts(newChild, this, "SoTabDialog::replaceChild"))
    return;
  if (index < 0 || index >= numChildren) {
    SoDebugError::post("SoTabDialog::replaceChild", "Index %d is out of range %d - %d", index, 0, numChildren - 1);
    return;
  }
  SoDialogComponent* replaced = getComponent(index);
  replaced->ref();
  replaced->destroyWidget();
  // The new component gets a page of its own, with its own title.
  if (isBuilt2D())
    removePage(index);
  children->set(index, newChild);
  newChild->setParent(this);
  if (isBuilt2D())
    createTabPageWidget(index);
  rebuildStayingPage(replaced);
  replaced->unref();
  childrenChanged();
}

void SoTabDialog::removePage(int page)
{
  // The component's frame went with its destroyWidget.
  childrenWidgets.remove(page);
  tabWidget->removePage(page);
}

// A component that stood on two pages has one frame, which went with the
// page it left: the page where it stays builds it anew.
void SoTabDialog::rebuildStayingPage(SoDialogComponent* child)
{
  const int page = findChild(child);
  if (page < 0 || !isBuilt2D())
    return;
  SbVec2i32 useSize(0, 0), size(0, 0);
  child->buildWidget(tabWidget->getPage(page), useSize, size, 1);
  childrenWidgets[page] = child->getWidget();
}

void SoTabDialog::fallBackFromRemovedPage()
{
  const auto isPage = [this](int32_t page) { return page >= 0 && page < numChildren; };
  if (!isPage(selectedPage.getValue())) {
    if (!isPage(previousSelectedPage))
      previousSelectedPage = 0;
    setSelectedPage(previousSelectedPage);
  }
  previousSelectedPage = selectedPage.getValue();
  // The tab widget chose a page of its own as the tab went.
  if (isBuilt2D())
    changeSelectedPage();
}

void SoTabDialog::childrenChanged()
{
  const bool built = isBuilt2D() || isBuilt3D();
  if (isBuilt3D())
    change3DPages();
  if (built)
    updateAfterSceneGraphChange();
}

SbVec2i32 SoTabDialog::getComponentInitSize()
{
  if (componentInitSize[0] != -1)
    return componentInitSize;
  SbVec2i32 result(2 * SoSizeRules::usable(margin), 2 * SoSizeRules::usable(margin));
  for (int i = 0; i < numChildren; ++i) {
    const SbVec2i32 child = getComponent(i)->getComponentInitSize();
    result[0] = std::max(result[0], child[0]);
    result[1] = std::max(result[1], child[1]);
  }
  const int location = tabsLocation.getValue();
  if (location == LEFT || location == RIGHT) {
    result[0] += kTabBarAllowance;
    result[1] += kPageFrameAllowance;
  } else {
    result[0] += kPageFrameAllowance;
    result[1] += kTabBarAllowance;
  }
  componentInitSize = result;
  return componentInitSize;
}

void SoTabDialog::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  size.setValue(0, 0);
  min.setValue(0, 0);
  max.setValue(0, 0);
  if (numChildren == 0)
    max.setValue(SoSizeRules::kUnlimited, SoSizeRules::kUnlimited);
  for (int i = 0; i < numChildren; ++i) {
    SbVec2i32 childSize(0, 0), childMin(0, 0), childMax(0, 0);
    getComponent(i)->getSize(childSize, childMin, childMax);
    for (int axis = 0; axis < 2; ++axis) {
      size[axis] = std::max(size[axis], childSize[axis]);
      min[axis] = std::max(min[axis], childMin[axis]);
      max[axis] = std::max(max[axis], childMax[axis]);
    }
  }
  const int32_t margins = 2 * SoSizeRules::usable(margin);
  for (int axis = 0; axis < 2; ++axis) {
    size[axis] += margins;
    min[axis] += margins;
    max[axis] = SoSizeRules::saturatingAdd(max[axis], margins);
  }
}

// The pages' frame and tab bar, counted the same way whichever side holds
// the tabs.
void SoTabDialog::fixSizeWithBorder(SbVec2i32& size, int sign)
{
  if (sign == 1) {
    size[0] = SoSizeRules::saturatingAdd(size[0], kPageFrameAllowance);
    size[1] = SoSizeRules::saturatingAdd(size[1], kTabBarAllowance);
  } else {
    size[0] += sign * kPageFrameAllowance;
    size[1] += sign * kTabBarAllowance;
  }
  SoDialogGroup::fixSizeWithBorder(size, sign);
}

// Pages are not aligned with one another: each keeps its own sizes.
void SoTabDialog::setChildrenComponentSize()
{
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    SbVec2i32 size = child->getComponentInitSize();
    if (labelVisibility.getValue())
      size[1] = std::max(size[1], child->getLabelInitSize()[1]);
    child->setComponentSize(size);
  }
}

void SoTabDialog::setChildrenLabelSize()
{
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    SbVec2i32 size = child->labelVisibility.getValue() ? child->getLabelInitSize() : SbVec2i32(0, 0);
    child->setLabelSize(size);
  }
}

// The scene form: a plate that carries the selected page, with a strip of
// tabs along its top edge and two buttons that scroll the strip sideways.

namespace {
// A tab's border around its title, and the narrowest title it allows for.
constexpr float kTabPadding = 14.0f;
constexpr float kNarrowestTitle = 25.0f;
// The frame around the plate and the strip.
constexpr int32_t kPlateFrame = 3;
// The strip keeps this much of the plate's width clear for the buttons.
constexpr int32_t kButtonsRoom = 34;
constexpr float kButtonSize = 14.0f;
constexpr float kButtonStep = 16.0f;
} // namespace

void SoTabDialog::create3DTabDialog()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("selected", "TabDialogSelectedTabFrame", TRUE);
  setPartAsDefault("unselected", "TabDialogUnselectedTabFrame", TRUE);
  setPartAsDefault("textProp", "DialogTextProperties", TRUE);
  setPartAsDefault("lButtonPressed", "TabDialogLeftButtonPressed", TRUE);
  setPartAsDefault("lButtonReleased", "TabDialogLeftButtonReleased", TRUE);
  setPartAsDefault("rButtonPressed", "TabDialogRightButtonPressed", TRUE);
  setPartAsDefault("rButtonReleased", "TabDialogRightButtonReleased", TRUE);
  setPartAsDefault("frame", "TabDialogFrame", TRUE);
  setSwitchValue(pageSwitch.getValue(), SO_SWITCH_NONE);

  // The clip planes come first in the strip, the right one ahead.
  SoGroup* strip = get3DPart("pagesSep");
  topClipPlane = new SoClipPlane;
  topClipPlane->on = clipTabs != 0;
  strip->insertChild(topClipPlane, 0);
  rightClipPlane = new SoClipPlane;
  rightClipPlane->on = clipTabs != 0;
  strip->insertChild(rightClipPlane, 0);

  SoGroup* plate = get3DPart("pageSep");
  frameScale = new SoScale;
  plate->insertChild(frameScale, 0);
  frameTranslation = new SoTranslation;
  plate->insertChild(frameTranslation, 0);

  buttonsTranslation = new SoTranslation;
  get3DPart("buttonsSep")->insertChild(buttonsTranslation, 0);
  for (const char* button : {"lButtonSep", "rButtonSep"}) {
    auto* scale = new SoScale;
    scale->scaleFactor.setValue(kButtonSize, kButtonSize, 1.0f);
    get3DPart(button)->insertChild(scale, 0);
  }
  auto* rightButtonStep = new SoTranslation;
  rightButtonStep->translation.setValue(kButtonStep, 0.0f, 0.0f);
  get3DPart("rButtonSep")->insertChild(rightButtonStep, 0);
  setSwitchValue(lButtonSwtch.getValue(), 0);
  setSwitchValue(rButtonSwtch.getValue(), 0);

  addStartCallback(&SoTabDialog::startCB3D);
  addFinishCallback(&SoTabDialog::finishCB3D);
  depth = -1.0f;
  change3DPages();
  setBuilt3D(1);
  change3DSelectedPage();
}

void SoTabDialog::update3DTabDialog()
{
  const int32_t w = width.getValue() - 2 * kPlateFrame;
  const int32_t h = height.getValue() - 26;
  frameScale->scaleFactor.setValue(static_cast<float>(w), static_cast<float>(h), 1.0f);
  frameTranslation->translation.setValue(0.0f, static_cast<float>(-tabHeight / 2), 0.0f);
  buttonsTranslation->translation.setValue(static_cast<float>(w / 2 - 26),
                                           static_cast<float>(height.getValue() / 2 - 13), 0.0f);
  rightClipPlane->plane = SbPlane(SbVec3f(-1.0f, 0.0f, 0.0f), static_cast<float>(-w / 2 + kButtonsRoom));
  topClipPlane->plane = SbPlane(SbVec3f(0.0f, 1.0f, 0.0f), static_cast<float>((h - tabHeight) / 2));
  change3DPages();
}

SbVec3f SoTabDialog::pageOrigin()
{
  SbVec3f origin(0.0f, 0.0f, 0.0f);
  apply3DTranslation(pageSep.getValue(), depth, origin);
  origin[0] += kPlateFrame;
  origin[1] -= static_cast<float>(tabHeight + kPlateFrame);
  return origin;
}

void SoTabDialog::change3DPages()
{
  if (!frameScale)
    return;
  // The pages take a size that no measure above foresaw: what the groups in
  // them worked out for the window's pass does not hold here.
  const SoScenePass pass(0, true);
  SbVec2i32 pageArea(width.getValue(), height.getValue());
  fixSizeWithBorder(pageArea, -1);
  const SbVec3f origin = pageOrigin();
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    SbVec3f childOrigin = origin;
    child->set3DParentTranslation(childOrigin);
    // A page's component is dictated a size of 2 where the page has room,
    // and so falls back on its minimum size, 2 in from the plate's corner.
    SbVec2i32 dictated(pageArea[0] != 0 ? 2 : 0, pageArea[1] != 0 ? 2 : 0);
    SbVec2i32 place(2, 2);
    child->buildWidget(nullptr, dictated, place, 0);
    if (i >= static_cast<int>(tabs.size()))
      makeTab();
    update3DTabDialogPage(i);
  }
  // The clip planes stand ahead of the tabs in the strip.
  auto* strip = static_cast<SoGroup*>(pagesSep.getValue());
  while (static_cast<int>(tabs.size()) > numChildren) {
    strip->removeChild(static_cast<int>(tabs.size()) + 1);
    tabs.pop_back();
  }
  tabSizes.setNum(numChildren);

  if (numBuiltPages != numChildren && parentNode) {
    numBuiltPages = numChildren;
    if (isBuilt3D()) {
      resetSize();
      if (parentNode->isOfType(SoTopLevelDialog::getClassTypeId()))
        static_cast<SoTopLevelDialog*>(parentNode)->updateAfterSceneGraphChange();
      else if (parentNode->isOfType(SoDialogGroup::getClassTypeId()))
        static_cast<SoDialogGroup*>(parentNode)->updateAfterSceneGraphChange();
    }
  }
  numBuiltPages = numChildren;
  if (isBuilt2D())
    changeSelectedPage();
  if (follows3DForm())
    change3DSelectedPage();
}

void SoTabDialog::makeTab()
{
  Tab tab{};
  tab.tabSwitch = new SoSwitch;
  tab.tabSwitch->whichChild = SO_SWITCH_NONE;
  static_cast<SoGroup*>(pagesSep.getValue())->addChild(tab.tabSwitch);
  tab.translation = new SoTranslation;
  tab.tabSwitch->addChild(tab.translation);
  auto* tabSeparator = new SoSeparator;
  tab.tabSwitch->addChild(tabSeparator);

  tab.frameSeparator = new SoSeparator;
  tabSeparator->addChild(tab.frameSeparator);
  tab.scale = new SoScale;
  tab.frameSeparator->addChild(tab.scale);
  tab.selectedSwitch = new SoSwitch;
  tab.selectedSwitch->addChild(unselected.getValue());
  tab.selectedSwitch->addChild(selected.getValue());
  tab.frameSeparator->addChild(tab.selectedSwitch);
  // The title stands on the tab's top, whatever its look.
  tab.transform = new SoTransform;
  tabSeparator->addChild(tab.transform);

  auto* titleSeparator = new SoSeparator;
  tabSeparator->addChild(titleSeparator);
  tab.textTranslation = new SoTranslation;
  titleSeparator->addChild(tab.textTranslation);
  titleSeparator->addChild(textProp.getValue());
  tab.text = SoControl3D::newFrontText();
  titleSeparator->addChild(tab.text);
  tabs.push_back(tab);
}

void SoTabDialog::update3DTabDialogPage(int page)
{
  Tab& tab = tabs[page];
  SoControl3D::clearText(tab.text);
  setStringToText3(tab.text, convertToCString(getComponent(page)->label.getValue(), getComponent(page)));
  setSwitchValue(tab.tabSwitch, SO_SWITCH_ALL);
  setSwitchValue(tab.selectedSwitch, page == selectedPage.getValue() ? 1 : 0);

  const SbBox3f box = SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(textProp.getValue()), tab.text));
  const float titleWidth = std::max(box.getMax()[0] - box.getMin()[0], kNarrowestTitle);
  const float tabWidth = titleWidth + kTabPadding;
  tab.scale->scaleFactor.setValue(tabWidth, static_cast<float>(tabHeight), 1.0f);
  tabSizes.set1Value(page, SbVec2f(tabWidth, static_cast<float>(tabHeight)));
  // Each tab's translation goes on from the tab before: the strip's tabs
  // share one group, and a hidden tab passes on no translation.
  // The first tab, scrolled off to the left, is placed again when it comes
  // back into view.
  if (page == firstVisiblePage)
    placeFirstVisibleTab();
  else if (page > 0)
    tab.translation->translation.setValue(tabSizes[page - 1][0] / 2 + tabWidth / 2, 0.0f, 0.0f);
  undoTransformMatrix(tab.frameSeparator, tab.transform);
  tab.textTranslation->translation.setValue(-titleWidth / 2, -(box.getMax()[1] + box.getMin()[1]) / 2, 0.0f);
}

void SoTabDialog::placeFirstVisibleTab()
{
  const float x = static_cast<float>(-(width.getValue() - 2 * kPlateFrame) / 2) + tabSizes[firstVisiblePage][0] / 2;
  const float y = static_cast<float>(((height.getValue() - 2 * kPlateFrame) - tabHeight) / 2);
  tabs[firstVisiblePage].translation->translation.setValue(x, y, 0.0f);
}

void SoTabDialog::change3DSelectedPage()
{
  const auto isPage = [this](int32_t page) { return page >= 0 && page < numChildren; };
  if (!isPage(selectedPage.getValue())) {
    setSelectedPage(previousSelectedPage);
    if (!isPage(previousSelectedPage)) {
      previousSelectedPage = 0;
      setSelectedPage(0);
    }
  }
  const int32_t page = selectedPage.getValue();
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->show3D(i == page && shown3D);

  // Tabs show from the first visible one on while they fit; the one that
  // the right clip plane cuts shows as well.
  const int count = std::min(static_cast<int>(tabs.size()), static_cast<int>(numChildren));
  const float stripWidth = static_cast<float>(width.getValue() - 2 * kPlateFrame);
  const float fullTabsWidth = static_cast<float>(width.getValue() - 40);
  float sum = 0.0f;
  int lastFullTab = -1;
  for (int i = 0; i < count; ++i) {
    if (i >= firstVisiblePage)
      sum += tabSizes[i][0];
    setSwitchValue(tabs[i].tabSwitch, stripWidth > sum && i >= firstVisiblePage ? SO_SWITCH_ALL : SO_SWITCH_NONE);
    setSwitchValue(tabs[i].selectedSwitch, i == page ? 1 : 0);
    undoTransformMatrix(tabs[i].frameSeparator, tabs[i].transform);
    if (fullTabsWidth > sum)
      lastFullTab = i;
  }
  if (clipTabs) {
    const int next = lastFullTab + 1;
    if (next < count) {
      setSwitchValue(tabs[next].tabSwitch, SO_SWITCH_ALL);
      setSwitchValue(tabs[next].selectedSwitch, next == page ? 1 : 0);
      // A tab chosen at the cut edge scrolls into view.
      if (tabClicked && next == page)
        change3DFirstPageRight();
    }
  }
  if (previousSelectedPage != page)
    change3DPosition();
  previousSelectedPage = page;
}

void SoTabDialog::change3DPosition()
{
  const int32_t page = selectedPage.getValue();
  if (!frameScale || page < 0 || page >= numChildren)
    return;
  SbVec3f origin = pageOrigin();
  getComponent(page)->set3DParentTranslation(origin);
  getComponent(page)->change3DPosition();
}

void SoTabDialog::show3D(int show)
{
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->show3D(show != 0 && i == selectedPage.getValue());
  SoDialogComponent::show3D(show);
}

void SoTabDialog::change3DFirstPageRight()
{
  setSwitchValue(rButtonSwtch.getValue(), 0);
  if (tabs.empty())
    return;
  if (firstVisiblePage < numChildren - 1)
    ++firstVisiblePage;
  placeFirstVisibleTab();
  if (firstVisiblePage != 0)
    setSwitchValue(tabs[firstVisiblePage - 1].tabSwitch, SO_SWITCH_NONE);
  tabClicked = 0;
  change3DSelectedPage();
}

void SoTabDialog::change3DFirstPageLeft()
{
  setSwitchValue(lButtonSwtch.getValue(), 0);
  if (tabs.empty())
    return;
  if (firstVisiblePage != 0)
    --firstVisiblePage;
  setSwitchValue(tabs[firstVisiblePage].tabSwitch, SO_SWITCH_ALL);
  placeFirstVisibleTab();
  const int first = firstVisiblePage;
  if (first < numChildren - 1)
    tabs[first + 1].translation->translation.setValue((tabSizes[first][0] + tabSizes[first + 1][0]) / 2, 0.0f,
                                                      0.0f);
  tabClicked = 0;
  change3DSelectedPage();
}

void SoTabDialog::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoTabDialog*>(dragger)->draggerStartCallback3D();
}

void SoTabDialog::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoTabDialog*>(dragger)->draggerFinishCallback3D();
}

void SoTabDialog::draggerStartCallback3D()
{
  const SoPath* path = getPickPath();
  if (!path)
    return;
  // A scroll button only shows itself down: the strip moves at the release.
  if (path->containsNode(rButtonSep.getValue())) {
    setSwitchValue(rButtonSwtch.getValue(), 1);
    return;
  }
  if (path->containsNode(lButtonSep.getValue())) {
    setSwitchValue(lButtonSwtch.getValue(), 1);
    return;
  }
  int page = -1;
  for (int i = 0; i < static_cast<int>(tabs.size()); ++i)
    if (path->containsNode(tabs[i].tabSwitch))
      page = i;
  if (page < 0 || page == selectedPage.getValue())
    return;
  tabClicked = 1;
  // A page chosen in the scene comes from no widget: no auditor hears it.
  setFieldUnwatched(selectedPage, selectedPageSensor, page);
  if (buildMode)
    changeSelectedPage();
  if (follows3DForm())
    change3DSelectedPage();
}

void SoTabDialog::draggerFinishCallback3D()
{
  // The toolkit has forgotten the pick by now: the press's copy tells.
  const SoPath* path = getPressPath();
  if (!path || !follows3DForm())
    return;
  if (path->containsNode(rButtonSep.getValue()))
    change3DFirstPageRight();
  else if (path->containsNode(lButtonSep.getValue()))
    change3DFirstPageLeft();
}
