#include "ControlTestSupport.h"
#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoRowDialog.h>

#include <QSpacerItem>
#include <gtest/gtest.h>

namespace {

// A component that counts its change calls and, like a control, can make its
// own frame once the layout stands.
class Component : public SoDialogComponent {
public:
  using SoDialogComponent::buildMode;
  using SoDialogComponent::componentInitSize;
  using SoDialogComponent::componentLayout;
  using SoDialogComponent::componentSize;
  using SoDialogComponent::labelSize;
  using SoDialogComponent::layoutSpacer;

  SbVec2i32 initSize{0, 0};
  bool makesFrame = false;
  int changes2D = 0, changes3D = 0;

  void build(QWidget* parent, int mode = 1, SbVec2i32 useSize = SbVec2i32(0, 0), SbVec2i32 size = SbVec2i32(0, 0))
  {
    buildWidget(parent, useSize, size, mode);
  }
  SbVec2i32 getComponentInitSize() override { return initSize; }

protected:
  void updateComponentWidget() override
  {
    if (!makesFrame || componentWidget != parentWidget)
      return;
    componentWidget = new QFrame(componentWidget);
    componentWidget->setObjectName("componentFrame");
    componentLayout->addWidget(componentWidget, 0);
    componentLayout->addItem(layoutSpacer);
  }
  void changeLabelVisibility() override { ++changes2D; }
  void changeEdgeStyle() override
  {
    ++changes2D;
    SoDialogComponent::changeEdgeStyle();
  }
  void change3DLabelVisibility() override { ++changes3D; }
  void change3DEdgeStyle() override { ++changes3D; }
};

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

Triple defaultStateOf(SoDialogComponent* node)
{
  Triple triple;
  node->getDefaultState(triple.size, triple.min, triple.max);
  return triple;
}

TEST(DialogComponent, sizeTakesDefaultsForZerosAndClampsWithTheMaximumLast)
{
  Triple triple = sizeOf(makeNode<Component>());
  EXPECT_EQ(triple.size, SbVec2i32(200, 28));
  EXPECT_EQ(triple.min, SbVec2i32(25, 25));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 32767));

  Component* narrow = makeNode<Component>();
  narrow->width = 50;
  narrow->minWidth = 100;
  narrow->height = 500;
  narrow->maxHeight = 60;
  triple = sizeOf(narrow);
  EXPECT_EQ(triple.size, SbVec2i32(100, 60));
  EXPECT_EQ(triple.min, SbVec2i32(100, 25));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 60));

  Component* crossed = makeNode<Component>();
  crossed->minWidth = 300;
  crossed->maxWidth = 120;
  EXPECT_EQ(sizeOf(crossed).size[0], 120) << "a maximum below the minimum wins";

  Component* fixed = makeNode<Component>();
  fixed->fixedHeight = TRUE;
  fixed->height = 40;
  triple = sizeOf(fixed);
  EXPECT_EQ(triple.min, SbVec2i32(25, 40));
  EXPECT_EQ(triple.max, SbVec2i32(32767, 40));
}

TEST(DialogComponent, buildWritesComputedSizesAndMarksThemAsNotTheApplications)
{
  ControlWindow window;
  Component* fresh = makeNode<Component>();
  fresh->build(&window.widget);
  EXPECT_EQ(sizeOf(fresh).size, SbVec2i32(200, 28));
  EXPECT_EQ(fresh->minWidth.getValue(), 25);
  for (SoField* field : {static_cast<SoField*>(&fresh->width), static_cast<SoField*>(&fresh->height),
                         static_cast<SoField*>(&fresh->minWidth), static_cast<SoField*>(&fresh->minHeight),
                         static_cast<SoField*>(&fresh->maxWidth), static_cast<SoField*>(&fresh->maxHeight)})
    EXPECT_TRUE(field->isDefault());

  Component* narrow = makeNode<Component>();
  narrow->width = 50;
  narrow->minWidth = 100;
  narrow->maxHeight = 32767;
  narrow->build(&window.widget);
  EXPECT_EQ(narrow->width.getValue(), 100);
  EXPECT_FALSE(narrow->width.isDefault());
  EXPECT_FALSE(narrow->minWidth.isDefault());
  EXPECT_TRUE(narrow->maxHeight.isDefault()) << "an unlimited maximum is never written";
  const Triple state = defaultStateOf(narrow);
  EXPECT_EQ(state.size, SbVec2i32(50, 0));
  EXPECT_EQ(state.min, SbVec2i32(100, 0));
  EXPECT_EQ(state.max, SbVec2i32(0, 32767));

  Component* fixed = makeNode<Component>();
  fixed->fixedWidth = TRUE;
  fixed->width = 120;
  fixed->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(80, 0));
  EXPECT_EQ(fixed->width.getValue(), 120) << "a fixed width is not dictated";
  EXPECT_EQ(fixed->minWidth.getValue(), 120);
  EXPECT_EQ(fixed->maxWidth.getValue(), 120);
  EXPECT_TRUE(fixed->minWidth.isDefault() && fixed->maxWidth.isDefault());
  EXPECT_FALSE(fixed->width.isDefault());

  Component* dictated = makeNode<Component>();
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
  Component* alone = makeNode<Component>();
  alone->label = "Name:";
  alone->initSize.setValue(40, 5);
  alone->build(&window.widget);
  EXPECT_EQ(alone->labelSize, labelPixels);
  EXPECT_EQ(alone->componentSize, SbVec2i32(40, std::max(5, labelPixels[1])));

  Component* hidden = makeNode<Component>();
  hidden->label = "Name:";
  hidden->labelVisibility = FALSE;
  hidden->initSize.setValue(-1, 5);
  hidden->build(&window.widget);
  EXPECT_EQ(hidden->componentSize, SbVec2i32(0, 5)) << "no natural width counts as 0; a hidden label adds no height";

  Component* inRow = makeNode<Component>();
  inRow->label = "Name:";
  inRow->initSize.setValue(40, 5);
  inRow->setParent(makeNode<SoRowDialog>());
  SbVec2i32 given(70, 20);
  inRow->setLabelSize(given);
  inRow->build(&window.widget);
  EXPECT_EQ(inRow->labelSize, given) << "the container's sizes stand";
  EXPECT_EQ(inRow->componentSize, SbVec2i32(0, 0));
}

TEST(DialogComponent, resetSizeThenBuildGivesTheSizesOfAFreshComponent)
{
  ControlWindow window;
  Component* node = makeNode<Component>();
  node->label = "Name:";
  node->width = 150;
  node->build(&window.widget, 1, SbVec2i32(0, 1), SbVec2i32(0, 90));
  ASSERT_EQ(sizeOf(node).size, SbVec2i32(150, 90));

  node->resetSize();
  EXPECT_EQ(node->componentInitSize, SbVec2i32(-1, -1));
  EXPECT_EQ(node->labelSize, SbVec2i32(0, 0));
  EXPECT_EQ(node->componentSize, SbVec2i32(0, 0));
  EXPECT_EQ(defaultStateOf(node).size, SbVec2i32(0, 0)) << "the reset goes through the sensors";
  node->build(&window.widget);
  EXPECT_EQ(sizeOf(node).size, SbVec2i32(200, 28));
}

TEST(DialogComponent, sizeFieldChangesAfterTheBuildOnlyUpdateTheRecord)
{
  ControlWindow window;
  Component* node = makeNode<Component>();
  node->makesFrame = true;
  node->build(&window.widget);
  QWidget* frame = node->getWidget();
  const QSize frameSize = frame->size();

  node->width = 120;
  node->height = 44;
  node->minHeight = 30;
  const Triple state = defaultStateOf(node);
  EXPECT_EQ(state.size, SbVec2i32(120, 44));
  EXPECT_EQ(state.min, SbVec2i32(25, 30)) << "all four limits are copied from the fields";
  EXPECT_EQ(state.max, SbVec2i32(32767, 32767));
  EXPECT_EQ(frame->size(), frameSize);

  node->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(300, 0));
  EXPECT_EQ(node->width.getValue(), 300);
  EXPECT_EQ(defaultStateOf(node).size, SbVec2i32(120, 44)) << "the library's own writes are not the application's";
}

TEST(DialogComponent, labelVisibilityAndEdgeStyleReachOnlyTheBuiltForms)
{
  ControlWindow window;
  Component* node = makeNode<Component>();
  node->labelVisibility = FALSE;
  EXPECT_EQ(node->changes2D, 0) << "nothing is built";
  node->build(&window.widget);
  node->labelVisibility = TRUE;
  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  EXPECT_EQ(node->changes2D, 2);
  EXPECT_EQ(node->changes3D, 0);

  node->setBuilt3D(1);
  node->destroyWidget();
  node->labelVisibility = FALSE;
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  EXPECT_EQ(node->changes2D, 2);
  EXPECT_EQ(node->changes3D, 2);
}

TEST(DialogComponent, componentLayoutRunsAcrossAWindowAndDownAColumn)
{
  ControlWindow window;
  Component* node = makeNode<Component>();
  node->build(&window.widget);
  EXPECT_EQ(node->getWidget(), &window.widget) << "the parent stands in until the control makes its frame";
  auto* layout = static_cast<QBoxLayout*>(node->getLayout());
  ASSERT_NE(qobject_cast<QHBoxLayout*>(layout), nullptr);
  EXPECT_EQ(layout->objectName(), QString("FWTSoDialogComponentLayout"));
  EXPECT_EQ(layout->spacing(), 0);
  EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
  EXPECT_EQ(layout->parent(), window.layout);
  EXPECT_EQ(node->layoutSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
  node->build(&window.widget);
  EXPECT_EQ(window.layout->count(), 1) << "a second build only refreshes";

  Component* fixed = makeNode<Component>();
  fixed->fixedWidth = TRUE;
  fixed->build(&window.widget);
  EXPECT_EQ(fixed->layoutSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding)
    << "a fixed control is held at its place by the spacer behind it";

  // In a column the spacer expands below a control that may not grow.
  Column* column = makeNode<Column>();
  column->componentLayout = new QHBoxLayout;
  window.layout->addLayout(column->componentLayout);
  const auto buildInColumn = [&](int height, int maxHeight, bool fixedHeight) {
    Component* child = makeNode<Component>();
    child->setParent(column);
    child->height = height;
    child->maxHeight = maxHeight;
    child->fixedHeight = fixedHeight;
    child->build(&window.widget);
    return child;
  };
  Component* loose = buildInColumn(0, 0, false);
  EXPECT_NE(qobject_cast<QVBoxLayout*>(loose->componentLayout), nullptr);
  EXPECT_EQ(loose->componentLayout->parent(), column->componentLayout);
  EXPECT_EQ(loose->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
  EXPECT_EQ(buildInColumn(40, 40, false)->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(buildInColumn(0, 0, true)->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

TEST(DialogComponent, edgeStyleAndEnableApplyToTheControlsFrame)
{
  ControlWindow window;
  Component* node = makeNode<Component>();
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

  expectOneFrameThroughRebuilds(window, node, "componentFrame");
  EXPECT_EQ(node->buildMode, 1);
}

TEST(DialogComponent, innerPlaceDependsOnEdgeAndLabel)
{
  Component* node = makeNode<Component>();
  node->width = 100;
  node->height = 30;
  SbVec2i32 label(40, 18);
  node->setLabelSize(label);
  SbVec2i32 size, position;

  node->get2DComponentSize(size, position);
  EXPECT_EQ(size, SbVec2i32(52, 24));
  EXPECT_EQ(position, SbVec2i32(45, 3));
  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  node->get2DComponentSize(size, position);
  EXPECT_EQ(size, SbVec2i32(52, 24));
  EXPECT_EQ(position, SbVec2i32(44, 2));
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  node->labelVisibility = FALSE;
  node->get2DComponentSize(size, position);
  EXPECT_EQ(size, SbVec2i32(94, 24));
  EXPECT_EQ(position, SbVec2i32(0, 0));
}

TEST(DialogComponent, sceneBuildEndsTheFirstBuildToo)
{
  Component* node = makeNode<Component>();
  node->width = 150;
  node->build(nullptr, 0);
  node->build(nullptr, 0, SbVec2i32(1, 0), SbVec2i32(300, 0));
  ASSERT_EQ(node->width.getValue(), 300);
  node->build(nullptr, 0);
  EXPECT_EQ(defaultStateOf(node).size, SbVec2i32(150, 0)) << "the record is taken at the first build only";
  EXPECT_EQ(node->getWidget(), nullptr) << "no 2D form was made";
}

}
