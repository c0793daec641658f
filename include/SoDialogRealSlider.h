#pragma once

#include "SoDialogSlider.h"

#include <Inventor/fields/SoSFFloat.h>

class SoDialogRealSliderAuditor;
template <class Slider>
class SoSliderLimits;

// A slider over real numbers.
class SoDialogRealSlider : public SoDialogSlider {
  SO_FORMWRIGHT_HEADER(SoDialogRealSlider)

public:
  SoSFFloat min;
  SoSFFloat max;
  SoSFFloat value;

  SoDialogRealSlider();

  void addAuditor(SoDialogRealSliderAuditor* auditor);
  void removeAuditor(SoDialogRealSliderAuditor* auditor);

  // The first slider of the class built in a process has its value held
  // between the limits, whatever `fixedLimits` says.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void updateFromSensor(SoSensor* sensor) override;
  void applyDlgCptAuditor() override;

protected:
  ~SoDialogRealSlider() override;

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
  double shownValue() const;

  friend class SoSliderLimits<SoDialogRealSlider>;

  // The position of `number` between the limits; 0 when they are equal.
  float positionOf(float number) const;
};
