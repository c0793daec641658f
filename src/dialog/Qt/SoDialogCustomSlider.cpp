#include "SoDialogCustomSlider.h"

#include <QOpenGLFunctions_1_0>

using Formwright::SoQtBasicSlider;

namespace {
const SbColor kPlainGrey(0.66f, 0.66f, 0.66f);
}

SoDialogCustomSlider::SoDialogCustomSlider(QWidget* parent) : SoQtBasicSlider(parent), colors{kPlainGrey} {}

void SoDialogCustomSlider::setColors(const SbColor* newColors, int count, int newShaded)
{
  if (count < 1)
    colors.assign(1, kPlainGrey);
  else
    colors.assign(newColors, newColors + count);
  if (colors.size() != 1) {
    drawFunction = &SoDialogCustomSlider::drawRamp;
    shaded = newShaded;
  } else {
    drawFunction = &SoDialogCustomSlider::drawPlain;
  }
  update();
}

void SoDialogCustomSlider::setEnable(int flag)
{
  enabled = flag;
  update();
}

void SoDialogCustomSlider::redraw()
{
  (this->*drawFunction)();
  short x1, y1, x2, y2;
  getThumbBox().getBounds(x1, y1, x2, y2);
  drawThumb(x1, y1, x2, y2);
  gl()->glFlush();
}

// One colour fills the bar, at full strength even when disabled.
void SoDialogCustomSlider::drawPlain()
{
  short x1, y1, x2, y2;
  getBarBox().getBounds(x1, y1, x2, y2);
  gl()->glColor3fv(colors[0].getValue());
  gl()->glRects(x1, y1, x2 + 1, y2 + 1);
}

void SoDialogCustomSlider::drawRamp()
{
  short x1, y1, x2, y2;
  getBarBox().getBounds(x1, y1, x2, y2);
  QOpenGLFunctions_1_0* f = gl();
  const int count = int(colors.size());
  float x = x1;
  float step;
  f->glPushAttrib(GL_LIGHTING_BIT);
  if (!shaded) {
    // A band takes the colour of the edge that closes it, so the first edge
    // repeats the first colour.
    f->glShadeModel(GL_FLAT);
    f->glBegin(GL_QUAD_STRIP);
    setGLColor(colors[0]);
    f->glVertex2s(short(x), y1);
    f->glVertex2s(short(x), y2 + 1);
    step = float(x2 - x1 + 1) / float(count);
    x += step;
  } else {
    f->glShadeModel(GL_SMOOTH);
    step = float(x2 - x1 + 1) / float(count - 1);
    f->glBegin(GL_QUAD_STRIP);
  }
  for (const SbColor& color : colors) {
    setGLColor(color);
    f->glVertex2s(short(x), y1);
    f->glVertex2s(short(x), y2 + 1);
    x += step;
  }
  f->glEnd();
  f->glPopAttrib();
}

void SoDialogCustomSlider::setGLColor(const SbColor& color)
{
  if (enabled)
    gl()->glColor3fv(color.getValue());
  else
    gl()->glColor3f(color[0] / 2.0f, color[1] / 2.0f, color[2] / 2.0f);
}

// A raised grey block, lit from the top left, with a sunken groove down its
// middle.
void SoDialogCustomSlider::drawThumb(short x1, short y1, short x2, short y2)
{
  QOpenGLFunctions_1_0* f = gl();
  const short middle = short((x1 + x2) / 2);
  f->glColor3ub(0xAA, 0xAA, 0xAA);
  f->glRects(x1, y1, x2 + 1, y2 + 1);
  f->glColor3ub(0x32, 0x32, 0x32);
  f->glRects(x1, y1, x2 + 1, y1 + 1);
  f->glRects(x2, y1, x2 + 1, y2 + 1);
  f->glColor3ub(0xFF, 0xFF, 0xFF);
  f->glRects(x1, y2, x2, y2 + 1);
  f->glRects(x1, y1 + 1, x1 + 1, y2);
  f->glColor3ub(0x55, 0x55, 0x55);
  f->glRects(x1 + 1, y1 + 1, x2, y1 + 2);
  f->glRects(x2 - 1, y1 + 1, x2, y2);
  f->glColor3ub(0x80, 0x80, 0x80);
  f->glRects(middle - 1, y1 + 3, middle + 2, y2 - 2);
  f->glColor3ub(0xFF, 0xFF, 0xFF);
  f->glRects(middle + 1, y1 + 3, middle + 2, y2 - 2);
  f->glColor3ub(0x55, 0x55, 0x55);
  f->glRects(middle - 1, y1 + 3, middle, y2 - 2);
}
