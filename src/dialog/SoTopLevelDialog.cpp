#include <SoTopLevelDialog.h>

#include <SoDialogComponent.h>
#include <SoMenuBar.h>
#include <SoTopComponent.h>
#include <SoTopLevelAuditor.h>

#include "SoAuditorDispatch.h"
#include "SoControlWidgets.h"
#include "SoFormMode.h"
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoQt.h"
#include "SoSizeRules.h"

#include <QBoxLayout>
#include <QWidget>

#include <cstdlib>

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>

using Formwright::SoQt;

SO_FORMWRIGHT_SOURCE(SoTopLevelDialog, SoFormwright, "TopLevelDialog")
SO_FORMWRIGHT_CHILD_OPERATIONS(SoTopLevelDialog, SoTopComponent)

namespace {
// A maximum of 0 asks for the children's maximum, which is not known when
// the window is made: Qt must not take it as a limit.
int qtMaximum(int32_t value)
{
  return value == 0 ? SoSizeRules::kQtMaximum : SoSizeRules::toQtSize(value);
}
}

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
  defaultAuditor = new SoTopLevelAuditor;
}

SoTopLevelDialog::~SoTopLevelDialog()
{
  sizeTable.clear();
  delete defaultAuditor;
  for (int i = 0; i < numChildren; ++i)
    static_cast<SoTopComponent*>((*children)[i])->destroyWidget();
  // Either may be the window itself, or already gone with a child's frame.
  const QPointer<QWidget> window = buildInsideParent ? nullptr : baseWidget;
  delete currentFocusedWidget;
  delete currentScrolledWidget;
  // A dialog built inside its parent does not own that widget.
  delete window;
  for (SoFieldSensor* sensor :
       {minimizedSensor, marginSensor, modalFrameSensor, resizableSensor, rowSpacingSensor, positionSensor,
        position3DSensor, minimized3DPositionSensor, independentMinimizedPositionSensor, widthSensor, heightSensor,
        minWidthSensor, minHeightSensor, maxWidthSensor, maxHeightSensor})
    delete sensor;
}

void SoTopLevelDialog::buildDialog(QWidget* parent, int buildInside)
{
  buildInsideParent = buildInside;
  setChildrenLabelSize();
  setChildrenComponentSize();
  SbVec2i32 useSize(0, 0), size(0, 0);
  buildWidget(parent, useSize, size, SoFormMode::buildMode());
  firstBuild = 0;
}

void SoTopLevelDialog::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoFormwright::buildWidget(parent, useSize, size, mode);
  if (mode != 0 && !existWidget(baseWidget)) {
    createBaseWidget(parent);
    captureDefaults = 0;
  }
  updateChildrenSizeDB();

  SbVec2i32 cur, min, max;
  getSize(cur, min, max);
  for (int axis = 0; axis < 2; ++axis) {
    if (useSize[axis] == 0)
      continue;
    cur[axis] = size[axis];
    if (cur[axis] < min[axis])
      cur[axis] = min[axis];
    else if (cur[axis] > max[axis])
      cur[axis] = max[axis];
  }
  if (!resizable.getValue()) {
    min = cur;
    max = cur;
  }
  // Only a first build in the scene form gets here with the flag still set:
  // a widget build has cleared it above, after its limits were applied.
  if (captureDefaults) {
    defaultSize.setValue(width.getValue(), height.getValue());
    defaultMinSize.setValue(minWidth.getValue(), minHeight.getValue());
    defaultMaxSize.setValue(maxWidth.getValue(), maxHeight.getValue());
  }
  setSize(cur[0], cur[1], min[0], min[1], max[0], max[1]);
  setDefaultState();

  if (mode != 0) {
    const QSize qtSize(SoSizeRules::toQtSize(width.getValue()), SoSizeRules::toQtSize(height.getValue()));
    // The layout's minimum must count the tree as it is now, or a window
    // that lost a child cannot shrink to its new size.
    dialogLayout->activate();
    baseWidget->resize(qtSize);
    // A window the person may not resize is held at its size; an embedding
    // parent belongs to the application and keeps its own limits.
    if (!resizable.getValue() && !buildInsideParent)
      baseWidget->setFixedSize(qtSize);
    changePosition();
  }

  makeFieldSensor(marginSensor, margin);
  makeFieldSensor(modalFrameSensor, modalFrame);
  makeFieldSensor(rowSpacingSensor, rowSpacing);
  makeFieldSensor(resizableSensor, resizable);
  makeFieldSensor(positionSensor, position);
  makeFieldSensor(position3DSensor, position3D);
  makeFieldSensor(minimizedSensor, minimized);
  makeFieldSensor(independentMinimizedPositionSensor, independentMinimizedPosition);
  makeFieldSensor(minimized3DPositionSensor, minimized3DPosition);
  makeFieldSensor(minWidthSensor, minWidth);
  makeFieldSensor(minHeightSensor, minHeight);
  makeFieldSensor(maxWidthSensor, maxWidth);
  makeFieldSensor(maxHeightSensor, maxHeight);
  makeFieldSensor(widthSensor, width);
  makeFieldSensor(heightSensor, height);
}

void SoTopLevelDialog::createBaseWidget(QWidget* parent)
{
  // With no parent to fill, the dialog opens a window of its own.
  if (!parent)
    buildInsideParent = 0;
  if (buildInsideParent) {
    baseWidget = parent;
    delete parent->layout();
    baseWidget->setBackgroundRole(QPalette::Window);
  } else {
    // A window of its own: the parent does not own it.
    baseWidget = new QWidget(nullptr);
    baseWidget->setObjectName("SoTopLevelDialog");
  }
  dialogLayout = new QVBoxLayout(baseWidget);
  dialogLayout->setObjectName("FWTSoTopLevelDialogLayout");
  dialogLayout->setContentsMargins(0, 0, 0, 0);
  dialogLayout->setSpacing(0);
  changeLabel();
  changePosition();
  baseWidget->setMinimumSize(SoSizeRules::toQtSize(minWidth.getValue()), SoSizeRules::toQtSize(minHeight.getValue()));
  baseWidget->setMaximumSize(qtMaximum(maxWidth.getValue()), qtMaximum(maxHeight.getValue()));
  updateChildren();
}

void SoTopLevelDialog::changePosition()
{
  // Room for the title bar: `position` is where the frame starts.
  const SbVec2i32 place = position.getValue();
  baseWidget->move(QPoint(place[0], place[1] + 20));
}

void SoTopLevelDialog::setPosition(SbVec2i32& place)
{
  setFieldUnwatched(position, positionSensor, place);
  if (place == SbVec2i32(0, 0))
    position.setDefault(TRUE);
}

void SoTopLevelDialog::updateFromSensor(SoSensor* sensor)
{
  if (sensor == marginSensor || sensor == resizableSensor || sensor == modalFrameSensor ||
      sensor == independentMinimizedPositionSensor) {
    // Counted at the next negotiation; nothing to change now.
  } else if (sensor == widthSensor) {
    changeWidth();
  } else if (sensor == heightSensor) {
    changeHeight();
  } else if (sensor == rowSpacingSensor) {
    changeRowSpacing();
  } else if (sensor == minimizedSensor) {
    updateMinimizedState();
  } else if (sensor == positionSensor) {
    if (buildMode)
      changePosition();
    if (follows3DForm())
      change3DPosition();
  } else if (sensor == position3DSensor || sensor == minimized3DPositionSensor) {
    change3DPosition();
  } else if (sensor == minWidthSensor || sensor == minHeightSensor || sensor == maxWidthSensor ||
             sensor == maxHeightSensor) {
    changeMinMaxSize();
  } else {
    SoFormwright::updateFromSensor(sensor);
  }
}

void SoTopLevelDialog::changeWidth()
{
  defaultSize[0] = width.getValue();
}

void SoTopLevelDialog::changeHeight()
{
  defaultSize[1] = height.getValue();
}

void SoTopLevelDialog::changeRowSpacing()
{
  if (existWidget(baseWidget) && baseWidget->layout())
    baseWidget->layout()->setSpacing(rowSpacing.getValue());
}

void SoTopLevelDialog::changeMinMaxSize()
{
  if (existWidget(baseWidget)) {
    baseWidget->setMinimumWidth(SoSizeRules::toQtSize(minWidth.getValue()));
    baseWidget->setMinimumHeight(SoSizeRules::toQtSize(minHeight.getValue()));
    baseWidget->setMaximumWidth(qtMaximum(maxWidth.getValue()));
    baseWidget->setMaximumHeight(qtMaximum(maxHeight.getValue()));
  }
  defaultMinSize.setValue(minWidth.getValue(), minHeight.getValue());
  defaultMaxSize.setValue(maxWidth.getValue(), maxHeight.getValue());
}

// The minimized state only shows in the scene form.
void SoTopLevelDialog::updateMinimizedState() {}

void SoTopLevelDialog::applyAuditor(SoFormwright* control)
{
  const int count = getAuditorListLength();
  for (int i = 0; i < std::max(count, 1); ++i) {
    auto* auditor = count > 0 ? static_cast<SoDialogAuditor*>(getAuditor(i)) : defaultAuditor;
    SoAuditorDispatch::applyDialogTests(auditor, control);
    SoAuditorDispatch::applyMenuTests(auditor, control);
  }
}

void SoTopLevelDialog::changeEnable()
{
  if (existWidget(baseWidget))
    baseWidget->setEnabled(enable.getValue() != 0);
}

void SoTopLevelDialog::changeLabel()
{
  if (existWidget(baseWidget))
    baseWidget->setWindowTitle(SoControlWidgets::toWidgetText(label.getValue()));
}

void SoTopLevelDialog::show()
{
  if (!buildInsideParent && existWidget(baseWidget))
    SoQt::show(baseWidget);
}

void SoTopLevelDialog::hide()
{
  if (!buildInsideParent && existWidget(baseWidget))
    SoQt::hide(baseWidget);
}

void SoTopLevelDialog::close()
{
  hide();
  unref();
}

int SoTopLevelDialog::destroyDialog()
{
  hide();
  if (buildInsideParent)
    std::exit(0);
  return 0;
}

SoMenuBar* SoTopLevelDialog::widgetHasMenuBar() const
{
  for (int i = 0; i < numChildren; ++i)
    if ((*children)[i]->isOfType(SoMenuBar::getClassTypeId()))
      return static_cast<SoMenuBar*>((*children)[i]);
  return nullptr;
}

void SoTopLevelDialog::setSize(int w, int h, int minW, int minH, int maxW, int maxH)
{
  setFieldUnwatched(width, widthSensor, w);
  setFieldUnwatched(height, heightSensor, h);
  setFieldUnwatched(minWidth, minWidthSensor, minW);
  setFieldUnwatched(minHeight, minHeightSensor, minH);
  setFieldUnwatched(maxWidth, maxWidthSensor, maxW);
  setFieldUnwatched(maxHeight, maxHeightSensor, maxH);
}

void SoTopLevelDialog::setDefaultState()
{
  SoSizeRules::markComputedSizes({width, height, minWidth, minHeight, maxWidth, maxHeight}, defaultSize, defaultMinSize,
                                 defaultMaxSize, !resizable.getValue(), !resizable.getValue());
}

void SoTopLevelDialog::getDefaultState(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  size = defaultSize;
  min = defaultMinSize;
  max = defaultMaxSize;
}

void SoTopLevelDialog::getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  size.setValue(width.getValue(), height.getValue());
  min.setValue(minWidth.getValue(), minHeight.getValue());
  max.setValue(maxWidth.getValue(), maxHeight.getValue());
  if (SoSizeRules::hasZero(size, min, max)) {
    SbVec2i32 d, dmin, dmax;
    getDefaultSize(d, dmin, dmax);
    SoSizeRules::takeDefaults(size, min, max, d, dmin, dmax);
  }
  SoSizeRules::clamp(size, min, max);
  if (!resizable.getValue() && width.getValue() != 0) {
    min[0] = size[0];
    max[0] = size[0];
  }
  if (!resizable.getValue() && height.getValue() != 0) {
    min[1] = size[1];
    max[1] = size[1];
  }
}

void SoTopLevelDialog::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoSizeRules::StackedSizes stacked(1);
  updateChildrenSizeDB();
  for (int i = 0; i < numChildren; ++i) {
    auto* child = static_cast<SoTopComponent*>((*children)[i]);
    SbVec2i32 s(0, 0), m(0, 0), x(0, 0);
    child->getSize(s, m, x);
    // A menu bar keeps its height whatever room the window has.
    if (child->isOfType(SoMenuBar::getClassTypeId()))
      x[1] = m[1];
    sizeTable.set(i, s, m, x);
    stacked.add(s, m, x);
  }
  const int32_t stackedChildren = numChildren - (widgetHasMenuBar() ? 1 : 0);
  stacked.result(2 * margin.getValue(), (stackedChildren - 1) * rowSpacing.getValue(), size, min, max);
}

void SoTopLevelDialog::setChildrenLabelSize()
{
  int32_t labelWidth = 0;
  for (int i = 0; i < numChildren; ++i) {
    SoNode* child = (*children)[i];
    if (!child->isOfType(SoDialogComponent::getClassTypeId()))
      continue;
    auto* component = static_cast<SoDialogComponent*>(child);
    if (component->labelVisibility.getValue())
      labelWidth = std::max(labelWidth, component->getLabelInitSize()[0]);
  }
  for (int i = 0; i < numChildren; ++i) {
    SoNode* child = (*children)[i];
    if (!child->isOfType(SoDialogComponent::getClassTypeId()))
      continue;
    auto* component = static_cast<SoDialogComponent*>(child);
    SbVec2i32 labelSize(labelWidth, component->labelVisibility.getValue() ? component->getLabelInitSize()[1] : 0);
    component->setLabelSize(labelSize);
  }
}

void SoTopLevelDialog::setChildrenComponentSize()
{
  int32_t componentWidth = 0;
  for (int i = 0; i < numChildren; ++i) {
    SoNode* child = (*children)[i];
    if (child->isOfType(SoDialogComponent::getClassTypeId()))
      componentWidth = std::max(componentWidth, static_cast<SoDialogComponent*>(child)->getComponentInitSize()[0]);
  }
  for (int i = 0; i < numChildren; ++i) {
    SoNode* child = (*children)[i];
    if (!child->isOfType(SoDialogComponent::getClassTypeId()))
      continue;
    auto* component = static_cast<SoDialogComponent*>(child);
    const int32_t componentHeight = component->getComponentInitSize()[1];
    const int32_t labelHeight = component->labelVisibility.getValue() ? component->getLabelInitSize()[1] : 0;
    SbVec2i32 componentSize(componentWidth, std::max(labelHeight, componentHeight));
    component->setComponentSize(componentSize);
  }
}

void SoTopLevelDialog::updateChildrenSizeDB()
{
  sizeTable.resize(numChildren);
}

void SoTopLevelDialog::updateChildren()
{
  childList().build(baseWidget);
}

void SoTopLevelDialog::computeNewChildrenHeight(SbVec2i32& newSize)
{
  SbVec2i32 size, min, max;
  getDefaultSize(size, min, max);
  sizeTable.distribute(1, newSize[1] - size[1]);
}

void SoTopLevelDialog::resetSize()
{
  if (windowResizedByChildren.getValue())
    setSize(defaultSize[0], defaultSize[1], defaultMinSize[0], defaultMinSize[1], defaultMaxSize[0],
            defaultMaxSize[1]);
  for (int i = 0; i < numChildren; ++i)
    static_cast<SoTopComponent*>((*children)[i])->resetSize();
}

void SoTopLevelDialog::updateDialogBuild(int mode)
{
  resetSize();
  sizeTable.clear();
  setChildrenLabelSize();
  setChildrenComponentSize();
  SbVec2i32 useSize(0, 0), size(0, 0);
  buildWidget(parentWidget, useSize, size, mode);
  if (mode != 0)
    updateChildren();
}

void SoTopLevelDialog::updateAfterSceneGraphChange()
{
  if (buildMode)
    updateDialogBuild(1);
  if (isBuilt3D())
    updateDialogBuild(0);
}

void SoTopLevelDialog::write(SoWriteAction* action)
{
  childList().write(action, true, false);
}
