// Menu bars and popups: reading, building into Qt, child operations, sizes
// and the accelerator texts.

#include "ControlTestSupport.h"
#include "EventLog.h"
#include "SoPreferences.h"

#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuItem.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButtonAuditor.h>
#include <SoMenuPushButtonLauncher.h>
#include <SoMenuSeparator.h>
#include <SoTopLevelDialog.h>

#include <Inventor/fields/SoSFInt32.h>

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace {

// The protected text services, as a subclass sees them.
struct MenuText : SoMenuItem {
  using SoMenuItem::buildTitleForMotifMenu;
  using SoMenuItem::getAccelerator;
  using SoMenuItem::getKeyCombination;
};

SbString keys(const char* text)
{
  return MenuText::getKeyCombination(text, nullptr, 0);
}

// The entries of a Qt menu or bar, a separator as "-".
QStringList texts(const QWidget* menu)
{
  QStringList result;
  for (const QAction* entry : menu->actions())
    result << (entry->isSeparator() ? "-" : entry->text());
  return result;
}

const char* const kWindow = R"(#Inventor V2.1 ascii
TopLevelDialog {
  MenuBar {
    auditorID "bar"
    MenuPopup {
      label "File"
      auditorID "file"
      MenuPopup { label "Recent" auditorID "recent" MenuPopup { label "Older" auditorID "older" } }
    }
    MenuPopup { label "Größe" auditorID "size" }
  }
  DialogLabel { label "Body" }
}
)";

class MenuStructure : public ::testing::Test {
protected:
  void SetUp() override
  {
    window = readWindow(kWindow);
    ASSERT_NE(window, nullptr);
    bar = static_cast<SoMenuBar*>(window->getChild(0));
    file = static_cast<SoMenuPopup*>(bar->getChild(0));
    recent = static_cast<SoMenuPopup*>(file->getChild(0));
  }

  SoTopLevelDialog* window = nullptr;
  SoMenuBar* bar = nullptr;
  SoMenuPopup* file = nullptr;
  SoMenuPopup* recent = nullptr;
};

TEST_F(MenuStructure, windowPlacesItsBarWithPopupsAndCascades)
{
  window->buildDialog(nullptr, 0);
  QMenuBar* qt = menuBarOf(window);
  ASSERT_NE(qt, nullptr);
  EXPECT_EQ(texts(qt), (QStringList{"File", QString::fromUtf8("Größe")}))
    << "a popup's title keeps characters beyond Latin-1";
  QMenu* fileMenu = qt->actions()[0]->menu();
  ASSERT_NE(fileMenu, nullptr);
  EXPECT_EQ(texts(fileMenu), QStringList{"Recent"});
  EXPECT_EQ(texts(fileMenu->actions()[0]->menu()), QStringList{"Older"});
  EXPECT_EQ(recent->getMenuBar(), bar);

  file->label = "Document";
  EXPECT_EQ(qt->actions()[0]->text(), "Document");
  file->enable = FALSE;
  EXPECT_FALSE(fileMenu->isEnabled());
  bar->enable = FALSE;
  EXPECT_FALSE(qt->isEnabled());

  // A child inserted into the shown window rebuilds it; the bar stays whole.
  window->show();
  window->insertChild(makeNode<SoDialogLabel>(), 1);
  ASSERT_NE(menuBarOf(window), nullptr);
  EXPECT_EQ(texts(menuBarOf(window)), (QStringList{"Document", QString::fromUtf8("Größe")}));
}

TEST_F(MenuStructure, builtPopupAppendsNewChildrenAndKeepsRemovedOnes)
{
  auto* early = new SoMenuPopup;
  early->label = "Early";
  file->addChild(early);
  EXPECT_EQ(early->getParent(), file);

  window->buildDialog(nullptr, 0);
  QMenu* fileMenu = menuBarOf(window)->actions()[0]->menu();
  EXPECT_EQ(texts(fileMenu), (QStringList{"Recent", "Early"})) << "the first build makes them in child order";

  auto* first = new SoMenuPopup;
  first->label = "First";
  file->insertChild(first, 0);
  EXPECT_EQ(file->getChild(0), first);
  EXPECT_EQ(texts(fileMenu), (QStringList{"Recent", "Early", "First"})) << "Qt items always go last";

  auto* replacement = new SoMenuPopup;
  replacement->label = "Other";
  file->replaceChild(early, replacement);
  file->removeChild(recent);
  EXPECT_EQ(file->getNumChildren(), 2);
  EXPECT_EQ(file->getChild(1), replacement);
  EXPECT_EQ(texts(fileMenu), (QStringList{"Recent", "Early", "First", "Other"})) << "nothing leaves the Qt menu";
}

// Misuse of a container's child operations, which is reported and changes
// nothing, on a container of two children. The last index that a removal or
// replacement names is the count for some containers and the count less one
// for others; the getChild of launchers and dialog containers adds a warning.
template <class Container, class Child>
void expectMisuseReported(const std::string& name, int lastIndex, const char* getChildWarning)
{
  SCOPED_TRACE(name);
  auto* container = makeNode<Container>();
  Child* kept[] = {new Child, new Child};
  container->addChild(kept[0]);
  container->addChild(kept[1]);

  DebugMessages messages;
  const std::string last = std::to_string(lastIndex);
  container->addChild(nullptr);
  EXPECT_TRUE(messages.contains(name + "::addChild(): NULL child node"));
  container->insertChild(makeNode<Child>(), 3);
  EXPECT_TRUE(messages.contains(name + "::insertChild(): Index 3 is out of range 0 - 2"));
  EXPECT_EQ(container->getChild(2), nullptr);
  EXPECT_TRUE(messages.contains(name + "::getChild(): Index 2 is out of range 0 - 2" + getChildWarning));
  EXPECT_EQ(messages.countHolding("Be careful"), *getChildWarning ? 1 : 0);
  container->removeChild(makeNode<Child>());
  EXPECT_TRUE(messages.contains(name + "::removeChild(): Index -1 is out of range 0 - " + last));
  container->removeChild(5);
  EXPECT_TRUE(messages.contains(name + "::removeChild(): Index 5 is out of range 0 - " + last));
  container->replaceChild(2, makeNode<Child>());
  EXPECT_TRUE(messages.contains(name + "::replaceChild(): Index 2 is out of range 0 - " + last));
  EXPECT_EQ(messages.count(), 6u) << messages.joined();
  ASSERT_EQ(container->getNumChildren(), 2);
  EXPECT_TRUE(container->getChild(0) == kept[0] && container->getChild(1) == kept[1]);

  auto* appended = new Child;
  container->insertChild(appended, 2);
  EXPECT_EQ(container->getChild(2), appended) << "the index just past the end appends";
  EXPECT_EQ(appended->getParent(), container);
}

TEST(Containers, misuseOfTheChildOperationsIsReported)
{
  expectMisuseReported<SoTopLevelDialog, SoDialogLabel>("SoTopLevelDialog", 2, "; Be careful");
  expectMisuseReported<SoDialogGroup, SoDialogLabel>("SoDialogGroup", 2, "; Be careful");
  expectMisuseReported<SoMenuBar, SoMenuPopup>("SoMenuBar", 2, "");
  expectMisuseReported<SoMenuPopup, SoMenuPopup>("SoMenuPopup", 2, "");
  expectMisuseReported<SoMenuPushButtonLauncher, SoTopLevelDialog>("SoMenuPushButtonLauncher", 1, "; Be careful");
  expectMisuseReported<SoMenuCheckBoxLauncher, SoTopLevelDialog>("SoMenuCheckBoxLauncher", 1, "; Be careful");
  expectMisuseReported<SoDialogPushButtonLauncher, SoTopLevelDialog>("SoDialogPushButtonLauncher", 2, "; Be careful");
  expectMisuseReported<SoDialogCheckBoxLauncher, SoTopLevelDialog>("SoDialogCheckBoxLauncher", 2, "; Be careful");
}

TEST_F(MenuStructure, searchEntersPopupsAndCascades)
{
  EXPECT_EQ(window->searchForAuditorId("older")->getParent(), recent);
  EXPECT_EQ(window->searchForAuditorId("size"), bar->getChild(1));
  EXPECT_EQ(bar->searchForAuditorId("recent"), recent);
  EXPECT_EQ(file->searchForAuditorId("file"), nullptr) << "the searching node itself is not compared";
}

TEST_F(MenuStructure, sizesFollowTheLabels)
{
  SbVec2i32 size, min, max;
  bar->getSize(size, min, max);
  const int fileWidth = textPixels("File")[0];
  const int sizeWidth = textPixels("Größe")[0];
  EXPECT_EQ(size, SbVec2i32(fileWidth + 9 + sizeWidth + 9 + 10, 19));
  EXPECT_EQ(min, SbVec2i32(0, 0));
  EXPECT_EQ(max, SbVec2i32(32767, 32767));

  auto* empty = makeNode<SoMenuBar>();
  empty->getSize(size, min, max);
  EXPECT_EQ(size, SbVec2i32(10, 19));

  EXPECT_EQ(file->getItemInitSize(), SbVec2i32(fileWidth + 8, 18));
  EXPECT_EQ(recent->getItemInitSize(), SbVec2i32(textPixels("Recent")[0] + 8 + 20, 18)) << "room for the arrow";
}

TEST(MenuTexts, keyCombinationsSortTheModifiersByWeight)
{
  EXPECT_EQ(keys(""), SbString(""));
  EXPECT_EQ(keys("F1"), SbString("F1"));
  EXPECT_EQ(keys("Ctrl+Shift+N"), SbString("Shift+Ctrl+N"));
  EXPECT_EQ(keys("Shift Ctrl+N"), SbString("Shift+Ctrl+ N")) << "the blank before the key stays";
  EXPECT_EQ(keys("CTRLshiftN"), SbString("Shift+Ctrl+N"));
  EXPECT_EQ(keys("alt+shift+ctrl+x"), SbString("Alt+Shift+Ctrl+x"));
  EXPECT_EQ(keys("Halt"), SbString("Alt+H")) << "a word is taken out of the key's name too";
  EXPECT_EQ(keys("Ctl+META+p"), SbString("Meta+Ctrl+p"));
  EXPECT_EQ(keys("meta+p"), SbString("metap")) << "there is no lower-case meta";
  // Weights add: a word twice is worth the next modifier up.
  EXPECT_EQ(keys("Ctrl+ctrl+X"), SbString("Shift+X"));
  EXPECT_EQ(keys("Shift+shift+X"), SbString("Meta+X"));
  EXPECT_EQ(keys("Alt+alt+X"), SbString("Alt+Meta+Shift+X"));
  EXPECT_EQ(keys("Ctrl++"), SbString("Ctrl+")) << "every + goes, leaving no key";
}

TEST(MenuTexts, acceleratorAndTitleHelpers)
{
  EXPECT_EQ(MenuText::getAccelerator("Open\tCtrl+O"), SbString("Ctrl+O"));
  EXPECT_EQ(MenuText::getAccelerator("Open"), SbString(""));

  SbString shown;
  EXPECT_EQ(MenuText::buildTitleForMotifMenu("&File\tCtrl+F", shown), 'F');
  EXPECT_EQ(shown, SbString("File"));
  EXPECT_EQ(MenuText::buildTitleForMotifMenu("Save &as &copy", shown), 'c');
  EXPECT_EQ(shown, SbString("Save as copy"));
  EXPECT_EQ(MenuText::buildTitleForMotifMenu("Fish && chips", shown), '&');
  EXPECT_EQ(shown, SbString("Fish & chips"));
  EXPECT_EQ(MenuText::buildTitleForMotifMenu("Plain", shown), 0);
}

// Menu entries as the user meets them: real QActions triggered in a built
// window, and the fields and auditors that follow.

const char* const kEntriesWindow = R"(#Inventor V2.1 ascii
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
    window = readWindow(kEntriesWindow);
    ASSERT_NE(window, nullptr);
    copy = static_cast<SoMenuPushButton*>(window->searchForAuditorId("copy"));
    grid = static_cast<SoMenuCheckBox*>(window->searchForAuditorId("grid"));
    zoom = static_cast<SoMenuRadioButtons*>(window->searchForAuditorId("zoom"));
    ASSERT_TRUE(copy && grid && zoom);
    window->addAuditor(&recorder);
    window->buildDialog(nullptr, 0);
    auto* bar = menuBarOf(window);
    ASSERT_NE(bar, nullptr);
    menu = bar->actions()[0]->menu();
    ASSERT_EQ(menu->actions().size(), 7);
  }

  QAction* action(int index) const { return menu->actions()[index]; }
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
  EXPECT_EQ(texts(menu), (QStringList{"Copy", "-", "Off", "Small", "Medium", "Large", "Paste"}));
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
  EXPECT_EQ(texts(menu), (QStringList{"Copy", "-", "Off", "Paste", "Fit", "Fill"}));
  EXPECT_GT(zoom->getId(), firstId);
  EXPECT_EQ(action(4)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_1));

  action(5)->trigger();
  EXPECT_EQ(zoom->selectedItem.getValue(), 1) << "the index, whatever the numbers have reached";
  EXPECT_TRUE(action(5)->isChecked());
  EXPECT_FALSE(action(4)->isChecked());
}

// Entries built alone: a default radio group shows one empty checked entry,
// a check box its file's on text but no mark nor disabled look until its state
// is next written, and keys that name no key leave no shortcut and no message.
TEST(MenuEntryDefaults, entriesTakeTheirFilesValuesAndUnreadableKeysNothing)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\nMenuRadioButtons { }\n"
                                "MenuCheckBox { label \"Off\" onString \"On\" state TRUE enable FALSE }\n");
  ASSERT_NE(root, nullptr);
  QMenu menu;
  static_cast<SoMenuRadioButtons*>(root->getChild(0))->buildMenu(&menu, 1, -1);
  static_cast<SoMenuCheckBox*>(root->getChild(1))->buildMenu(&menu, 1, -1);
  ASSERT_EQ(texts(&menu), (QStringList{"", "On"}));
  EXPECT_TRUE(menu.actions()[0]->isChecked());
  EXPECT_FALSE(menu.actions()[1]->isChecked());
  EXPECT_TRUE(menu.actions()[1]->isEnabled());
  static_cast<SoMenuCheckBox*>(root->getChild(1))->state = TRUE;
  EXPECT_TRUE(menu.actions()[1]->isChecked());

  DebugMessages messages;
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
