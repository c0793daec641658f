#include <SoDialogPushButton.h>

#include <SoDialogPushButtonAuditor.h>

#include "Qt/SoDialogQPushButton.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QBoxLayout>

SO_FORMWRIGHT_SOURCE(SoDialogPushButton, SoDialogComponent, "DialogPushButton")

SoDialogPushButton::SoDialogPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogPushButton);
  SO_FORMWRIGHT_ADD_FIELD(buttonLabel, "");
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSwitch, SoSwitch, SoSwitch, frameSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(released, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pressed, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonLabelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonLabelProp, SoGroup, SoGroup, buttonLabelSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
  buttonLabelBBox.makeEmpty();
}

SoDialogPushButton::~SoDialogPushButton()
{
  SoControlWidgets::deleteFrameWidget(buttonWidget, componentWidget);
  delete buttonLabelSensor;
}

void SoDialogPushButton::addAuditor(SoDialogPushButtonAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogPushButton::removeAuditor(SoDialogPushButtonAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogPushButton::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogPushButtonAuditor::dialogPushButton);
}

void SoDialogPushButton::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    // The whole button is made with its frame; a later build only places
    // its pieces again.
    if (!existWidget(buttonWidget))
      createLabelWidget();
    // At every build: the negotiation may have changed the limits.
    buttonWidget->setSizePolicy(fixedWidth.getValue() ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                                fixedHeight.getValue() ? QSizePolicy::Fixed : QSizePolicy::Preferred);
    buttonWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
    buttonWidget->setMaximumSize(maxWidth.getValue(), maxHeight.getValue());
    updateLabelWidget();
    updateButtonWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogPushButton();
    update3DButton();
    update3DSideLabel();
  }
  makeFieldSensor(buttonLabelSensor, buttonLabel);
}

void SoDialogPushButton::createLabelWidget()
{
  buttonWidget = new SoDialogQPushButton(componentWidget, this);
  componentWidget = buttonWidget;
  changeLabel();
  changeLabelAlignment();
  changeButtonLabel();
  changeEnable();
  changeLabelVisibility();
  SoDialogComponent::changeEdgeStyle();
  componentLayout->addWidget(buttonWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogPushButton::destroyWidget()
{
  if (buildMode)
    SoControlWidgets::deleteFrameWidget(buttonWidget, componentWidget);
  SoDialogComponent::destroyWidget();
}

QWidget* SoDialogPushButton::getLabelWidget()
{
  return labelWidget;
}

void SoDialogPushButton::updateFromSensor(SoSensor* sensor)
{
  if (sensor == buttonLabelSensor && buildMode)
    changeButtonLabel();
  // Any change of a button standing in the scene refreshes its text.
  if (follows3DForm())
    change3DButtonLabel();
  SoDialogComponent::updateFromSensor(sensor);
}

void SoDialogPushButton::eventNotify(unsigned int, unsigned long long)
{
  if (isBuilt3D())
    change3DButtonState(0);
  applyDlgCptAuditor();
}

void SoDialogPushButton::activateButton() {}

void SoDialogPushButton::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  buttonWidget->setLabelPlace(SoControlWidgets::sideLabelPlace(height.getValue(), labelSize[0], text[1]));
}

void SoDialogPushButton::updateButtonWidget()
{
  buttonWidget->setButtonPlace(SoControlWidgets::bodyPlace(width.getValue(), height.getValue(), labelSize[0],
                                                           labelVisibility.getValue() != 0));
}

void SoDialogPushButton::changeLabelVisibility()
{
  buttonWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateButtonWidget();
}

void SoDialogPushButton::changeLabel()
{
  buttonWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), this)));
  updateLabelWidget();
}

void SoDialogPushButton::changeLabelAlignment()
{
  buttonWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogPushButton::changeButtonLabel()
{
  // The button keeps its size until the next size negotiation.
  buttonWidget->setButtonText(SoControlWidgets::toWidgetText(convertToCString(buttonLabel.getValue(), this)));
}

void SoDialogPushButton::changeButtonState(int) {}

SbVec2i32 SoDialogPushButton::getComponentInitSize()
{
  if (componentInitSize[0] == -1) {
    buttonPixelSize = getLabelPixelSize(buttonLabel.getValue(), this);
    buttonPixelSize[0] += 12;
    componentInitSize[0] = buttonPixelSize[0];
    buttonPixelSize[1] += 12;
    componentInitSize[1] = buttonPixelSize[1];
    if (!labelVisibility.getValue())
      componentInitSize[0] -= labelSize[0];
  }
  return componentInitSize;
}

void SoDialogPushButton::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  size = componentSize;
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
  if (buttonPixelSize[1] > size[1])
    size[1] = buttonPixelSize[1];
}

void SoDialogPushButton::create3DDialogPushButton()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("released", "DialogPushButtonReleased", TRUE);
  setPartAsDefault("pressed", "DialogPushButtonPressed", TRUE);
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("buttonLabelProp", "DialogTextProperties", TRUE);

  SoGroup* switchNode = get3DPart("geomSwitch");
  SoGroup* labelGroup = get3DPart("labelSwitch");
  SoGroup* frameGroup = get3DPart("frameSep");
  SoGroup* captionGroup = get3DPart("buttonLabelSep");
  create3DSideLabel(labelGroup, labelGroup, static_cast<SoGroup*>(labelProp.getValue()), labelSwitch.getValue(), false);
  frameScale = new SoScale;
  frameGroup->insertChild(frameScale, 0);
  frameTranslation = new SoTranslation;
  switchNode->insertChild(frameTranslation, switchNode->findChild(frameGroup));
  // The caption stands on the block's top, which sinks when pressed.
  frameTransform = new SoTransform;
  switchNode->insertChild(frameTransform, switchNode->findChild(captionGroup));
  buttonLabelTranslation = new SoTranslation;
  captionGroup->insertChild(buttonLabelTranslation, 0);
  buttonLabelText = SoControl3D::newFrontText();
  captionGroup->addChild(buttonLabelText);
  setSwitchValue(frameSwitch.getValue(), 0);

  addStartCallback(&SoDialogPushButton::startCB3D);
  addFinishCallback(&SoDialogPushButton::finishCB3D);
  change3DLabel();
  change3DButtonLabel();
  change3DEnable();
  setBuilt3D(1);
}

void SoDialogPushButton::update3DButton()
{
  SbVec2i32 size, offset;
  get3DComponentSize(size, offset);
  frameTranslation->translation.setValue(static_cast<float>(offset[0]), static_cast<float>(offset[1]), 0.0f);
  frameScale->scaleFactor.setValue(static_cast<float>(size[0]), static_cast<float>(size[1]), 1.0f);
  if (buttonLabelBBox.isEmpty())
    buttonLabelBBox = SoControl3D::finiteBox(
      measure3DText(static_cast<SoGroup*>(buttonLabelProp.getValue()), buttonLabelText));
  // Centred by arithmetic: the caption stays left-justified.
  const SbVec3f& min = buttonLabelBBox.getMin();
  const SbVec3f& max = buttonLabelBBox.getMax();
  buttonLabelTranslation->translation.setValue(-(max[0] - min[0]) / 2, -(max[1] + min[1]) / 2, 0.0f);
  undoTransformMatrix(frameSep.getValue(), frameTransform);
}

void SoDialogPushButton::update3DBody()
{
  update3DButton();
}

void SoDialogPushButton::change3DButtonLabel()
{
  if (!buttonLabelText)
    return;
  SoControl3D::clearText(buttonLabelText);
  setStringToText3(buttonLabelText, convertToCString(buttonLabel.getValue(), this));
  buttonLabelBBox.makeEmpty();
  if (isBuilt3D())
    update3DButton();
}

void SoDialogPushButton::change3DButtonState(int pressedNow)
{
  if (!frameTransform)
    return;
  setSwitchValue(frameSwitch.getValue(), pressedNow != 0);
  undoTransformMatrix(frameSep.getValue(), frameTransform);
}

void SoDialogPushButton::set3DPressedGeometry(SoNode* geometry)
{
  auto* looks = static_cast<SoSwitch*>(frameSwitch.getValue());
  if (!geometry || !looks || looks->getNumChildren() < 2) {
    SoDebugError::post("SoDialogPushButton::set3DPressedGeometry", "no geometry, or the button is not built in 3D");
    return;
  }
  looks->replaceChild(0, geometry);
}

void SoDialogPushButton::set3DReleasedGeometry(SoNode* geometry)
{
  auto* looks = static_cast<SoSwitch*>(frameSwitch.getValue());
  if (!geometry || !looks || looks->getNumChildren() < 2) {
    SoDebugError::post("SoDialogPushButton::set3DReleasedGeometry", "no geometry, or the button is not built in 3D");
    return;
  }
  looks->replaceChild(1, geometry);
}

bool SoDialogPushButton::pressHitsButton(const SoPath* path) const
{
  return path && (path->containsNode(frameSep.getValue()) || path->containsNode(buttonLabelSep.getValue()));
}

void SoDialogPushButton::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogPushButton*>(dragger)->draggerStartCallback3D();
}

void SoDialogPushButton::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogPushButton*>(dragger)->draggerFinishCallback3D();
}

void SoDialogPushButton::draggerStartCallback3D()
{
  if (!pressHitsButton(getPickPath()))
    return;
  set3DCurrentActive(this);
  change3DButtonState(1);
  if (buildMode)
    changeButtonState(1);
}

void SoDialogPushButton::draggerFinishCallback3D()
{
  // The toolkit has forgotten the pick by now: the press's copy tells.
  if (!pressHitsButton(getPressPath()))
    return;
  set3DInactive();
  change3DButtonState(0);
  if (buildMode)
    changeButtonState(0);
  applyDlgCptAuditor();
}
