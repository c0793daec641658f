#include "ControlTestSupport.h"
#include "EventLog.h"

#include <SoColumnDialog.h>
#include <SoDialogGroup.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogLabel.h>
#include <SoFormMode.h>
#include <SoMenuBar.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>
#include <SoTopLevelDialog.h>

#include <Inventor/misc/SoChildList.h>

#include <QAction>
#include <QMenu>
#include <QTabWidget>
#include <QTextEdit>

namespace {

// Leaves are probes with a label and a natural size.
using Leaf = ProbeComponent;

Leaf* makeLeaf(const char* text, int w = 40, int h = 20)
{
  Leaf* leaf = makeNode<Leaf>();
  leaf->label = text;
  leaf->initSize.setValue(w, h);
  return leaf;
}

// A leaf with no label whose size triple is given outright by its fields.
Leaf* makeSizedLeaf(int w, int h, int maxW = 32767, int maxH = 32767)
{
  Leaf* leaf = makeLeaf("", w, h);
  leaf->labelVisibility = FALSE;
  leaf->width = w;
  leaf->height = h;
  leaf->minWidth = w;
  leaf->minHeight = h;
  leaf->maxWidth = maxW;
  leaf->maxHeight = maxH;
  return leaf;
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

SbVec2i32 sizeOf(const SoTopLevelDialog* window)
{
  return SbVec2i32(window->width.getValue(), window->height.getValue());
}

TEST(WindowLayout, labelColumnIsSharedAcrossTheWindow)
{
  auto* window = makeNode<SoTopLevelDialog>();
  Leaf* shortLabel = makeLeaf("Id:");
  Leaf* longLabel = makeLeaf("Surname of the owner:");
  Leaf* hidden = makeLeaf("A label wider than any other in here");
  hidden->labelVisibility = FALSE;
  window->addChild(shortLabel);
  window->addChild(longLabel);
  window->addChild(hidden);
  window->buildDialog(nullptr, 0);

  const SbVec2i32 widest = textPixels("Surname of the owner:");
  EXPECT_EQ(shortLabel->labelSize, widest);
  EXPECT_EQ(longLabel->labelSize, widest);
  EXPECT_EQ(hidden->labelSize, SbVec2i32(widest[0], 0)) << "a hidden label shares the column, with no height";
  EXPECT_EQ(hidden->componentSize, SbVec2i32(40, 20));
  EXPECT_EQ(shortLabel->componentSize, SbVec2i32(40, std::max(20, widest[1])));

  // In a row, a hidden label keeps its measured height.
  auto* row = makeNode<SoRowDialog>();
  Leaf* rowHidden = makeLeaf("Hidden");
  rowHidden->labelVisibility = FALSE;
  row->addChild(makeLeaf("Shown"));
  row->addChild(rowHidden);
  SbVec2i32 none(0, 0);
  row->setLabelSize(none);
  EXPECT_EQ(rowHidden->labelSize, textPixels("Shown"));
}

TEST(WindowLayout, marginAndSpacingEnterTheSumsAndMaximaSaturate)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->margin = 5;
  window->rowSpacing = 4;
  window->minHeight = 60;
  window->maxWidth = 0;
  window->maxHeight = 0;
  window->addChild(makeSizedLeaf(100, 30, 300, 40));
  window->addChild(makeSizedLeaf(120, 40, 200, 50));
  window->buildDialog(nullptr, 0);
  EXPECT_EQ(sizeOf(window), SbVec2i32(120 + 10, 30 + 40 + 10 + 4));
  EXPECT_EQ(SbVec2i32(window->minWidth.getValue(), window->minHeight.getValue()), SbVec2i32(130, 60));
  EXPECT_EQ(SbVec2i32(window->maxWidth.getValue(), window->maxHeight.getValue()), SbVec2i32(310, 40 + 50 + 10 + 4));
  EXPECT_EQ(window->getBaseWidget()->size(), QSize(130, 84));
  EXPECT_EQ(window->getBaseWidget()->minimumSize(), QSize(10, 60))
    << "the widget's limits are the file's values; where there is none, Qt's layout holds the margins";
  EXPECT_EQ(window->getLayout()->spacing(), 0) << "the layout takes the spacing only when it changes";
  window->rowSpacing = 6;
  EXPECT_EQ(window->getLayout()->spacing(), 6);

  // Columns stack across; the frame adds 6 on each axis.
  auto* column = makeNode<ExposedColumn>();
  column->margin = 2;
  column->columnSpacing = 6;
  column->addChild(makeSizedLeaf(50, 30));
  column->addChild(makeSizedLeaf(70, 20));
  column->addChild(makeSizedLeaf(10, 25));
  SbVec2i32 size, min, max;
  column->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(50 + 70 + 10 + 4 + 2 * 6 + 6, 30 + 4 + 6));

  // Three unlimited heights and the frame allowance stay unlimited.
  auto* row = makeNode<ExposedRow>();
  for (int i = 0; i < 3; ++i)
    row->addChild(makeSizedLeaf(10, 10));
  row->margin = 3;
  row->getSize(size, min, max);
  EXPECT_EQ(max, SbVec2i32(32767, 32767));

  // An empty row: unlimited, and the spacing term is minus one spacing.
  auto* empty = makeNode<ExposedRow>();
  empty->rowSpacing = 4;
  empty->getDefaultSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(0, -4));
  EXPECT_EQ(max, SbVec2i32(32767, 32763));
}

TEST(WindowLayout, windowWithNothingToStackHoldsItsMarginsLessOneSpacing)
{
  // Unlike a group, a window has no unlimited maximum when it is empty, and a
  // menu bar is not counted among the stacked children. An empty bar asks
  // for (10, 19) and a minimum of (0, 0), and keeps its minimum height as its
  // maximum, which then holds the whole window down to the margins.
  auto* empty = makeNode<SoTopLevelDialog>();
  auto* barOnly = makeNode<SoTopLevelDialog>();
  barOnly->addChild(new SoMenuBar);
  for (SoTopLevelDialog* window : {empty, barOnly}) {
    window->margin = 5;
    window->rowSpacing = 4;
    window->maxWidth = 0;
    window->maxHeight = 0;
    window->buildDialog(nullptr, 0);
    EXPECT_EQ(SbVec2i32(window->minWidth.getValue(), window->minHeight.getValue()), SbVec2i32(10, 6));
  }
  EXPECT_EQ(sizeOf(empty), SbVec2i32(10, 6));
  EXPECT_EQ(SbVec2i32(empty->maxWidth.getValue(), empty->maxHeight.getValue()), SbVec2i32(10, 6));
  EXPECT_EQ(sizeOf(barOnly), SbVec2i32(20, 6));
  EXPECT_EQ(SbVec2i32(barOnly->maxWidth.getValue(), barOnly->maxHeight.getValue()), SbVec2i32(32767, 6));
}

TEST(WindowLayout, roundRobinSpreadsPixelsAndStopsWhenAllRefuse)
{
  // A row 30 high asked for 100: the first child stands at its maximum, the
  // second takes two pixels. Then both refuse in turn, which ends the walk
  // with 68 pixels unspent and the place back at the first child.
  auto* row = makeNode<ExposedRow>();
  row->addChild(makeSizedLeaf(10, 10, 10, 10));
  row->addChild(makeSizedLeaf(10, 20, 10, 22));
  SbVec2i32 bigger(10, 100);
  row->computeNewChildrenHeight(bigger);
  EXPECT_EQ(row->sizeTable.childSizes[0][1], 10);
  EXPECT_EQ(row->sizeTable.childSizes[1][1], 22);
  EXPECT_EQ(row->sizeTable.nextChildToResize, 0);
}

TEST(WindowLayout, addingAChildResizesTheWindowOnlyIfItIsResizedByChildren)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->addChild(makeSizedLeaf(100, 30));
  window->buildDialog(nullptr, 0);
  ASSERT_EQ(sizeOf(window), SbVec2i32(100, 30));
  window->addChild(makeSizedLeaf(100, 50));
  EXPECT_EQ(sizeOf(window), SbVec2i32(100, 30));
  // Resized by its children, the window measures them all anew: their sizes
  // fall back to the default of 200 x 28 within their minima.
  window->windowResizedByChildren = TRUE;
  window->addChild(makeSizedLeaf(100, 20));
  EXPECT_EQ(sizeOf(window), SbVec2i32(200, 30 + 50 + 28));

  // A window held at its size while a person may not resize it is let go
  // when it may again.
  window->resizable = FALSE;
  window->buildDialog(nullptr, 0);
  EXPECT_EQ(window->getBaseWidget()->maximumSize(), QSize(200, 30 + 50 + 28));
  window->resizable = TRUE;
  window->addChild(makeSizedLeaf(100, 20));
  EXPECT_GT(window->getBaseWidget()->maximumHeight(), window->height.getValue());

  // A slider whose label grew shorter: its frame, which may shrink no
  // further than the slider's size, takes the size of the next build.
  auto* slider = makeNode<SoDialogIntegerSlider>();
  slider->label = "A label a good deal longer than the others";
  window->addChild(slider);
  const int before = slider->width.getValue();
  slider->label = "A";
  window->addChild(makeSizedLeaf(100, 20));
  ASSERT_LT(slider->width.getValue(), before);
  EXPECT_EQ(slider->getWidget()->minimumWidth(), slider->width.getValue());

  // A child added deep down climbs to the window; each group frame adds 6.
  auto* deep = makeNode<SoTopLevelDialog>();
  deep->windowResizedByChildren = TRUE;
  auto* column = makeNode<SoColumnDialog>();
  auto* row = makeNode<SoRowDialog>();
  row->addChild(makeSizedLeaf(100, 40));
  column->addChild(row);
  deep->addChild(column);
  deep->buildDialog(nullptr, 0);
  EXPECT_EQ(deep->height.getValue(), 40 + 6 + 6);
  Leaf* added = makeSizedLeaf(100, 30);
  added->labelVisibility = TRUE;
  added->label = "Second";
  row->addChild(added);
  EXPECT_NE(added->buildMode, 0) << "the new child got its widget";
  EXPECT_EQ(deep->height.getValue(), 40 + 30 + 6 + 6);
  EXPECT_EQ(added->labelSize[0], textPixels("Second")[0]) << "the row's labels were aligned again";
}

TEST(WindowLayout, dictatedSizeIsHeldWithinTheWindowsLimits)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->maxWidth = 0;
  window->maxHeight = 0;
  window->addChild(makeSizedLeaf(100, 30, 300, 40));
  SbVec2i32 both(1, 1), tooSmallAndTooHigh(50, 1000);
  window->buildWidget(nullptr, both, tooSmallAndTooHigh, 1);
  EXPECT_EQ(sizeOf(window), SbVec2i32(100, 40));
  EXPECT_EQ(window->getBaseWidget()->size(), QSize(100, 40));
  SbVec2i32 widthOnly(1, 0), inside(250, 1000);
  window->buildWidget(nullptr, widthOnly, inside, 1);
  EXPECT_EQ(sizeOf(window), SbVec2i32(250, 40));
}

TEST(WindowLayout, windowPlacementAndShowing)
{
  auto* window = makeNode<SoTopLevelDialog>();
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
  window->show();
  EXPECT_TRUE(base->isVisible());
  window->hide();
  EXPECT_FALSE(base->isVisible());
  window->position.setValue(40, 50);
  EXPECT_EQ(base->pos(), QPoint(40, 70));

  // The library's own placing writes the field without moving the widget;
  // the origin is not written to a file.
  SbVec2i32 place(5, 5), origin(0, 0);
  window->setPosition(place);
  EXPECT_EQ(base->pos(), QPoint(40, 70));
  EXPECT_FALSE(window->position.isDefault());
  window->setPosition(origin);
  EXPECT_EQ(window->position.getValue(), origin);
  EXPECT_TRUE(window->position.isDefault());

  auto* embedded = makeNode<SoTopLevelDialog>();
  embedded->addChild(makeSizedLeaf(100, 30));
  QWidget host;
  embedded->buildDialog(&host, 1);
  EXPECT_EQ(embedded->getBaseWidget(), &host);
  embedded->show();
  EXPECT_FALSE(host.isVisible()) << "the host's owner shows an embedded dialog";
}

TEST(WindowLayout, sceneFormNegotiatesTheSameSizesAndAloneRecordsTheApplications)
{
  // A widget build clears the record's flag before it is read, so there even
  // the application's height counts as computed and is not written out.
  for (const bool scene : {false, true}) {
    auto* window = makeNode<SoTopLevelDialog>();
    window->margin = 4;
    window->height = 90;
    auto* row = makeNode<SoRowDialog>();
    row->addChild(makeSizedLeaf(100, 30));
    row->addChild(makeSizedLeaf(80, 20));
    window->addChild(row);
    SoFormMode::setSceneForm(scene);
    window->buildDialog(nullptr, 0);
    SoFormMode::setSceneForm(false);
    EXPECT_EQ(sizeOf(window), SbVec2i32(100 + 6 + 8, 90));
    EXPECT_EQ(window->minHeight.getValue(), 30 + 20 + 6 + 8);
    EXPECT_EQ(window->getBaseWidget() == nullptr, scene);
    EXPECT_EQ(row->getWidget() == nullptr, scene);
    EXPECT_EQ(window->height.isDefault() != FALSE, !scene) << "scene form: " << scene;
    EXPECT_TRUE(window->width.isDefault() && window->minWidth.isDefault() && window->minHeight.isDefault());
  }
}

TEST(WindowLayout, limitsBeyondQtsRangeReachItClamped)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->minWidth = -50;
  window->maxHeight = 2000000000;
  window->addChild(makeSizedLeaf(100, 30));
  static QStringList warnings;
  const QtMessageHandler previous =
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { warnings << text; });
  window->buildDialog(nullptr, 0);
  qInstallMessageHandler(previous);
  EXPECT_EQ(sizeOf(window), SbVec2i32(100, 30));
  EXPECT_EQ(window->getBaseWidget()->size(), QSize(100, 30));
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
}

TEST(WindowLayout, rowsAndColumnsBuildTheirFramesLayoutsAndEnabledState)
{
  auto* window = makeNode<SoTopLevelDialog>();
  auto* row = makeNode<ExposedRow>();
  row->rowSpacing = 7;
  row->edgeStyle = SoDialogComponent::SHADOW_IN;
  auto* column = makeNode<ExposedColumn>();
  Leaf* on = makeLeaf("on");
  Leaf* off = makeLeaf("off");
  off->enable = FALSE;
  row->addChild(on);
  row->addChild(off);
  column->addChild(makeLeaf("b"));
  window->addChild(row);
  window->addChild(column);
  window->buildDialog(nullptr, 0);

  // The children's layouts go into a layout of the group's own frame.
  EXPECT_NE(qobject_cast<QVBoxLayout*>(row->componentLayout), nullptr);
  EXPECT_EQ(row->componentLayout->parentWidget(), row->getWidget());
  EXPECT_EQ(row->getWidget()->parentWidget(), window->getBaseWidget());
  EXPECT_EQ(row->componentLayout->spacing(), 7);
  EXPECT_EQ(row->getWidget()->contentsMargins() + row->componentLayout->contentsMargins(), QMargins(3, 3, 3, 3));
  EXPECT_NE(qobject_cast<QHBoxLayout*>(column->componentLayout), nullptr);
  EXPECT_EQ(column->getWidget()->contentsMargins() + column->componentLayout->contentsMargins(), QMargins(3, 3, 3, 3));
  column->columnSpacing = 9;
  EXPECT_EQ(column->componentLayout->spacing(), 9);
  row->edgeStyle = SoDialogComponent::NONE;
  EXPECT_EQ(row->getWidget()->contentsMargins() + row->componentLayout->contentsMargins(), QMargins(3, 3, 3, 3));

  // The group's enabled state goes to every child, whatever the child's own.
  row->enable = FALSE;
  EXPECT_EQ(SbVec2i32(on->enabledState, off->enabledState), SbVec2i32(0, 0));
  row->enable = TRUE;
  EXPECT_EQ(SbVec2i32(on->enabledState, off->enabledState), SbVec2i32(1, 1));
}

// The application deletes the host a dialog was built into, or the dialog's
// own window, or destroys the widgets first, with a host or without: the
// nodes take values unbuilt, and a later build makes a working window whose
// menu entries reach the auditors.
TEST(WindowLayout, widgetsDeletedUnderTheDialogAreForgottenAndBuiltAgain)
{
  const char* changes[][2] = {{"L", "label \"b\" enable FALSE width 300 edgeStyle SHADOW_IN"}, {"S", "value 7"},
                              {"E", "editText \"typed\" multiLine TRUE"}, {"R", "items [\"p\", \"q\"]"},
                              {"C", "items [\"x\", \"y\"]"}, {"T", "selectedPage 1"}, {"W", "label \"again\""},
                              {"M", "items [\"a\", \"b\", \"c\"]"}};
  for (const int loss : {0, 1, 2, 3}) {
    readScene("#Inventor V2.1 ascii\nDEF W TopLevelDialog { MenuBar { MenuPopup { MenuPushButton { auditorID \"open\" } "
              "MenuCheckBox { auditorID \"wrap\" } DEF M MenuRadioButtons { auditorID \"pick\" items [\"a\", \"b\"] } } } "
              "RowDialog { DEF L DialogLabel { } DEF E DialogEditText { } DEF S DialogIntegerSlider { } "
              "DEF C DialogComboBox { } DEF R DialogRadioButtons { items \"r\" } DEF K DialogCheckBox { } "
              "DEF P DialogPushButton { } DialogSeparator { } } DEF T TabDialog { DialogLabel { } DialogLabel { } } }\n");
    auto* window = static_cast<SoTopLevelDialog*>(SoNode::getByName("W"));
    EventLog log;
    window->addAuditor(&log);
    const bool ownWindow = loss == 1 || loss == 3;
    auto* host = new QWidget;
    window->buildDialog(ownWindow ? nullptr : host, ownWindow ? 0 : 1);
    if (loss >= 2)
      window->destroyWidget();
    EXPECT_TRUE(loss != 2 || host->findChildren<QWidget*>().isEmpty()) << "the application's widget is left empty";
    delete (loss == 1 ? window->getBaseWidget() : nullptr);
    delete host;
    EXPECT_EQ(window->getBaseWidget(), nullptr) << loss;
    for (const auto& [name, values] : changes)
      EXPECT_TRUE(SoNode::getByName(name)->set(values)) << name;
    static_cast<SoTabDialog*>(SoNode::getByName("T"))->addChild(makeLeaf("three"));
    EXPECT_EQ(window->getBaseWidget(), nullptr) << "a change of the tree alone opens no window";

    window->buildDialog(nullptr, 0);
    ASSERT_NE(window->getBaseWidget(), nullptr) << loss;
    EXPECT_EQ(window->getBaseWidget()->windowTitle(), "again");
    auto* lines = window->getBaseWidget()->findChild<QTextEdit*>("FWTSoDialogQEditTextMultiEditWidget");
    auto* tabs = window->getBaseWidget()->findChild<QTabWidget*>("FWTSoDialogQTabDialogTabWidget");
    ASSERT_TRUE(lines && tabs) << loss;
    EXPECT_EQ(std::make_tuple(lines->toPlainText(), tabs->count(), tabs->currentIndex()), std::make_tuple("typed", 3, 1));
    for (QAction* entry : menuBarOf(window)->actions()[0]->menu()->actions())
      entry->trigger();
    const std::vector<std::string> heard{"push:open:", "menuCheck:wrap:TRUE", "radio:pick:0", "radio:pick:1",
                                        "radio:pick:2"};
    EXPECT_EQ(log.entries, heard) << loss;
    window->removeAuditor(&log);
    window->destroyWidget();
  }
}

template <class Container>
class ChildList : public ::testing::Test {
protected:
  ChildList() : container(makeNode<Container>())
  {
    for (SoDialogLabel*& label : labels)
      label = makeNode<SoDialogLabel>();
    for (int i = 0; i < 3; ++i)
      container->addChild(labels[i]);
  }

  // The children as the container reports them, by their index in `labels`.
  std::string order() const
  {
    std::string result;
    for (int i = 0; i < container->getNumChildren(); ++i)
      for (int j = 0; j < 5; ++j)
        if (container->getChild(i) == labels[j])
          result += char('0' + j);
    return result;
  }

  Container* container;
  SoDialogLabel* labels[5];
};

using Containers = ::testing::Types<SoTopLevelDialog, SoDialogGroup>;
TYPED_TEST_SUITE(ChildList, Containers);

TYPED_TEST(ChildList, childrenStandAheadOfTheKitsPartsThroughEveryChange)
{
  SoChildList* all = this->container->getChildren();
  ASSERT_GT(all->getLength(), 3) << "the kit's own parts follow the children";
  EXPECT_EQ((*all)[0], this->labels[0]);
  EXPECT_EQ((*all)[2], this->labels[2]);
  EXPECT_EQ(this->labels[1]->getParent(), this->container);

  this->container->insertChild(this->labels[3], 0);
  this->container->insertChild(this->labels[4], 4);
  EXPECT_EQ(this->order(), "30124");
  EXPECT_EQ(this->container->findChild(this->labels[4]), 4);
  EXPECT_EQ((*all)[5]->isOfType(SoDialogLabel::getClassTypeId()), FALSE);

  this->container->removeChild(this->labels[1]);
  EXPECT_EQ(this->order(), "3024");
  this->container->replaceChild(1, this->labels[1]);
  EXPECT_EQ(this->order(), "3124");
  EXPECT_EQ(this->labels[1]->getParent(), this->container);
  this->container->replaceChild(this->labels[3], this->labels[0]);
  EXPECT_EQ(this->order(), "0124");
  this->container->removeAllChildren();
  EXPECT_EQ(this->container->getNumChildren(), 0);
  EXPECT_GT(this->container->getChildren()->getLength(), 0) << "the kit's parts stay";
}

}
