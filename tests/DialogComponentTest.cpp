#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogComponent.h>
#include <SoRowDialog.h>

#include <Inventor/nodekits/SoNodekitCatalog.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoSwitch.h>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QFrame>
#include <QPointer>
#include <QSpacerItem>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

// A component that reports its calls and, like a control, can make its own
// frame once the layout stands.
class Component : public SoDialogComponent {
public:
  using SoDialogComponent::buildMode;
  using SoDialogComponent::componentInitSize;
  using SoDialogComponent::componentLayout;
  using SoDialogComponent::componentSize;
  using SoDialogComponent::labelInitSize;
  using SoDialogComponent::labelSize;
  using SoDialogComponent::layoutSpacer;
  using SoDialogComponent::requestedSize;

  SbVec2i32 initSize{0, 0};
  bool makesFrame = false;
  int labelVisibilityChanges = 0, edgeStyleChanges = 0, labelChanges = 0;
  int labelVisibility3DChanges = 0, edgeStyle3DChanges = 0;

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
    auto* frame = new QFrame(componentWidget);
    componentWidget = frame;
    componentLayout->addWidget(frame, 0);
    componentLayout->addItem(layoutSpacer);
  }
  void changeLabelVisibility() override { ++labelVisibilityChanges; }
  void changeEdgeStyle() override
  {
    ++edgeStyleChanges;
    SoDialogComponent::changeEdgeStyle();
  }
  void changeLabel() override { ++labelChanges; }
  void change3DLabelVisibility() override { ++labelVisibility3DChanges; }
  void change3DEdgeStyle() override { ++edgeStyle3DChanges; }
};

// A column whose inner layout a test can set, as the column's build would.
class Column : public SoColumnDialog {
public:
  using SoColumnDialog::componentLayout;
};

template <class Node>
Node* makeNode()
{
  auto* node = new Node;
  node->ref();
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

Triple defaultStateOf(SoDialogComponent* node)
{
  Triple triple;
  node->getDefaultState(triple.size, triple.min, triple.max);
  return triple;
}

// A window-like widget with a vertical layout, as the one a window builds
// its children in.
struct Window {
  QWidget widget;
  QVBoxLayout* layout = new QVBoxLayout(&widget);
};

TEST(DialogComponent, fieldsEnumerationAndCatalog)
{
  Component* node = makeNode<Component>();
  EXPECT_EQ(node->width.getValue(), 0);
  EXPECT_EQ(node->height.getValue(), 0);
  EXPECT_FALSE(node->fixedWidth.getValue());
  EXPECT_FALSE(node->fixedHeight.getValue());
  EXPECT_EQ(node->minWidth.getValue() + node->minHeight.getValue() + node->maxWidth.getValue() + node->maxHeight.getValue(), 0);
  EXPECT_TRUE(node->labelVisibility.getValue());
  EXPECT_EQ(node->edgeStyle.getValue(), SoDialogComponent::NONE);
  EXPECT_EQ(node->componentInitSize, SbVec2i32(-1, -1));

  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "DialogComponent { width 10 fixedHeight TRUE maxHeight 40 labelVisibility FALSE edgeStyle SHADOW_OUT }\n");
  ASSERT_NE(root, nullptr);
  auto* read = static_cast<SoDialogComponent*>(root->getChild(0));
  EXPECT_EQ(read->width.getValue(), 10);
  EXPECT_TRUE(read->fixedHeight.getValue());
  EXPECT_EQ(read->maxHeight.getValue(), 40);
  EXPECT_FALSE(read->labelVisibility.getValue());
  EXPECT_EQ(read->edgeStyle.getValue(), SoDialogComponent::SHADOW_OUT);
  root->unref();

  const SoNodekitCatalog* catalog = SoDialogComponent::getClassNodekitCatalog();
  const struct {
    const char* part;
    const char* parent;
    SoType type;
    bool isPublic;
  } parts[] = {{"mainCptSeparator", "geomSwitch", SoSeparator::getClassTypeId(), false},
               {"edgeStyleSwitch", "mainCptSeparator", SoSwitch::getClassTypeId(), false},
               {"edgeStyleNone", "edgeStyleSwitch", SoGroup::getClassTypeId(), true},
               {"edgeStyleShadowIn", "edgeStyleSwitch", SoGroup::getClassTypeId(), true},
               {"edgeStyleShadowOut", "edgeStyleSwitch", SoGroup::getClassTypeId(), true}};
  for (const auto& expected : parts) {
    const int number = catalog->getPartNumber(expected.part);
    ASSERT_GE(number, 0) << expected.part;
    EXPECT_EQ(catalog->getParentName(number), SbName(expected.parent)) << expected.part;
    EXPECT_EQ(catalog->getType(number), expected.type) << expected.part;
    EXPECT_EQ(catalog->isPublic(number) != FALSE, expected.isPublic) << expected.part;
    EXPECT_TRUE(catalog->isNullByDefault(number)) << expected.part;
  }
}

TEST(DialogComponent, sizeTakesDefaultsForZerosAndClampsWithTheMaximumLast)
{
  Component* fresh = makeNode<Component>();
  Triple triple = sizeOf(fresh);
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
  Window window;
  Component* fresh = makeNode<Component>();
  fresh->build(&window.widget);
  EXPECT_EQ(fresh->width.getValue(), 200);
  EXPECT_EQ(fresh->height.getValue(), 28);
  EXPECT_EQ(fresh->minWidth.getValue(), 25);
  EXPECT_EQ(fresh->maxHeight.getValue(), 32767);
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
  EXPECT_EQ(narrow->minWidth.getValue(), 100);
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
  fixed->build(&window.widget);
  EXPECT_EQ(fixed->minWidth.getValue(), 120);
  EXPECT_EQ(fixed->maxWidth.getValue(), 120);
  EXPECT_TRUE(fixed->minWidth.isDefault());
  EXPECT_TRUE(fixed->maxWidth.isDefault());
  EXPECT_FALSE(fixed->width.isDefault());
}

TEST(DialogComponent, dictatedSizeIsHeldWithinTheLimits)
{
  Window window;
  Component* node = makeNode<Component>();
  node->maxHeight = 60;
  node->build(&window.widget, 1, SbVec2i32(1, 1), SbVec2i32(10, 5000));
  EXPECT_EQ(node->width.getValue(), 25);
  EXPECT_EQ(node->height.getValue(), 60);
  EXPECT_EQ(node->requestedSize, SbVec2i32(10, 5000));

  node->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(300, 5));
  EXPECT_EQ(node->width.getValue(), 300);
  EXPECT_EQ(node->height.getValue(), 60) << "an axis that is not dictated keeps its size";

  Component* fixed = makeNode<Component>();
  fixed->fixedWidth = TRUE;
  fixed->build(&window.widget, 1, SbVec2i32(1, 0), SbVec2i32(80, 0));
  EXPECT_EQ(fixed->width.getValue(), 200) << "a fixed width is not dictated";
  EXPECT_EQ(fixed->minWidth.getValue(), 200);
  EXPECT_EQ(fixed->maxWidth.getValue(), 200);
}

TEST(DialogComponent, standAloneComponentMeasuresItselfAndOneInAContainerDoesNot)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  const SbVec2i32 labelPixels(metrics.horizontalAdvance("Name:") + 3, metrics.height() + 3);
  Window window;

  Component* alone = makeNode<Component>();
  alone->label = "Name:";
  alone->initSize.setValue(40, 5);
  alone->build(&window.widget);
  EXPECT_EQ(alone->labelSize, labelPixels);
  EXPECT_EQ(alone->labelInitSize, labelPixels);
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

TEST(DialogComponent, labelInitSizeIsMeasuredAnewOnEachCall)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  Component* node = makeNode<Component>();
  EXPECT_EQ(node->getLabelInitSize(), SbVec2i32(0, 0));
  node->label = "Path\\nto file";
  EXPECT_EQ(node->getLabelInitSize(), SbVec2i32(metrics.horizontalAdvance("to file") + 3, 2 * metrics.height() + 3));
  EXPECT_EQ(node->labelInitSize, node->getLabelInitSize());
}

TEST(DialogComponent, resetSizeThenBuildGivesTheSizesOfAFreshComponent)
{
  Window window;
  Component* node = makeNode<Component>();
  node->label = "Name:";
  node->width = 150;
  node->build(&window.widget, 1, SbVec2i32(0, 1), SbVec2i32(0, 90));
  ASSERT_EQ(node->width.getValue(), 150);
  ASSERT_EQ(node->height.getValue(), 90);

  node->resetSize();
  EXPECT_EQ(node->componentInitSize, SbVec2i32(-1, -1));
  EXPECT_EQ(node->labelSize, SbVec2i32(0, 0));
  EXPECT_EQ(node->labelInitSize, SbVec2i32(0, 0));
  EXPECT_EQ(node->componentSize, SbVec2i32(0, 0));
  EXPECT_EQ(node->width.getValue(), 0);
  EXPECT_EQ(node->height.getValue(), 0);
  EXPECT_EQ(defaultStateOf(node).size, SbVec2i32(0, 0)) << "the reset goes through the sensors";

  node->build(&window.widget);
  EXPECT_EQ(node->width.getValue(), 200);
  EXPECT_EQ(node->height.getValue(), 28);
}

TEST(DialogComponent, sizeFieldChangesAfterTheBuildOnlyUpdateTheRecord)
{
  Window window;
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

TEST(DialogComponent, labelVisibilityAndEdgeStyleReachTheBuiltForms)
{
  Window window;
  Component* node = makeNode<Component>();
  node->labelVisibility = FALSE;
  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  EXPECT_EQ(node->labelVisibilityChanges + node->edgeStyleChanges, 0) << "nothing is built";

  node->build(&window.widget);
  node->labelVisibility = TRUE;
  node->edgeStyle = SoDialogComponent::NONE;
  EXPECT_EQ(node->labelVisibilityChanges, 1);
  EXPECT_EQ(node->edgeStyleChanges, 1);
  EXPECT_EQ(node->labelVisibility3DChanges + node->edgeStyle3DChanges, 0);
  node->label = "other";
  EXPECT_EQ(node->labelChanges, 1) << "the root's fields still reach the root's dispatch";

  node->setBuilt3D(1);
  node->destroyWidget();
  node->labelVisibility = FALSE;
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  EXPECT_EQ(node->labelVisibilityChanges, 1);
  EXPECT_EQ(node->edgeStyleChanges, 1);
  EXPECT_EQ(node->labelVisibility3DChanges, 1);
  EXPECT_EQ(node->edgeStyle3DChanges, 1);
}

TEST(DialogComponent, componentLayoutInAWindowIsHorizontal)
{
  Window window;
  Component* node = makeNode<Component>();
  node->build(&window.widget);
  EXPECT_EQ(node->getWidget(), &window.widget) << "the parent stands in until the control makes its frame";
  auto* layout = static_cast<QBoxLayout*>(node->getLayout());
  ASSERT_NE(layout, nullptr);
  EXPECT_NE(qobject_cast<QHBoxLayout*>(layout), nullptr);
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
  EXPECT_EQ(window.layout->count(), 2);
}

TEST(DialogComponent, componentLayoutInAColumnIsVertical)
{
  Window window;
  Column* column = makeNode<Column>();
  column->componentLayout = new QHBoxLayout;
  window.layout->addLayout(column->componentLayout);

  const auto buildInColumn = [&](int height, int maxHeight, bool fixedHeight) {
    Component* node = makeNode<Component>();
    node->setParent(column);
    node->height = height;
    node->maxHeight = maxHeight;
    node->fixedHeight = fixedHeight;
    node->build(&window.widget);
    return node;
  };
  Component* loose = buildInColumn(0, 0, false);
  EXPECT_NE(qobject_cast<QVBoxLayout*>(loose->componentLayout), nullptr);
  EXPECT_EQ(loose->componentLayout->parent(), column->componentLayout);
  EXPECT_EQ(loose->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
  EXPECT_EQ(buildInColumn(40, 40, false)->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(buildInColumn(0, 0, true)->layoutSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(column->componentLayout->count(), 3);
}

TEST(DialogComponent, edgeStyleAndEnableApplyToTheControlsFrame)
{
  Window window;
  Component* node = makeNode<Component>();
  node->makesFrame = true;
  node->build(&window.widget);
  auto* frame = qobject_cast<QFrame*>(node->getWidget());
  ASSERT_NE(frame, nullptr);
  ASSERT_NE(static_cast<QWidget*>(frame), &window.widget);
  EXPECT_EQ(frame->parentWidget(), &window.widget);

  node->edgeStyle = SoDialogComponent::SHADOW_IN;
  EXPECT_EQ(frame->frameShape(), QFrame::StyledPanel);
  EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  EXPECT_EQ(frame->frameShape(), QFrame::StyledPanel);
  EXPECT_EQ(frame->frameShadow(), QFrame::Raised);
  node->edgeStyle = SoDialogComponent::NONE;
  EXPECT_EQ(frame->frameShape(), QFrame::NoFrame);
  EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);

  node->enable = FALSE;
  EXPECT_FALSE(frame->isEnabled());
  node->enable = TRUE;
  EXPECT_TRUE(frame->isEnabled());
}

TEST(DialogComponent, componentWithoutItsOwnFrameLeavesTheParentAlone)
{
  QFrame parent;
  new QVBoxLayout(&parent);
  Component* node = makeNode<Component>();
  node->build(&parent);
  node->edgeStyle = SoDialogComponent::SHADOW_OUT;
  node->enable = FALSE;
  EXPECT_EQ(parent.frameShape(), QFrame::NoFrame);
  EXPECT_TRUE(parent.isEnabled());
  node->destroyWidget();
  EXPECT_EQ(node->getWidget(), nullptr);
  EXPECT_EQ(node->buildMode, 0);
}

TEST(DialogComponent, destroyWidgetDeletesTheFrameAndARebuildMakesANewOne)
{
  Window window;
  Component* node = makeNode<Component>();
  node->makesFrame = true;
  node->build(&window.widget);
  QPointer<QWidget> frame = node->getWidget();
  node->destroyWidget();
  EXPECT_TRUE(frame.isNull());
  EXPECT_EQ(node->getWidget(), nullptr);
  EXPECT_EQ(node->buildMode, 0);
  node->enable = FALSE; // no 2D form: no change reaches a widget

  node->build(&window.widget);
  ASSERT_NE(node->getWidget(), nullptr);
  EXPECT_NE(node->getWidget(), &window.widget);
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

TEST(DialogComponent, threeDimensionalBuildEndsTheFirstBuildToo)
{
  Component* node = makeNode<Component>();
  node->width = 150;
  node->build(nullptr, 0);
  // A 3D build is handed the size itself, and the place.
  node->build(nullptr, 0, SbVec2i32(300, 0), SbVec2i32(0, 0));
  ASSERT_EQ(node->width.getValue(), 300);
  node->build(nullptr, 0);
  EXPECT_EQ(defaultStateOf(node).size, SbVec2i32(150, 0)) << "the record is taken at the first build only";
  EXPECT_EQ(node->getWidget(), nullptr) << "no 2D form was made";
}

}
