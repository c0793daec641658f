// Label sizes are kept once measured: a size handed out again must be the
// one a fresh measure would give, whichever node asked first and whatever
// font was set in between.

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

TEST(LabelSizeMemory, everyChangeOfFontIsMeasuredInTheNewFont)
{
  const QFont original = SoFormwright::getFormwrightFont();
  const SbString text("Surname of the owner:");
  const SbVec2i32 before = SoFormwright::getLabelPixelSize(text, nullptr);

  QFont bold = original;
  bold.setBold(true);
  SoFormwright::setFont(bold);
  const SbVec2i32 inBold = SoFormwright::getLabelPixelSize(text, nullptr);
  EXPECT_EQ(inBold, fresh("Surname of the owner:"));
  EXPECT_NE(inBold, before) << "a bold font is wider";

  SoFormwright::setFont(original);
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, nullptr), before);
}

}
