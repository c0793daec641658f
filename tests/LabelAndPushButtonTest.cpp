#include "ControlTestSupport.h"
#include "TestSupport.h"

#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>

#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Label : public SoDialogLabel {
public:
  using SoDialogLabel::buildMode;
  using SoDialogLabel::componentSize;
};

// Records which buttons it heard; it may add another auditor while it hears.
class ButtonAuditor : public SoDialogPushButtonAuditor {
public:
  std::vector<SoDialogPushButton*>* heard = nullptr;
  SoDialogPushButton* addOnEvent = nullptr;
  SoDialogPushButtonAuditor* added = nullptr;

  void dialogPushButton(SoDialogPushButton* node) override
  {
    heard->push_back(node);
    if (addOnEvent)
      addOnEvent->addAuditor(added);
  }
};

// A parent that records the controls whose events it was handed.
class RecordingParent : public SoFormwright {
public:
  std::vector<SoFormwright*> handed;
  void applyAuditor(SoFormwright* node) override { handed.push_back(node); }
};

QRect geometryOf(const ControlWindow& window, const char* name)
{
  const QWidget* widget = window.find<QWidget>(name);
  return widget ? widget->geometry() : QRect();
}

TEST(DialogLabel, isLeftAlignedUnlessTheFileSaysOtherwise)
{
  Label* node = makeNode<Label>();
  EXPECT_EQ(node->labelAlignment.getValue(), SoFormwright::LEFT);
  EXPECT_TRUE(node->labelAlignment.isDefault()) << "a label's own alignment is not written out";
  EXPECT_EQ(makeNode<SoDialogPushButton>()->labelAlignment.getValue(), SoFormwright::RIGHT);

  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "DialogLabel { label \"Hello\" }\n"
                                "DialogLabel { labelAlignment RIGHT }\n");
  ASSERT_NE(root, nullptr);
  auto* plain = static_cast<SoDialogLabel*>(root->getChild(0));
  auto* right = static_cast<SoDialogLabel*>(root->getChild(1));
  EXPECT_EQ(plain->label.getValue(), SbString("Hello"));
  EXPECT_EQ(plain->labelAlignment.getValue(), SoFormwright::LEFT);
  EXPECT_EQ(right->labelAlignment.getValue(), SoFormwright::RIGHT);
  EXPECT_FALSE(right->labelAlignment.isDefault());
  root->unref();
}

TEST(DialogLabel, buildsItsFrameAndCentresTheTextInIt)
{
  ControlWindow window;
  Label* node = makeNode<Label>();
  node->label = "Total:\\tall";
  window.build(node);

  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->objectName(), QString("FWTSoDialogQLabelFrame"));
  EXPECT_EQ(frame->parentWidget(), &window.widget);
  auto* text = window.find<QLabel>("FWTSoDialogQLabelLabelWidget");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->parentWidget(), frame);
  EXPECT_EQ(text->text(), QString("Total:\tall"));
  EXPECT_EQ(text->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);

  auto* layout = static_cast<QBoxLayout*>(node->getLayout());
  ASSERT_EQ(layout->count(), 2);
  EXPECT_EQ(layout->itemAt(0)->widget(), frame);
  EXPECT_NE(layout->itemAt(1)->spacerItem(), nullptr);

  // Alone, a label is as large as its text and its margins, and no smaller
  // than a component's default minimum.
  const SbVec2i32 pixels = textPixels("Total:\tall");
  const int width = std::max(pixels[0] + 4, 25);
  const int height = std::max(pixels[1], 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  EXPECT_EQ(text->geometry(), QRect(3, 3 + (height - 6 - pixels[1]) / 2, width - 6, pixels[1]));

  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
  node->labelAlignment = SoFormwright::RIGHT;
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);

  node->label = "first\\nsecond";
  EXPECT_EQ(text->text(), QString("first\nsecond"));
  const int twoLines = 2 * QFontMetrics(SoFormwright::getFormwrightFont()).height() + 3;
  EXPECT_EQ(text->geometry(), QRect(3, 3 + (height - 6 - twoLines) / 2, width - 6, twoLines));
}

TEST(DialogLabel, emptyAndTallTextsArePlacedWithoutClamp)
{
  ControlWindow window;
  Label* empty = makeNode<Label>();
  window.build(empty);
  const int height = empty->height.getValue();
  EXPECT_EQ(geometryOf(window, "FWTSoDialogQLabelLabelWidget"),
            QRect(3, 3 + (height - 6) / 2, empty->width.getValue() - 6, 0));
  empty->destroyWidget();

  Label* tall = makeNode<Label>();
  tall->label = "one\\ntwo\\nthree";
  window.build(tall);
  const int textHeight = 3 * QFontMetrics(SoFormwright::getFormwrightFont()).height() + 3;
  // Seven pixels too low: the odd negative half rounds toward zero.
  resizeFrame(tall->getWidget(), 120, textHeight - 1);
  EXPECT_EQ(tall->width.getValue(), 120);
  EXPECT_EQ(tall->height.getValue(), textHeight - 1);
  EXPECT_EQ(geometryOf(window, "FWTSoDialogQLabelLabelWidget"), QRect(3, 0, 114, textHeight));
}

TEST(DialogLabel, measuresNoLabelColumnAndKeepsItsSizeAtLeastTheMinimum)
{
  Label* node = makeNode<Label>();
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
  EXPECT_EQ(node->componentSize, SbVec2i32(25, 25)) << "the kept size is raised to the minimum";
  EXPECT_EQ(size, SbVec2i32(25, std::max(25, pixels[1])));
}

TEST(DialogLabel, enableAndEdgeStyleShowOnlyOnceTheyChange)
{
  ControlWindow window;
  Label* node = makeNode<Label>();
  node->enable = FALSE;
  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  window.build(node);
  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_TRUE(frame->isEnabled());
  EXPECT_EQ(frame->frameShape(), QFrame::NoFrame);

  node->enable = FALSE;
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  EXPECT_FALSE(frame->isEnabled());
  EXPECT_EQ(frame->frameShape(), QFrame::StyledPanel);
  EXPECT_EQ(frame->frameShadow(), QFrame::Raised);
}

TEST(DialogLabel, destroyWidgetDeletesTheFrameOnceAndARebuildMakesANewOne)
{
  ControlWindow window;
  Label* node = makeNode<Label>();
  node->label = "before";
  window.build(node);
  window.build(node);
  EXPECT_EQ(window.widget.findChildren<QFrame*>("FWTSoDialogQLabelFrame").size(), 1) << "a second build refreshes";

  QPointer<QWidget> frame = node->getWidget();
  node->destroyWidget();
  EXPECT_TRUE(frame.isNull());
  EXPECT_EQ(node->getWidget(), nullptr);
  EXPECT_EQ(node->buildMode, 0);
  node->label = "after"; // no widget to reach

  window.build(node);
  ASSERT_NE(node->getWidget(), nullptr);
  EXPECT_EQ(window.find<QLabel>("FWTSoDialogQLabelLabelWidget")->text(), QString("after"));
  EXPECT_EQ(window.widget.findChildren<QFrame*>("FWTSoDialogQLabelFrame").size(), 1);
}

TEST(DialogLabel, frameSizedByItsLayoutWritesItsSizeBack)
{
  ControlWindow window;
  Label* node = makeNode<Label>();
  node->label = "Status";
  window.build(node);
  window.widget.resize(300, 120);
  window.widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window.widget));

  QWidget* frame = node->getWidget();
  EXPECT_EQ(node->width.getValue(), frame->width());
  EXPECT_EQ(node->height.getValue(), frame->height());
  EXPECT_GT(frame->width(), textPixels("Status")[0] + 4) << "the layout widened the frame";
  EXPECT_EQ(geometryOf(window, "FWTSoDialogQLabelLabelWidget").width(), frame->width() - 6);
  SbVec2i32 size, min, max;
  node->getDefaultState(size, min, max);
  EXPECT_EQ(size, SbVec2i32(frame->width(), frame->height())) << "the size is recorded through the sensors";
}

TEST(DialogPushButton, buildsButtonAndLabelInItsFrame)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->label = "Name:";
  node->buttonLabel = "Press \\\"me\\\"";
  window.build(node);

  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->objectName(), QString("FWTSoDialogQPushButtonFrame"));
  EXPECT_EQ(frame->parentWidget(), &window.widget);
  const std::vector<QWidget*> children = ControlWindow::childWidgets(frame);
  ASSERT_EQ(children.size(), 2u);
  auto* button = qobject_cast<QPushButton*>(children[0]);
  auto* text = qobject_cast<QLabel*>(children[1]);
  ASSERT_NE(button, nullptr);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(button->objectName(), QString("FWTSoDialogQPushButtonButtonWidget"));
  EXPECT_EQ(text->objectName(), QString("FWTSoDialogQPushButtonLabelWidget"));
  EXPECT_EQ(button->text(), QString("Press \"me\""));
  EXPECT_EQ(text->text(), QString("Name:"));
  EXPECT_EQ(button->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
  EXPECT_EQ(node->getLabelWidget(), nullptr) << "the label lives inside the frame";

  // The button's text with its margins, the label column and a gap.
  const SbVec2i32 label = textPixels("Name:");
  const SbVec2i32 caption = textPixels("Press \"me\"");
  const int width = std::max(caption[0] + 12 + label[0] + 2, 25);
  const int height = std::max(caption[1] + 12, 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  EXPECT_EQ(text->geometry(), expectedSideLabel(height, label[0], label[1]));
  EXPECT_EQ(button->geometry(), expectedBody(width, height, label[0], true));

  resizeFrame(frame, 260, 40);
  EXPECT_EQ(node->width.getValue(), 260);
  EXPECT_EQ(text->geometry(), expectedSideLabel(40, label[0], label[1]));
  EXPECT_EQ(button->geometry(), expectedBody(260, 40, label[0], true));

  node->label = "Full name:";
  EXPECT_EQ(text->text(), QString("Full name:"));
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
}

TEST(DialogPushButton, hidingTheLabelGivesTheButtonTheWholeFrame)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->label = "Name:";
  node->buttonLabel = "Go";
  window.build(node);
  resizeFrame(node->getWidget(), 200, 30);
  auto* button = window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget");
  auto* text = window.find<QLabel>("FWTSoDialogQPushButtonLabelWidget");
  const int column = textPixels("Name:")[0];

  node->labelVisibility = FALSE;
  EXPECT_TRUE(text->isHidden());
  EXPECT_EQ(button->geometry(), QRect(2, 3, 194, 24));
  node->labelVisibility = TRUE;
  EXPECT_FALSE(text->isHidden());
  EXPECT_EQ(button->geometry(), QRect(column + 4, 3, 194 - column - 2, 24));

  SoDialogPushButton* hidden = makeNode<SoDialogPushButton>();
  hidden->label = "Name:";
  hidden->labelVisibility = FALSE;
  window.build(hidden);
  EXPECT_TRUE(window.widget.findChildren<QLabel*>("FWTSoDialogQPushButtonLabelWidget").back()->isHidden());
}

TEST(DialogPushButton, naturalSizeIsTheCaptionWithItsMargins)
{
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->buttonLabel = "Apply";
  SbVec2i32 column(40, 0);
  node->setLabelSize(column);
  const SbVec2i32 caption = textPixels("Apply");
  SoDialogComponent* component = node;
  EXPECT_EQ(component->getComponentInitSize(), SbVec2i32(caption[0] + 12, caption[1] + 12));

  SoDialogPushButton* hidden = makeNode<SoDialogPushButton>();
  hidden->buttonLabel = "Apply";
  hidden->labelVisibility = FALSE;
  hidden->setLabelSize(column);
  component = hidden;
  EXPECT_EQ(component->getComponentInitSize(), SbVec2i32(caption[0] + 12 - 40, caption[1] + 12))
    << "a hidden label gives its column back";

  // The default size adds the label column and a gap to the component size.
  SbVec2i32 given(100, 10);
  node->setComponentSize(given);
  SbVec2i32 size, min, max;
  node->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(142, std::max(caption[1] + 12, 25)));
}

TEST(DialogPushButton, sizePolicyAndLimitsFollowTheFields)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->fixedWidth = TRUE;
  node->width = 120;
  node->maxHeight = 50;
  window.build(node);
  QWidget* frame = node->getWidget();
  EXPECT_EQ(frame->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
  EXPECT_EQ(frame->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
  EXPECT_EQ(frame->minimumSize(), QSize(120, 25));
  EXPECT_EQ(frame->maximumSize(), QSize(120, 50));

  SoDialogPushButton* tall = makeNode<SoDialogPushButton>();
  tall->fixedHeight = TRUE;
  window.build(tall);
  EXPECT_EQ(tall->getWidget()->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
  EXPECT_EQ(tall->getWidget()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

TEST(DialogPushButton, newCaptionShowsAtOnceAndLeavesTheSizeAlone)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->buttonLabel = "OK";
  window.build(node);
  auto* button = window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget");
  const QRect place = button->geometry();
  const int width = node->width.getValue();

  node->buttonLabel = "A caption much wider than before";
  EXPECT_EQ(button->text(), QString("A caption much wider than before"));
  EXPECT_EQ(button->geometry(), place);
  EXPECT_EQ(node->width.getValue(), width);
  SoDialogComponent* component = node;
  EXPECT_EQ(component->getComponentInitSize()[0], textPixels("OK")[0] + 12) << "until the next size pass";
}

TEST(DialogPushButton, pressingFiresTheAuditorsBeforeTheRelease)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->buttonLabel = "Press";
  std::vector<SoDialogPushButton*> heard;
  ButtonAuditor auditor;
  auditor.heard = &heard;
  node->addAuditor(&auditor);
  window.build(node);
  window.widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window.widget));

  auto* button = window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget");
  QTest::mousePress(button, Qt::LeftButton);
  ASSERT_EQ(heard.size(), 1u);
  EXPECT_EQ(heard[0], node);
  QTest::mouseRelease(button, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(-20, -20));
  EXPECT_EQ(heard.size(), 1u) << "moving off and releasing changes nothing";

  QMetaObject::invokeMethod(node->getWidget(), "eventNotify");
  EXPECT_EQ(heard.size(), 2u) << "the bridge's slot forwards to the node";
}

TEST(DialogPushButton, ownAuditorsTakeTheEventFromTheParent)
{
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->removeAuditor(static_cast<SoDialogPushButtonAuditor*>(nullptr)); // no list yet: harmless
  node->applyDlgCptAuditor(); // no parent, no auditor: the event ends

  auto* parent = new RecordingParent;
  parent->ref();
  node->setParent(parent);
  node->eventNotify(0, 0);
  ASSERT_EQ(parent->handed.size(), 1u);
  EXPECT_EQ(parent->handed[0], node);

  std::vector<SoDialogPushButton*> heard;
  ButtonAuditor first, second, late;
  first.heard = second.heard = late.heard = &heard;
  node->addAuditor(&first);
  node->addAuditor(&second);
  node->addAuditor(&first);
  node->eventNotify(0, 0);
  EXPECT_EQ(heard, (std::vector<SoDialogPushButton*>{node, node}));
  EXPECT_EQ(parent->handed.size(), 1u) << "an auditor of its own takes the control out of the parent's hearing";

  heard.clear();
  second.addOnEvent = node;
  second.added = &late;
  node->eventNotify(0, 0);
  EXPECT_EQ(heard.size(), 2u) << "an auditor added during the event hears the next one";
  heard.clear();
  node->eventNotify(0, 0);
  EXPECT_EQ(heard.size(), 3u);

  node->removeAuditor(&first);
  node->removeAuditor(&second);
  node->removeAuditor(&late);
  node->eventNotify(0, 0);
  EXPECT_EQ(parent->handed.size(), 2u);
}

TEST(DialogPushButton, destroyWidgetDeletesTheBridgeOnce)
{
  ControlWindow window;
  SoDialogPushButton* node = makeNode<SoDialogPushButton>();
  node->buttonLabel = "One";
  window.build(node);
  window.build(node);
  EXPECT_EQ(window.widget.findChildren<QFrame*>("FWTSoDialogQPushButtonFrame").size(), 1) << "a second build refreshes";

  QPointer<QWidget> frame = node->getWidget();
  node->destroyWidget();
  EXPECT_TRUE(frame.isNull());
  EXPECT_EQ(node->getWidget(), nullptr);
  node->buttonLabel = "Two";
  node->labelVisibility = FALSE;

  window.build(node);
  EXPECT_EQ(window.widget.findChildren<QFrame*>("FWTSoDialogQPushButtonFrame").size(), 1);
  EXPECT_EQ(window.find<QPushButton>("FWTSoDialogQPushButtonButtonWidget")->text(), QString("Two"));
  EXPECT_TRUE(window.find<QLabel>("FWTSoDialogQPushButtonLabelWidget")->isHidden());
}

}
