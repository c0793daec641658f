#include "TestSupport.h"

#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogLabel.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <QFontMetrics>
#include <QLabel>
#include <QWidget>

#include <algorithm>
#include <ostream>

namespace {

// Reaches the protected text services.
class TextNode : public SoFormwright {
public:
  using SoFormwright::convertToCString;
  using SoFormwright::getNumLines;
};

// The measure of text as the library takes it: the widest line, the height
// of every line, and 3 once.
SbVec2i32 measure(const QFont& font, const QStringList& lines)
{
  const QFontMetrics metrics(font);
  int widest = 0;
  for (const QString& line : lines)
    widest = std::max(widest, metrics.horizontalAdvance(line));
  return SbVec2i32(widest + 3, int(lines.size()) * metrics.height() + 3);
}

SbVec2i32 measure(const QStringList& lines)
{
  return measure(SoFormwright::getFormwrightFont(), lines);
}

TEST(TextServices, escapesResolveByTheKindOfNode)
{
  for (SoFormwright* node : {static_cast<SoFormwright*>(nullptr), static_cast<SoFormwright*>(makeNode<SoDialogLabel>())}) {
    EXPECT_EQ(TextNode::convertToCString("a\\nb\\tc", node), SbString("a\nb\tc"));
    EXPECT_EQ(TextNode::convertToCString("say \\\"hi\\\"", node), SbString("say \"hi\""));
    EXPECT_EQ(TextNode::convertToCString("back\\\\slash", node), SbString("back\\slash"));
    EXPECT_EQ(TextNode::convertToCString("\\q\\n", node), SbString("q\n")) << "an unknown escape keeps its character";
    EXPECT_EQ(TextNode::convertToCString("dos\r\nline\r", node), SbString("dos\nline")) << "carriage returns are dropped";
    EXPECT_EQ(TextNode::convertToCString("end\\", node), SbString("end"));
  }
  SoDialogEditText* edit = makeNode<SoDialogEditText>();
  EXPECT_EQ(TextNode::convertToCString("a\\nb", edit), SbString("a\r\nb"));
  EXPECT_EQ(TextNode::convertToCString("a\r\nb\\tc", edit), SbString("a\r\nb\tc"));
  EXPECT_EQ(TextNode::convertToCString("a\\nb\r\\t", makeNode<SoDialogComboBox>()), SbString("a\\nb\r\\t"))
    << "combo box items keep their escapes as typed";

  EXPECT_EQ(TextNode::getNumLines("one"), 0);
  EXPECT_EQ(TextNode::getNumLines("\r\n\r\n\n"), 3);
  EXPECT_EQ(TextNode::getNumLines("escaped\\n"), 0) << "an escape is no line feed until converted";
}

TEST(TextServices, labelPixelSizeTakesTheWidestLineAndAllHeights)
{
  EXPECT_EQ(SoFormwright::getLabelPixelSize("", nullptr), SbVec2i32(0, 0)) << "not (3, 3)";
  EXPECT_EQ(SoFormwright::getLabelPixelSize("Name:", nullptr), measure({"Name:"}));
  EXPECT_EQ(SoFormwright::getLabelPixelSize("say \\\"hi\\\"", nullptr), measure({"say \"hi\""}))
    << "the text is measured after its escapes are resolved";
  EXPECT_EQ(SoFormwright::getLabelPixelSize("short\\na much longer middle line\nend", nullptr),
            measure({"short", "a much longer middle line", "end"}));
  EXPECT_EQ(SoFormwright::getLabelPixelSize("x\\n", nullptr), measure({"x", ""}))
    << "a closing line feed adds an empty line";

  // An edit text counts its lines unless its multiLine field says otherwise.
  const SbString text("first\\nsecond line");
  auto* editText = makeNode<SoDialogEditText>();
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, editText), measure({"first\r\nsecond line"}))
    << "one line by default, as wide as the whole text";
  editText->multiLine = TRUE;
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, editText), measure({"first\r", "second line"}));
  editText->multiLine = FALSE;
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, editText), measure({"first\r\nsecond line"}));

  // A size kept once measured is not handed to a node that reads the text
  // otherwise, whichever asked first.
  auto* combo = makeNode<SoDialogComboBox>();
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(SoFormwright::getLabelPixelSize("tab\\tand", combo), measure({"tab\\tand"})) << round;
    EXPECT_EQ(SoFormwright::getLabelPixelSize("tab\\tand", nullptr), measure({"tab\tand"})) << round;
  }
}

TEST(TextServices, newFontChangesLaterMeasuresButNotBuiltWidgets)
{
  const QFont original = SoFormwright::getFormwrightFont();
  QWidget built;
  SoFormwright::setWidgetFont(&built);
  const SbVec2i32 before = SoFormwright::getLabelPixelSize("Name:", nullptr); // kept once measured
  QFont larger = original;
  larger.setPointSize(original.pointSize() * 3);
  SoFormwright::setFont(larger);
  EXPECT_EQ(SoFormwright::getFormwrightFont(), larger);
  const SbVec2i32 measured = SoFormwright::getLabelPixelSize("Name:", nullptr);
  SoFormwright::setFont(original);

  EXPECT_EQ(measured, measure(larger, {"Name:"}));
  EXPECT_NE(measured, measure({"Name:"}));
  EXPECT_EQ(SoFormwright::getLabelPixelSize("Name:", nullptr), before);
  EXPECT_EQ(built.font(), original);
}

// Dialog files written today hold UTF-8 text and older ones Latin-1: either
// way a label shows the characters that were written, measured as shown.
TEST(TextEncoding, labelShowsAndMeasuresTheWrittenCharacters)
{
  const struct {
    const char* bytes;
    QString shown;
  } texts[] = {{"caf\xc3\xa9 \xe2\x82\xac", QString::fromUtf8(u8"caf\u00e9 \u20ac")},
               {"caf\xe9 \xbd", QString::fromUtf8(u8"caf\u00e9 \u00bd")},
               // A lone UTF-8 lead byte is no UTF-8 at all.
               {"\xc3(", QString::fromUtf8(u8"\u00c3(")}};
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  for (const auto& text : texts) {
    SCOPED_TRACE(text.shown.toStdString());
    auto* window = readWindow(std::string("#Inventor V2.1 ascii\nTopLevelDialog { label \"") + text.bytes +
                              "\" DialogLabel { label \"" + text.bytes + "\" } }\n");
    ASSERT_NE(window, nullptr);
    window->buildDialog(nullptr, 0);
    EXPECT_EQ(SoFormwright::getLabelPixelSize(SbString(text.bytes), nullptr),
              SbVec2i32(metrics.horizontalAdvance(text.shown) + 3, metrics.height() + 3));
    EXPECT_EQ(window->getBaseWidget()->findChild<QLabel*>("FWTSoDialogQLabelLabelWidget")->text(), text.shown);
    EXPECT_EQ(window->getBaseWidget()->windowTitle(), text.shown);
    window->destroyWidget();
  }
}

}
