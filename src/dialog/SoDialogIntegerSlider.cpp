#include <SoDialogIntegerSlider.h>

#include <SoDialogIntegerSliderAuditor.h>

#include "Qt/SoDialogQSlider.h"
#include "SbStringConvert.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoSliderFormat.h"
#include "SoSliderLimits.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdint>

SO_FORMWRIGHT_SOURCE(SoDialogIntegerSlider, SoDialogSlider, "DialogIntegerSlider")

namespace {
// The whole part of a number as a field value; limits far apart must not
// overflow the field's range.
int32_t wholePart(double number)
{
  if (std::isnan(number))
    return 0;
  return int32_t(std::clamp(std::trunc(number), double(INT32_MIN), double(INT32_MAX)));
}

// The digits of a limit, a minus sign counting as one; 0 has one digit.
int digitsOf(int32_t limit)
{
  const float magnitude = std::fabs(float(limit));
  const int whole = magnitude == 0.0f ? 0 : int(std::log10(magnitude));
  return whole + (limit < 0 ? 1 : 0) + 1;
}
}

SoDialogIntegerSlider::SoDialogIntegerSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogIntegerSlider);
  SO_FORMWRIGHT_ADD_FIELD(min, 0);
  SO_FORMWRIGHT_ADD_FIELD(max, 1);
  SO_FORMWRIGHT_ADD_FIELD(value, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
  format = SoSliderFormat::kIntegerDefault;
}

SoDialogIntegerSlider::~SoDialogIntegerSlider()
{
  delete minSensor;
  delete maxSensor;
  delete valueSensor;
}

void SoDialogIntegerSlider::addAuditor(SoDialogIntegerSliderAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogIntegerSlider::removeAuditor(SoDialogIntegerSliderAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogIntegerSlider::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogIntegerSliderAuditor::dialogIntegerSlider);
}

float SoDialogIntegerSlider::positionOf(int32_t number) const
{
  if (max.getValue() == min.getValue())
    return 0.0f;
  return float((double(number) - min.getValue()) / (double(max.getValue()) - min.getValue()));
}

void SoDialogIntegerSlider::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoSliderLimits<SoDialogIntegerSlider>::holdValue(*this, fixedLimits.getValue() != 0);
  SoDialogSlider::buildWidget(parent, useSize, size, mode);
  SoSliderLimits<SoDialogIntegerSlider>::watchAndShow(*this);
}

void SoDialogIntegerSlider::updateFromSensor(SoSensor* sensor)
{
  if (!SoSliderLimits<SoDialogIntegerSlider>::followChange(*this, sensor))
    SoDialogSlider::updateFromSensor(sensor);
}

void SoDialogIntegerSlider::setValue()
{
  // Half a step added before the truncation rounds to the nearest value.
  const float range = float(double(max.getValue()) - min.getValue());
  float position = normalizedValue;
  if (range != 0.0f)
    position += 1.0f / (range * 2.0f);
  else
    position = 0.0f;
  position *= range;
  const int32_t rounded = wholePart(std::trunc(double(position)) + min.getValue());
  if (rounded == value.getValue())
    return;
  // The auditors run with the sensor off: a value they set stays out of the
  // widgets.
  const bool attached = valueSensor && valueSensor->getAttachedField() == &value;
  if (attached)
    valueSensor->detach();
  value.setValue(rounded);
  applyDlgCptAuditor();
  if (attached)
    valueSensor->attach(&value);
}

void SoDialogIntegerSlider::setValueFromEdit(int mode)
{
  SbString text;
  if (!SoSliderLimits<SoDialogIntegerSlider>::typedText(*this, mode, text))
    return;
  const int32_t number = SbStringConvert::toInt(text);
  // A fraction typed into a whole-number zone is corrected as well.
  const bool corrected = SbStringConvert::toFloat(text) - float(number) != 0.0f;
  SoSliderLimits<SoDialogIntegerSlider>::takeTyped(*this, number, corrected);
}

// Half a step added before the truncation rounds to the nearest value.
int32_t SoDialogIntegerSlider::shownValue() const
{
  const double range = double(max.getValue()) - min.getValue();
  if (range == 0.0)
    return min.getValue();
  return wholePart(std::trunc((double(normalizedValue) + 1.0 / (range * 2.0)) * range) + min.getValue());
}

void SoDialogIntegerSlider::changeEditValue()
{
  if (!sliderWidget)
    return;
  const SbString text =
    SoSliderFormat::formatInteger(format.getValue(), shownValue(), "SoDialogIntegerSlider::changeEditValue");
  sliderWidget->setEditText(SoControlWidgets::toWidgetText(text));
}

void SoDialogIntegerSlider::change3DEditValue()
{
  if (!editText3)
    return;
  store3DEditText(
    SoSliderFormat::formatInteger(format.getValue(), shownValue(), "SoDialogIntegerSlider::change3DEditValue"));
  SoDialogSlider::change3DEditValue();
}

// The box takes digits only: no sign, no fraction.
void SoDialogIntegerSlider::computeNewSliderEditValue(SoKeyboardEvent* event)
{
  char typed = 0;
  const ValueKey key = read3DKey(event, typed);
  if (key == ValueKey::Commit) {
    SoSliderLimits<SoDialogIntegerSlider>::commit3DTyped(*this, SbStringConvert::toInt(get3DValueFromEdit()));
  } else if (key == ValueKey::Typed && std::isdigit(static_cast<unsigned char>(typed))) {
    SbString next = get3DValueFromEdit();
    next += typed;
    store3DEditText(next);
  }
}

int SoDialogIntegerSlider::computeEditZoneWidth()
{
  const int digits = std::max(digitsOf(min.getValue()), digitsOf(max.getValue()));
  // The widest number of that many digits, as far as a field value goes.
  const int sample = digits < 10 ? int(std::pow(10.0f, float(digits))) - 1 : INT32_MAX;
  const SbString text =
    SoSliderFormat::formatInteger(format.getValue(), sample, "SoDialogIntegerSlider::computeEditZoneWidth");
  return getLabelPixelSize(text, nullptr)[0] + 8;
}
