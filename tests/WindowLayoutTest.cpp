#include "TestSupport.h"

#include <SoChildSizeTable.h>
#include <SoColumnDialog.h>
#include <SoDialogComponent.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include "SoFormMode.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QFrame>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <memory>

namespace {

// A leaf with a label and a component part of a chosen natural size, whose
// negotiated sizes a test can read.
class Leaf : public SoDialogComponent {
public:
  using SoDialogComponent::buildMode;
  using SoDialogComponent::componentSize;
  using SoDialogComponent::labelSize;

  SbVec2i32 initSize{40, 20};
  int enabledState = -1;

  SbVec2i32 getComponentInitSize() override { return initSize; }
  void changeWidgetEnable(int enabled) override { enabledState = enabled; }
};

Leaf* makeLeaf(const char* text, int w = 40, int h = 20)
{
  auto* leaf = new Leaf;
  leaf->ref();
  leaf->label = text;
  leaf->initSize.setValue(w, h);
  return leaf;
}

// A leaf whose size triple is given outright by its fields.
Leaf* makeSizedLeaf(int w, int h, int maxW = 32767, int maxH = 32767)
{
  Leaf* leaf = makeLeaf("");
  leaf->labelVisibility = FALSE;
  leaf->width = w;
  leaf->height = h;
  leaf->minWidth = w;
  leaf->minHeight = h;
  leaf->maxWidth = maxW;
  leaf->maxHeight = maxH;
  return leaf;
}

template <class Node>
Node* make()
{
  auto* node = new Node;
  node->ref();
  return node;
}

class ExposedRow : public SoRowDialog {
public:
  using SoRowDialog::componentLayout;
  using SoRowDialog::getDefaultSize;
  using SoRowDialog::sizeTable;
};

class ExposedColumn : public SoColumnDialog {
public:
  using SoColumnDialog::componentLayout;
  using SoColumnDialog::getDefaultSize;
};

int labelWidth(const char* text)
{
  return QFontMetrics(SoFormwright::getFormwrightFont()).horizontalAdvance(text) + 3;
}

int labelHeight()
{
  return QFontMetrics(SoFormwright::getFormwrightFont()).height() + 3;
}

TEST(WindowLayout, labelColumnIsSharedAcrossTheWindow)
{
  auto* window = make<SoTopLevelDialog>();
  Leaf* shortLabel = makeLeaf("Id:");
  Leaf* longLabel = makeLeaf("Surname of the owner:");
  Leaf* hidden = makeLeaf("A label wider than any other in here");
  hidden->labelVisibility = FALSE;
  window->addChild(shortLabel);
  window->addChild(longLabel);
  window->addChild(hidden);
  window->buildDialog(nullptr, 0);

  const int widest = labelWidth("Surname of the owner:");
  EXPECT_EQ(shortLabel->labelSize, SbVec2i32(widest, labelHeight()));
  EXPECT_EQ(longLabel->labelSize, SbVec2i32(widest, labelHeight()));
  EXPECT_EQ(hidden->labelSize, SbVec2i32(widest, 0)) << "a hidden label shares the column, with no height";
  EXPECT_EQ(hidden->componentSize, SbVec2i32(40, 20));
  EXPECT_EQ(shortLabel->componentSize, SbVec2i32(40, std::max(20, labelHeight())));

  // In a row, a hidden label keeps its measured height.
  auto* row = make<SoRowDialog>();
  Leaf* rowHidden = makeLeaf("Hidden");
  rowHidden->labelVisibility = FALSE;
  row->addChild(makeLeaf("Shown"));
  row->addChild(rowHidden);
  SbVec2i32 none(0, 0);
  row->setLabelSize(none);
  EXPECT_EQ(rowHidden->labelSize, SbVec2i32(labelWidth("Shown"), labelHeight()));
}

TEST(WindowLayout, marginAndSpacingEnterTheSums)
{
  auto* window = make<SoTopLevelDialog>();
  window->margin = 5;
  window->rowSpacing = 4;
  window->maxWidth = 0;
  window->maxHeight = 0;
  window->addChild(makeSizedLeaf(100, 30, 300, 40));
  window->addChild(makeSizedLeaf(120, 40, 200, 50));
  window->buildDialog(nullptr, 0);
  EXPECT_EQ(window->width.getValue(), 120 + 10);
  EXPECT_EQ(window->height.getValue(), 30 + 40 + 10 + 4);
  EXPECT_EQ(window->minWidth.getValue(), 120 + 10);
  EXPECT_EQ(window->maxWidth.getValue(), 300 + 10);
  EXPECT_EQ(window->maxHeight.getValue(), 40 + 50 + 10 + 4);
  EXPECT_EQ(window->getBaseWidget()->size(), QSize(130, 84));
  EXPECT_EQ(window->getBaseWidget()->minimumSize(), QSize(0, 0)) << "limits are set from the file's values";

  auto* column = make<ExposedColumn>();
  column->margin = 2;
  column->columnSpacing = 6;
  column->addChild(makeSizedLeaf(50, 30));
  column->addChild(makeSizedLeaf(70, 20));
  column->addChild(makeSizedLeaf(10, 25));
  SbVec2i32 size, min, max;
  column->getDefaultSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(50 + 70 + 10 + 4 + 2 * 6, 30 + 4));
  column->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(50 + 70 + 10 + 4 + 2 * 6 + 6, 30 + 4 + 6)) << "the frame adds 6 on each axis";
}

TEST(WindowLayout, unlimitedMaximaSaturate)
{
  auto* row = make<ExposedRow>();
  for (int i = 0; i < 3; ++i)
    row->addChild(makeSizedLeaf(10, 10));
  row->margin = 3;
  SbVec2i32 size, min, max;
  row->getDefaultSize(size, min, max);
  EXPECT_EQ(max, SbVec2i32(32767, 32767));
  row->getSize(size, min, max);
  EXPECT_EQ(max, SbVec2i32(32767, 32767)) << "the frame allowance saturates too";

  // An empty row: unlimited, and the spacing term is minus one spacing.
  auto* empty = make<ExposedRow>();
  empty->rowSpacing = 4;
  empty->getDefaultSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(0, -4));
  EXPECT_EQ(max, SbVec2i32(32767, 32763));
}

TEST(WindowLayout, roundRobinSpreadsPixelsAndStopsWhenAllRefuse)
{
  SoChildSizeTable table;
  table.resize(3);
  table.set(0, SbVec2i32(0, 10), SbVec2i32(0, 10), SbVec2i32(0, 12));
  table.set(1, SbVec2i32(0, 10), SbVec2i32(0, 10), SbVec2i32(0, 10));
  table.set(2, SbVec2i32(0, 10), SbVec2i32(0, 5), SbVec2i32(0, 100));
  EXPECT_EQ(table.distribute(1, 5), 0);
  EXPECT_EQ(table.childSizes[0][1], 12);
  EXPECT_EQ(table.childSizes[1][1], 10);
  EXPECT_EQ(table.childSizes[2][1], 13);
  EXPECT_EQ(table.distribute(1, -20), -10) << "child 2 gives down to its minimum, child 0 to its own";
  EXPECT_EQ(table.childSizes[2][1], 5);

  // Through a row whose children all stand at their maximum.
  auto* row = make<ExposedRow>();
  row->addChild(makeSizedLeaf(10, 10, 10, 10));
  row->addChild(makeSizedLeaf(10, 20, 10, 20));
  SbVec2i32 bigger(10, 100);
  row->computeNewChildrenHeight(bigger);
  EXPECT_EQ(row->sizeTable.childSizes[0][1], 10);
  EXPECT_EQ(row->sizeTable.childSizes[1][1], 20);
}

TEST(WindowLayout, childAddedDeepInABuiltDialogRebuildsTheWindow)
{
  auto* window = make<SoTopLevelDialog>();
  window->windowResizedByChildren = TRUE;
  auto* column = make<SoColumnDialog>();
  auto* row = make<SoRowDialog>();
  row->addChild(makeSizedLeaf(100, 40));
  column->addChild(row);
  window->addChild(column);
  window->buildDialog(nullptr, 0);
  const int heightBefore = window->height.getValue();

  Leaf* added = makeSizedLeaf(100, 30);
  added->labelVisibility = TRUE;
  added->label = "Second";
  row->addChild(added);
  EXPECT_NE(added->buildMode, 0) << "the new child got its widget";
  EXPECT_EQ(window->height.getValue(), heightBefore + 30);
  EXPECT_EQ(added->labelSize[0], labelWidth("Second")) << "the row's labels were aligned again";
}

TEST(WindowLayout, windowKeepsItsSizeUnlessResizedByChildren)
{
  auto* window = make<SoTopLevelDialog>();
  window->addChild(makeSizedLeaf(100, 30));
  window->buildDialog(nullptr, 0);
  const SbVec2i32 before(window->width.getValue(), window->height.getValue());
  window->addChild(makeSizedLeaf(100, 50));
  EXPECT_EQ(SbVec2i32(window->width.getValue(), window->height.getValue()), before);

  // Resized by its children, the window measures them all anew: their
  // heights fall back to the default of 28 within their minima.
  window->windowResizedByChildren = TRUE;
  window->addChild(makeSizedLeaf(100, 20));
  EXPECT_EQ(window->height.getValue(), 30 + 50 + 28);
}

TEST(WindowLayout, windowPlacementAndShowing)
{
  auto* window = make<SoTopLevelDialog>();
  window->show(); // before any build: nothing to show, nothing breaks
  window->label = "Export";
  window->position.setValue(10, 10);
  window->addChild(makeSizedLeaf(100, 30));
  QWidget owner;
  window->buildDialog(&owner, 0);
  QWidget* base = window->getBaseWidget();
  ASSERT_NE(base, nullptr);
  EXPECT_EQ(base->parentWidget(), nullptr) << "a window of its own is not a child of the given parent";
  EXPECT_EQ(base->objectName(), "SoTopLevelDialog");
  EXPECT_EQ(base->windowTitle(), "Export");
  EXPECT_EQ(base->pos(), QPoint(10, 30));
  EXPECT_EQ(window->getLayout()->objectName(), "FWTSoTopLevelDialogLayout");
  window->show();
  EXPECT_TRUE(base->isVisible());
  window->hide();
  EXPECT_FALSE(base->isVisible());
  window->position.setValue(40, 50);
  EXPECT_EQ(base->pos(), QPoint(40, 70));

  auto* embedded = make<SoTopLevelDialog>();
  embedded->addChild(makeSizedLeaf(100, 30));
  QWidget host;
  embedded->buildDialog(&host, 1);
  EXPECT_EQ(embedded->getBaseWidget(), &host);
  embedded->show();
  EXPECT_FALSE(host.isVisible()) << "the host's owner shows an embedded dialog";
}

TEST(WindowLayout, fixedWindowAndAbsurdSizes)
{
  auto* window = make<SoTopLevelDialog>();
  window->resizable = FALSE;
  window->minWidth = -50;
  window->maxHeight = 2000000000;
  Leaf* odd = makeSizedLeaf(100, 30);
  odd->width = -5;
  odd->minWidth = 50;
  odd->maxWidth = 40;
  window->addChild(odd);
  window->buildDialog(nullptr, 0);
  EXPECT_EQ(odd->width.getValue(), 40) << "raised to the minimum, then lowered to the maximum";
  EXPECT_EQ(window->minWidth.getValue(), window->width.getValue());
  EXPECT_EQ(window->maxWidth.getValue(), window->width.getValue());
  EXPECT_EQ(window->minHeight.getValue(), window->height.getValue());
  EXPECT_EQ(window->maxHeight.getValue(), window->height.getValue());
  EXPECT_GE(window->getBaseWidget()->minimumWidth(), 0);
}

TEST(WindowLayout, rowsAndColumnsBuildTheirFramesAndLayouts)
{
  auto* window = make<SoTopLevelDialog>();
  auto* row = make<ExposedRow>();
  row->rowSpacing = 7;
  row->edgeStyle = SoDialogComponent::SHADOW_IN;
  auto* column = make<ExposedColumn>();
  column->columnSpacing = 5;
  row->addChild(makeLeaf("a"));
  column->addChild(makeLeaf("b"));
  column->addChild(makeLeaf("c"));
  window->addChild(row);
  window->addChild(column);
  window->buildDialog(nullptr, 0);

  EXPECT_EQ(row->componentLayout->objectName(), "FWT_SoColumnDialog_Layout");
  EXPECT_NE(qobject_cast<QVBoxLayout*>(row->componentLayout), nullptr);
  EXPECT_EQ(row->componentLayout->spacing(), 7);
  EXPECT_EQ(row->componentLayout->contentsMargins(), QMargins(3, 3, 3, 3));
  EXPECT_EQ(column->componentLayout->objectName(), "FWTSoColumnDialogLayout");
  EXPECT_NE(qobject_cast<QHBoxLayout*>(column->componentLayout), nullptr);
  EXPECT_EQ(column->componentLayout->contentsMargins(), QMargins(0, 0, 0, 0));
  auto* frame = qobject_cast<QFrame*>(row->getWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->objectName(), "FWTSoDialogGroupGroupWidget");
  EXPECT_EQ(frame->parentWidget(), window->getBaseWidget());

  column->columnSpacing = 9;
  EXPECT_EQ(column->componentLayout->spacing(), 9);
  row->edgeStyle = SoDialogComponent::NONE;
  EXPECT_EQ(row->componentLayout->contentsMargins(), QMargins(0, 0, 0, 0));
}

TEST(WindowLayout, groupPassesItsEnabledStateToEveryChild)
{
  auto* window = make<SoTopLevelDialog>();
  auto* row = make<SoRowDialog>();
  Leaf* on = makeLeaf("on");
  Leaf* off = makeLeaf("off");
  off->enable = FALSE;
  row->addChild(on);
  row->addChild(off);
  window->addChild(row);
  window->buildDialog(nullptr, 0);

  row->enable = FALSE;
  EXPECT_EQ(on->enabledState, 0);
  EXPECT_EQ(off->enabledState, 0);
  row->enable = TRUE;
  EXPECT_EQ(on->enabledState, 1);
  EXPECT_EQ(off->enabledState, 1) << "the group's value wins over the child's own";
}

TEST(WindowLayout, sceneFormNegotiatesTheSameSizesAndMakesNoWidgets)
{
  auto* window = make<SoTopLevelDialog>();
  window->margin = 4;
  auto* row = make<SoRowDialog>();
  row->addChild(makeSizedLeaf(100, 30));
  row->addChild(makeSizedLeaf(80, 20));
  window->addChild(row);
  SoFormMode::setSceneForm(true);
  window->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);
  EXPECT_EQ(window->getBaseWidget(), nullptr);
  EXPECT_EQ(row->getWidget(), nullptr);
  EXPECT_EQ(window->width.getValue(), 100 + 6 + 8);
  EXPECT_EQ(window->height.getValue(), 30 + 20 + 6 + 8);
}

TEST(WindowLayout, spareRoomIsSharedBeyondEachControlsNaturalSize)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "TopLevelDialog {\n"
                                "  ColumnDialog {\n"
                                "    RowDialog { DialogCheckBox { label \"A rather long label:\" auditorID \"wide\" } }\n"
                                "    RowDialog { DialogCheckBox { label \"Short:\" auditorID \"narrow\" } }\n"
                                "  }\n"
                                "}\n");
  ASSERT_NE(root, nullptr);
  auto* window = static_cast<SoTopLevelDialog*>(root->getChild(0));
  window->buildDialog(nullptr, 0);
  auto* wide = static_cast<SoDialogComponent*>(window->searchForAuditorId("wide"));
  auto* narrow = static_cast<SoDialogComponent*>(window->searchForAuditorId("narrow"));
  const int wideNatural = wide->width.getValue();
  const int narrowNatural = narrow->width.getValue();
  ASSERT_GT(wideNatural, narrowNatural + 20);

  // Room for both, but less than twice the wide one: equal shares would
  // squeeze it.
  window->getBaseWidget()->resize(wideNatural + narrowNatural + 12 + 10, window->height.getValue());
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window->getBaseWidget()));
  EXPECT_GE(wide->getWidget()->width(), wideNatural) << "the wide control is not squeezed to an equal share";
  EXPECT_GE(narrow->getWidget()->width(), narrowNatural);
  EXPECT_EQ(wide->width.getValue(), wide->getWidget()->width()) << "the node learns the size Qt gave";
  window->hide();
}

TEST(WindowLayout, removedRowForgetsItsFrameAndLayout)
{
  auto* window = make<SoTopLevelDialog>();
  auto* row = make<ExposedRow>();
  row->addChild(makeLeaf("a"));
  window->addChild(row);
  window->addChild(makeLeaf("b"));
  window->buildDialog(nullptr, 0);
  ASSERT_NE(row->componentLayout, nullptr);

  window->removeChild(row); // the application still holds the row
  EXPECT_EQ(row->getWidget(), nullptr);
  EXPECT_EQ(row->componentLayout, nullptr);
  row->rowSpacing = 7; // reaches no deleted layout
  row->edgeStyle = SoDialogComponent::SHADOW_OUT;
}

TEST(WindowLayout, dialogToBeBuiltInsideNoParentOpensItsOwnWindow)
{
  auto* window = make<SoTopLevelDialog>();
  window->addChild(makeSizedLeaf(100, 30));
  window->buildDialog(nullptr, 1);
  ASSERT_NE(window->getBaseWidget(), nullptr);
  window->show();
  EXPECT_TRUE(window->getBaseWidget()->isVisible());
  window->hide();
}

TEST(WindowLayout, roundRobinPlaceStaysInsideAShrunkTable)
{
  SoChildSizeTable table;
  table.resize(3);
  for (int i = 0; i < 3; ++i)
    table.set(i, SbVec2i32(0, 10), SbVec2i32(0, 0), SbVec2i32(0, 100));
  table.distribute(1, 2);
  ASSERT_EQ(table.nextChildToResize, 2);
  table.resize(1);
  table.set(0, SbVec2i32(0, 10), SbVec2i32(0, 0), SbVec2i32(0, 100));
  EXPECT_EQ(table.distribute(1, 1), 0);
  EXPECT_EQ(table.childSizes[0][1], 11);
}

}
