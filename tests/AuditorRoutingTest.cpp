#include "EventLog.h"
#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogAuditor.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuPopup.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>
#include <SoTopLevelDialog.h>

#include "SoPreferences.h"

#include <QPushButton>
#include <QTest>

namespace {

// Auditors that write one log, each entry led by the auditor's name.
struct Recorder : EventLog {
  Recorder(std::vector<std::string>& shared, const char* own)
  {
    log = &shared;
    name = own;
  }
};

class ButtonRecorder : public SoDialogPushButtonAuditor {
public:
  explicit ButtonRecorder(std::vector<std::string>& log) : m_log(log) {}
  void dialogPushButton(SoDialogPushButton* node) override
  {
    m_log.push_back(std::string("own:") + node->auditorID.getValue().getString());
  }

private:
  std::vector<std::string>& m_log;
};

const char* const kDialog = R"(#Inventor V2.1 ascii
TopLevelDialog {
  auditorID "window"
  DialogLabel { label "Settings" }
  ColumnDialog {
    auditorID "outer"
    RowDialog {
      auditorID "inner"
      DialogPushButton { buttonLabel "Apply" auditorID "apply" }
      DialogCheckBox { label "Binary" auditorID "binary" }
    }
    DialogPushButton { buttonLabel "Close" auditorID "close" }
  }
}
)";

class AuditorRouting : public ::testing::Test {
protected:
  void SetUp() override
  {
    m_root = readScene(kDialog);
    ASSERT_NE(m_root, nullptr);
    dialog = static_cast<SoTopLevelDialog*>(m_root->getChild(0));
    outer = static_cast<SoColumnDialog*>(dialog->searchForAuditorId("outer"));
    inner = static_cast<SoRowDialog*>(dialog->searchForAuditorId("inner"));
    apply = static_cast<SoDialogPushButton*>(dialog->searchForAuditorId("apply"));
    ASSERT_TRUE(outer && inner && apply);
  }

  void build() { dialog->buildDialog(nullptr, 0); }
  void pressApply() { QTest::mousePress(apply->getWidget()->findChild<QPushButton*>(), Qt::LeftButton); }

  SoSeparator* m_root = nullptr;
  SoTopLevelDialog* dialog = nullptr;
  SoColumnDialog* outer = nullptr;
  SoRowDialog* inner = nullptr;
  SoDialogPushButton* apply = nullptr;
  std::vector<std::string> log;
};

TEST_F(AuditorRouting, pressClimbsToTheFirstGroupWithAuditorsWhichHearInOrder)
{
  build();
  {
    // Heard by nobody, the press reaches the window's default auditor.
    SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1");
    DebugMessages messages;
    pressApply();
    SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS");
    EXPECT_EQ(messages.countHolding("SoDialogAuditor::dialogPushButton"), 1);
  }
  Recorder window(log, "window"), first(log, "first"), second(log, "second");
  dialog->addAuditor(&window);
  pressApply();
  EXPECT_EQ(log, std::vector<std::string>{"window:button:apply:"}) << "two groups without auditors are passed";

  log.clear();
  inner->addAuditor(&first);
  inner->addAuditor(&second);
  pressApply();
  EXPECT_EQ(log, (std::vector<std::string>{"first:button:apply:", "second:button:apply:"}));
}

// An auditor that is done after one event takes itself away while it hears.
class OneShot : public Recorder {
public:
  OneShot(std::vector<std::string>& log, SoDialogGroup* node) : Recorder(log, "once"), m_node(node) {}
  void dialogPushButton(SoDialogPushButton* button) override
  {
    Recorder::dialogPushButton(button);
    m_node->removeAuditor(this);
  }

private:
  SoDialogGroup* m_node;
};

TEST_F(AuditorRouting, auditorRemovingItselfLetsTheOthersHearTheSameEvent)
{
  OneShot once(log, inner);
  Recorder after(log, "after");
  inner->addAuditor(&once);
  inner->addAuditor(&after);
  build();
  pressApply();
  pressApply();
  EXPECT_EQ(log, (std::vector<std::string>{"once:button:apply:", "after:button:apply:", "after:button:apply:"}));
}

TEST_F(AuditorRouting, controlWithItsOwnAuditorIsHeardByNoGroup)
{
  Recorder group(log, "group");
  ButtonRecorder own(log);
  outer->addAuditor(&group);
  apply->addAuditor(&own);
  build();
  pressApply();
  EXPECT_EQ(log, std::vector<std::string>{"own:apply"});

  // Firing all at once starts at the group: the button's own auditor is
  // passed by.
  log.clear();
  outer->applyAuditors();
  EXPECT_EQ(log, (std::vector<std::string>{"group:button:apply:", "group:check:binary:FALSE", "group:button:close:"}));
}

TEST_F(AuditorRouting, searchIsDepthFirstOverChildrenOnly)
{
  EXPECT_EQ(dialog->searchForAuditorId("window"), nullptr) << "the searching node itself is not compared";
  EXPECT_EQ(dialog->searchForAuditorId("close")->getParent(), outer);
  EXPECT_TRUE(dialog->searchForAuditorId("")->isOfType(SoDialogLabel::getClassTypeId()))
    << "the first child whose identifier was left empty";
  EXPECT_EQ(inner->searchForAuditorId("close"), nullptr);
  EXPECT_EQ(dialog->searchForAuditorId("nothing"), nullptr);
}

TEST(MenuAuditors, menusClimbToTheWindowWhichSortsEntriesByClass)
{
  std::vector<std::string> log;
  auto* window = makeNode<SoTopLevelDialog>();
  auto* bar = new SoMenuBar;
  auto* popup = makeNode<SoMenuPopup>();
  auto* file = makeNode<SoMenuFileSelection>();
  auto* check = makeNode<SoMenuCheckBox>();
  window->addChild(bar);
  popup->setParent(bar);
  file->auditorID = "open";
  file->fileDirectory = "scenes";
  check->auditorID = "grid";

  Recorder atWindow(log, "window"), atPopup(log, "popup");
  window->addAuditor(&atWindow);
  popup->applyAuditor(file);
  EXPECT_EQ(log, std::vector<std::string>{"window:file:open:scenes|"}) << "a file selection is no plain menu button";

  log.clear();
  popup->addAuditor(&atPopup);
  popup->applyAuditor(check);
  EXPECT_EQ(log, std::vector<std::string>{"popup:menuCheck:grid:FALSE"});
}

TEST(MenuAuditors, tabDialogAuditorsHearNothingButPages)
{
  struct PageListener : SoTabDialogAuditor {
    int calls = 0;
    void tabDialog(SoTabDialog*) override { ++calls; }
  } pages;
  std::vector<std::string> log;
  Recorder above(log, "window");
  auto* window = makeNode<SoTopLevelDialog>();
  auto* tabs = new SoTabDialog;
  auto* button = makeNode<SoDialogPushButton>();
  window->addChild(tabs);
  tabs->addChild(button);
  window->addAuditor(&above);
  tabs->addAuditor(&pages);
  tabs->applyAuditor(button);
  EXPECT_EQ(pages.calls, 0);
  EXPECT_EQ(log, std::vector<std::string>{"window:button::"}) << "a page auditor lets the controls' events go on up";
}

}
