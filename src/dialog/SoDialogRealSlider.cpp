#include <SoDialogRealSlider.h>

#include <SoDialogRealSliderAuditor.h>

#include "Qt/SoDialogQSlider.h"
#include "SbStringConvert.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoSliderFormat.h"
#include "SoSliderLimits.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

SO_FORMWRIGHT_SOURCE(SoDialogRealSlider, SoDialogSlider, "DialogRealSlider")

SoDialogRealSlider::SoDialogRealSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogRealSlider);
  SO_FORMWRIGHT_ADD_FIELD(min, 0.0f);
  SO_FORMWRIGHT_ADD_FIELD(max, 1.0f);
  SO_FORMWRIGHT_ADD_FIELD(value, 0.0f);
  SO_FORMWRIGHT_INIT_INSTANCE();
  format = SoSliderFormat::kRealDefault;
  format.setDefault(TRUE);
}

SoDialogRealSlider::~SoDialogRealSlider()
{
  delete minSensor;
  delete maxSensor;
  delete valueSensor;
}

void SoDialogRealSlider::addAuditor(SoDialogRealSliderAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogRealSlider::removeAuditor(SoDialogRealSliderAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogRealSlider::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogRealSliderAuditor::dialogRealSlider);
}

float SoDialogRealSlider::positionOf(float number) const
{
  if (max.getValue() == min.getValue())
    return 0.0f;
  return (number - min.getValue()) / (max.getValue() - min.getValue());
}

void SoDialogRealSlider::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoSliderLimits<SoDialogRealSlider>::holdValue(*this, fixedLimits.getValue() != 0);
  SoDialogSlider::buildWidget(parent, useSize, size, mode);
  SoSliderLimits<SoDialogRealSlider>::watchAndShow(*this);
}

void SoDialogRealSlider::updateFromSensor(SoSensor* sensor)
{
  if (!SoSliderLimits<SoDialogRealSlider>::followChange(*this, sensor))
    SoDialogSlider::updateFromSensor(sensor);
}

// Only a real change tells the auditors.
void SoDialogRealSlider::setValue()
{
  const float number = normalizedValue * (max.getValue() - min.getValue()) + min.getValue();
  if (number == value.getValue())
    return;
  // The auditors run with the sensor off: a value they set stays out of the
  // widgets.
  const bool attached = valueSensor && valueSensor->getAttachedField() == &value;
  if (attached)
    valueSensor->detach();
  value.setValue(number);
  applyDlgCptAuditor();
  if (attached)
    valueSensor->attach(&value);
}

void SoDialogRealSlider::setValueFromEdit(int mode)
{
  SbString text;
  if (!SoSliderLimits<SoDialogRealSlider>::typedText(*this, mode, text))
    return;
  SoSliderLimits<SoDialogRealSlider>::takeTyped(*this, SbStringConvert::toFloat(text), false);
}

double SoDialogRealSlider::shownValue() const
{
  return normalizedValue * (max.getValue() - min.getValue()) + min.getValue();
}

void SoDialogRealSlider::changeEditValue()
{
  if (!sliderWidget)
    return;
  const SbString text =
    SoSliderFormat::formatReal(format.getValue(), shownValue(), "SoDialogRealSlider::changeEditValue");
  sliderWidget->setEditText(SoControlWidgets::toWidgetText(text));
}

void SoDialogRealSlider::change3DEditValue()
{
  if (!editText3)
    return;
  store3DEditText(SoSliderFormat::formatReal(format.getValue(), shownValue(), "SoDialogRealSlider::change3DEditValue"));
  SoDialogSlider::change3DEditValue();
}

// The box keeps only what reads as a number: a key that would make it none
// is dropped.
void SoDialogRealSlider::computeNewSliderEditValue(SoKeyboardEvent* event)
{
  char typed = 0;
  const ValueKey key = read3DKey(event, typed);
  if (key == ValueKey::Commit) {
    SoSliderLimits<SoDialogRealSlider>::commit3DTyped(*this, SbStringConvert::toFloat(get3DValueFromEdit()));
  } else if (key == ValueKey::Typed && typed != 0) {
    SbString next = get3DValueFromEdit();
    next += typed;
    bool isNumber = false;
    SbStringConvert::toFloat(next, &isNumber);
    if (isNumber)
      store3DEditText(next);
  }
}

namespace {
// The digits of a limit's whole part; a minus sign counts inside the
// logarithm, so it adds a digit only from -9 on. 0 has one digit.
int digitsOf(float limit)
{
  const float whole = std::isnan(limit) ? 0.0f : std::clamp(std::trunc(limit), float(INT32_MIN), float(INT32_MAX));
  const float measured = std::fabs(whole) + (whole < 0.0f ? 1.0f : 0.0f);
  return (measured == 0.0f ? 0 : int(std::log10(measured))) + 1;
}
}

int SoDialogRealSlider::computeEditZoneWidth()
{
  const int digits = std::max(digitsOf(min.getValue()), digitsOf(max.getValue()));
  const float sample = float(std::pow(10.0, double(digits)) - 1.0 + 0.01);
  const SbString text =
    SoSliderFormat::formatReal(format.getValue(), sample, "SoDialogRealSlider::computeEditZoneWidth");
  return getLabelPixelSize(text, nullptr)[0] + 8;
}
