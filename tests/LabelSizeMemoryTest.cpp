// Label sizes are kept once measured: a size handed out again must be the
// one a fresh measure would give, whichever node asked first.

#include "TestSupport.h"

#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoFormwright.h>

#include <QFontMetrics>
#include <gtest/gtest.h>

namespace {

SbVec2i32 fresh(const QString& text)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  return SbVec2i32(metrics.horizontalAdvance(text) + 3, metrics.height() + 3);
}

TEST(LabelSizeMemory, aTextKeptForOneNodeIsMeasuredAfreshForAnotherWayOfReading)
{
  // A combo box shows its escapes as typed; other nodes resolve them.
  const SbString escaped("tab\\tand \\\"quotes\\\"");
  auto* combo = makeNode<SoDialogComboBox>();
  auto* edit = makeNode<SoDialogEditText>();
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(SoFormwright::getLabelPixelSize(escaped, combo), fresh("tab\\tand \\\"quotes\\\"")) << round;
    EXPECT_EQ(SoFormwright::getLabelPixelSize(escaped, nullptr), fresh("tab\tand \"quotes\"")) << round;
  }

  // One-line and several-line edit texts read line feeds differently.
  const SbString twoLines("one\\ntwo");
  EXPECT_EQ(SoFormwright::getLabelPixelSize(twoLines, edit), fresh("one\r\ntwo"));
  edit->multiLine = TRUE;
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  EXPECT_EQ(SoFormwright::getLabelPixelSize(twoLines, edit)[1], 2 * metrics.height() + 3);
  edit->multiLine = FALSE;
  EXPECT_EQ(SoFormwright::getLabelPixelSize(twoLines, edit), fresh("one\r\ntwo"));
}

}
