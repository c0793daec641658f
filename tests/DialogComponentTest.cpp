#include "ControlTestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogWidgetList.h>
#include <SoTopLevelDialog.h>

#include <Inventor/sensors/SoFieldSensor.h>

namespace {

// Components here have no natural size unless a test gives them one.
ProbeComponent* makeComponent()
{
  ProbeComponent* node = makeNode<ProbeComponent>();
  node->initSize.setValue(0, 0);
  return node;
}

struct Triple {
  SbVec2i32 size, min, max;
};

Triple sizeOf(SoDialogComponent* node)
{
  Triple triple;
  node->getSize(triple.size, triple.min, triple.max);
  return triple;
}

TEST(DialogComponent, sizeTakesDefaultsForZerosAndClampsWithTheMaximumLast)
{
  Triple triple = sizeOf(makeComponent());
  EXPECT_EQ(triple.size, SbVec2i32(200, 28));
  EXPECT_EQ(triple.min, SbVec2i32(25, 25));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 32767));

  ProbeComponent* crossed = makeComponent();
  crossed->minWidth = 300;
  crossed->maxWidth = 120;
  EXPECT_EQ(sizeOf(crossed).size[0], 120) << "a maximum below the minimum wins";

  ProbeComponent* fixed = makeComponent();
  fixed->fixedHeight = TRUE;
  fixed->height = 40;
  triple = sizeOf(fixed);
  EXPECT_EQ(triple.min, SbVec2i32(25, 40));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 40));
}

TEST(DialogComponent, buildWritesComputedSizesAndMarksThemAsNotTheApplications)
{
  ControlWindow window;
  ProbeComponent* fresh = makeComponent();
  fresh->build(&window.widget);
  EXPECT_EQ(sizeOf(fresh).size, SbVec2i32(200, 28));
  EXPECT_EQ(fresh->minWidth.getValue(), 25);
  for (SoField* field : {static_cast<SoField*>(&fresh->width), static_cast<SoField*>(&fresh->height),
                         static_cast<SoField*>(&fresh->minWidth), static_cast<SoField*>(&fresh->minHeight),
                         static_cast<SoField*>(&fresh->maxWidth), static_cast<SoField*>(&fresh->maxHeight)})
    EXPECT_TRUE(field->isDefault());

  ProbeComponent* narrow = makeComponent();
  narrow->width = 50;
  narrow->minWidth = 100;
  narrow->maxHeight = 32767;
  narrow->build(&window.widget);
  EXPECT_EQ(narrow->width.getValue(), 100);
  EXPECT_FALSE(narrow->width.isDefault() || narrow->minWidth.isDefault());
  EXPECT_TRUE(narrow->maxHeight.isDefault()) << "an unlimited maximum is never written";
  Triple record;
  narrow->getDefaultState(record.size, record.min, record.max);
  EXPECT_EQ(record.size, SbVec2i32(50, 0));
  EXPECT_EQ(record.min, SbVec2i32(100, 0));
  EXPECT_EQ(record.max, SbVec2i32(0, 32767));

  ProbeComponent* fixed = makeComponent();
  fixed->fixedWidth = TRUE;
  fixed->width = 120;
  fixed->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(80, 0));
  EXPECT_EQ(fixed->width.getValue(), 120) << "a fixed width is not dictated";
  EXPECT_EQ(SbVec2i32(fixed->minWidth.getValue(), fixed->maxWidth.getValue()), SbVec2i32(120, 120));
  EXPECT_TRUE(fixed->minWidth.isDefault() && fixed->maxWidth.isDefault());
  EXPECT_FALSE(fixed->width.isDefault());

  ProbeComponent* dictated = makeComponent();
  dictated->maxHeight = 60;
  dictated->build(&window.widget, 1, SbVec2i32(1, 1), SbVec2i32(10, 5000));
  EXPECT_EQ(sizeOf(dictated).size, SbVec2i32(25, 60));
  dictated->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(300, 5));
  EXPECT_EQ(sizeOf(dictated).size, SbVec2i32(300, 60)) << "an axis that is not dictated keeps its size";
}

TEST(DialogComponent, edgeStyleAndEnableApplyToTheControlsFrame)
{
  ControlWindow window;
  ProbeComponent* node = makeComponent();
  node->makesFrame = true;
  node->build(&window.widget);
  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  ASSERT_NE(static_cast<QWidget*>(frame), &window.widget);

  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  EXPECT_EQ(frame->frameShape(), QFrame::StyledPanel);
  EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  EXPECT_EQ(frame->frameShadow(), QFrame::Raised);
  node->edgeStyle = SoDialogComponent::NONE;
  EXPECT_EQ(frame->frameShape(), QFrame::NoFrame);
  EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);
  node->enable = FALSE;
  EXPECT_FALSE(frame->isEnabled());
  node->enable = TRUE;
  EXPECT_TRUE(frame->isEnabled());

  expectOneFrameThroughRebuilds(window, node, "probeFrame");
}

// Counts the calls that a field change makes on a node.
class ProbeNode : public SoFormwright {
public:
  int changes2D = 0, changes3D = 0;
  bool enableSeenDuringChange = true;

  void build(int mode)
  {
    SbVec2i32 useSize(0, 0), size(0, 0);
    buildWidget(nullptr, useSize, size, mode);
  }

protected:
  void changeEnable() override
  {
    ++changes2D;
    enableSeenDuringChange = enable.getValue();
  }
  void changeLabel() override { ++changes2D; }
  void changeLabelAlignment() override { ++changes2D; }
  void change3DEnable() override { ++changes3D; }
  void change3DLabel() override { ++changes3D; }
  void change3DLabelAlignment() override { ++changes3D; }
};

TEST(RootNode, fieldChangesReachEachBuiltFormOnce)
{
  ProbeNode* node = makeNode<ProbeNode>();
  node->enable = FALSE;
  node->label = "before";
  EXPECT_EQ(node->changes2D, 0) << "nothing is built";

  node->build(1);
  node->build(1); // a second build only refreshes: still one sensor per field
  node->enable = TRUE;
  EXPECT_TRUE(node->enableSeenDuringChange) << "the change runs after the value is stored";
  node->label = "after";
  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(node->changes2D, 3);
  EXPECT_EQ(node->changes3D, 0) << "no 3D form stands";
  SoFieldSensor foreign;
  node->updateFromSensor(&foreign);
  EXPECT_EQ(node->changes2D, 3) << "a foreign sensor is ignored";

  // With the widget gone only the 3D form hears, and only while traversable.
  node->setBuilt3D(1);
  node->destroyWidget();
  node->enable = FALSE;
  node->label = "x";
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(node->changes2D, 3);
  EXPECT_EQ(node->changes3D, 3);
  node->setCanBeTraversed(0);
  node->enable = TRUE;
  EXPECT_EQ(node->changes3D, 3);
}

TEST(RootNode, firstTopParentFollowsTraversableParents)
{
  auto* dialog = makeNode<SoTopLevelDialog>();
  auto* outer = makeNode<SoDialogGroup>();
  auto* inner = makeNode<SoDialogGroup>();
  auto* label = makeNode<SoDialogLabel>();

  // Free-standing: only a group can stand at the top, and only when asked.
  EXPECT_EQ(label->getFirstTopParent(0, 1), nullptr);
  EXPECT_EQ(inner->getFirstTopParent(0, 1), inner);
  EXPECT_EQ(inner->getFirstTopParent(0, 0), nullptr);

  label->setParent(inner);
  inner->setParent(outer);
  EXPECT_EQ(label->getFirstTopParent(0, 1), outer);
  outer->setParent(dialog);
  EXPECT_EQ(label->getFirstTopParent(0, 0), dialog);

  outer->setCanBeTraversed(0);
  EXPECT_EQ(label->getFirstTopParent(0, 0), nullptr);
  EXPECT_EQ(label->getFirstTopParent(0, 1), inner) << "the walk stops below the untraversable parent";
  EXPECT_EQ(label->getFirstTopParent(1, 0), dialog);
}

TEST(RootNode, widgetListHoldsPointersAndOwnsNone)
{
  QWidget a, b;
  QPointer<QWidget> kept = &a;
  {
    SoDialogWidgetList list(1);
    list.append(&b);
    list.insert(&a, 0);
    EXPECT_EQ(list.find(&b), 1);
    SoDialogWidgetList copy(list);
    list[0] = &b;
    EXPECT_EQ(copy[0], &a) << "a copy is a list of its own";
  }
  EXPECT_FALSE(kept.isNull()) << "the list deletes no widget";
}

}
