#include <SoDialogGroup.h>

#include <SoDialogGroupAuditor.h>
#include <SoDialogSeparator.h>
#include <SoTopLevelDialog.h>

#include "SoAuditorDispatch.h"
#include "SoFormwrightChildren.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoScenePass.h"
#include "SoSizeRules.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/nodes/SoGroup.h>

#include <QBoxLayout>
#include <QFrame>
#include <QSpacerItem>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogGroup, SoDialogComponent, "DialogGroup")
SO_FORMWRIGHT_CHILD_OPERATIONS(SoDialogGroup, SoDialogComponent)

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
    if (SoDialogComponent* child = getComponent(i))
      child->destroyWidget();
  delete defaultAuditor;
  delete marginSensor;
}

void SoDialogGroup::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode == 0 && !parentNode && !defaultAuditor)
    defaultAuditor = new SoDialogGroupAuditor;
  if (mode != 0 && usesGroupFrame && !existWidget(groupWidget))
    createGroupWidget();
  else if (mode != 0 && groupWidget)
    setFrameLimits();
  makeFieldSensor(marginSensor, margin);
}

void SoDialogGroup::updateFromSensor(SoSensor* sensor)
{
  if (sensor != marginSensor) {
    SoDialogComponent::updateFromSensor(sensor);
    return;
  }
  if (buildMode)
    changeMargin();
  updateAfterSceneGraphChange();
}

void SoDialogGroup::changeMargin()
{
  setFrameMargins();
}

void SoDialogGroup::createGroupWidget()
{
  groupWidget = new QFrame(componentWidget);
  componentWidget = groupWidget;
  groupWidget->setObjectName("FWTSoDialogGroupGroupWidget");
  setFrameLimits();
  componentLayout->addWidget(componentWidget, 0);
  componentLayout->addItem(layoutSpacer);
}

void SoDialogGroup::setFrameLimits()
{
  groupWidget->setMinimumSize(SoSizeRules::toQtSize(minWidth.getValue()), SoSizeRules::toQtSize(minHeight.getValue()));
  groupWidget->setMaximumWidth(SoSizeRules::toQtSize(fixedWidth.getValue() ? width.getValue() : maxWidth.getValue()));
  groupWidget->setMaximumHeight(
    SoSizeRules::toQtSize(fixedHeight.getValue() ? height.getValue() : maxHeight.getValue()));
}

void SoDialogGroup::destroyWidget()
{
  for (int i = 0; i < numChildren; ++i)
    if (SoDialogComponent* child = getComponent(i))
      child->destroyWidget();
  SoDialogComponent::destroyWidget();
  // A row's or column's inner layout died with the frame; the spacing
  // sensors must not reach it.
  groupWidget = nullptr;
  componentLayout = nullptr;
}

void SoDialogGroup::applyAuditor(SoFormwright* control)
{
  applyContainerAuditors(control, &SoAuditorDispatch::applyDialogTests, defaultAuditor);
}

void SoDialogGroup::changeEnable()
{
  SoDialogComponent::changeEnable();
  changeWidgetEnable(enable.getValue());
}

void SoDialogGroup::changeWidgetEnable(int enabled)
{
  // The group's value goes to every child, whatever the child's own field.
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->changeWidgetEnable(enabled ? enable.getValue() : 0);
}

void SoDialogGroup::resetSize()
{
  SoDialogComponent::resetSize();
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->resetSize();
}

void SoDialogGroup::getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SbVec2i32 defaults[3];
  if (needsDefaultSize()) {
    defaultSizeOfPass(defaults);
    for (SbVec2i32& value : defaults)
      fixSizeWithBorder(value, 1);
  }
  getSizeFromFields(defaults, size, min, max);
}

void SoDialogGroup::defaultSizeOfPass(SbVec2i32 defaults[3])
{
  const int pass = SoScenePass::current();
  if (pass == 0 || defaultSizePass != pass) {
    getDefaultSize(passDefaults[0], passDefaults[1], passDefaults[2]);
    defaultSizePass = pass;
  }
  for (int i = 0; i < 3; ++i)
    defaults[i] = passDefaults[i];
}

void SoDialogGroup::setLabelSize(SbVec2i32& size)
{
  SoDialogComponent::setLabelSize(size);
  setChildrenLabelSize();
}

void SoDialogGroup::setComponentSize(SbVec2i32& size)
{
  SoDialogComponent::setComponentSize(size);
  setChildrenComponentSize();
}

SbVec2i32 SoDialogGroup::getComponentInitSize()
{
  return SbVec2i32(0, 0);
}

SbVec2i32 SoDialogGroup::getLabelInitSize()
{
  return SbVec2i32(0, 0);
}

void SoDialogGroup::fixSizeWithBorder(SbVec2i32&, int) {}
void SoDialogGroup::setChildrenComponentSize() {}
void SoDialogGroup::setChildrenLabelSize() {}

void SoDialogGroup::updateChildrenSizeDB()
{
  sizeTable.resize(numChildren);
}

void SoDialogGroup::updateChildren()
{
  childList().build(componentWidget);
}

void SoDialogGroup::updateAfterSceneGraphChange()
{
  if (windowResizedByChildren.getValue()) {
    SbVec2i32 size, min, max;
    getDefaultState(size, min, max);
    width = size[0];
    height = size[1];
    minWidth = min[0];
    minHeight = min[1];
    maxWidth = max[0];
    maxHeight = max[1];
  }
  sizeTable.clear();
  componentInitSize.setValue(-1, -1);
  labelInitSize.setValue(0, 0);
  labelSize.setValue(0, 0);
  componentSize.setValue(0, 0);
  if (!parentNode || !parentNode->canBeTraversed())
    return;
  if (parentNode->isOfType(SoTopLevelDialog::getClassTypeId()))
    static_cast<SoTopLevelDialog*>(parentNode)->updateAfterSceneGraphChange();
  else if (parentNode->isOfType(SoDialogGroup::getClassTypeId()))
    static_cast<SoDialogGroup*>(parentNode)->updateAfterSceneGraphChange();
}

SbVec2i32 SoDialogGroup::stackedComponentInitSize(int axis, int32_t spacing)
{
  if (componentInitSize[0] != -1)
    return componentInitSize;
  const int across = 1 - axis;
  SbVec2i32 result(2 * SoSizeRules::usable(margin), 2 * SoSizeRules::usable(margin));
  for (int i = 0; i < numChildren; ++i) {
    // A separator lies across the direction in which the children stack.
    if (getComponent(i)->isOfType(SoDialogSeparator::getClassTypeId()))
      static_cast<SoDialogSeparator*>(getComponent(i))->setOrientationHorz(axis);
    const SbVec2i32 child = getComponent(i)->getComponentInitSize();
    // Across the stacking axis the margin counts towards the widest child,
    // not on top of it.
    result[across] = std::max(result[across], child[across]);
    result[axis] += child[axis];
  }
  result[axis] += (numChildren - 1) * spacing;
  componentInitSize = result;
  return componentInitSize;
}

void SoDialogGroup::stackedDefaultSize(int axis, int32_t spacing, SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoSizeRules::StackedSizes stacked(axis);
  if (numChildren == 0)
    stacked.setUnlimitedMaximum();
  updateChildrenSizeDB();
  for (int i = 0; i < numChildren; ++i) {
    SbVec2i32 s(0, 0), m(0, 0), x(0, 0);
    getComponent(i)->getSize(s, m, x);
    sizeTable.set(i, s, m, x);
    stacked.add(s, m, x);
  }
  stacked.result(2 * SoSizeRules::usable(margin), (numChildren - 1) * spacing, size, min, max);
}

void SoDialogGroup::buildStacked(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode,
                                 QBoxLayout* (*makeLayout)(QWidget*), const char* layoutName, int32_t spacing)
{
  const SoScenePass pass(mode, false);
  if (sizeTable.sizeTableLength != numChildren)
    updateChildrenSizeDB();
  bool firstWidgetBuild = false;
  bool firstSceneBuild = false;
  if (mode != 0) {
    firstWidgetBuild = componentWidget == nullptr;
    const bool makesFrame = !existWidget(componentWidget);
    // A rebuild negotiates the group's own sizes anew, for its frame too.
    SoDialogGroup::buildWidget(parent, useSize, size, mode);
    if (makesFrame) {
      // From now on the children go into the frame's own layout; the outer
      // one stays in Qt's tree.
      componentLayout = makeLayout(componentWidget);
      componentLayout->setObjectName(layoutName);
      componentLayout->setContentsMargins(0, 0, 0, 0);
      componentLayout->setSpacing(0);
      changeEdgeStyle();
      componentLayout->setSpacing(spacing);
    }
    updateChildren();
  } else {
    // Every change made while the group and what it holds are built would
    // otherwise climb through all the levels above it: the group tells its
    // parent once, when it stands.
    const SbBool notified = enableNotify(FALSE);
    firstSceneBuild = !isBuilt3D();
    makingSceneFrame = firstSceneBuild;
    SoDialogGroup::buildWidget(parent, useSize, size, mode);
    makingSceneFrame = false;
    update3DChildren();
    setBuilt3D(1);
    enableNotify(notified);
    if (notified)
      touch();
  }
  if (firstWidgetBuild)
    changeWidgetEnable(enable.getValue());
  // A group that is being built for the first time hands its state down
  // through all it holds once its children stand: a child group in the same
  // first build leaves that walk to it, or every level would walk the levels
  // below it again.
  const bool parentHandsDown =
    parentNode && parentNode->isOfType(SoDialogGroup::getClassTypeId()) && !parentNode->isBuilt3D();
  if (firstSceneBuild && !parentHandsDown)
    change3DWidgetEnable(enable.getValue());
}

void SoDialogGroup::addFrameAllowance(SbVec2i32& size, int sign) const
{
  // The frame takes 6 pixels whatever its edge style.
  for (int axis = 0; axis < 2; ++axis)
    size[axis] = sign == 1 ? SoSizeRules::saturatingAdd(size[axis], 6) : size[axis] + sign * 6;
}

void SoDialogGroup::setFrameMargins()
{
  if (!componentLayout || !groupWidget)
    return;
  // The sizes count 3 pixels of frame on each side whatever the edge, and the
  // group's margin inside it. Qt lays the children out inside the drawn
  // edge already, so that edge is taken off; children given more room than
  // the sizes count would write a larger size at each save.
  const int inset = std::max(0, 3 + SoSizeRules::usable(margin) - groupWidget->frameWidth());
  componentLayout->setContentsMargins(inset, inset, inset, inset);
}

void SoDialogGroup::computeNewChildrenSize(int axis, SbVec2i32& newSize)
{
  SbVec2i32 defaults[3];
  defaultSizeOfPass(defaults);
  sizeTable.distribute(axis, newSize[axis] - defaults[0][axis]);
}

void SoDialogGroup::write(SoWriteAction* action)
{
  childList().write(action, false, true);
}

void SoDialogGroup::addWriteReference(SoOutput* out, SbBool isFromField)
{
  childList().addWriteReference(out, isFromField);
}

void SoDialogGroup::change3DWidgetEnable(int enabled)
{
  SoDialogComponent::change3DWidgetEnable(enabled);
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->change3DWidgetEnable(enabled ? enable.getValue() : 0);
}

void SoDialogGroup::show3D(int show)
{
  SoDialogComponent::show3D(show);
  if (makingSceneFrame)
    return;
  for (int i = 0; i < numChildren; ++i)
    getComponent(i)->show3D(show);
}

void SoDialogGroup::change3DPosition()
{
  SbVec3f origin(0.0f, 0.0f, 0.0f);
  apply3DTranslation(get3DPart("mainCptSeparator"), cptDepth, origin);
  for (int i = 0; i < numChildren; ++i) {
    getComponent(i)->set3DParentTranslation(origin);
    getComponent(i)->change3DPosition();
  }
}

void SoDialogGroup::update3DChildren() {}

void SoDialogGroup::update3DStackedChildren(int axis, int32_t spacing)
{
  const int across = 1 - axis;
  SbVec2i32 size(width.getValue(), height.getValue());
  fixSizeWithBorder(size, -1);
  computeNewChildrenSize(axis, size);
  // With no edge the frame has no border to keep clear.
  const bool edgeless = edgeStyle.getValue() == NONE;
  if (edgeless)
    size[across] += 6;
  const int32_t inset = SoSizeRules::usable(margin) + (edgeless ? 0 : 3);
  SbVec2i32 place(inset, inset);
  SbVec3f origin(0.0f, 0.0f, 0.0f);
  apply3DTranslation(get3DPart("mainCptSeparator"), cptDepth, origin);
  SbVec2i32 childSize(0, 0);
  childSize[across] = size[across] - 2 * SoSizeRules::usable(margin);
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    child->set3DParentTranslation(origin);
    childSize[axis] = sizeTable.childSizes[i][axis];
    child->buildWidget(nullptr, childSize, place, 0);
    const int32_t along = axis == 1 ? child->height.getValue() : child->width.getValue();
    place[axis] += along + spacing;
  }
}

void SoDialogGroup::getBoundingBox(SoGetBoundingBoxAction* action)
{
  if (!isBuilt3D()) {
    const SbBool notified = enableNotify(FALSE);
    SoFormwright* top = getFirstTopParent(1, 1);
    if (top && !top->isBuilt3D()) {
      // Standing for a window that is not built, the group aligns its
      // children as a window would.
      setChildrenLabelSize();
      setChildrenComponentSize();
      if (top != this)
        top->setCanBeTraversed(0);
    }
    SbVec2i32 size(0, 0), place(0, 0);
    buildWidget(nullptr, size, place, 0);
    enableNotify(notified);
  }
  SoDragger::getBoundingBox(action);
}

void SoDialogGroup::rayPick(SoRayPickAction* action)
{
  SoDragger::rayPick(action);
  addInterfaceDetails(action);
}
