#include <SoTopLevelDialog.h>

#include <SoDialogComponent.h>
#include <SoMenuBar.h>
#include <SoTopComponent.h>
#include <SoTopLevelAuditor.h>

#include "SoAuditorDispatch.h"
#include "SoControlWidgets.h"
#include <SoFormMode.h>
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoQt.h"
#include "SoScenePass.h"
#include "SoSizeRules.h"

#include <QBoxLayout>
#include <QWidget>

#include <algorithm>

#include <cstdlib>

#include <Inventor/SbPlane.h>
#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoClipPlane.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/projectors/SbPlaneProjector.h>

using Formwright::SoQt;

SO_FORMWRIGHT_SOURCE(SoTopLevelDialog, SoFormwright, "TopLevelDialog")
SO_FORMWRIGHT_CHILD_OPERATIONS(SoTopLevelDialog, SoTopComponent)

namespace {
// The sizes count the margin around the children; the layout keeps it clear.
void keepMarginClear(QVBoxLayout* layout, const SoSFInt32& margin)
{
  const int inset = SoSizeRules::usable(margin);
  layout->setContentsMargins(inset, inset, inset, inset);
}

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
  delete projector;
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
  const SoScenePass pass(mode, true);
  const bool outerBuild = !buildingWidgets;
  if (mode != 0)
    buildingWidgets = true;
  buildWindow(parent, useSize, size, mode);
  if (mode != 0 && outerBuild) {
    buildingWidgets = false;
    if (destroyAfterBuild) {
      destroyAfterBuild = false;
      destroyWidget();
    }
  }
}

void SoTopLevelDialog::buildWindow(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
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
  // Later builds find computed sizes in the fields, not the application's.
  if (mode == 0)
    captureDefaults = 0;
  setSize(cur[0], cur[1], min[0], min[1], max[0], max[1]);
  setDefaultState();

  if (mode != 0) {
    const QSize qtSize(SoSizeRules::toQtSize(width.getValue()), SoSizeRules::toQtSize(height.getValue()));
    // The layout's minimum must count the tree as it is now, or a window
    // that lost a child cannot shrink to its new size.
    dialogLayout->activate();
    baseWidget->resize(qtSize);
    // A window the person may not resize is held at its size, and gets its
    // negotiated limits once it may be resized again; an embedding
    // parent belongs to the application and keeps its own limits.
    if (!buildInsideParent) {
      if (!resizable.getValue())
        baseWidget->setFixedSize(qtSize);
      else if (baseWidget->minimumSize() == baseWidget->maximumSize())
        setWindowLimits(SbVec2i32(minWidth.getValue(), minHeight.getValue()),
                        SbVec2i32(maxWidth.getValue(), maxHeight.getValue()));
    }
    changePosition();
  } else {
    if (!isBuilt3D())
      create3DTopLevelDialog();
    update3DTopLevelDialog();
    update3DChildren();
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

void SoTopLevelDialog::destroyWidget()
{
  if (buildingWidgets) {
    destroyAfterBuild = true;
    return;
  }
  for (int i = 0; i < numChildren; ++i)
    static_cast<SoTopComponent*>((*children)[i])->destroyWidget();
  // The widget the dialog was built into stays the application's.
  if (buildInsideParent)
    delete dialogLayout.data();
  else
    SoWidgetEvent::deleteWidget(baseWidget.data());
  baseWidget = nullptr;
  dialogLayout = nullptr;
  SoFormwright::destroyWidget();
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
  keepMarginClear(dialogLayout, margin);
  dialogLayout->setSpacing(0);
  changeLabel();
  changePosition();
  setWindowLimits(SbVec2i32(minWidth.getValue(), minHeight.getValue()), SbVec2i32(maxWidth.getValue(), maxHeight.getValue()));
  updateChildren();
}

void SoTopLevelDialog::setWindowLimits(const SbVec2i32& min, const SbVec2i32& max)
{
  baseWidget->setMinimumSize(SoSizeRules::toQtSize(min[0]), SoSizeRules::toQtSize(min[1]));
  baseWidget->setMaximumSize(qtMaximum(max[0]), qtMaximum(max[1]));
}

void SoTopLevelDialog::changePosition()
{
  // Room for the title bar: `position` is where the frame starts. Qt keeps
  // a widget's corners in int, which a place near the ends of the range
  // overflows: a place is kept within the sizes Qt allows.
  const SbVec2i32 place = position.getValue();
  const auto inQtRange = [](int32_t coordinate) { return std::clamp(coordinate, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); };
  baseWidget->move(QPoint(inQtRange(place[0]), inQtRange(place[1]) + 20));
}

void SoTopLevelDialog::setPosition(SbVec2i32& place)
{
  setFieldUnwatched(position, positionSensor, place);
  if (place == SbVec2i32(0, 0))
    position.setDefault(TRUE);
}

void SoTopLevelDialog::updateFromSensor(SoSensor* sensor)
{
  if (sensor == resizableSensor || sensor == modalFrameSensor) {
    // Counted at the next negotiation; nothing to change now.
  } else if (sensor == marginSensor) {
    if (existWidget(baseWidget) && dialogLayout)
      keepMarginClear(dialogLayout, margin);
    updateAfterSceneGraphChange();
  } else if (sensor == independentMinimizedPositionSensor) {
    if (independentMinimizedPosition.getValue()) {
      position3D.disconnect();
      minimized3DPosition.disconnect();
    } else {
      coupleMinimizedPosition(minimized.getValue());
    }
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
    baseWidget->layout()->setSpacing(SoSizeRules::usable(rowSpacing));
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


void SoTopLevelDialog::applyAuditor(SoFormwright* control)
{
  std::vector<SoAuditor*> auditors = getAuditorsNow();
  if (auditors.empty())
    auditors.push_back(defaultAuditor);
  for (SoAuditor* auditor : auditors) {
    SoAuditorDispatch::applyDialogTests(static_cast<SoDialogAuditor*>(auditor), control);
    SoAuditorDispatch::applyMenuTests(static_cast<SoDialogAuditor*>(auditor), control);
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
  SoSizeRules::usableSizes(width, height, minWidth, minHeight, maxWidth, maxHeight, size, min, max);
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
  const int32_t border = 2 * SoSizeRules::usable(margin);
  stacked.result(border, (stackedChildren - 1) * SoSizeRules::usable(rowSpacing), size, min, max);
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
  // A window that Qt deleted under the dialog is built again only when the
  // application asks.
  if (buildMode && baseWidget)
    updateDialogBuild(1);
  if (isBuilt3D())
    updateDialogBuild(0);
}

void SoTopLevelDialog::write(SoWriteAction* action)
{
  childList().write(action, true, false);
}

void SoTopLevelDialog::addWriteReference(SoOutput* out, SbBool isFromField)
{
  childList().addWriteReference(out, isFromField);
}

// The scene form: a plate that carries the children on its top, with a title
// and a minimize button, dragged in its own plane.

namespace {
// The plate's border around the children, and the title strip above them.
const int32_t kPlateBorder = 8;
const int32_t kTitleAllowance = 27;
// With a bar the children start 18 lower, and the height already counts the
// bar's 19: the plate ends as far below the last child as without a bar.
const int32_t kMenuBarTitleAllowance = kTitleAllowance + 18 - 19;
const float kChildrenLeft = 4.0f;
const float kChildrenTop = 23.0f;
const float kMenuBarHeight = 18.0f;
// The minimize button's centre lies this far from the top and right edges,
// and the title starts this far from the left.
const float kButtonInset = 12.0f;
const float kButtonSize = 14.0f;
const float kStripHeight = 20.0f;
// Room left between the end of a long title and the minimize button.
const float kTitleGap = 4.0f;
}

SbVec2i32 SoTopLevelDialog::plateSize() const
{
  const int32_t title = widgetHasMenuBar() ? kMenuBarTitleAllowance : kTitleAllowance;
  return SbVec2i32(width.getValue() + kPlateBorder, height.getValue() + title);
}

SbVec3f SoTopLevelDialog::getTopLevelSize() const
{
  return frameScale ? frameScale->scaleFactor.getValue() : SbVec3f(0.0f, 0.0f, 0.0f);
}

void SoTopLevelDialog::create3DTopLevelDialog()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("frame", "TopLevelDialogFrame", TRUE);
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("minReleased", "TopLevelDialogMinReleased", TRUE);
  setPartAsDefault("minPressed", "TopLevelDialogMinPressed", TRUE);

  SoGroup* switchNode = get3DPart("geomSwitch");
  SoGroup* frameGroup = get3DPart("frameSep");
  SoGroup* labelGroup = get3DPart("labelSep");
  SoGroup* minGroup = get3DPart("minSep");
  frameScale = new SoScale;
  frameGroup->insertChild(frameScale, 0);
  frameTranslation = new SoTranslation;
  switchNode->insertChild(frameTranslation, 0);
  // Greying and dead picks come first, so that they reach all the plate.
  switchNode->insertChild(pickStyle, 0);
  switchNode->insertChild(enableMaterial, 0);
  frameTransform = new SoTransform;
  switchNode->insertChild(frameTransform, switchNode->findChild(labelGroup));
  labelTranslation = new SoTranslation;
  labelGroup->insertChild(labelTranslation, 0);
  // The cut stands just ahead of the text, where the translation and the
  // text's properties already apply.
  labelClip = new SoClipPlane;
  labelGroup->addChild(labelClip);

  labelText = new SoText3;
  labelText->parts = SoText3::FRONT;
  labelGroup->addChild(labelText);
  change3DLabel();

  auto* buttonScale = new SoScale;
  buttonScale->scaleFactor.setValue(kButtonSize, kButtonSize, 1.0f);
  minGroup->insertChild(buttonScale, 0);
  minTranslation = new SoTranslation;
  minGroup->insertChild(minTranslation, 0);
  setSwitchValue(get3DPart("minSwtch"), 0);

  addStartCallback(&SoTopLevelDialog::startCB3D);
  addMotionCallback(&SoTopLevelDialog::motionCB3D);
  addFinishCallback(&SoTopLevelDialog::finishCB3D);
  projector = new SbPlaneProjector(SbPlane(SbVec3f(0.0f, 0.0f, 1.0f), 0.0f), FALSE);

  setBuilt3D(1);
  frameDepth = -1.0f;
  firstMinimize = 1;
  change3DWidgetEnable(enable.getValue());
  show3D(1);
}

void SoTopLevelDialog::update3DTopLevelDialog()
{
  const SbVec2i32 plate = plateSize();
  const float w = static_cast<float>(plate[0]);
  const float h = static_cast<float>(plate[1]);
  const SbVec3f p = position3D.getValue();
  frameScale->scaleFactor.setValue(w, h, 1.0f);
  frameTranslation->translation.setValue(p[0] + w / 2, -p[1] - h / 2, p[2]);
  minTranslation->translation.setValue(w / 2 - kButtonInset, h / 2 - kButtonInset, 0.0f);
  undoTransformMatrix(get3DPart("frameSep"), frameTransform);
  update3DLabel();
}

void SoTopLevelDialog::update3DLabel()
{
  if (!isLabelCachedBBox())
    setLabelCacheBBox(measure3DText(get3DPart("labelProp"), labelText));
  const SbBox3f box = getLabelCachedBBox();
  const float middle = (box.getMax()[1] + box.getMin()[1]) / 2;
  const SbVec2i32 plate = plateSize();
  const float w = static_cast<float>(plate[0]);
  const float h = static_cast<float>(plate[1]);
  // Level with the button's centre, or in the middle of the strip.
  const float left = -w / 2 + kButtonInset;
  if (minimized.getValue())
    labelTranslation->translation.setValue(left, -middle, 0.0f);
  else
    labelTranslation->translation.setValue(left, h / 2 - middle - kButtonInset, 0.0f);
  // What reaches past the gap before the button is cut off: the plane,
  // placed after the translation, keeps the side its normal points to.
  const float cut = w / 2 - kButtonInset - kButtonSize / 2 - kTitleGap;
  labelClip->plane.setValue(SbPlane(SbVec3f(-1.0f, 0.0f, 0.0f), -(cut - left)));
}

SbVec3f SoTopLevelDialog::childrenOrigin()
{
  const SbVec3f p = position3D.getValue();
  const float bar = widgetHasMenuBar() ? kMenuBarHeight : 0.0f;
  SbVec3f origin(p[0] + kChildrenLeft, -p[1] - kChildrenTop - bar, p[2]);
  apply3DTranslation(get3DPart("frameSep"), frameDepth, origin);
  return origin;
}

void SoTopLevelDialog::update3DChildren()
{
  SbVec2i32 size(width.getValue(), height.getValue());
  fixSizeWithBorder(size, -1);
  computeNewChildrenHeight(size);
  SbVec3f origin = childrenOrigin();
  SbVec2i32 place(SoSizeRules::usable(margin), SoSizeRules::usable(margin));
  SbVec2i32 childSize(size[0] - 2 * SoSizeRules::usable(margin), 0);
  for (int i = 0; i < numChildren; ++i) {
    auto* child = static_cast<SoTopComponent*>((*children)[i]);
    child->set3DParentTranslation(origin);
    if (child->isOfType(SoMenuBar::getClassTypeId())) {
      // The bar lies above the children, outside the stack.
      SbVec2i32 barSize(childSize[0], 0);
      child->buildWidget(nullptr, barSize, place, 0);
      continue;
    }
    childSize[1] = sizeTable.childSizes[i][1];
    child->buildWidget(nullptr, childSize, place, 0);
    if (child->isOfType(SoDialogComponent::getClassTypeId()))
      place[1] += static_cast<SoDialogComponent*>(child)->height.getValue() + SoSizeRules::usable(rowSpacing);
  }
}

void SoTopLevelDialog::update3DChildrenPosition()
{
  SbVec3f origin = childrenOrigin();
  for (int i = 0; i < numChildren; ++i) {
    auto* child = static_cast<SoTopComponent*>((*children)[i]);
    child->set3DParentTranslation(origin);
    child->change3DPosition();
  }
}

void SoTopLevelDialog::change3DPosition()
{
  if (!isBuilt3D())
    return;
  // Halved as integers: an odd size may move the plate by half a unit when
  // it is dragged.
  const SbVec2i32 plate = plateSize();
  const int32_t halfWidth = plate[0] / 2;
  const int32_t halfHeight = plate[1] / 2;
  if (!minimized.getValue()) {
    const SbVec3f p = position3D.getValue();
    frameTranslation->translation.setValue(p[0] + halfWidth, -p[1] - halfHeight, p[2]);
    if (!hideChildren.getValue())
      update3DChildrenPosition();
  } else {
    const SbVec3f m = minimized3DPosition.getValue();
    frameTranslation->translation.setValue(m[0] + halfWidth, -m[1] - kStripHeight / 2, m[2]);
  }
}

void SoTopLevelDialog::change3DLabel()
{
  if (labelText)
    labelText->string.setValue(convertToCString(label.getValue(), nullptr));
  SoFormwright::change3DLabel();
}

void SoTopLevelDialog::show3D(int show)
{
  show3DChildren(show);
  SoFormwright::show3D(show);
}

void SoTopLevelDialog::show3DChildren(int show)
{
  for (int i = 0; i < numChildren; ++i)
    static_cast<SoTopComponent*>((*children)[i])->show3D(show);
}

void SoTopLevelDialog::coupleMinimizedPosition(int minimizedNow)
{
  if (minimizedNow) {
    minimized3DPosition.disconnect();
    position3D.connectFrom(&minimized3DPosition);
  } else {
    position3D.disconnect();
    minimized3DPosition.connectFrom(&position3D);
  }
}

void SoTopLevelDialog::updateMinimizedState()
{
  // The minimized state only shows in the scene form.
  if (!isBuilt3D())
    return;
  const int isMinimized = minimized.getValue();
  if (firstMinimize) {
    setFieldUnwatched(minimized3DPosition, minimized3DPositionSensor, position3D.getValue());
    firstMinimize = 0;
  }
  if (!independentMinimizedPosition.getValue()) {
    // The new coupling hands the shown field's value to the other one: the
    // plate is placed below as a build places it, not as a drag moves it.
    position3DSensor->detach();
    minimized3DPositionSensor->detach();
    coupleMinimizedPosition(isMinimized);
    position3DSensor->attach(&position3D);
    minimized3DPositionSensor->attach(&minimized3DPosition);
  }
  show3DChildren(isMinimized);
  if (isMinimized)
    minimize3DDialog();
  else
    restore3DDialog();
  show3DChildren(!isMinimized);
  firstMinimize = 0;
}

void SoTopLevelDialog::minimize3DDialog()
{
  const float w = static_cast<float>(plateSize()[0]);
  const SbVec3f m = minimized3DPosition.getValue();
  frameScale->scaleFactor.setValue(w, kStripHeight, 1.0f);
  frameTranslation->translation.setValue(m[0] + w / 2, -m[1] - kStripHeight / 2, m[2]);
  undoTransformMatrix(get3DPart("frameSep"), frameTransform);
  minTranslation->translation.setValue(w / 2 - kButtonInset, 0.0f, 0.0f);
  update3DLabel();
  if (SoMenuBar* bar = widgetHasMenuBar())
    bar->show3D(0);
}

void SoTopLevelDialog::restore3DDialog()
{
  update3DTopLevelDialog();
  if (!hideChildren.getValue())
    update3DChildrenPosition();
}

void SoTopLevelDialog::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoTopLevelDialog*>(dragger)->draggerStartCallback3D();
}

void SoTopLevelDialog::motionCB3D(void*, SoDragger* dragger)
{
  static_cast<SoTopLevelDialog*>(dragger)->draggerMotionCallback3D();
}

void SoTopLevelDialog::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoTopLevelDialog*>(dragger)->draggerFinishCallback3D();
}

void SoTopLevelDialog::draggerStartCallback3D()
{
  const SoPath* path = getPickPath();
  if (path) {
    if (path->containsNode(minSep.getValue())) {
      setSwitchValue(minSwtch.getValue(), 1);
    } else if (path->containsNode(frameSep.getValue())) {
      worldStartPoint = getWorldStartingPoint();
      projector->setPlane(SbPlane(SbVec3f(0.0f, 0.0f, 1.0f), getLocalStartingPoint()));
      projector->setViewVolume(getViewVolume());
      if (!minimized.getValue()) {
        startPosition = position3D.getValue();
        if (hideChildren.getValue())
          show3DChildren(0);
      } else {
        startPosition = minimized3DPosition.getValue();
      }
    }
  }
  // A press on the title only takes the keyboard.
  set3DCurrentActive(this);
}

void SoTopLevelDialog::draggerMotionCallback3D()
{
  const SoPath* path = getPickPath();
  if (!path || !path->containsNode(frameSep.getValue()))
    return;
  projector->setWorkingSpace(getLocalToWorldMatrix());
  const SbVec3f projected = projector->project(getNormalizedLocaterPosition());
  const SbVec3f delta = projected - getLocalStartingPoint();
  getLocalToWorldMatrix().multVecMatrix(projected, worldStartPoint);
  // The fields count y downward, as pixels do.
  const SbVec3f moved(startPosition[0] + delta[0], startPosition[1] - delta[1], startPosition[2] + delta[2]);
  if (minimized.getValue())
    minimized3DPosition = moved;
  else
    position3D = moved;
  change3DPosition();
}

void SoTopLevelDialog::draggerFinishCallback3D()
{
  // Only the button acts at release, wherever the pointer has gone.
  const SoPath* path = getPressPath();
  if (!path || !path->containsNode(minSep.getValue()))
    return;
  setSwitchValue(minSwtch.getValue(), 0);
  const int wasMinimized = minimized.getValue();
  show3DChildren(wasMinimized);
  if (hideChildren.getValue() && !wasMinimized)
    update3DChildrenPosition();
  minimized = !wasMinimized;
}

void SoTopLevelDialog::getBoundingBox(SoGetBoundingBoxAction* action)
{
  if (!isBuilt3D()) {
    const SbBool notified = enableNotify(FALSE);
    setChildrenLabelSize();
    setChildrenComponentSize();
    const int wasShown = shown3D;
    SbVec2i32 size(0, 0), place(0, 0);
    buildWidget(nullptr, size, place, 0);
    show3D(wasShown);
    // Built as `buildDialog` would have: later changes of the tree rebuild.
    firstBuild = 0;
    enableNotify(notified);
  }
  SoDragger::getBoundingBox(action);
}

void SoTopLevelDialog::rayPick(SoRayPickAction* action)
{
  SoDragger::rayPick(action);
  addInterfaceDetails(action);
}
