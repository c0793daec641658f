#include "EventLog.h"
#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>
#include <SoPreferences.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>
#include <SoTopLevelDialog.h>

#include <QPushButton>
#include <QTest>

#include <cctype>

namespace {

class DefaultAuditor : public SoDialogAuditor {};

// Each default body reports the control it was handed, with the fields that
// tell it apart, as one message of its own.
TEST(DialogAuditor, defaultBodiesReportUnheardControlsOnlyWhenAsked)
{
  DefaultAuditor auditor;
  SoSeparator* nodes = readScene("#Inventor V2.1 ascii\nSeparator {\n"
                                 "DialogPushButton { label \"Name:\" buttonLabel \"Apply\" }\n"
                                 "DialogCheckBox { label \"Sound\" onString \"Loud\" }\n"
                                 "MenuPushButton { label \"Open...\" }\n"
                                 "DialogComboBox { label \"Units\" items [\"mm\", \"in\"] selectedItem 1 }\n"
                                 "DialogRadioButtons { label \"Quality\" items [\"Draft\", \"Best\"] selectedItem 4 }\n"
                                 "DialogIntegerSlider { label \"Copies\" max 10 value 7 }\n"
                                 "DialogRealSlider { label \"Scale\" value 0.25 format \"%.2f\" }\n"
                                 "DialogEditText { label \"Name:\" editText \"Ada\" }\n"
                                 "MenuCheckBox { label \"Off\" onString \"On\" }\n"
                                 "MenuRadioButtons { items [\"Small\", \"Medium\"] selectedItem 1 }\n"
                                 "MenuFileSelection { title \"Open a scene\" } }\n");
  ASSERT_NE(nodes, nullptr);
  const auto node = [&](int i) { return nodes->getChild(i); };
  {
    DebugMessages messages;
    auditor.dialogPushButton(static_cast<SoDialogPushButton*>(node(0)));
    EXPECT_EQ(messages.count(), 0u) << "silent unless the preference is set";
  }

  SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1");
  DebugMessages messages;
  auditor.dialogPushButton(static_cast<SoDialogPushButton*>(node(0)));
  auditor.dialogCheckBox(static_cast<SoDialogCheckBox*>(node(1)));
  auditor.menuPushButton(static_cast<SoMenuPushButton*>(node(2)));
  auditor.tabDialog(nullptr);
  auditor.dialogComboBox(static_cast<SoDialogComboBox*>(node(3)));
  auditor.dialogRadioButtons(static_cast<SoDialogRadioButtons*>(node(4)));
  auditor.dialogIntegerSlider(static_cast<SoDialogIntegerSlider*>(node(5)));
  auditor.dialogRealSlider(static_cast<SoDialogRealSlider*>(node(6)));
  auditor.dialogEditText(static_cast<SoDialogEditText*>(node(7)));
  auditor.menuCheckBox(static_cast<SoMenuCheckBox*>(node(8)));
  auditor.menuRadioButtons(static_cast<SoMenuRadioButtons*>(node(9)));
  auditor.menuFileSelection(static_cast<SoMenuFileSelection*>(node(10)));
  SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS");

  // The menu entries' reports may carry more lines after the fields shown.
  const struct {
    const char* method;
    std::string fields;
  } reports[] = {
    {"dialogPushButton", "label \"Name:\"\n\t\t -> buttonLabel \"Apply\""},
    {"dialogCheckBox", "label \"Sound\"\n\t\t -> onString \"Loud\"\n\t\t -> offString \"\""},
    {"menuPushButton", "label \"Open...\""},
    {"dialogComboBox", "label \"Units\"\n\t\t -> selectedItem 1 : in"},
    {"dialogRadioButtons", "label \"Quality\"\n\t\t -> selectedItem 4 : "}, // no entry, no text
    {"dialogIntegerSlider", "label \"Copies\"7"},
    {"dialogRealSlider", "label \"Scale\"\n\t\t -> value \"0.25\""},
    {"dialogEditText", "label \"Name:\"\n\t\t -> editText \"Ada\""},
    {"menuCheckBox", "label \"Off\"\n\t\t -> onString \"On\""},
    {"menuRadioButtons", "label \"\"\n\t\t -> selectedItem 1 : Medium"},
    {"menuFileSelection", "title \"Open a scene\"\n\t\t -> filename \"\""},
  };
  ASSERT_EQ(messages.count(), 11u) << "tab dialogs have auditors of their own";
  for (size_t i = 0; i < 11; ++i) {
    std::string className = std::string("So") + reports[i].method;
    className[2] = static_cast<char>(std::toupper(className[2]));
    const std::string expected = "Coin info in SoDialogAuditor::" + std::string(reports[i].method) +
                                 "(): WARNING ! The DialogAuditor does not define the " + className +
                                 " component :\n\t\t -> " + reports[i].fields;
    if (i < 8)
      EXPECT_EQ(messages.all()[i], expected);
    else
      EXPECT_EQ(messages.all()[i].rfind(expected, 0), 0u) << messages.all()[i];
  }
  EXPECT_EQ(messages.severities()[0], SoDebugError::INFO) << "a report, not an error";
}

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
    dialog = readWindow(kDialog);
    ASSERT_NE(dialog, nullptr);
    outer = static_cast<SoColumnDialog*>(dialog->searchForAuditorId("outer"));
    inner = static_cast<SoRowDialog*>(dialog->searchForAuditorId("inner"));
    apply = static_cast<SoDialogPushButton*>(dialog->searchForAuditorId("apply"));
    ASSERT_TRUE(outer && inner && apply);
  }

  void build() { dialog->buildDialog(nullptr, 0); }
  void pressApply() { QTest::mousePress(apply->getWidget()->findChild<QPushButton*>(), Qt::LeftButton); }

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
  inner->addAuditor(&first);
  pressApply();
  EXPECT_EQ(log, (std::vector<std::string>{"first:button:apply:", "second:button:apply:"})) << "each hears once";
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
  inner->removeAuditor(&after); // not listed yet: harmless
  inner->addAuditor(&once);
  inner->addAuditor(&after);
  build();
  pressApply();
  pressApply();
  EXPECT_EQ(log, (std::vector<std::string>{"once:button:apply:", "after:button:apply:", "after:button:apply:"}));
}

TEST_F(AuditorRouting, searchIsDepthFirstAndAControlWithItsOwnAuditorIsHeardByNoGroup)
{
  EXPECT_EQ(dialog->searchForAuditorId("window"), nullptr) << "the searching node itself is not compared";
  EXPECT_EQ(dialog->searchForAuditorId("close")->getParent(), outer);
  EXPECT_TRUE(dialog->searchForAuditorId("")->isOfType(SoDialogLabel::getClassTypeId()))
    << "the first child whose identifier was left empty";
  EXPECT_EQ(inner->searchForAuditorId("close"), nullptr);
  EXPECT_EQ(dialog->searchForAuditorId("nothing"), nullptr);

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

TEST(MenuAuditors, aPopupWithAuditorsHearsItsEntriesInPlaceOfTheWindow)
{
  std::vector<std::string> log;
  auto* window = makeNode<SoTopLevelDialog>();
  auto* bar = new SoMenuBar;
  auto* popup = makeNode<SoMenuPopup>();
  auto* check = makeNode<SoMenuCheckBox>();
  window->addChild(bar);
  popup->setParent(bar);
  check->auditorID = "grid";
  Recorder atWindow(log, "window"), atPopup(log, "popup");
  window->addAuditor(&atWindow);
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
