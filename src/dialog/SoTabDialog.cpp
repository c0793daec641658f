#include <SoTabDialog.h>

#include <SoTabDialogAuditor.h>

#include "Qt/SoDialogQTabDialog.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoSizeRules.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/misc/SoChildList.h>
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
    if (!existWidget(tabWidget))
      createTabWidget();
    else
      updatePages();
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
  SbVec2i32 useSize(0, 0), size(0, 0);
  child->buildWidget(pageWidget, useSize, size, 1);
  childrenWidgets.insert(child->getWidget(), page);
  // Once every page stands, the selected one is shown.
  if (childrenWidgets.getLength() == numChildren)
    changeSelectedPage();
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
  setSelectedPage(index);
  changeSelectedPage();
  if (isBuilt3D())
    change3DSelectedPage();
  applyDlgCptAuditor();
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
  const int count = std::min(static_cast<int>(numChildren), childrenWidgets.getLength());
  for (int i = 0; i < count; ++i)
    if (childrenWidgets[i])
      childrenWidgets[i]->hide();
  const int32_t page = selectedPage.getValue();
  if (page >= 0 && page < count && childrenWidgets[page])
    childrenWidgets[page]->show();
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
  if (!child) {
    SoDebugError::post("SoTabDialog::addChild", "NULL child node");
    return;
  }
  placeChild(child, numChildren);
}

void SoTabDialog::insertChild(SoDialogComponent* child, int index)
{
  if (!child) {
    SoDebugError::post("SoTabDialog::insertChild", "NULL child node");
    return;
  }
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
  children->remove(index);
  if (isBuilt2D())
    removePage(index);
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
  if (!newChild) {
    SoDebugError::post("SoTabDialog::replaceChild", "NULL child node");
    return;
  }
  if (index < 0 || index >= numChildren) {
    SoDebugError::post("SoTabDialog::replaceChild", "Index %d is out of range %d - %d", index, 0, numChildren - 1);
    return;
  }
  getComponent(index)->destroyWidget();
  // The new component gets a page of its own, with its own title.
  if (isBuilt2D())
    removePage(index);
  children->set(index, newChild);
  newChild->setParent(this);
  if (isBuilt2D())
    createTabPageWidget(index);
  childrenChanged();
}

void SoTabDialog::removePage(int page)
{
  // The component's frame went with its destroyWidget.
  childrenWidgets.remove(page);
  tabWidget->removePage(page);
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

// The 3D form of the tabs is made with the 3D pages.
void SoTabDialog::change3DPages() {}
void SoTabDialog::create3DTabDialog() {}
void SoTabDialog::update3DTabDialog() {}
void SoTabDialog::change3DSelectedPage() {}
