#include <SoDialogPushButton.h>

#include <SoDialogPushButtonAuditor.h>

#include "Qt/SoDialogQPushButton.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

SO_FORMWRIGHT_SOURCE(SoDialogPushButton, SoDialogComponent, "DialogPushButton")

SoDialogPushButton::SoDialogPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogPushButton);
  SO_FORMWRIGHT_ADD_FIELD(buttonLabel, "");
  SO_FORMWRIGHT_INIT_INSTANCE();
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
    updateLabelWidget();
    updateButtonWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogPushButton();
    update3DButton();
    update3DLabel();
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
  buttonWidget->setSizePolicy(fixedWidth.getValue() ? QSizePolicy::Fixed : QSizePolicy::Preferred,
                              fixedHeight.getValue() ? QSizePolicy::Fixed : QSizePolicy::Preferred);
  buttonWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
  buttonWidget->setMaximumSize(maxWidth.getValue(), maxHeight.getValue());
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

void SoDialogPushButton::create3DDialogPushButton() {}
void SoDialogPushButton::update3DButton() {}
void SoDialogPushButton::update3DLabel() {}
void SoDialogPushButton::change3DButtonLabel() {}
void SoDialogPushButton::change3DButtonState(int) {}
