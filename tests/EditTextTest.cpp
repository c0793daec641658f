#include "ControlTestSupport.h"

#include <SoDialogEditText.h>
#include <SoDialogEditTextAuditor.h>

#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>

namespace {

class EditTextAuditor : public SoDialogEditTextAuditor {
public:
  std::vector<std::string> heard;
  void dialogEditText(SoDialogEditText* node) override { heard.push_back(node->editText.getValue().getString()); }
};

SoDialogEditText* makeEditText(const char* label, const char* text)
{
  SoDialogEditText* node = makeNode<SoDialogEditText>();
  node->label = label;
  node->editText = text;
  return node;
}

QLineEdit* lineOf(const ControlWindow& window)
{
  return window.find<QLineEdit>("FWTSoDialogQEditTextLineEditWidget");
}

QTextEdit* linesOf(const ControlWindow& window)
{
  return window.find<QTextEdit>("FWTSoDialogQEditTextMultiEditWidget");
}

TEST(DialogEditText, buildsLabelAndOneLineInItsFrame)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("Name:", "Caf\xc3\xa9");
  window.build(node);
  QWidget* frame = node->getWidget();
  ASSERT_NE(frame, nullptr);
  const std::vector<QWidget*> children = ControlWindow::childWidgets(frame);
  ASSERT_EQ(children.size(), 2u);
  auto* text = qobject_cast<QLabel*>(children[0]);
  auto* line = qobject_cast<QLineEdit*>(children[1]);
  ASSERT_TRUE(text && line);
  EXPECT_EQ(line, lineOf(window));
  EXPECT_EQ(line->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->text(), QString("Name:"));
  EXPECT_EQ(line->text(), QString::fromUtf8("Caf\xc3\xa9"));
  EXPECT_EQ(node->getLabelWidget(), nullptr);

  // The text with the entry's margins, beside the label.
  const SbVec2i32 label = textPixels("Name:");
  const SbVec2i32 entry = textPixels("Caf\xc3\xa9");
  EXPECT_EQ(node->width.getValue(), entry[0] + 10 + label[0] + 2);
  EXPECT_EQ(node->height.getValue(), std::max({entry[1] + 12, label[1], 25}));
  resizeFrame(frame, 200, 40);
  const int lineHeight = std::max(entry[1], 20);
  EXPECT_EQ(line->geometry(), QRect(3 + label[0] + 2, 3 + (34 - lineHeight) / 2, 194 - label[0] - 2, lineHeight));
  EXPECT_EQ(text->geometry(), expectedSideLabel(40, label[0], label[1]));
  node->labelVisibility = FALSE;
  EXPECT_TRUE(text->isHidden());
  EXPECT_EQ(line->geometry().left(), 3);
  EXPECT_EQ(line->geometry().width(), 194);
}

TEST(DialogEditText, singleLineIsAtLeastTwentyPixelsHigh)
{
  const QFont original = SoFormwright::getFormwrightFont();
  QFont tiny = original;
  tiny.setPixelSize(5);
  SoFormwright::setFont(tiny);
  const int textHeight = QFontMetrics(tiny).height() + 3;
  ControlWindow window;
  SoDialogEditText* node = makeEditText("", "x");
  window.build(node);
  SoFormwright::setFont(original);
  ASSERT_LT(textHeight, 20);
  resizeFrame(node->getWidget(), 100, 50);
  EXPECT_EQ(lineOf(window)->geometry(), QRect(5, 3 + (44 - 20) / 2, 92, 20)) << "beside an empty label";
}

TEST(DialogEditText, typingFillsTheFieldAndEnterTellsTheAuditorsOnce)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("", "");
  EditTextAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  QLineEdit* line = lineOf(window);

  QTest::keyClick(line, Qt::Key_O);
  EXPECT_EQ(node->editText.getValue(), SbString("o"));
  QTest::keyClick(line, Qt::Key_K);
  EXPECT_EQ(node->editText.getValue(), SbString("ok"));
  EXPECT_TRUE(auditor.heard.empty()) << "typing alone tells no auditor";
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(auditor.heard, std::vector<std::string>{"ok"});

  node->editText = "set by the application";
  EXPECT_EQ(line->text(), QString("set by the application"));
  EXPECT_EQ(auditor.heard.size(), 1u) << "the application's own change tells no auditor";
  node->editable = FALSE;
  EXPECT_TRUE(line->isReadOnly());
  node->editText = "still shown";
  EXPECT_EQ(line->text(), QString("still shown")) << "a read-only entry still follows its field";
}

TEST(DialogEditText, withoutTrigOnEnterEveryChangeTellsTheAuditors)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("", "");
  node->trigOnEnter = FALSE;
  EditTextAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());

  QTest::keyClick(lineOf(window), Qt::Key_A);
  EXPECT_EQ(auditor.heard, std::vector<std::string>{"a"});
  QTest::keyClick(lineOf(window), Qt::Key_Enter);
  EXPECT_EQ(auditor.heard, (std::vector<std::string>{"a", "a"})) << "Enter tells them again, with the same text";
  node->editText = "b";
  EXPECT_EQ(auditor.heard.size(), 3u) << "the entry hands the application's text back as a change";
}

TEST(DialogEditText, severalLinesTellTheAuditorsOfEnterBeforeTheLineBreak)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("Notes", "first");
  node->multiLine = TRUE;
  EditTextAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  QTextEdit* lines = linesOf(window);
  ASSERT_NE(lines, nullptr);
  EXPECT_EQ(lineOf(window), nullptr);

  lines->moveCursor(QTextCursor::End);
  QTest::keyClick(lines, Qt::Key_Return);
  EXPECT_EQ(auditor.heard, std::vector<std::string>{"first"});
  EXPECT_EQ(node->editText.getValue(), SbString("first\n")) << "the line break arrives as a change of its own";

  // Entries fill the frame, with no floor on their height.
  resizeFrame(node->getWidget(), 220, 90);
  const SbVec2i32 label = textPixels("Notes");
  EXPECT_EQ(lines->geometry(), QRect(3 + label[0] + 2, 3, 214 - label[0] - 2, 84));
  node->wrapLine = FALSE;
  EXPECT_EQ(lines->wordWrapMode(), QTextOption::NoWrap);
  node->wrapLine = TRUE;
  EXPECT_EQ(lines->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(DialogEditText, changingMultiLineKeepsTextSizeAndLabel)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("Comment", "kept");
  window.build(node);
  ASSERT_TRUE(window.show());
  QPointer<QWidget> before = node->getWidget();
  const QSize kept = before->size();

  node->multiLine = TRUE;
  EXPECT_TRUE(before.isNull());
  QWidget* frame = node->getWidget();
  ASSERT_NE(frame, nullptr);
  EXPECT_TRUE(frame->isVisible());
  EXPECT_EQ(frame->size(), kept);
  EXPECT_EQ(window.widget.findChildren<QWidget*>("FWTSoDialogQEditTextFrame").size(), 1);
  ASSERT_NE(linesOf(window), nullptr);
  EXPECT_EQ(linesOf(window)->toPlainText(), QString("kept"));
  EXPECT_EQ(window.find<QLabel>("FWTSoDialogQEditTextLabelWidget")->text(), QString("Comment"));

  node->multiLine = FALSE;
  ASSERT_NE(lineOf(window), nullptr);
  EXPECT_EQ(lineOf(window)->text(), QString("kept"));
  EXPECT_EQ(node->getWidget()->size(), kept);
}

// An auditor switches the kind of entry while the entry sends its change,
// typed or Return in several lines: the switch comes after, with the text.
class KindSwitcher : public SoDialogEditTextAuditor {
public:
  SbBool wanted = TRUE;
  void dialogEditText(SoDialogEditText* node) override { node->multiLine = wanted; }
};

TEST(DialogEditText, anAuditorSwitchingTheKindOfEntryGetsItAfterTheEvent)
{
  ControlWindow window;
  SoDialogEditText* node = makeEditText("", "");
  node->trigOnEnter = FALSE;
  KindSwitcher switcher;
  node->addAuditor(&switcher);
  window.build(node);
  ASSERT_TRUE(window.show());
  QTest::keyClick(lineOf(window), Qt::Key_A);
  QApplication::processEvents();
  ASSERT_NE(linesOf(window), nullptr);
  EXPECT_EQ(linesOf(window)->toPlainText(), QString("a"));
  node->trigOnEnter = TRUE;
  switcher.wanted = FALSE;
  linesOf(window)->moveCursor(QTextCursor::End);
  QTest::keyClick(linesOf(window), Qt::Key_Return);
  QApplication::processEvents();
  ASSERT_NE(lineOf(window), nullptr);
  EXPECT_EQ(lineOf(window)->text().left(1), QString("a"));
}

TEST(DialogEditText, naturalSizeOfSeveralLinesMakesRoomForTheScrollBar)
{
  SoDialogEditText* node = makeEditText("", "one\\ntwo");
  node->multiLine = TRUE;
  SoDialogComponent* component = node;
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  const int widest = std::max(metrics.horizontalAdvance("one\r"), metrics.horizontalAdvance("two"));
  EXPECT_EQ(component->getComponentInitSize(), SbVec2i32(widest + 3 + 34, 2 * metrics.height() + 3 + 12));
}

}
