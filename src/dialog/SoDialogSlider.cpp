#include <SoDialogSlider.h>

#include "Qt/SoDialogCustomSlider.h"
#include "Qt/SoDialogQSlider.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

SO_FORMWRIGHT_SOURCE(SoDialogSlider, SoDialogComponent, "DialogSlider")

SoDialogSlider::SoDialogSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogSlider);
  SO_FORMWRIGHT_ADD_FIELD(valueVisible, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(format, "%3f");
  SO_FORMWRIGHT_ADD_FIELD(continuousTrigger, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(toggleVisible, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(fixedLimits, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(colors, SbColor(0.66f, 0.66f, 0.66f));
  SO_FORMWRIGHT_ADD_FIELD(shadedColors, TRUE);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogSlider::~SoDialogSlider()
{
  if (ownsCustomSlider)
    delete customSlider;
  customSlider = nullptr;
  SoControlWidgets::deleteFrameWidget(sliderWidget, componentWidget);
  delete colorsSensor;
  delete shadedColorsSensor;
  delete valueVisibleSensor;
  delete continuousTriggerSensor;
  delete toggleVisibleSensor;
  delete fixedLimitsSensor;
  delete formatSensor;
}

void SoDialogSlider::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    // The frame makes the toggle, the bar and the value zone with it.
    if (!existWidget(sliderWidget))
      createLabelWidget();
    updateLabelWidget();
    updateToggleWidget();
    updateSliderWidget();
    updateEditWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogSlider();
    update3DSlider();
    update3DLabel();
  }
  makeFieldSensor(colorsSensor, colors);
  makeFieldSensor(shadedColorsSensor, shadedColors);
  makeFieldSensor(valueVisibleSensor, valueVisible);
  makeFieldSensor(continuousTriggerSensor, continuousTrigger);
  makeFieldSensor(toggleVisibleSensor, toggleVisible);
  makeFieldSensor(fixedLimitsSensor, fixedLimits);
  makeFieldSensor(formatSensor, format);
}

void SoDialogSlider::createLabelWidget()
{
  editZoneWidth = computeEditZoneWidth();
  sliderWidget = new SoDialogQSlider(componentWidget, this);
  componentWidget = sliderWidget;
  customSlider = sliderWidget->getCustomSlider();
  customSlider->addValueChangedCallback(valueChangeCallback, this);
  // While the value follows the drag, the end of the drag adds nothing.
  if (!continuousTrigger.getValue())
    customSlider->addFinishCallback(finishCallback, this);
  changeColors();
  ownsCustomSlider = 0;
  changeLabel();
  changeLabelAlignment();
  changeLabelVisibility();
  changeContinuousTrigger();
  changeToggleVisible();
  changeSliderValue();
  changeEditValue();
  changeEdgeStyle();
  changeValueVisible();
  sliderWidget->setMinimumSize(width.getValue(), height.getValue());
  if (fixedWidth.getValue())
    sliderWidget->setMaximumWidth(width.getValue());
  if (fixedHeight.getValue())
    sliderWidget->setMaximumHeight(height.getValue());
  componentLayout->addWidget(sliderWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogSlider::destroyWidget()
{
  if (buildMode) {
    if (ownsCustomSlider)
      delete customSlider;
    customSlider = nullptr;
    SoControlWidgets::deleteFrameWidget(sliderWidget, componentWidget);
  }
  SoDialogComponent::destroyWidget();
}

QWidget* SoDialogSlider::getLabelWidget()
{
  return labelWidget;
}

void SoDialogSlider::eventNotify(unsigned int event, unsigned long long)
{
  if (event != 1 || !sliderWidget)
    return;
  const bool attached = continuousTriggerSensor && continuousTriggerSensor->getAttachedField() == &continuousTrigger;
  if (attached)
    continuousTriggerSensor->detach();
  continuousTrigger.setValue(sliderWidget->isToggleChecked());
  if (continuousTrigger.getValue())
    customSlider->removeFinishCallback(finishCallback, this);
  else
    customSlider->addFinishCallback(finishCallback, this);
  if (attached)
    continuousTriggerSensor->attach(&continuousTrigger);
  if (isBuilt3D())
    change3DContinuousTrigger();
}

void SoDialogSlider::updateFromSensor(SoSensor* sensor)
{
  if (sensor == valueVisibleSensor) {
    if (buildMode)
      changeValueVisible();
    if (follows3DForm())
      change3DValueVisible();
  } else if (sensor == toggleVisibleSensor) {
    if (buildMode)
      changeToggleVisible();
    if (follows3DForm())
      change3DToggleVisible();
  } else if (sensor == colorsSensor || sensor == shadedColorsSensor) {
    if (buildMode)
      changeColors();
  } else if (sensor == continuousTriggerSensor) {
    if (buildMode)
      changeContinuousTrigger();
    if (follows3DForm())
      change3DContinuousTrigger();
  } else if (sensor == formatSensor) {
    if (buildMode)
      changeFormat();
  } else {
    SoDialogComponent::updateFromSensor(sensor);
  }
}

void SoDialogSlider::changeColors()
{
  customSlider->setColors(colors.getValues(0), colors.getNum(), shadedColors.getValue());
}

float SoDialogSlider::getValue()
{
  return customSlider ? customSlider->getValue() : normalizedValue;
}

void SoDialogSlider::valueChangeCallback(void* data, float value)
{
  static_cast<SoDialogSlider*>(data)->changeValueFromSlider(value);
}

void SoDialogSlider::finishCallback(void* data, float value)
{
  static_cast<SoDialogSlider*>(data)->changeValueAfterFinish(value);
}

void SoDialogSlider::changeValueFromSlider(float value)
{
  setValueFromSlider(value);
  if (continuousTrigger.getValue())
    setValue();
  // The value zone follows the drag even when the value waits for its end.
  if (buildMode)
    changeEditValue();
  if (follows3DForm())
    change3DEditValue();
  if (isBuilt3D())
    change3DCursor();
}

void SoDialogSlider::changeValueAfterFinish(float value)
{
  setValueFromSlider(value);
  setValue();
  if (buildMode)
    changeEditValue();
  if (follows3DForm())
    change3DEditValue();
}

void SoDialogSlider::changeSliderFromEdit()
{
  setValueFromEdit(1);
  if (buildMode)
    changeSliderValue();
  if (follows3DForm())
    change3DSliderValue();
  setValue();
}

SbString SoDialogSlider::getValueFromEdit()
{
  return SbString(sliderWidget->getEditText().toLatin1().constData());
}

void SoDialogSlider::updateWidget()
{
  editZoneWidth = computeEditZoneWidth();
  if (buildMode) {
    updateSliderWidget();
    updateEditWidget();
  }
  if (follows3DForm())
    update3DSlider();
}

void SoDialogSlider::setValueFromSlider(float value)
{
  normalizedValue = value;
}

void SoDialogSlider::changeSliderValue()
{
  if (customSlider)
    customSlider->setValue(normalizedValue);
}

void SoDialogSlider::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  sliderWidget->setLabelPlace(SoControlWidgets::sideLabelPlace(height.getValue(), labelSize[0], text[1]));
}

void SoDialogSlider::updateToggleWidget()
{
  if (!toggleVisible.getValue())
    return;
  const int32_t x = labelVisibility.getValue() ? labelSize[0] + 5 : 3;
  sliderWidget->setTogglePlace(QRect(x, 3, 16, height.getValue() - 6));
}

void SoDialogSlider::updateSliderWidget()
{
  int32_t x = 3;
  int32_t w = width.getValue() - 6;
  if (toggleVisible.getValue()) {
    x = 21;
    w -= 18;
  }
  if (labelVisibility.getValue()) {
    x += labelSize[0] + 2;
    w -= labelSize[0] + 2;
  }
  if (valueVisible.getValue())
    w -= editZoneWidth + 2;
  sliderWidth = w;
  sliderWidget->setSliderPlace(QRect(x, 3, w, height.getValue() - 6));
}

void SoDialogSlider::updateEditWidget()
{
  int32_t x = 3 + sliderWidth + 2;
  if (toggleVisible.getValue())
    x += 18;
  if (labelVisibility.getValue())
    x += labelSize[0] + 2;
  const SbVec2i32 text = getLabelPixelSize(SbString(sliderWidget->getEditText().toUtf8().constData()), nullptr);
  const int32_t y = 3 + (height.getValue() - 6 - text[1]) / 2;
  sliderWidget->setEditPlace(QRect(x, y, editZoneWidth, text[1]));
}

void SoDialogSlider::changeValueVisible()
{
  sliderWidget->setEditVisible(valueVisible.getValue() != 0);
  updateSliderWidget();
  if (valueVisible.getValue())
    updateEditWidget();
}

void SoDialogSlider::changeToggleVisible()
{
  sliderWidget->setToggleVisible(toggleVisible.getValue() != 0);
  updateSliderWidget();
  if (toggleVisible.getValue())
    updateToggleWidget();
}

void SoDialogSlider::changeLabelVisibility()
{
  sliderWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateSliderWidget();
  updateToggleWidget();
}

// The toggle tells the node of its new state, which registers or drops the
// bar's finish callback to match.
void SoDialogSlider::changeContinuousTrigger()
{
  sliderWidget->setToggleChecked(continuousTrigger.getValue() != 0);
}

void SoDialogSlider::changeLabel()
{
  sliderWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
}

void SoDialogSlider::changeLabelAlignment()
{
  sliderWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogSlider::changeEnable()
{
  SoDialogComponent::changeEnable();
  customSlider->setEnable(enable.getValue());
}

SbVec2i32 SoDialogSlider::getComponentInitSize()
{
  return SbVec2i32(150, 30);
}

void SoDialogSlider::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  size = componentSize;
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
}

void SoDialogSlider::applyDlgCptAuditor() {}
void SoDialogSlider::setValueFromEdit(int) {}
void SoDialogSlider::setValue() {}
void SoDialogSlider::changeEditValue() {}
int SoDialogSlider::computeEditZoneWidth()
{
  return 0;
}
void SoDialogSlider::changeFormat() {}
void SoDialogSlider::change3DEditValue() {}
void SoDialogSlider::computeNewSliderEditValue(SoKeyboardEvent*) {}
void SoDialogSlider::finish3DEditing() {}
SbString SoDialogSlider::get3DValueFromEdit()
{
  return SbString();
}
void SoDialogSlider::change3DSliderValue() {}
void SoDialogSlider::change3DCursor() {}
void SoDialogSlider::change3DValueVisible() {}
void SoDialogSlider::change3DToggleVisible() {}
void SoDialogSlider::change3DContinuousTrigger() {}
void SoDialogSlider::create3DDialogSlider() {}
void SoDialogSlider::update3DSlider() {}
void SoDialogSlider::update3DLabel() {}
