// Menu entries as the user meets them: real QActions triggered in a built
// window, and the fields and auditors that follow.

#include "ControlTestSupport.h"
#include "EventLog.h"

#include <SoMenuPushButtonAuditor.h>
#include <SoMenuSeparator.h>

#include "SoPreferences.h"

#include <Inventor/fields/SoSFInt32.h>

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace {

const char* const kWindow = R"(#Inventor V2.1 ascii
TopLevelDialog {
  MenuBar {
    MenuPopup {
      label "Edit"
      MenuPushButton { label "Copy" accelerator "ctrl+c" auditorID "copy" }
      MenuSeparator { }
      MenuCheckBox { label "Off" onString "On" accelerator "Shift+Alt+G" auditorID "grid" }
      MenuRadioButtons {
        auditorID "zoom"
        items [ "Small", "Medium", "Large" ]
        accelerators [ "Ctrl+1", "Ctrl+2" ]
      }
      MenuPushButton { label "Paste" auditorID "paste" }
    }
  }
}
)";

class MenuEntries : public ::testing::Test {
protected:
  void SetUp() override
  {
    SoSeparator* root = readScene(kWindow);
    ASSERT_NE(root, nullptr);
    window = static_cast<SoTopLevelDialog*>(root->getChild(0));
    copy = static_cast<SoMenuPushButton*>(window->searchForAuditorId("copy"));
    grid = static_cast<SoMenuCheckBox*>(window->searchForAuditorId("grid"));
    zoom = static_cast<SoMenuRadioButtons*>(window->searchForAuditorId("zoom"));
    ASSERT_TRUE(copy && grid && zoom);
    window->addAuditor(&recorder);
    window->buildDialog(nullptr, 0);
    auto* bar = qobject_cast<QMenuBar*>(window->getBaseWidget()->layout()->menuBar());
    ASSERT_NE(bar, nullptr);
    menu = bar->actions()[0]->menu();
    ASSERT_EQ(menu->actions().size(), 7);
  }

  QAction* action(int index) const { return menu->actions()[index]; }
  QStringList texts() const
  {
    QStringList result;
    for (const QAction* entry : menu->actions())
      result << (entry->isSeparator() ? "-" : entry->text());
    return result;
  }
  std::vector<bool> radioMarks() const
  {
    return {action(3)->isChecked(), action(4)->isChecked(), action(5)->isChecked()};
  }

  EventLog recorder;
  std::vector<std::string>& log = recorder.entries;
  SoTopLevelDialog* window = nullptr;
  SoMenuPushButton* copy = nullptr;
  SoMenuCheckBox* grid = nullptr;
  SoMenuRadioButtons* zoom = nullptr;
  QMenu* menu = nullptr;
};

TEST_F(MenuEntries, entriesStandInFileOrderWithTheirKeys)
{
  EXPECT_EQ(texts(), (QStringList{"Copy", "-", "Off", "Small", "Medium", "Large", "Paste"}));
  EXPECT_EQ(action(0)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_C));
  EXPECT_EQ(action(2)->shortcut(), QKeySequence(Qt::ALT | Qt::SHIFT | Qt::Key_G));
  EXPECT_FALSE(action(0)->isCheckable());
  EXPECT_TRUE(action(2)->isCheckable());
  // Fewer accelerators than items: the last entry has no key.
  EXPECT_EQ(action(3)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_1));
  EXPECT_EQ(action(4)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_2));
  EXPECT_TRUE(action(5)->shortcut().isEmpty());

  copy->accelerator = "F5";
  EXPECT_EQ(action(0)->shortcut(), QKeySequence(Qt::Key_F5));
  copy->label = "Duplicate";
  copy->enable = FALSE;
  EXPECT_EQ(action(0)->text(), "Duplicate");
  EXPECT_FALSE(action(0)->isEnabled());
}

TEST_F(MenuEntries, pushButtonReachesTheWindowOrOnlyItsOwnAuditor)
{
  action(0)->trigger();
  action(6)->trigger();
  EXPECT_EQ(log, (std::vector<std::string>{"push:copy:", "push:paste:"}));

  struct Own : SoMenuPushButtonAuditor {
    int calls = 0;
    void menuPushButton(SoMenuPushButton*) override { ++calls; }
  } own;
  copy->addAuditor(&own);
  action(0)->trigger();
  EXPECT_EQ(own.calls, 1);
  EXPECT_EQ(log.size(), 2u) << "an entry with its own auditor is heard by no menu or window";
}

TEST_F(MenuEntries, checkBoxTurnsOverAndShowsItsOnString)
{
  action(2)->trigger();
  EXPECT_TRUE(grid->state.getValue());
  EXPECT_EQ(action(2)->text(), "On");
  EXPECT_TRUE(action(2)->isChecked());
  action(2)->trigger();
  EXPECT_EQ(action(2)->text(), "Off");
  EXPECT_FALSE(action(2)->isChecked());
  EXPECT_EQ(log, (std::vector<std::string>{"menuCheck:grid:TRUE", "menuCheck:grid:FALSE"}));

  // A change from code is no event.
  log.clear();
  grid->state = TRUE;
  EXPECT_TRUE(action(2)->isChecked());
  EXPECT_EQ(action(2)->text(), "On");
  EXPECT_TRUE(log.empty());

  // The auditors hear with the field unwatched: what they set is stored but
  // not shown.
  recorder.stateToSet = TRUE;
  action(2)->trigger();
  EXPECT_TRUE(grid->state.getValue());
  EXPECT_FALSE(action(2)->isChecked());
  EXPECT_EQ(action(2)->text(), "Off");
}

TEST_F(MenuEntries, radioEntriesKeepOneMarkAndFireEvenWhenChosenAgain)
{
  EXPECT_EQ(radioMarks(), (std::vector<bool>{true, false, false}));
  action(5)->trigger();
  EXPECT_EQ(zoom->selectedItem.getValue(), 2);
  EXPECT_EQ(radioMarks(), (std::vector<bool>{false, false, true}));
  action(5)->trigger();
  EXPECT_EQ(radioMarks(), (std::vector<bool>{false, false, true})) << "Qt's own unchecking is undone";
  EXPECT_EQ(log, (std::vector<std::string>{"radio:zoom:2", "radio:zoom:2"}));

  log.clear();
  zoom->selectedItem = 7;
  EXPECT_EQ(radioMarks(), (std::vector<bool>{false, false, false})) << "kept as it stands, unclamped";
  EXPECT_EQ(zoom->selectedItem.getValue(), 7);
  zoom->enable = FALSE;
  EXPECT_FALSE(action(4)->isEnabled());
  EXPECT_TRUE(log.empty());
}

TEST_F(MenuEntries, newItemsRebuildTheGroupAtTheEndWithNewNumbers)
{
  const int firstId = zoom->getId();
  zoom->items.setValues(0, 2, std::vector<const char*>{"Fit", "Fill"}.data());
  zoom->items.setNum(2);
  EXPECT_EQ(texts(), (QStringList{"Copy", "-", "Off", "Paste", "Fit", "Fill"}));
  EXPECT_GT(zoom->getId(), firstId);
  EXPECT_EQ(action(4)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_1));

  action(5)->trigger();
  EXPECT_EQ(zoom->selectedItem.getValue(), 1) << "the index, whatever the numbers have reached";
  EXPECT_TRUE(action(5)->isChecked());
  EXPECT_FALSE(action(4)->isChecked());
}

TEST(MenuEntryDefaults, aDefaultRadioGroupShowsOneEmptyCheckedEntry)
{
  QMenu menu;
  auto* group = makeNode<SoMenuRadioButtons>();
  group->buildMenu(&menu, 1, -1);
  ASSERT_EQ(menu.actions().size(), 1);
  EXPECT_EQ(menu.actions()[0]->text(), "");
  EXPECT_TRUE(menu.actions()[0]->isChecked());
}

TEST(MenuEntryDefaults, checkBoxTakesTextMarkAndKeyFromTheFile)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "MenuCheckBox { label \"Off\" onString \"On\" state TRUE enable FALSE }\n");
  ASSERT_NE(root, nullptr);
  QMenu menu;
  static_cast<SoMenuCheckBox*>(root->getChild(0))->buildMenu(&menu, 1, -1);
  QAction* entry = menu.actions()[0];
  EXPECT_EQ(entry->text(), "On");
  EXPECT_TRUE(entry->isChecked());
  EXPECT_TRUE(entry->isEnabled());
}

TEST(MenuEntryDefaults, unreadableKeysLeaveNoShortcutAndNoMessage)
{
  DebugMessages messages;
  QMenu menu;
  for (const char* text : {"Ctrl+Shift", "Alt+", "Ctrl+NoSuchKey", "Shift Ctrl+N"}) {
    auto* entry = makeNode<SoMenuPushButton>();
    entry->accelerator = text;
    entry->buildMenu(&menu, 1, -1);
    EXPECT_TRUE(menu.actions().last()->shortcut().isEmpty()) << text;
  }
  EXPECT_EQ(messages.count(), 0u);
}

TEST(MenuEntryDefaults, sizesForTheSceneForm)
{
  auto* check = makeNode<SoMenuCheckBox>();
  check->label = "Grid";
  check->onString = "Grid shown";
  EXPECT_EQ(check->getItemInitSize(), SbVec2i32(textPixels("Grid shown")[0] + 28, 18));

  auto* group = makeNode<SoMenuRadioButtons>();
  group->items.set1Value(0, "Small");
  group->items.set1Value(1, "Very large");
  group->items.set1Value(2, "Medium");
  EXPECT_EQ(group->getItemInitSize(), SbVec2i32(textPixels("Very large")[0] + 28, 54));
  group->setItemSize(SbVec2i32(120, 10), 0);
  group->setItemSize(SbVec2i32(140, 10), 0);
  EXPECT_EQ(group->getItemSize(), SbVec2i32(120, 54)) << "only the first size is taken";
  group->setItemSize(SbVec2i32(140, 10), 1);
  EXPECT_EQ(group->getItemSize(), SbVec2i32(140, 54));

  auto* line = makeNode<SoMenuSeparator>();
  line->setItemSize(SbVec2i32(120, 18), 0);
  EXPECT_EQ(line->getItemSize(), SbVec2i32(120, 8));
}

class DefaultMenuReports : public MenuEntries {
protected:
  void SetUp() override
  {
    MenuEntries::SetUp();
    window->removeAuditor(&recorder);
    SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1");
  }
  void TearDown() override { SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS"); }
};

TEST_F(DefaultMenuReports, unheardEntriesReachTheWindowsReportUnlessTheSelectionIsConnected)
{
  DebugMessages messages;
  action(2)->trigger();
  action(4)->trigger();
  ASSERT_EQ(messages.count(), 2u);
  EXPECT_TRUE(messages.contains("SoDialogAuditor::menuCheckBox"));
  EXPECT_TRUE(messages.contains("SoDialogAuditor::menuRadioButtons"));
  // A field starts with no value of its own: the source holds the current
  // selection, so that connecting changes nothing but the connection.
  SoSFInt32 source;
  source.setValue(zoom->selectedItem.getValue());
  zoom->selectedItem.connectFrom(&source);
  action(3)->trigger();
  EXPECT_EQ(messages.count(), 2u);
  zoom->selectedItem.disconnect();
}

}
