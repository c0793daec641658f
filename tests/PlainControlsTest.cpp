#include "ControlTestSupport.h"

#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxAuditor.h>
#include <SoDialogCustom.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoDialogSeparator.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

// Records which buttons it heard.
class ButtonAuditor : public SoDialogPushButtonAuditor {
public:
  std::vector<SoDialogPushButton*> heard;
  void dialogPushButton(SoDialogPushButton* node) override { heard.push_back(node); }
};

int alignmentOf(const QLabel* label)
{
  return label->alignment() & Qt::AlignHorizontal_Mask;
}

TEST(DialogLabel, buildsItsFrameAndCentresTheTextInIt)
{
  ControlWindow window;
  SoDialogLabel* node = makeNode<SoDialogLabel>();
  node->label = "Total:\\tall";
  window.build(node);

  auto* text = window.find<QLabel>("FWTSoDialogQLabelLabelWidget");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->parentWidget(), node->getWidget());
  EXPECT_EQ(text->text(), QString("Total:\tall"));
  EXPECT_EQ(text->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(alignmentOf(text), Qt::AlignLeft);

  // Alone, a label is as large as its text and its margins, and no smaller
  // than a component's default minimum.
  const SbVec2i32 pixels = textPixels("Total:\tall");
  const int width = std::max(pixels[0] + 4, 25);
  const int height = std::max(pixels[1], 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  EXPECT_EQ(text->geometry(), QRect(3, 3 + (height - 6 - pixels[1]) / 2, width - 6, pixels[1]));

  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(alignmentOf(text), Qt::AlignHCenter);
  node->labelAlignment = SoFormwright::RIGHT;
  EXPECT_EQ(alignmentOf(text), Qt::AlignRight);
  // Three lines in a frame seven pixels too low: the odd negative half
  // rounds toward zero, and the size Qt gave is recorded.
  node->label = "one\\ntwo\\nthree";
  EXPECT_EQ(text->text(), QString("one\ntwo\nthree"));
  const int threeLines = 3 * QFontMetrics(SoFormwright::getFormwrightFont()).height() + 3;
  resizeFrame(node->getWidget(), 120, threeLines - 1);
  EXPECT_EQ(text->geometry(), QRect(3, 0, 114, threeLines));
  SbVec2i32 size, min, max;
  node->getDefaultState(size, min, max);
  EXPECT_EQ(size, SbVec2i32(120, threeLines - 1));

  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQLabelFrame");
  EXPECT_EQ(window.find<QLabel>("FWTSoDialogQLabelLabelWidget")->text(), QString("one\ntwo\nthree"));
}

TEST(DialogLabel, measuresNoLabelColumnAndItsTextOnce)
{
  SoDialogLabel* node = makeNode<SoDialogLabel>();
  node->label = "Caption";
  EXPECT_EQ(node->getLabelInitSize(), SbVec2i32(0, 0));

  // In a container the label column is taken off the text's width.
  SbVec2i32 column(40, 18);
  node->setLabelSize(column);
  const SbVec2i32 pixels = textPixels("Caption");
  EXPECT_EQ(node->getComponentInitSize(), SbVec2i32(pixels[0] + 4 - 40, pixels[1]));
  node->label = "A much longer caption";
  EXPECT_EQ(node->getComponentInitSize(), SbVec2i32(pixels[0] + 4 - 40, pixels[1])) << "measured once";
}

TEST(DialogPushButton, buildsButtonAndLabelInItsFrame)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->label = "Name:";
  node->buttonLabel = "Press \\\"me\\\"";
  window.build(node);

  QWidget* frame = node->getWidget();
  auto* button = window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget");
  auto* text = window.find<QLabel>("FWTSoDialogQPushButtonLabelWidget");
  ASSERT_TRUE(button && text);
  EXPECT_TRUE(button->parentWidget() == frame && text->parentWidget() == frame);
  EXPECT_EQ(button->text(), QString("Press \"me\""));
  EXPECT_EQ(text->text(), QString("Name:"));
  EXPECT_EQ(button->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(alignmentOf(text), Qt::AlignRight);

  // The button's text with its margins, the label column and a gap.
  const SbVec2i32 label = textPixels("Name:");
  const SbVec2i32 caption = textPixels("Press \"me\"");
  const int width = std::max(caption[0] + 12 + label[0] + 2, 25);
  const int height = std::max(caption[1] + 12, 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  expectLabelBesideBody(node, text, button, label);

  // A new caption shows at once; nothing is placed or measured again.
  node->buttonLabel = "A caption much wider than before";
  EXPECT_EQ(button->text(), QString("A caption much wider than before"));
  EXPECT_EQ(button->geometry(), expectedBody(240, 33, label[0], true));
  SoDialogComponent* component = node;
  EXPECT_EQ(component->getComponentInitSize()[0], caption[0] + 12);
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(alignmentOf(text), Qt::AlignLeft);

  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQPushButtonFrame");
  node->labelVisibility = FALSE;
  node->destroyWidget();
  window.build(node);
  EXPECT_TRUE(window.find<QLabel>("FWTSoDialogQPushButtonLabelWidget")->isHidden()) << "a build reads the field";
}

TEST(DialogPushButton, naturalSizeIsTheCaptionWithItsMarginsLessAHiddenLabelsColumn)
{
  const SbVec2i32 caption = textPixels("Apply");
  SbVec2i32 column(40, 0);
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  SoDialogPushButton* hidden = makeNode<SoDialogPushButton>();
  hidden->labelVisibility = FALSE;
  for (SoDialogPushButton* button : {node, hidden}) {
    button->buttonLabel = "Apply";
    button->setLabelSize(column);
  }
  EXPECT_EQ(static_cast<SoDialogComponent*>(node)->getComponentInitSize(), SbVec2i32(caption[0] + 12, caption[1] + 12));
  EXPECT_EQ(static_cast<SoDialogComponent*>(hidden)->getComponentInitSize(),
            SbVec2i32(caption[0] + 12 - 40, caption[1] + 12))
    << "a hidden label gives its column back";
}

TEST(DialogPushButton, pressingFiresTheAuditorsBeforeTheRelease)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->buttonLabel = "Press";
  ButtonAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());

  auto* button = window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget");
  QTest::mousePress(button, Qt::LeftButton);
  EXPECT_EQ(auditor.heard, std::vector<SoDialogPushButton*>{node});
  QTest::mouseRelease(button, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(-20, -20));
  EXPECT_EQ(auditor.heard.size(), 1u) << "moving off and releasing changes nothing";
}

// Writes down the state that it hears of and the text that the box shows
// at that moment.
class CheckBoxAuditor : public SoDialogCheckBoxAuditor {
public:
  std::vector<std::string> heard;
  QCheckBox* box = nullptr;

  void dialogCheckBox(SoDialogCheckBox* node) override
  {
    heard.push_back((node->state.getValue() ? "on, showing " : "off, showing ") + box->text().toStdString());
  }
};

SoDialogCheckBox* makeCheckBox(const char* label, const char* onString, const char* offString)
{
  SoDialogCheckBox* node = makeNode<SoDialogCheckBox>();
  node->label = label;
  node->onString = onString;
  node->offString = offString;
  return node;
}

QCheckBox* boxOf(const ControlWindow& window)
{
  return window.find<QCheckBox>("FWTSoDialogQCheckBoxCheckBoxWidget");
}

TEST(DialogCheckBox, buildsBoxAndLabelInItsFrame)
{
  ControlWindow window;
  SoDialogCheckBox* node = makeCheckBox("Light:", "Shining", "Dark\\tnow");
  window.build(node);

  QWidget* frame = node->getWidget();
  QCheckBox* box = boxOf(window);
  auto* text = window.find<QLabel>("FWTSoDialogQCheckBoxLabelWidget");
  ASSERT_TRUE(box && text);
  EXPECT_TRUE(box->parentWidget() == frame && text->parentWidget() == frame);
  EXPECT_EQ(box->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->text(), QString("Light:"));
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(box->text(), QString("Dark\tnow"));

  // The wider of the two texts, with room for the box, beside the label.
  const SbVec2i32 label = textPixels("Light:");
  const SbVec2i32 off = textPixels("Dark\tnow");
  const SbVec2i32 on = textPixels("Shining");
  const int width = std::max(std::max(on[0], off[0]) + 26 + label[0] + 2, 25);
  const int height = std::max(on[1] + 8, 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  expectLabelBesideBody(node, text, box, label);

  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQCheckBoxFrame");
  node->state = TRUE;
  node->destroyWidget();
  window.build(node);
  box = boxOf(window);
  EXPECT_TRUE(box->isChecked()) << "a build reads the state";
  EXPECT_EQ(box->text(), QString("Shining"));
  node->state = FALSE;
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(box->text(), QString("Dark\tnow"));
  node->offString = "";
  EXPECT_EQ(box->text(), QString("Shining")) << "with no off text the on text shows in both states";
}

TEST(DialogCheckBox, clickChangesTheFieldThenTellsTheAuditorsThenTheText)
{
  ControlWindow window;
  SoDialogCheckBox* node = makeCheckBox("Sound:", "Loud", "Quiet");
  CheckBoxAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  QCheckBox* box = boxOf(window);
  auditor.box = box;

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_TRUE(node->state.getValue());
  EXPECT_EQ(auditor.heard, std::vector<std::string>{"on, showing Quiet"}) << "the text follows after the auditors";
  EXPECT_EQ(box->text(), QString("Loud"));

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_FALSE(node->state.getValue());
  EXPECT_EQ(box->text(), QString("Quiet"));

  // A partly checked box counts as checked.
  QMetaObject::invokeMethod(node->getWidget(), "eventNotify", Q_ARG(int, Qt::PartiallyChecked));
  EXPECT_TRUE(node->state.getValue());
  EXPECT_EQ(auditor.heard.size(), 3u);

  node->state = FALSE;
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(auditor.heard.size(), 3u) << "a change by the application is no event";
}

QFrame* lineOf(const ControlWindow& window)
{
  return window.find<QFrame>("FWTSoDialogQSeparatorFrameWidget");
}

TEST(DialogSeparator, horizontalLineIsEightHighWithATwoPixelLineAtThree)
{
  ControlWindow window;
  SoDialogSeparator* node = makeNode<SoDialogSeparator>();
  node->width = 150;
  node->height = 40;
  window.build(node);

  QWidget* frame = node->getWidget();
  QFrame* line = lineOf(window);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->parentWidget(), frame);
  EXPECT_EQ(line->frameShadow(), QFrame::Sunken);
  EXPECT_EQ(node->height.getValue(), 8) << "the negotiated maximum holds the height";
  EXPECT_EQ(node->width.getValue(), 150);
  EXPECT_EQ(frame->maximumHeight(), 8);
  EXPECT_EQ(frame->minimumSize(), QSize(150, 8));
  EXPECT_EQ(line->frameShape(), QFrame::HLine);
  EXPECT_EQ(line->geometry(), QRect(3, 3, 144, 2));

  resizeFrame(frame, 300, 8);
  EXPECT_EQ(node->width.getValue(), 300);
  EXPECT_EQ(line->geometry(), QRect(3, 3, 294, 2));
  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQSeparatorFrame");
}

TEST(DialogSeparator, orientationShowsAtTheNextBuild)
{
  SoDialogSeparator* node = makeNode<SoDialogSeparator>();
  SbVec2i32 size, min, max;
  node->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(0, 8));
  EXPECT_EQ(max, SbVec2i32(32767, 8));

  ControlWindow window;
  node->height = 90;
  window.build(node);
  node->setOrientationHorz(0);
  EXPECT_EQ(lineOf(window)->frameShape(), QFrame::HLine) << "turning is only stored";

  // A rebuild by a window that its children size starts from the
  // application's values again.
  node->resetSize();
  node->minWidth = node->minHeight = node->maxWidth = node->maxHeight = 0;
  node->height = 90;
  window.build(node);
  EXPECT_EQ(node->width.getValue(), 8);
  EXPECT_EQ(node->height.getValue(), 90);
  EXPECT_EQ(node->getWidget()->maximumWidth(), 8);
  EXPECT_EQ(lineOf(window)->frameShape(), QFrame::VLine);
  EXPECT_EQ(lineOf(window)->geometry(), QRect(3, 3, 2, 84));
}

TEST(DialogCustom, givesTheApplicationAFrameWithALayoutThatDiesWithIt)
{
  ControlWindow window;
  SoDialogCustom* node = makeNode<SoDialogCustom>();
  node->width = 160;
  node->height = 60;
  node->maxHeight = 200;
  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  window.build(node);
  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->parentWidget(), &window.widget);
  EXPECT_EQ(frame->minimumSize(), QSize(160, 60));
  EXPECT_EQ(frame->maximumSize(), QSize(32767, 200));
  EXPECT_EQ(frame->frameShape(), QFrame::StyledPanel) << "the edge is drawn from the start";

  auto* layout = static_cast<QBoxLayout*>(node->getLayout());
  ASSERT_NE(qobject_cast<QHBoxLayout*>(layout), nullptr);
  auto* own = new QLabel("application's widget");
  layout->addWidget(own);
  EXPECT_EQ(own->parentWidget(), frame);
  window.build(node);
  EXPECT_EQ(node->getWidget(), frame) << "a second build keeps the frame and what it holds";
  EXPECT_EQ(own->parentWidget(), frame);

  QPointer<QWidget> gone = frame;
  node->destroyWidget();
  EXPECT_TRUE(gone.isNull());
  EXPECT_EQ(node->getLayout(), nullptr);
  window.build(node);
  EXPECT_EQ(static_cast<QBoxLayout*>(node->getLayout())->parentWidget(), node->getWidget());

  SoDialogCustom* inScene = makeNode<SoDialogCustom>();
  window.build(inScene, 0);
  EXPECT_EQ(inScene->getWidget(), nullptr);
  EXPECT_EQ(inScene->getLayout(), nullptr);

  SoDialogCustom* fixed = makeNode<SoDialogCustom>();
  fixed->fixedWidth = TRUE;
  fixed->fixedHeight = TRUE;
  fixed->width = 90;
  fixed->height = 40;
  window.build(fixed);
  EXPECT_EQ(fixed->getWidget()->maximumSize(), QSize(90, 40)) << "fixed axes use the size as the maximum";
}

}
