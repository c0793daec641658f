#pragma once

#include "SoQtBasicSlider.h"

#include <Inventor/SbColor.h>

#include <cstdint>
#include <vector>

// The bar of a SoDialogSlider: one colour, or a ramp of colours in flat bands
// or shaded into each other, under a bevelled grey thumb. A disabled bar
// shows its colours at half strength.
class SoDialogCustomSlider : public Formwright::SoQtBasicSlider {
public:
  explicit SoDialogCustomSlider(QWidget* parent);

  // No colour at all leaves the bar its plain grey.
  void setColors(const SbColor* newColors, int count, int newShaded);
  void setEnable(int flag);

protected:
  void redraw() override;

private:
  void drawPlain();
  void drawRamp();
  void setGLColor(const SbColor& color);
  void drawThumb(short x1, short y1, short x2, short y2);

  std::vector<SbColor> colors;
  int32_t shaded = 0;
  int32_t enabled = 1;
  void (SoDialogCustomSlider::*drawFunction)() = &SoDialogCustomSlider::drawPlain;
};
