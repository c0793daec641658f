#pragma once

#include "SoDialogSlider.h"

#include <Inventor/fields/SoSFInt32.h>

class SoDialogIntegerSliderAuditor;
template <class Slider>
class SoSliderLimits;

// A slider over whole numbers. The bar's position is rounded to the nearest
// whole value.
class SoDialogIntegerSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogIntegerSlider)

public:
  SoSFInt32 min;
  SoSFInt32 max;
  SoSFInt32 value;

  SoDialogIntegerSlider();

  void addAuditor(SoDialogIntegerSliderAuditor* auditor);
  void removeAuditor(SoDialogIntegerSliderAuditor* auditor);

  // The first slider of the class built in a process has its value held
  // between the limits, whatever `fixedLimits` says.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void updateFromSensor(SoSensor* sensor) override;
  void applyDlgCptAuditor() override;

protected:
  ~SoDialogIntegerSlider() override;

  void setValueFromEdit(int mode) override;
  void setValue() override;
  void changeEditValue() override;
  int computeEditZoneWidth() override;
  void change3DEditValue() override;
  void computeNewSliderEditValue(SoKeyboardEvent* event) override;

  SoFieldSensor* minSensor = nullptr;
  SoFieldSensor* maxSensor = nullptr;
  SoFieldSensor* valueSensor = nullptr;

private:
  // The value that the position shows.
  int32_t shownValue() const;

  friend class SoSliderLimits<SoDialogIntegerSlider>;

  // The position of `value` between the limits; 0 when they are equal.
  float positionOf(int32_t number) const;
};
