#include <SoDialogCheckBox.h>

#include <SoDialogCheckBoxAuditor.h>

#include "Qt/SoDialogQCheckBox.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogCheckBox, SoDialogComponent, "DialogCheckBox")

SoDialogCheckBox::SoDialogCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCheckBox);
  SO_FORMWRIGHT_ADD_FIELD(state, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(onString, "");
  SO_FORMWRIGHT_ADD_FIELD(offString, "");
  SO_FORMWRIGHT_INIT_INSTANCE();
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
    updateLabelWidget();
    updateCheckBoxWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogCheckBox();
    update3DCheckBox();
    update3DLabel();
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
  checkBoxWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
  if (fixedWidth.getValue())
    checkBoxWidget->setMaximumWidth(width.getValue());
  if (fixedHeight.getValue())
    checkBoxWidget->setMaximumHeight(height.getValue());
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

void SoDialogCheckBox::draggerFinishCallback3D() {}
void SoDialogCheckBox::create3DDialogCheckBox() {}
void SoDialogCheckBox::update3DCheckBox() {}
void SoDialogCheckBox::update3DLabel() {}
void SoDialogCheckBox::change3DState() {}
void SoDialogCheckBox::change3DOnOffString() {}
