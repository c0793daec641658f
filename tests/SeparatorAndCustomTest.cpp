#include "ControlTestSupport.h"

#include <SoDialogCustom.h>
#include <SoDialogSeparator.h>

#include <QLabel>

namespace {

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

  SoDialogSeparator* fixed = makeNode<SoDialogSeparator>();
  fixed->fixedWidth = TRUE;
  fixed->width = 70;
  window.build(fixed);
  EXPECT_EQ(fixed->getWidget()->maximumWidth(), 70);
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

  SoDialogSeparator* other = makeNode<SoDialogSeparator>();
  other->setOrientationHorz(0);
  other->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(8, 0));
  EXPECT_EQ(max, SbVec2i32(8, 32767));
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
