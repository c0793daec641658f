#pragma once

// What the integer and the real slider share about their value and limits:
// the value held between the limits at a build, a value typed into the zone,
// and the changes of the three fields that follow it. `Slider` has `min`,
// `max` and `value` fields of one number type, their sensors, and
// `positionOf`, and befriends this template.

#include <SoDialogSlider.h>

template <class Slider>
class SoSliderLimits {
public:
  // Before the build. Held limits keep the value between them, the upper one
  // first, so that with crossed limits the lower one wins; free limits move
  // out to the value instead. Equal limits put the bar at its start and the
  // value on them.
  static void holdValue(Slider& slider, bool holdLimits)
  {
    if (holdLimits) {
      if (slider.value.getValue() > slider.max.getValue())
        slider.setFieldUnwatched(slider.value, slider.valueSensor, slider.max.getValue());
      if (slider.value.getValue() < slider.min.getValue())
        slider.setFieldUnwatched(slider.value, slider.valueSensor, slider.min.getValue());
    } else {
      if (slider.value.getValue() > slider.max.getValue())
        slider.setFieldUnwatched(slider.max, slider.maxSensor, slider.value.getValue());
      if (slider.value.getValue() < slider.min.getValue())
        slider.setFieldUnwatched(slider.min, slider.minSensor, slider.value.getValue());
    }
    if (slider.max.getValue() != slider.min.getValue()) {
      slider.normalizedValue = slider.positionOf(slider.value.getValue());
    } else {
      slider.normalizedValue = 0.0f;
      slider.setFieldUnwatched(slider.value, slider.valueSensor, slider.min.getValue());
    }
  }

  // After the build: the sensors stand, and the bar shows the value.
  static void watchAndShow(Slider& slider)
  {
    slider.makeFieldSensor(slider.valueSensor, slider.value);
    slider.makeFieldSensor(slider.minSensor, slider.min);
    slider.makeFieldSensor(slider.maxSensor, slider.max);
    showOnBar(slider);
  }

  // A change of a limit or of the value from the application; false for
  // any other sensor.
  static bool followChange(Slider& slider, SoSensor* sensor)
  {
    if (sensor == slider.minSensor || sensor == slider.maxSensor) {
      if (sensor == slider.minSensor && slider.value.getValue() < slider.min.getValue())
        slider.setFieldUnwatched(slider.value, slider.valueSensor, slider.min.getValue());
      if (sensor == slider.maxSensor && slider.max.getValue() < slider.value.getValue())
        slider.setFieldUnwatched(slider.value, slider.valueSensor, slider.max.getValue());
      slider.normalizedValue = slider.positionOf(slider.value.getValue());
      slider.updateWidget();
    } else if (sensor == slider.valueSensor) {
      // A value from the application is not held between the limits.
      slider.setValueFromSlider(slider.positionOf(slider.value.getValue()));
    } else {
      return false;
    }
    if (slider.buildMode)
      slider.changeEditValue();
    if (slider.follows3DForm())
      slider.change3DEditValue();
    showOnBar(slider);
    return true;
  }

  // The text of the value zone of the form `mode` names; false when that
  // form does not stand.
  static bool typedText(Slider& slider, int mode, SbString& text)
  {
    if (mode != 0 && slider.buildMode)
      text = slider.getValueFromEdit();
    else if (mode == 0 && slider.isBuilt3D())
      text = slider.get3DValueFromEdit();
    else
      return false;
    return true;
  }

  // A value typed into the zone. Free limits move out to it, and a moved
  // limit may want a wider zone; held limits pull it back, and the zone then
  // shows the value taken, as it does whenever the typed text was `corrected`.
  template <class Number>
  static void takeTyped(Slider& slider, Number number, bool corrected)
  {
    bool limitMoved = false;
    if (!slider.fixedLimits.getValue()) {
      if (number > slider.max.getValue()) {
        slider.setFieldUnwatched(slider.max, slider.maxSensor, number);
        limitMoved = true;
      }
      if (number < slider.min.getValue()) {
        slider.setFieldUnwatched(slider.min, slider.minSensor, number);
        limitMoved = true;
      }
    } else if (number > slider.max.getValue()) {
      number = slider.max.getValue();
      corrected = true;
    } else if (number < slider.min.getValue()) {
      number = slider.min.getValue();
      corrected = true;
    }
    slider.normalizedValue = slider.positionOf(number);
    if (limitMoved)
      slider.updateWidget();
    if (corrected && slider.buildMode)
      slider.changeEditValue();
    if (slider.follows3DForm())
      slider.change3DEditValue();
  }

  // The text of the 3D value box taken at Return: the field holds the number
  // as typed, and the bar shows it as the limits allow.
  template <class Number>
  static void commit3DTyped(Slider& slider, Number number)
  {
    const bool attached = slider.valueSensor && slider.valueSensor->getAttachedField() == &slider.value;
    if (attached)
      slider.valueSensor->detach();
    slider.setValueFromEdit(0);
    slider.value.setValue(number);
    slider.change3DSliderValue();
    if (slider.buildMode)
      slider.changeSliderValue();
    if (attached)
      slider.valueSensor->attach(&slider.value);
    slider.finish3DEditing();
  }

private:
  static void showOnBar(Slider& slider)
  {
    if (slider.buildMode)
      slider.changeSliderValue();
    if (slider.follows3DForm())
      slider.change3DSliderValue();
  }
};
