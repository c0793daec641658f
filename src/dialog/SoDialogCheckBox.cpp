#include <SoDialogCheckBox.h>

#include <SoDialogCheckBoxAuditor.h>

#include "Qt/SoDialogQCheckBox.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogCheckBox, SoDialogComponent, "DialogCheckBox")

SoDialogCheckBox::SoDialogCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCheckBox);
  SO_FORMWRIGHT_ADD_FIELD(state, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(onString, "");
  SO_FORMWRIGHT_ADD_FIELD(offString, "");
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateSwitch, SoSwitch, SoSwitch, stateSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOff, SoGroup, SoGroup, stateSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOn, SoGroup, SoGroup, stateSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(onOffStringSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(onOffStringProp, SoGroup, SoGroup, onOffStringSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
  onOffBBox.makeEmpty();
}

SoDialogCheckBox::~SoDialogCheckBox()
{
  SoControlWidgets::deleteFrameWidget(checkBoxWidget, componentWidget);
  delete stateSensor;
  delete onStringSensor;
  delete offStringSensor;
}

void SoDialogCheckBox::addAuditor(SoDialogCheckBoxAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogCheckBox::removeAuditor(SoDialogCheckBoxAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogCheckBox::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogCheckBoxAuditor::dialogCheckBox);
}

void SoDialogCheckBox::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    // The whole box is made with its frame; a later build only places its
    // pieces again.
    if (!existWidget(checkBoxWidget))
      createLabelWidget();
    SoControlWidgets::limitFrame(checkBoxWidget, SbVec2i32(minWidth.getValue(), minHeight.getValue()), *this);
    updateLabelWidget();
    updateCheckBoxWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogCheckBox();
    update3DCheckBox();
    update3DSideLabel();
  }
  makeFieldSensor(stateSensor, state);
  makeFieldSensor(onStringSensor, onString);
  makeFieldSensor(offStringSensor, offString);
}

void SoDialogCheckBox::createLabelWidget()
{
  checkBoxWidget = new SoDialogQCheckBox(componentWidget, this);
  componentWidget = checkBoxWidget;
  changeLabel();
  // The box takes the state quietly: a box read as checked is no click.
  changeState();
  changeLabelAlignment();
  changeOnOffString();
  changeEnable();
  changeLabelVisibility();
  SoDialogComponent::changeEdgeStyle();
  componentLayout->addWidget(checkBoxWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogCheckBox::destroyWidget()
{
  if (buildMode)
    SoControlWidgets::deleteFrameWidget(checkBoxWidget, componentWidget);
  SoDialogComponent::destroyWidget();
}

QWidget* SoDialogCheckBox::getLabelWidget()
{
  return labelWidget;
}

void SoDialogCheckBox::eventNotify(unsigned int value, unsigned long long)
{
  // The user's own change is no change from the application.
  setFieldUnwatched(state, stateSensor, value);
  // The auditors see the new state before the box's text follows it.
  applyDlgCptAuditor();
  if (buildMode)
    changeState();
  if (follows3DForm())
    change3DState();
}

void SoDialogCheckBox::updateFromSensor(SoSensor* sensor)
{
  if (sensor == onStringSensor || sensor == offStringSensor) {
    if (buildMode)
      changeOnOffString();
    if (follows3DForm())
      change3DOnOffString();
  } else if (sensor == stateSensor) {
    if (buildMode)
      changeState();
    if (follows3DForm())
      change3DState();
    if (buildMode)
      changeOnOffString();
    if (follows3DForm())
      change3DOnOffString();
  } else {
    SoDialogComponent::updateFromSensor(sensor);
  }
}

void SoDialogCheckBox::changeState()
{
  checkBoxWidget->setState(state.getValue() != 0);
  if (buildMode)
    changeOnOffString();
  if (follows3DForm())
    change3DOnOffString();
}

void SoDialogCheckBox::changeOnOffString()
{
  const bool showsOff = !state.getValue() && offString.getValue().getLength() != 0;
  const SbString& text = showsOff ? offString.getValue() : onString.getValue();
  checkBoxWidget->setCheckBoxText(SoControlWidgets::toWidgetText(convertToCString(text, this)));
}

void SoDialogCheckBox::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  checkBoxWidget->setLabelPlace(SoControlWidgets::sideLabelPlace(height.getValue(), labelSize[0], text[1]));
}

void SoDialogCheckBox::updateCheckBoxWidget()
{
  checkBoxWidget->setCheckBoxPlace(SoControlWidgets::bodyPlace(width.getValue(), height.getValue(), labelSize[0],
                                                               labelVisibility.getValue() != 0));
}

void SoDialogCheckBox::changeLabelVisibility()
{
  checkBoxWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateCheckBoxWidget();
}

void SoDialogCheckBox::changeLabel()
{
  checkBoxWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
  updateLabelWidget();
}

void SoDialogCheckBox::changeLabelAlignment()
{
  checkBoxWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

SbVec2i32 SoDialogCheckBox::getComponentInitSize()
{
  if (componentInitSize[0] == -1) {
    onPixelSize = getLabelPixelSize(onString.getValue(), nullptr);
    offPixelSize = getLabelPixelSize(offString.getValue(), nullptr);
    componentInitSize.setValue(std::max(onPixelSize[0], offPixelSize[0]), std::max(onPixelSize[1], offPixelSize[1]));
    // Room for the box itself and its margins.
    const SbVec2i32 margins(26, 8);
    componentInitSize += margins;
    onPixelSize += margins;
    offPixelSize += margins;
    if (!labelVisibility.getValue())
      componentInitSize[0] -= labelSize[0];
  }
  return componentInitSize;
}

void SoDialogCheckBox::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  size = componentSize;
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
  size[1] = std::max({size[1], onPixelSize[1], offPixelSize[1]});
}

void SoDialogCheckBox::create3DDialogCheckBox()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("frame", "DialogCheckBoxFrame", TRUE);
  setPartAsDefault("stateOff", "DialogCheckBoxStateOff", TRUE);
  setPartAsDefault("stateOn", "DialogCheckBoxStateOn", TRUE);
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("onOffStringProp", "DialogTextProperties", TRUE);

  SoGroup* switchNode = get3DPart("geomSwitch");
  SoGroup* labelGroup = get3DPart("labelSwitch");
  SoGroup* frameGroup = get3DPart("frameSep");
  SoGroup* markGroup = get3DPart("stateSep");
  SoGroup* textGroup = get3DPart("onOffStringSep");
  create3DSideLabel(labelGroup, labelGroup, static_cast<SoGroup*>(labelProp.getValue()), labelSwitch.getValue(), true);
  frameScale = new SoScale;
  frameGroup->insertChild(frameScale, 0);
  // The mark and the text lie on the frame, and move with it.
  frameTranslation = new SoTranslation;
  switchNode->insertChild(frameTranslation, switchNode->findChild(frameGroup));
  frameTransform = new SoTransform;
  switchNode->insertChild(frameTransform, switchNode->findChild(markGroup));
  auto* markScale = new SoScale;
  markScale->scaleFactor.setValue(14.0f, 14.0f, 1.0f);
  markGroup->insertChild(markScale, 0);
  stateTranslation = new SoTranslation;
  markGroup->insertChild(stateTranslation, 0);
  onOffTranslation = new SoTranslation;
  textGroup->insertChild(onOffTranslation, 0);
  onOffText = SoControl3D::newFrontText();
  textGroup->addChild(onOffText);

  addFinishCallback(&SoDialogCheckBox::finishCB3D);
  change3DLabel();
  change3DState();
  change3DEnable();
  setBuilt3D(1);
}

void SoDialogCheckBox::update3DCheckBox()
{
  const int32_t w = width.getValue();
  int32_t bodyWidth = w - 6;
  const int32_t bodyHeight = height.getValue() - 6;
  int32_t start = 3;
  if (labelVisibility.getValue()) {
    start += 2 + labelSize[0];
    bodyWidth -= labelSize[0] + 2;
  }
  const float halfBody = bodyWidth / 2.0f;
  frameTranslation->translation.setValue(start + halfBody - w / 2.0f, 0.0f, 0.0f);
  frameScale->scaleFactor.setValue(static_cast<float>(bodyWidth), static_cast<float>(bodyHeight), 1.0f);
  undoTransformMatrix(frameSep.getValue(), frameTransform);
  // A mark 14 wide, 10 in from the frame's left; the text 20 in.
  stateTranslation->translation.setValue(-halfBody + 10, 0.0f, 0.0f);
  if (onOffBBox.isEmpty())
    onOffBBox = SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(onOffStringProp.getValue()), onOffText));
  onOffTranslation->translation.setValue(-halfBody + 20, -(onOffBBox.getMax()[1] + onOffBBox.getMin()[1]) / 2, 0.0f);
}

void SoDialogCheckBox::update3DBody()
{
  update3DCheckBox();
}

void SoDialogCheckBox::change3DState()
{
  if (!onOffText)
    return;
  setSwitchValue(stateSwitch.getValue(), state.getValue() != 0);
  change3DOnOffString();
}

void SoDialogCheckBox::change3DOnOffString()
{
  if (!onOffText)
    return;
  const bool showsOff = !state.getValue() && offString.getValue().getLength() != 0;
  SoControl3D::clearText(onOffText);
  setStringToText3(onOffText, convertToCString(showsOff ? offString.getValue() : onString.getValue(), this));
  onOffBBox.makeEmpty();
  if (isBuilt3D())
    update3DCheckBox();
}

void SoDialogCheckBox::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogCheckBox*>(dragger)->draggerFinishCallback3D();
}

void SoDialogCheckBox::draggerFinishCallback3D()
{
  const SoPath* path = getPressPath();
  if (!path || !(path->containsNode(frameSep.getValue()) || path->containsNode(stateSep.getValue()) ||
                 path->containsNode(onOffStringSep.getValue())))
    return;
  // A check box takes no keyboard: it ends whatever control had it.
  set3DCurrentActive(this);
  set3DInactive();
  // A watched write: the mark and a 2D box follow through the sensor.
  state = !state.getValue();
  if (buildMode)
    changeOnOffString();
  if (follows3DForm())
    change3DOnOffString();
  applyDlgCptAuditor();
}
