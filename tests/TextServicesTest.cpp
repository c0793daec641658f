#include "TestSupport.h"

#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogLabel.h>
#include <SoFormwright.h>

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/nodes/SoFont.h>
#include <Inventor/nodes/SoText3.h>
#include <QFontMetrics>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

// Reaches the protected text services; also serves as the owner node whose
// box action measures 3D text.
class TextNode : public SoFormwright {
public:
  using SoFormwright::convertFromCString;
  using SoFormwright::convertToCString;
  using SoFormwright::getNumLines;
  using SoFormwright::insertTextTo3DText;
  using SoFormwright::setStringToText3;
  using SoFormwright::wrap3DTextLine;
};

template <class Node>
Node* makeNode()
{
  auto* node = new Node;
  node->ref();
  return node;
}

QFontMetrics libraryMetrics()
{
  return QFontMetrics(SoFormwright::getFormwrightFont());
}

// The measure of one line of text, as the library takes it.
SbVec2i32 oneLine(const QString& text)
{
  const QFontMetrics metrics = libraryMetrics();
  return SbVec2i32(metrics.horizontalAdvance(text) + 3, metrics.height() + 3);
}

std::vector<std::string> linesOf(const SoText3* text)
{
  std::vector<std::string> lines;
  for (int i = 0; i < text->string.getNum(); ++i)
    lines.push_back(text->string[i].getString());
  return lines;
}

TEST(TextServices, escapesResolveForPlainNodes)
{
  for (SoFormwright* node : {static_cast<SoFormwright*>(nullptr), static_cast<SoFormwright*>(makeNode<SoDialogLabel>())}) {
    EXPECT_EQ(TextNode::convertToCString("a\\nb", node), SbString("a\nb"));
    EXPECT_EQ(TextNode::convertToCString("a\\tb", node), SbString("a\tb"));
    EXPECT_EQ(TextNode::convertToCString("say \\\"hi\\\"", node), SbString("say \"hi\""));
    EXPECT_EQ(TextNode::convertToCString("back\\\\slash", node), SbString("back\\slash"));
    EXPECT_EQ(TextNode::convertToCString("\\q\\n", node), SbString("q\n")) << "an unknown escape keeps its character";
    EXPECT_EQ(TextNode::convertToCString("dos\r\nline\r", node), SbString("dos\nline")) << "carriage returns are dropped";
    EXPECT_EQ(TextNode::convertToCString("end\\", node), SbString("end"));
    EXPECT_EQ(TextNode::convertToCString("", node), SbString(""));
  }
}

TEST(TextServices, editTextGetsCarriageReturnsAndComboBoxKeepsItsText)
{
  SoDialogEditText* edit = makeNode<SoDialogEditText>();
  EXPECT_EQ(TextNode::convertToCString("a\\nb", edit), SbString("a\r\nb"));
  EXPECT_EQ(TextNode::convertToCString("a\nb", edit), SbString("a\r\nb"));
  EXPECT_EQ(TextNode::convertToCString("a\r\nb\\tc", edit), SbString("a\r\nb\tc"));

  SoDialogComboBox* combo = makeNode<SoDialogComboBox>();
  EXPECT_EQ(TextNode::convertToCString("a\\nb\r\\t", combo), SbString("a\\nb\r\\t"));
}

TEST(TextServices, lineCountIsTheNumberOfLineFeeds)
{
  EXPECT_EQ(TextNode::getNumLines(""), 0);
  EXPECT_EQ(TextNode::getNumLines("one"), 0);
  EXPECT_EQ(TextNode::getNumLines("a\nb\n"), 2);
  EXPECT_EQ(TextNode::getNumLines("\r\n\r\n\n"), 3);
  EXPECT_EQ(TextNode::getNumLines("escaped\\n"), 0) << "an escape is no line feed until converted";
}

TEST(TextServices, labelPixelSizeOfOneLine)
{
  EXPECT_EQ(SoFormwright::getLabelPixelSize("", nullptr), SbVec2i32(0, 0)) << "not (3, 3)";
  EXPECT_EQ(SoFormwright::getLabelPixelSize("", makeNode<SoDialogEditText>()), SbVec2i32(0, 0));
  EXPECT_EQ(SoFormwright::getLabelPixelSize("Name:", nullptr), oneLine("Name:"));
  EXPECT_EQ(SoFormwright::getLabelPixelSize("say \\\"hi\\\"", nullptr), oneLine("say \"hi\""))
    << "the text is measured after its escapes are resolved";
  EXPECT_EQ(SoFormwright::getLabelPixelSize("Gr\xc3\xb6\xc3\x9f" "e:", nullptr), oneLine("Gr\xc3\xb6\xc3\x9f" "e:"))
    << "UTF-8 text is measured as the characters it shows";
}

TEST(TextServices, labelPixelSizeOfSeveralLinesTakesTheWidestLineAndAllHeights)
{
  const QFontMetrics metrics = libraryMetrics();
  const int widest = metrics.horizontalAdvance("a much longer middle line");
  ASSERT_GT(widest, metrics.horizontalAdvance("short"));
  const SbVec2i32 expected(widest + 3, 3 * metrics.height() + 3);
  EXPECT_EQ(SoFormwright::getLabelPixelSize("short\\na much longer middle line\\nend", nullptr), expected);
  EXPECT_EQ(SoFormwright::getLabelPixelSize("short\na much longer middle line\nend", nullptr), expected);
  EXPECT_EQ(SoFormwright::getLabelPixelSize("x\\n", nullptr),
            SbVec2i32(metrics.horizontalAdvance("x") + 3, 2 * metrics.height() + 3))
    << "a closing line feed adds an empty line";
}

TEST(TextServices, editTextMeasuresAsOneLineOnlyWhenItSaysSo)
{
  const QFontMetrics metrics = libraryMetrics();
  const SbString text("first\\nsecond line");

  SoDialogEditText* singleLine = makeNode<SoDialogEditText>();
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, singleLine), oneLine(QString("first\r\nsecond line")))
    << "one line by default, as wide as the whole text";

  const SbVec2i32 twoLines(std::max(metrics.horizontalAdvance("first\r"), metrics.horizontalAdvance("second line")) + 3,
                           2 * metrics.height() + 3);
  SoDialogEditText* multiLine = makeNode<SoDialogEditText>();
  multiLine->multiLine = TRUE;
  EXPECT_EQ(SoFormwright::getLabelPixelSize(text, multiLine), twoLines);
}

TEST(TextServices, newFontChangesLaterMeasuresButNotBuiltWidgets)
{
  const QFont original = SoFormwright::getFormwrightFont();
  QWidget built;
  SoFormwright::setWidgetFont(&built);
  EXPECT_EQ(built.font(), original);

  QFont larger = original;
  larger.setPointSize(original.pointSize() * 3);
  SoFormwright::setFont(larger);
  EXPECT_EQ(SoFormwright::getFormwrightFont(), larger);
  const QFontMetrics metrics(larger);
  const SbVec2i32 measured = SoFormwright::getLabelPixelSize("Name:", nullptr);
  SoFormwright::setFont(original);

  EXPECT_EQ(measured, SbVec2i32(metrics.horizontalAdvance("Name:") + 3, metrics.height() + 3));
  EXPECT_NE(measured, oneLine("Name:"));
  EXPECT_EQ(built.font(), original);
  QWidget later;
  SoFormwright::setWidgetFont(&later);
  EXPECT_EQ(later.font(), original);
}

TEST(TextServices, textIsSplitOverTheStringValues)
{
  auto* text = new SoText3;
  text->ref();
  TextNode::setStringToText3(text, "one\ntwo\nthree");
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"one", "two", "three"}));
  TextNode::setStringToText3(text, "x");
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"x", "two", "three"})) << "older lines stay behind";
  TextNode::setStringToText3(text, "a\n");
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"a", "", "three"})) << "a closing line feed gives an empty line";
  text->unref();
}

TEST(TextServices, insertionIntoThreeDimensionalText)
{
  auto* text = new SoText3;
  text->ref();
  text->string.setValue("hello");
  EXPECT_EQ(TextNode::insertTextTo3DText("XY", text, 0, 2), 0);
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"heXYllo"}));
  EXPECT_EQ(TextNode::insertTextTo3DText("<", text, 0, 0), 0);
  EXPECT_EQ(TextNode::insertTextTo3DText(">", text, 0, -1), 0);
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"<heXYllo>"}));

  EXPECT_EQ(TextNode::insertTextTo3DText("new", text, 2, 5), 2) << "a line past the end is set whole";
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"<heXYllo>", "", "new"}));

  const char* before[] = {"l0", "l1", "l2", "l3"};
  text->string.setValues(0, 4, before);
  EXPECT_EQ(TextNode::insertTextTo3DText("ab\ncd", text, 0, 1), 1);
  EXPECT_EQ(linesOf(text), (std::vector<std::string>{"l0", "", "l2", "l1", "l2"}))
    << "a line feed opens an empty line and stores none of the text";
  text->unref();
}

// Wraps 3D text measured with one font of size 10.
class Wrapping : public ::testing::Test {
protected:
  void SetUp() override
  {
    m_owner = makeNode<TextNode>();
    m_props = new SoGroup;
    m_props->ref();
    auto* font = new SoFont;
    font->size = 10.0f;
    m_props->addChild(font);
    m_text = new SoText3;
    m_text->ref();
  }
  void TearDown() override
  {
    m_text->unref();
    m_props->unref();
  }

  float widthOf(const char* value)
  {
    auto* scene = new SoSeparator;
    scene->ref();
    scene->addChild(m_props);
    auto* text = new SoText3;
    text->string = value;
    scene->addChild(text);
    SoGetBoundingBoxAction action{SbViewportRegion()};
    action.apply(scene);
    scene->unref();
    return action.getBoundingBox().getSize()[0];
  }

  int wrap(int line, float width) { return TextNode::wrap3DTextLine(m_text, line, width, m_props, m_owner); }

  TextNode* m_owner = nullptr;
  SoGroup* m_props = nullptr;
  SoText3* m_text = nullptr;
};

TEST_F(Wrapping, breaksByCharactersAtTheWidth)
{
  ASSERT_GT(widthOf("aaa"), widthOf("aa"));
  m_text->string.setValue("aaaaaaa");
  EXPECT_EQ(wrap(0, widthOf("aaa")), 2);
  EXPECT_EQ(linesOf(m_text), (std::vector<std::string>{"aaa", "aaa", "a"}));
}

TEST_F(Wrapping, overflowingCharacterAlsoBeginsTheNextLine)
{
  const char* lines[] = {"aaaaaaa", "after"};
  m_text->string.setValues(0, 2, lines);
  EXPECT_EQ(wrap(0, widthOf("aaa") - 0.01f), 3);
  EXPECT_EQ(linesOf(m_text), (std::vector<std::string>{"aaa", "aaa", "aaa", "a", "after"}));
  EXPECT_EQ(m_props->getRefCount(), 1) << "the measure hands the properties back";
}

TEST_F(Wrapping, textThatFitsStaysAsItIs)
{
  const char* lines[] = {"first", "abc"};
  m_text->string.setValues(0, 2, lines);
  EXPECT_EQ(wrap(1, widthOf("abc") + 1.0f), 1);
  EXPECT_EQ(linesOf(m_text), (std::vector<std::string>{"first", "abc"}));
}

TEST_F(Wrapping, widthBelowOneCharacterPutsOneOnEachLine)
{
  m_text->string.setValue("abc");
  EXPECT_EQ(wrap(0, 0.5f), 2);
  EXPECT_EQ(linesOf(m_text), (std::vector<std::string>{"a", "b", "c"}));
}

}
