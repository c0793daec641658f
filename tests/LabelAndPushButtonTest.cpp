#include "ControlTestSupport.h"

#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

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

TEST(DialogLabel, measuresNoLabelColumnAndKeepsItsSizeAtLeastTheMinimum)
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

  SbVec2i32 small(10, 10);
  node->setComponentSize(small);
  SbVec2i32 size, min, max;
  node->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(25, std::max(25, pixels[1])));
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
  resizeFrame(frame, 260, 40);
  EXPECT_EQ(node->width.getValue(), 260);
  EXPECT_EQ(text->geometry(), expectedSideLabel(40, label[0], label[1]));
  EXPECT_EQ(button->geometry(), expectedBody(260, 40, label[0], true));

  // A new caption shows at once; nothing is placed or measured again.
  node->buttonLabel = "A caption much wider than before";
  EXPECT_EQ(button->text(), QString("A caption much wider than before"));
  EXPECT_EQ(button->geometry(), expectedBody(260, 40, label[0], true));
  SoDialogComponent* component = node;
  EXPECT_EQ(component->getComponentInitSize()[0], caption[0] + 12);

  node->labelVisibility = FALSE;
  EXPECT_TRUE(text->isHidden());
  EXPECT_EQ(button->geometry(), expectedBody(260, 40, label[0], false));
  node->labelVisibility = TRUE;
  EXPECT_EQ(button->geometry(), expectedBody(260, 40, label[0], true));
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(alignmentOf(text), Qt::AlignLeft);

  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQPushButtonFrame");
  node->labelVisibility = FALSE;
  node->destroyWidget();
  window.build(node);
  EXPECT_TRUE(window.find<QLabel>("FWTSoDialogQPushButtonLabelWidget")->isHidden()) << "a build reads the field";
}

TEST(DialogPushButton, naturalSizeIsTheCaptionWithItsMargins)
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

  // The default size adds the label column and a gap to the component size.
  SbVec2i32 given(100, 10);
  node->setComponentSize(given);
  SbVec2i32 size, min, max;
  node->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(142, std::max(caption[1] + 12, 25)));
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

}
