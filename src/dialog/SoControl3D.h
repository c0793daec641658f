#pragma once

// Small steps that the controls' 3D forms share.

#include <Inventor/SbBox3f.h>
#include <Inventor/nodes/SoText3.h>

#include <cstdint>

namespace SoControl3D {

// A text with nothing to draw measures as an empty box; it is placed as a
// point at its origin, so that no translation becomes infinite.
inline SbBox3f finiteBox(const SbBox3f& box)
{
  return box.isEmpty() ? SbBox3f(0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f) : box;
}

// A text node that draws its front face only, as every text of a dialog.
inline SoText3* newFrontText()
{
  auto* text = new SoText3;
  text->parts = SoText3::FRONT;
  return text;
}

// Replaces all the lines of `text`: lines of a longer earlier text must not
// stay behind.
inline void clearText(SoText3* text)
{
  text->string.setNum(0);
}

// The x of a label beside a control's body, from the control's left edge:
// 3 in, then moved by the label alignment inside the label column.
// `integerHalf` halves the free room as integers, otherwise in double; both
// end truncated.
inline int32_t sideLabelX(int32_t columnWidth, float textWidth, int alignment, bool integerHalf)
{
  int32_t x = 3;
  if (alignment == 1) {
    if (integerHalf)
      x += (columnWidth - static_cast<int32_t>(textWidth)) / 2;
    else
      x += static_cast<int32_t>((columnWidth - static_cast<double>(textWidth)) / 2.0);
  } else if (alignment == 2) {
    x += static_cast<int32_t>(columnWidth - textWidth);
  }
  return x;
}

} // namespace SoControl3D
