// The tab dialog in the 2D form: one page per component, the selected page
// kept within the pages, page changes heard by the tab dialog's own auditors
// only when the person makes them, and the room that the tabs take.

#include "ControlTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogLabel.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>
#include <SoTopLevelDialog.h>

#include <QTabBar>
#include <QTabWidget>

namespace {

class PageListener : public SoTabDialogAuditor {
public:
  int calls = 0;
  int pageHeard = -1;
  int pageToChoose = -1; // chosen in turn, if set
  void tabDialog(SoTabDialog* node) override
  {
    ++calls;
    pageHeard = node->selectedPage.getValue();
    if (pageToChoose >= 0)
      node->selectedPage = pageToChoose;
  }
};

// A general auditor that counts whatever it hears.
class AnyListener : public SoDialogAuditor {
public:
  int calls = 0;
  void tabDialog(SoTabDialog*) override { ++calls; }
};

std::string page(const char* title)
{
  return std::string("DialogLabel { label \"") + title + "\" }\n";
}

struct BuiltTabs {
  SoTopLevelDialog* window;
  SoTabDialog* tabs;
  QTabWidget* tabWidget;
};

BuiltTabs buildTabs(const std::string& tabFields, const std::string& pages)
{
  auto* window = readWindow("#Inventor V2.1 ascii\nTopLevelDialog { TabDialog { " + tabFields + "\n" + pages + "} }\n");
  EXPECT_NE(window, nullptr);
  window->buildDialog(nullptr, 0);
  window->show();
  QApplication::processEvents();
  auto* tabWidget = window->getBaseWidget()->findChild<QTabWidget*>("FWTSoDialogQTabDialogTabWidget");
  EXPECT_NE(tabWidget, nullptr);
  return {window, static_cast<SoTabDialog*>(window->getChild(0)), tabWidget};
}

SoDialogLabel* makeLabel(const char* text)
{
  auto* label = makeNode<SoDialogLabel>();
  label->label = text;
  return label;
}

std::vector<std::string> tabTexts(const QTabWidget* tabWidget)
{
  std::vector<std::string> texts;
  for (int i = 0; i < tabWidget->count(); ++i)
    texts.push_back(tabWidget->tabText(i).toStdString());
  return texts;
}

TEST(TabDialog, eachComponentGetsAPageTitledByItsLabel)
{
  BuiltTabs built = buildTabs("selectedPage 1", page("One") + page("Two") + page("Three"));
  EXPECT_EQ(tabTexts(built.tabWidget), (std::vector<std::string>{"One", "Two", "Three"}));
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 1) << "making the first page chose no page";
  EXPECT_EQ(built.tabWidget->currentIndex(), 1);
  for (int i = 0; i < 3; ++i) {
    auto* child = static_cast<SoDialogComponent*>(built.tabs->getChild(i));
    EXPECT_EQ(child->getWidget()->parentWidget(), built.tabWidget->widget(i)) << i;
    EXPECT_EQ(built.tabs->getLayout(i), built.tabWidget->widget(i)->layout()) << i;
  }

  // A tab's title is fixed when its page is made.
  static_cast<SoDialogLabel*>(built.tabs->getChild(0))->label = "Renamed";
  EXPECT_EQ(built.tabWidget->tabText(0).toStdString(), "One");

  built.tabs->insertChild(makeLabel("Zero"), 0);
  built.tabs->addChild(makeLabel("Four"));
  EXPECT_EQ(tabTexts(built.tabWidget), (std::vector<std::string>{"Zero", "One", "Two", "Three", "Four"}));
  auto* first = static_cast<SoDialogComponent*>(built.tabs->getChild(0));
  EXPECT_EQ(first->getWidget()->parentWidget(), built.tabWidget->widget(0));
  EXPECT_EQ(built.tabWidget->currentIndex(), built.tabs->selectedPage.getValue());

  built.tabs->replaceChild(1, makeLabel("New"));
  EXPECT_EQ(tabTexts(built.tabWidget), (std::vector<std::string>{"Zero", "New", "Two", "Three", "Four"}));

  // Inserted again at the front and removed from its old place, a page keeps
  // its frame, in its new page.
  auto* moved = static_cast<SoDialogComponent*>(built.tabs->getChild(2));
  built.tabs->insertChild(moved, 0);
  built.tabs->removeChild(3);
  EXPECT_EQ(tabTexts(built.tabWidget), (std::vector<std::string>{"Two", "Zero", "New", "Three", "Four"}));
  ASSERT_NE(moved->getWidget(), nullptr);
  EXPECT_EQ(moved->getWidget()->parentWidget(), built.tabWidget->widget(0));

  // The tabs stand inside the frame after a resize.
  QWidget* frame = built.tabs->getWidget();
  ASSERT_EQ(frame->objectName().toStdString(), "FWTSoDialogQTabDialogFrame");
  resizeFrame(frame, 300, 200);
  EXPECT_EQ(built.tabWidget->geometry(), QRect(3, 3, 294, 194));
  EXPECT_EQ(SbVec2i32(built.tabs->width.getValue(), built.tabs->height.getValue()), SbVec2i32(300, 200));
}

TEST(TabDialog, aRebuildReachesTheComponentsInThePages)
{
  BuiltTabs built = buildTabs("", page("One") + "RowDialog { label \"Rows\" " + page("first") + "}\n");
  auto* row = static_cast<SoRowDialog*>(built.tabs->getChild(1));
  SoDialogLabel* added = makeLabel("added");
  row->addChild(added);
  ASSERT_NE(added->getWidget(), nullptr) << "the window's rebuild built the new row child";
  EXPECT_EQ(added->getWidget()->parentWidget(), row->getWidget());
  EXPECT_GT(added->width.getValue(), 0);

  // Destroyed, the tab dialog is made again whole by the next rebuild.
  built.tabs->destroyWidget();
  EXPECT_EQ(added->getWidget(), nullptr);
  built.window->updateAfterSceneGraphChange();
  auto* tabWidget = built.window->getBaseWidget()->findChild<QTabWidget*>("FWTSoDialogQTabDialogTabWidget");
  ASSERT_NE(tabWidget, nullptr);
  EXPECT_EQ(tabTexts(tabWidget), (std::vector<std::string>{"One", "Rows"}));
  ASSERT_NE(added->getWidget(), nullptr);
  EXPECT_EQ(row->getWidget()->parentWidget(), tabWidget->widget(1));
}

// Only a person's change of page reaches the tab dialog's own auditors, and
// never a general auditor.
TEST(TabDialog, pageChangesAreHeardOnceAndOnlyFromThePerson)
{
  BuiltTabs built = buildTabs("", page("One") + page("Two") + page("Three"));
  PageListener pages;
  AnyListener onWindow, onTabs;
  built.tabs->addAuditor(&pages);
  built.tabs->addAuditor(&onTabs);
  built.window->addAuditor(&onWindow);

  built.tabs->selectedPage = 9;
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 2);
  EXPECT_EQ(built.tabWidget->currentIndex(), 2);
  built.tabs->selectedPage = -4;
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 0);
  EXPECT_EQ(built.tabWidget->currentIndex(), 0);
  EXPECT_EQ(pages.calls, 0);

  QTabBar* bar = built.tabWidget->tabBar();
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(2).center());
  EXPECT_EQ(pages.calls, 1);
  EXPECT_EQ(pages.pageHeard, 2);
  EXPECT_TRUE(static_cast<SoDialogComponent*>(built.tabs->getChild(2))->getWidget()->isVisible());
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(2).center());
  EXPECT_EQ(pages.calls, 1) << "the tab already selected";
  EXPECT_EQ(onTabs.calls + onWindow.calls, 0);

  // An auditor's change of page during the click leaves the person's tab.
  pages.pageToChoose = 0;
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
  EXPECT_EQ(built.tabWidget->currentIndex(), 1);
}

TEST(TabDialog, removingTheSelectedPageFallsBackToThePreviousSelection)
{
  BuiltTabs built = buildTabs("", page("A") + page("B") + page("C") + page("D"));
  PageListener pages;
  built.tabs->addAuditor(&pages);

  built.tabs->selectedPage = 1;
  built.tabs->removeChild(3); // not selected: the selection stays and is remembered
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 1);

  built.tabs->selectedPage = 2;
  built.tabs->removeChild(2); // the selected last page
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 1);
  EXPECT_EQ(built.tabWidget->currentIndex(), 1);

  built.tabs->removeChild(1); // the selection remembered went as well
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 0);
  EXPECT_EQ(built.tabWidget->currentIndex(), 0);

  DebugMessages messages;
  built.tabs->removeChild(4);
  built.tabs->insertChild(makeLabel("far"), 3);
  ASSERT_EQ(messages.count(), 2u);
  EXPECT_TRUE(messages.contains("SoTabDialog::removeChild") && messages.contains("Index 4 is out of range 0 - 0"));
  EXPECT_TRUE(messages.contains("SoDialogGroup::insertChild") && messages.contains("Index 3 is out of range 0 - 1"));

  built.tabs->removeAllChildren();
  EXPECT_EQ(built.tabWidget->count(), 0);
  EXPECT_EQ(built.tabs->selectedPage.getValue(), 0);
  EXPECT_EQ(pages.calls, 0) << "the tab widget's own choice as pages go is no choice of the person's";
}

// A page of a chosen natural size and size triple.
ProbeComponent* makePage(int w, int h, int maxW, int maxH)
{
  auto* page = makeNode<ProbeComponent>();
  page->initSize.setValue(w, h);
  page->width = w;
  page->height = h;
  page->minWidth = w / 2;
  page->minHeight = h / 2;
  page->maxWidth = maxW;
  page->maxHeight = maxH;
  return page;
}

TEST(TabDialog, sizesAreTheLargestPageWithRoomForTheTabs)
{
  auto* tabs = makeNode<SoTabDialog>();
  tabs->margin = 2;
  tabs->addChild(makePage(100, 40, 200, 32767));
  tabs->addChild(makePage(60, 80, 32760, 90));
  EXPECT_EQ(tabs->getComponentInitSize(), SbVec2i32(100 + 10, 80 + 33)) << "the margins count towards the largest page";
  SbVec2i32 size, min, max;
  tabs->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(100 + 4 + 10, 80 + 4 + 33));
  EXPECT_EQ(min, SbVec2i32(50 + 4 + 10, 40 + 4 + 33));
  EXPECT_EQ(max, SbVec2i32(32767, 32767)) << "sums towards the limit stop at it";

  // Tabs at the side swap the natural allowances, not those of the sizes.
  auto* sideTabs = makeNode<SoTabDialog>();
  sideTabs->tabsLocation = SoTabDialog::LEFT;
  sideTabs->addChild(makePage(100, 40, 200, 300));
  EXPECT_EQ(sideTabs->getComponentInitSize(), SbVec2i32(100 + 33, 40 + 10));
  sideTabs->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(100 + 10, 40 + 33));
  EXPECT_EQ(max, SbVec2i32(200 + 10, 300 + 33));

  auto* empty = makeNode<SoTabDialog>();
  empty->getSize(size, min, max);
  EXPECT_EQ(min, SbVec2i32(10, 33));
  EXPECT_EQ(max, SbVec2i32(32767, 32767));
}

// A page added to a built tab dialog deep in a window is laid out as in a
// fresh build of the same tree.
TEST(TabDialog, pageInsertedAfterTheBuildGetsTheWidthOfAFreshBuild)
{
  auto build = [](const std::string& pages) {
    auto* window = readWindow("#Inventor V2.1 ascii\nTopLevelDialog { ColumnDialog { RowDialog { TabDialog { "
                              "auditorID \"tabs\" " +
                              pages + "} } } " + page("A label as wide as the window") + "}\n");
    window->buildDialog(nullptr, 0);
    window->show();
    QApplication::processEvents();
    return window;
  };
  auto tabArea = [](SoTopLevelDialog* window) {
    return window->getBaseWidget()->findChild<QTabWidget*>("FWTSoDialogQTabDialogTabWidget")->geometry();
  };
  const QRect fresh = tabArea(build(page("Short") + page("Wider page")));
  SoTopLevelDialog* grown = build(page("Short"));
  static_cast<SoTabDialog*>(grown->searchForAuditorId("tabs"))->addChild(makeLabel("Wider page"));
  QApplication::processEvents();
  EXPECT_EQ(tabArea(grown), fresh);
}

}
