// Dialog files written today hold UTF-8 text and older ones Latin-1: either
// way a label shows the characters that were written, measured as shown.

#include "TestSupport.h"

#include <SoTopLevelDialog.h>

#include <QFontMetrics>
#include <QLabel>

#include <ostream>

namespace {

struct Encoded {
  const char* name;
  const char* bytes;
  QString shown;
};

// Names the case, so that test names stay the same from one build to the
// next.
void PrintTo(const Encoded& text, std::ostream* out)
{
  *out << text.name;
}

class TextEncoding : public ::testing::TestWithParam<Encoded> {};

TEST_P(TextEncoding, labelShowsAndMeasuresTheWrittenCharacters)
{
  const Encoded& text = GetParam();
  SoSeparator* root = readScene(std::string("#Inventor V2.1 ascii\nTopLevelDialog { label \"") + text.bytes +
                                "\" DialogLabel { label \"" + text.bytes + "\" } }\n");
  ASSERT_NE(root, nullptr);
  auto* window = static_cast<SoTopLevelDialog*>(root->getChild(0));
  window->buildDialog(nullptr, 0);

  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  EXPECT_EQ(SoFormwright::getLabelPixelSize(SbString(text.bytes), nullptr),
            SbVec2i32(metrics.horizontalAdvance(text.shown) + 3, metrics.height() + 3));
  EXPECT_EQ(window->getBaseWidget()->findChild<QLabel*>("FWTSoDialogQLabelLabelWidget")->text(), text.shown);
  EXPECT_EQ(window->getBaseWidget()->windowTitle(), text.shown);
  root->unref();
}

INSTANTIATE_TEST_SUITE_P(
  Files, TextEncoding,
  ::testing::Values(Encoded{"utf8", "caf\xc3\xa9 \xe2\x82\xac", QString::fromUtf8(u8"caf\u00e9 \u20ac")},
                    Encoded{"latin1", "caf\xe9 \xbd", QString::fromUtf8(u8"caf\u00e9 \u00bd")},
                    // A lone UTF-8 lead byte is no UTF-8 at all.
                    Encoded{"loneLeadByte", "\xc3(", QString::fromUtf8(u8"\u00c3(")}));

}
