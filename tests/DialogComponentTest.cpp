#include "ControlTestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogAuditor.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogWidgetList.h>
#include <SoRowDialog.h>
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

// A column whose inner layout a test can set, as the column's build would.
class Column : public SoColumnDialog {
public:
  using SoColumnDialog::componentLayout;
};

struct Triple {
  SbVec2i32 size, min, max;
};

Triple sizeOf(SoDialogComponent* node)
{
  Triple triple;
  node->getSize(triple.size, triple.min, triple.max);
  return triple;
}

Triple recordOf(SoDialogComponent* node)
{
  Triple triple;
  node->getDefaultState(triple.size, triple.min, triple.max);
  return triple;
}

TEST(DialogComponent, sizeTakesDefaultsForZerosAndClampsWithTheMaximumLast)
{
  Triple triple = sizeOf(makeComponent());
  EXPECT_EQ(triple.size, SbVec2i32(200, 28));
  EXPECT_EQ(triple.min, SbVec2i32(25, 25));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 32767));

  ProbeComponent* narrow = makeComponent();
  narrow->width = 50;
  narrow->minWidth = 100;
  narrow->height = 500;
  narrow->maxHeight = 60;
  triple = sizeOf(narrow);
  EXPECT_EQ(triple.size, SbVec2i32(100, 60));
  EXPECT_EQ(triple.min, SbVec2i32(100, 25));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 60));

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
  const Triple record = recordOf(narrow);
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

TEST(DialogComponent, standAloneComponentMeasuresItselfAndOneInAContainerDoesNot)
{
  const SbVec2i32 labelPixels = textPixels("Name:");
  ControlWindow window;
  ProbeComponent* alone = makeComponent();
  alone->label = "Name:";
  alone->initSize.setValue(40, 5);
  alone->build(&window.widget);
  EXPECT_EQ(alone->labelSize, labelPixels);
  EXPECT_EQ(alone->componentSize, SbVec2i32(40, std::max(5, labelPixels[1])));

  ProbeComponent* hidden = makeComponent();
  hidden->label = "Name:";
  hidden->labelVisibility = FALSE;
  hidden->initSize.setValue(-1, 5);
  hidden->build(&window.widget);
  EXPECT_EQ(hidden->componentSize, SbVec2i32(0, 5)) << "no natural width counts as 0; a hidden label adds no height";

  ProbeComponent* inRow = makeComponent();
  inRow->label = "Name:";
  inRow->initSize.setValue(40, 5);
  inRow->setParent(makeNode<SoRowDialog>());
  SbVec2i32 given(70, 20);
  inRow->setLabelSize(given);
  inRow->build(&window.widget);
  EXPECT_EQ(inRow->labelSize, given) << "the container's sizes stand";
  EXPECT_EQ(inRow->componentSize, SbVec2i32(0, 0));
}

TEST(DialogComponent, sizeRecordFollowsTheApplicationAndResetForgetsTheMeasures)
{
  ControlWindow window;
  ProbeComponent* node = makeComponent();
  node->makesFrame = true;
  node->build(&window.widget);
  const QSize frameSize = node->getWidget()->size();

  // After the build a size field only updates the record, not the widget.
  node->width = 120;
  node->height = 44;
  node->maxHeight = 80;
  const Triple record = recordOf(node);
  EXPECT_EQ(record.size, SbVec2i32(120, 44));
  EXPECT_EQ(record.min, SbVec2i32(25, 25)) << "all four limits are copied from the fields";
  EXPECT_EQ(record.max, SbVec2i32(32767, 80));
  EXPECT_EQ(node->getWidget()->size(), frameSize);
  node->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(300, 0));
  EXPECT_EQ(node->width.getValue(), 300);
  EXPECT_EQ(recordOf(node).size, SbVec2i32(120, 44)) << "the library's own writes are not the application's";

  node->label = "Name:";
  node->resetSize();
  EXPECT_EQ(node->componentInitSize, SbVec2i32(-1, -1));
  EXPECT_EQ(node->labelSize, SbVec2i32(0, 0));
  EXPECT_EQ(node->componentSize, SbVec2i32(0, 0));
  EXPECT_EQ(recordOf(node).size, SbVec2i32(0, 0)) << "the reset goes through the sensors";
  node->build(&window.widget);
  EXPECT_EQ(sizeOf(node).size, SbVec2i32(200, 28)) << "measured as a fresh component";
}

TEST(DialogComponent, componentLayoutRunsAcrossAWindowAndDownAColumn)
{
  ControlWindow window;
  ProbeComponent* node = makeComponent();
  node->build(&window.widget);
  EXPECT_EQ(node->getWidget(), &window.widget) << "the parent stands in until the control makes its frame";
  auto* layout = static_cast<QBoxLayout*>(node->getLayout());
  ASSERT_NE(qobject_cast<QHBoxLayout*>(layout), nullptr);
  EXPECT_EQ(layout->spacing(), 0);
  EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
  EXPECT_EQ(layout->parent(), window.layout);
  EXPECT_EQ(node->layoutSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
  node->build(&window.widget);
  EXPECT_EQ(window.layout->count(), 1) << "a second build only refreshes";

  ProbeComponent* fixed = makeComponent();
  fixed->fixedWidth = TRUE;
  fixed->build(&window.widget);
  EXPECT_EQ(fixed->layoutSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding)
    << "a fixed control is held at its place by the spacer behind it";

  // In a column the spacer expands below a control that may not grow.
  Column* column = makeNode<Column>();
  column->componentLayout = new QHBoxLayout;
  window.layout->addLayout(column->componentLayout);
  const struct {
    int height, maxHeight;
    bool fixedHeight;
    QSizePolicy::Policy spacer;
  } cases[] = {{0, 0, false, QSizePolicy::Fixed}, {40, 40, false, QSizePolicy::Expanding}, {0, 0, true, QSizePolicy::Expanding}};
  for (const auto& c : cases) {
    ProbeComponent* child = makeComponent();
    child->setParent(column);
    child->height = c.height;
    child->maxHeight = c.maxHeight;
    child->fixedHeight = c.fixedHeight;
    child->build(&window.widget);
    EXPECT_NE(qobject_cast<QVBoxLayout*>(child->componentLayout), nullptr);
    EXPECT_EQ(child->componentLayout->parent(), column->componentLayout);
    EXPECT_EQ(child->layoutSpacer->sizePolicy().verticalPolicy(), c.spacer) << c.height << " " << c.fixedHeight;
  }
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
  using SoFormwright::addAuditor;
  using SoFormwright::getAuditor;
  using SoFormwright::getAuditorListLength;
  using SoFormwright::removeAuditor;

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

TEST(RootNode, auditorListKeepsOrderAndIgnoresRepeats)
{
  ProbeNode* node = makeNode<ProbeNode>();
  struct Listener : SoDialogAuditor {};
  Listener first, second, third;
  node->removeAuditor(&first); // no list yet: harmless
  EXPECT_EQ(node->getAuditorListLength(), 0);

  node->addAuditor(&first);
  node->addAuditor(&first);
  node->addAuditor(&second);
  node->addAuditor(&third);
  node->removeAuditor(&second);
  ASSERT_EQ(node->getAuditorListLength(), 2);
  EXPECT_EQ(node->getAuditor(0), &first);
  EXPECT_EQ(node->getAuditor(1), &third);
  node->removeAuditor(&first);
  node->removeAuditor(&first);
  ASSERT_EQ(node->getAuditorListLength(), 1);
  EXPECT_EQ(node->getAuditor(0), &third);
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
