#include <SoDialogComponent.h>

#include <SoColumnDialog.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>
#include <SoTopLevelDialog.h>

#include "SoControl3D.h"
#include "SoWidgetEvent.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoSizeRules.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <QBoxLayout>
#include <QFrame>
#include <QSpacerItem>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogComponent, SoTopComponent, "DialogComponent")

SoDialogComponent::SoDialogComponent()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogComponent);
  SO_FORMWRIGHT_ADD_FIELD(width, 0);
  SO_FORMWRIGHT_ADD_FIELD(height, 0);
  SO_FORMWRIGHT_ADD_FIELD(fixedWidth, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(fixedHeight, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(minWidth, 0);
  SO_FORMWRIGHT_ADD_FIELD(minHeight, 0);
  SO_FORMWRIGHT_ADD_FIELD(maxWidth, 0);
  SO_FORMWRIGHT_ADD_FIELD(maxHeight, 0);
  SO_FORMWRIGHT_ADD_FIELD(labelVisibility, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(edgeStyle, NONE);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(EdgeStyle, NONE);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(EdgeStyle, SHADOW_IN);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(EdgeStyle, SHADOW_OUT);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(edgeStyle, EdgeStyle);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(mainCptSeparator, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edgeStyleSwitch, SoSwitch, SoSwitch, mainCptSeparator, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edgeStyleNone, SoGroup, SoGroup, edgeStyleSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edgeStyleShadowIn, SoGroup, SoGroup, edgeStyleSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edgeStyleShadowOut, SoGroup, SoGroup, edgeStyleSwitch, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogComponent::~SoDialogComponent()
{
  if (hasOwnFrame())
    delete componentWidget;
  componentWidget = nullptr;
  delete labelVisibilitySensor;
  delete edgeStyleSensor;
  delete widthSensor;
  delete heightSensor;
  delete minWidthSensor;
  delete minHeightSensor;
  delete maxWidthSensor;
  delete maxHeightSensor;
}

void SoDialogComponent::getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SbVec2i32 defaults[3];
  if (needsDefaultSize())
    getDefaultSize(defaults[0], defaults[1], defaults[2]);
  getSizeFromFields(defaults, size, min, max);
}

bool SoDialogComponent::needsDefaultSize() const
{
  SbVec2i32 size, min, max;
  SoSizeRules::usableSizes(width, height, minWidth, minHeight, maxWidth, maxHeight, size, min, max);
  return SoSizeRules::hasZero(size, min, max);
}

void SoDialogComponent::getSizeFromFields(const SbVec2i32 defaults[3], SbVec2i32& size, SbVec2i32& min,
                                          SbVec2i32& max) const
{
  SoSizeRules::usableSizes(width, height, minWidth, minHeight, maxWidth, maxHeight, size, min, max);
  if (needsDefaultSize())
    SoSizeRules::takeDefaults(size, min, max, defaults[0], defaults[1], defaults[2]);
  SoSizeRules::clamp(size, min, max);
  if (fixedWidth.getValue()) {
    min[0] = size[0];
    max[0] = size[0];
  }
  if (fixedHeight.getValue()) {
    min[1] = size[1];
    max[1] = size[1];
  }
}

void SoDialogComponent::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoTopComponent::buildWidget(parent, useSize, size, mode);

  if (!parentNode) {
    SbVec2i32 label = getLabelInitSize();
    setLabelSize(label);
    const SbVec2i32 component = getComponentInitSize();
    const int32_t componentWidth = component[0] > 0 ? component[0] : 0;
    const int32_t componentHeight = labelVisibility.getValue() ? std::max(component[1], label[1]) : component[1];
    SbVec2i32 measured(componentWidth, componentHeight);
    setComponentSize(measured);
  }

  // A 3D build is given the size itself, 0 where it is free, and the place.
  const SbVec2i32 dictated = mode == 0 ? useSize : size;
  SbVec2i32 cur, min, max;
  getSize(cur, min, max);
  for (int axis = 0; axis < 2; ++axis) {
    if (useSize[axis] == 0)
      continue;
    cur[axis] = dictated[axis];
    if (cur[axis] < min[axis])
      cur[axis] = min[axis];
    else if (cur[axis] > max[axis])
      cur[axis] = max[axis];
  }
  if (fixedWidth.getValue()) {
    min[0] = cur[0];
    max[0] = cur[0];
  }
  if (fixedHeight.getValue()) {
    min[1] = cur[1];
    max[1] = cur[1];
  }

  // The record of the application's values must be taken before the
  // computed sizes overwrite the fields.
  if (firstBuild) {
    defaultSize.setValue(width.getValue(), height.getValue());
    defaultMinSize.setValue(minWidth.getValue(), minHeight.getValue());
    defaultMaxSize.setValue(maxWidth.getValue(), maxHeight.getValue());
  }
  setSize(cur[0], cur[1], min[0], min[1], max[0], max[1]);
  setDefaultState();
  requestedSize = size;

  if (mode != 0) {
    if (!existWidget(componentWidget)) {
      createComponentWidget(parent);
      firstBuild = 0;
    }
    updateComponentWidget();
  } else {
    pixelPosition = size;
    if (!isBuilt3D()) {
      create3DDialogComponent();
      firstBuild = 0;
    }
    update3DDialogComponent();
  }

  makeFieldSensor(labelVisibilitySensor, labelVisibility);
  makeFieldSensor(edgeStyleSensor, edgeStyle);
  makeFieldSensor(widthSensor, width);
  makeFieldSensor(heightSensor, height);
  makeFieldSensor(minWidthSensor, minWidth);
  makeFieldSensor(minHeightSensor, minHeight);
  makeFieldSensor(maxWidthSensor, maxWidth);
  makeFieldSensor(maxHeightSensor, maxHeight);
}

void SoDialogComponent::setSize(int w, int h, int minW, int minH, int maxW, int maxH)
{
  setFieldUnwatched(width, widthSensor, w);
  setFieldUnwatched(height, heightSensor, h);
  setFieldUnwatched(minWidth, minWidthSensor, minW);
  setFieldUnwatched(minHeight, minHeightSensor, minH);
  setFieldUnwatched(maxWidth, maxWidthSensor, maxW);
  setFieldUnwatched(maxHeight, maxHeightSensor, maxH);
}

void SoDialogComponent::setDefaultState()
{
  SoSizeRules::markComputedSizes({width, height, minWidth, minHeight, maxWidth, maxHeight}, defaultSize, defaultMinSize,
                                 defaultMaxSize, fixedWidth.getValue() != 0, fixedHeight.getValue() != 0);
}

void SoDialogComponent::getDefaultState(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  size = defaultSize;
  min = defaultMinSize;
  max = defaultMaxSize;
}

void SoDialogComponent::resetSize()
{
  componentInitSize.setValue(-1, -1);
  labelSize.setValue(0, 0);
  labelInitSize.setValue(0, 0);
  componentSize.setValue(0, 0);
  height = 0;
  width = 0;
}

bool SoDialogComponent::hasOwnFrame() const
{
  return componentWidget && componentWidget != parentWidget;
}

void SoDialogComponent::createComponentWidget(QWidget* parent)
{
  componentWidget = parent;

  QBoxLayout* parentLayout = nullptr;
  if (parentNode && parentNode->isOfType(SoTopLevelDialog::getClassTypeId())) {
    parentLayout = static_cast<SoTopLevelDialog*>(parentNode)->getLayout();
  } else if (parentNode && parentNode->isOfType(SoTabDialog::getClassTypeId())) {
    // Each component of a tab dialog goes into the layout of its own page.
    auto* tabs = static_cast<SoTabDialog*>(parentNode);
    parentLayout = qobject_cast<QBoxLayout*>(static_cast<QLayout*>(tabs->getLayout(tabs->findChild(this))));
  } else if (parentNode && parentNode->isOfType(SoDialogComponent::getClassTypeId())) {
    parentLayout = static_cast<QBoxLayout*>(static_cast<SoDialogComponent*>(parentNode)->getLayout());
  } else if (parent) {
    // A component standing alone goes into its parent widget's layout.
    parentLayout = qobject_cast<QBoxLayout*>(parent->layout());
  }

  const bool stacked = parentNode && (parentNode->isOfType(SoColumnDialog::getClassTypeId()) ||
                                      parentNode->isOfType(SoTabDialog::getClassTypeId()));
  if (stacked) {
    componentLayout = new QVBoxLayout;
    const bool expanding = fixedHeight.getValue() || height.getValue() == maxHeight.getValue();
    layoutSpacer = new QSpacerItem(20, 0, QSizePolicy::Minimum, expanding ? QSizePolicy::Expanding : QSizePolicy::Fixed);
  } else {
    componentLayout = new QHBoxLayout;
    layoutSpacer = new QSpacerItem(0, 20, fixedWidth.getValue() ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                                   QSizePolicy::Minimum);
  }
  placedLayout = componentLayout;
  if (parentLayout)
    parentLayout->insertLayout(indexAmongBuiltSiblings(parentLayout), componentLayout, 0);
  else if (parent && !parent->layout())
    parent->setLayout(componentLayout);
  componentLayout->setObjectName("FWTSoDialogComponentLayout");
  componentLayout->setSpacing(0);
  componentLayout->setContentsMargins(0, 0, 0, 0);
}

int SoDialogComponent::indexAmongBuiltSiblings(QBoxLayout* parentLayout) const
{
  const SoChildList* siblings = parentNode ? parentNode->getChildren() : nullptr;
  const int own = siblings ? siblings->find(const_cast<SoDialogComponent*>(this)) : -1;
  if (own < 0)
    return -1;
  // The layouts stand in the order of their nodes: when the sibling just
  // before stands last, as all through a first build, none after it is
  // placed, and a walk over them would make a build quadratic.
  if (own > 0 && parentLayout->count() > 0 && (*siblings)[own - 1]->isOfType(SoDialogComponent::getClassTypeId())) {
    const QLayoutItem* previous = static_cast<SoDialogComponent*>((*siblings)[own - 1])->placedLayout;
    if (previous && parentLayout->itemAt(parentLayout->count() - 1) == previous)
      return -1;
  }
  for (int i = own + 1; i < siblings->getLength(); ++i) {
    SoNode* sibling = (*siblings)[i];
    if (!sibling->isOfType(SoDialogComponent::getClassTypeId()))
      continue;
    const QBoxLayout* placed = static_cast<SoDialogComponent*>(sibling)->placedLayout;
    const int index = placed ? parentLayout->indexOf(placed) : -1;
    if (index >= 0)
      return index;
  }
  return -1;
}

void SoDialogComponent::destroyWidget()
{
  if (buildMode && componentWidget) {
    if (hasOwnFrame())
      SoWidgetEvent::deleteWidget(componentWidget);
    componentWidget = nullptr;
  }
  // The spacer lives in the placing layout and goes with it; a bare
  // component, which shows nothing, never placed it.
  if (placedLayout) {
    if (layoutSpacer && placedLayout->indexOf(layoutSpacer) < 0)
      delete layoutSpacer;
    if (componentLayout == placedLayout)
      componentLayout = nullptr;
    delete placedLayout;
    placedLayout = nullptr;
  }
  // A placing layout that Qt deleted took the spacer with it.
  layoutSpacer = nullptr;
  SoTopComponent::destroyWidget();
}

void SoDialogComponent::updateFromSensor(SoSensor* sensor)
{
  if (sensor == labelVisibilitySensor) {
    if (buildMode)
      changeLabelVisibility();
    if (follows3DForm())
      change3DLabelVisibility();
  } else if (sensor == edgeStyleSensor) {
    if (buildMode)
      changeEdgeStyle();
    if (follows3DForm())
      change3DEdgeStyle();
  } else if (sensor == widthSensor) {
    changeWidth();
  } else if (sensor == heightSensor) {
    changeHeight();
  } else if (sensor == minWidthSensor || sensor == maxWidthSensor || sensor == minHeightSensor ||
             sensor == maxHeightSensor) {
    changeMinMaxSize();
  } else {
    SoTopComponent::updateFromSensor(sensor);
  }
}

void SoDialogComponent::get2DComponentSize(SbVec2i32& size, SbVec2i32& position)
{
  // The frame's allowance: the offset depends on the edge, the 6 does not.
  int32_t offset = 3;
  if (edgeStyle.getValue() == SHADOW_IN)
    offset = 2;
  else if (edgeStyle.getValue() == SHADOW_OUT)
    offset = 0;
  int32_t w = width.getValue() - 6;
  const int32_t h = height.getValue() - 6;
  int32_t x = offset;
  if (labelVisibility.getValue()) {
    x = offset + labelSize[0] + 2;
    w -= labelSize[0] + 2;
  }
  size.setValue(w, h);
  position.setValue(x, offset);
}

QWidget* SoDialogComponent::getLabelWidget()
{
  return nullptr;
}

void SoDialogComponent::eventNotify(unsigned int, unsigned long long) {}

void SoDialogComponent::setLabelSize(SbVec2i32& size)
{
  labelSize = size;
}

void SoDialogComponent::setComponentSize(SbVec2i32& size)
{
  componentSize = size;
}

SbVec2i32 SoDialogComponent::getComponentInitSize()
{
  return SbVec2i32(0, 0);
}

SbVec2i32 SoDialogComponent::getLabelInitSize()
{
  labelInitSize = getLabelPixelSize(label.getValue(), nullptr);
  return labelInitSize;
}

void SoDialogComponent::setFocus() {}
void SoDialogComponent::changeWidgetEnable(int) {}

void SoDialogComponent::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  size.setValue(200, 28);
  min.setValue(25, 25);
  max.setValue(32767, 32767);
}

void SoDialogComponent::changeLabelVisibility() {}

void SoDialogComponent::changeEdgeStyle()
{
  auto* frame = hasOwnFrame() ? qobject_cast<QFrame*>(componentWidget) : nullptr;
  if (!frame)
    return;
  const int style = edgeStyle.getValue();
  frame->setFrameShadow(style == SHADOW_OUT ? QFrame::Raised : QFrame::Sunken);
  frame->setFrameShape(style != NONE ? QFrame::StyledPanel : QFrame::NoFrame);
}

void SoDialogComponent::updateComponentWidget() {}

void SoDialogComponent::changeWidth()
{
  defaultSize[0] = width.getValue();
}

void SoDialogComponent::changeHeight()
{
  defaultSize[1] = height.getValue();
}

void SoDialogComponent::changeMinMaxSize()
{
  defaultMinSize.setValue(minWidth.getValue(), minHeight.getValue());
  defaultMaxSize.setValue(maxWidth.getValue(), maxHeight.getValue());
}

void SoDialogComponent::change3DLabelVisibility()
{
  if (!sideLabelSwitch || !isBuilt3D())
    return;
  setSwitchValue(sideLabelSwitch, labelVisibility.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);
  update3DBody();
}

void SoDialogComponent::change3DEdgeStyle()
{
  setSwitchValue(get3DPart("edgeStyleSwitch"), edgeStyle.getValue());
}

void SoDialogComponent::changeEnable()
{
  if (hasOwnFrame())
    componentWidget->setEnabled(enable.getValue() != 0);
}

void SoDialogComponent::changeLabelAlignment() {}

void SoDialogComponent::create3DDialogComponent()
{
  // Built3D is the mark of each control's own create step: the frame, which
  // every control shares, is made only once whatever the control.
  if (cptTranslation)
    return;
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("edgeStyleNone", "DialogComponentEdgeStyleNone", TRUE);
  setPartAsDefault("edgeStyleShadowIn", "DialogComponentEdgeStyleShadowIn", TRUE);
  setPartAsDefault("edgeStyleShadowOut", "DialogComponentEdgeStyleShadowOut", TRUE);
  cptScale = new SoScale;
  get3DPart("mainCptSeparator")->insertChild(cptScale, 0);
  // Greying and dead picks come first, so that they reach all the control.
  SoGroup* switchNode = get3DPart("geomSwitch");
  cptTranslation = new SoTranslation;
  switchNode->insertChild(cptTranslation, 0);
  switchNode->insertChild(pickStyle, 0);
  switchNode->insertChild(enableMaterial, 0);
  // A row's or column's children stand on the frame through their origin.
  if (!isOfType(SoColumnDialog::getClassTypeId()) && !isOfType(SoRowDialog::getClassTypeId())) {
    cptTransform = new SoTransform;
    switchNode->addChild(cptTransform);
  }
  change3DEdgeStyle();
  apply3DParentTranslation();
  cptDepth = -1.0f;
  show3D(1);
}

void SoDialogComponent::update3DDialogComponent()
{
  // A child of a row, column or tab is placed from its parent's corner.
  SbVec3f offset(0.0f, 0.0f, 0.0f);
  if (parentNode && parentNode->canBeTraversed() &&
      (parentNode->isOfType(SoColumnDialog::getClassTypeId()) || parentNode->isOfType(SoRowDialog::getClassTypeId()) ||
       parentNode->isOfType(SoTabDialog::getClassTypeId()))) {
    auto* parent = static_cast<SoDialogComponent*>(parentNode);
    if (parent->cptTranslation)
      offset = parent->cptTranslation->translation.getValue();
    offset[0] -= static_cast<float>(parent->width.getValue()) / 2;
    offset[1] += static_cast<float>(parent->height.getValue()) / 2;
  }
  const float w = static_cast<float>(width.getValue());
  const float h = static_cast<float>(height.getValue());
  cptTranslation->translation.setValue(pixelPosition[0] + w / 2 + offset[0], -pixelPosition[1] - h / 2 + offset[1],
                                       offset[2]);
  cptScale->scaleFactor.setValue(w, h, 1.0f);
  if (cptTransform)
    undoTransformMatrix(get3DPart("mainCptSeparator"), cptTransform);
}

void SoDialogComponent::get3DComponentSize(SbVec2i32& size, SbVec2i32& offset)
{
  // A border of 3 on each side; a visible label keeps its own column.
  const int32_t w = width.getValue();
  size.setValue(w - 6, height.getValue() - 6);
  int32_t start = 3;
  if (labelVisibility.getValue()) {
    start = labelSize[0] + 5;
    size[0] -= labelSize[0] + 2;
  }
  offset.setValue(static_cast<int32_t>(start + size[0] / 2.0 - w / 2.0), 0);
}

void SoDialogComponent::create3DSideLabel(SoGroup* placeGroup, SoGroup* textGroup, SoGroup* props,
                                          SoNode* visibility, bool integerHalf)
{
  sideLabelTranslation = new SoTranslation;
  placeGroup->insertChild(sideLabelTranslation, 0);
  sideLabelText = SoControl3D::newFrontText();
  textGroup->addChild(sideLabelText);
  sideLabelProps = props;
  sideLabelSwitch = visibility;
  sideLabelIntegerHalf = integerHalf;
  setSwitchValue(visibility, labelVisibility.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);
}

void SoDialogComponent::update3DSideLabel()
{
  if (!sideLabelText)
    return;
  if (!isLabelCachedBBox())
    setLabelCacheBBox(SoControl3D::finiteBox(measure3DText(sideLabelProps, sideLabelText)));
  const SbBox3f box = getLabelCachedBBox();
  const int32_t x = SoControl3D::sideLabelX(labelSize[0], box.getMax()[0] - box.getMin()[0], labelAlignment.getValue(),
                                            sideLabelIntegerHalf);
  sideLabelTranslation->translation.setValue(x - width.getValue() / 2.0f, -(box.getMax()[1] + box.getMin()[1]) / 2,
                                             0.0f);
}

void SoDialogComponent::update3DBody() {}

void SoDialogComponent::change3DLabel()
{
  if (sideLabelText) {
    SoControl3D::clearText(sideLabelText);
    setStringToText3(sideLabelText, convertToCString(label.getValue(), nullptr));
  }
  SoTopComponent::change3DLabel();
  if (isBuilt3D())
    update3DSideLabel();
}

void SoDialogComponent::change3DLabelAlignment()
{
  if (isBuilt3D())
    update3DSideLabel();
}

void SoDialogComponent::getBoundingBox(SoGetBoundingBoxAction* action)
{
  // Only a component that no build has placed yet builds itself here, at
  // its parent's corner: a control whose class draws nothing of its own in
  // the scene is never marked built, and must keep the place its parent gave.
  if (!isBuilt3D() && !cptTranslation) {
    const SbBool notified = enableNotify(FALSE);
    // A window above that is not built yet must not follow field changes
    // of a form it does not have.
    SoFormwright* top = getFirstTopParent(1, 1);
    if (top && !top->isBuilt3D() && top != this)
      top->setCanBeTraversed(0);
    SbVec2i32 size(0, 0), place(0, 0);
    buildWidget(nullptr, size, place, 0);
    enableNotify(notified);
  }
  SoBaseKit::doAction(action);
}
