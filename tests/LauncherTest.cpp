// Push buttons and check boxes that open dialogs: building, showing and
// hiding them, and the launchers' place in the auditor walks.

#include "TestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Writes down each control it hears of, and whether the first launched
// dialog was on screen at that moment.
class Recorder : public SoDialogAuditor {
public:
  Recorder(std::vector<std::string>& log, const char* name) : m_log(log), m_name(name) {}
  void dialogPushButton(SoDialogPushButton* node) override { note("button", node); }
  void dialogCheckBox(SoDialogCheckBox* node) override { note("check", node); }

  SoTopLevelDialog* watched = nullptr;

private:
  void note(const char* kind, SoFormwright* node)
  {
    std::string entry = m_name + ":" + kind + ":" + node->auditorID.getValue().getString();
    if (watched)
      entry += watched->getBaseWidget() && watched->getBaseWidget()->isVisible() ? ":shown" : ":hidden";
    m_log.push_back(entry);
  }
  std::vector<std::string>& m_log;
  std::string m_name;
};

const char* const kWindow = R"(#Inventor V2.1 ascii
TopLevelDialog {
  RowDialog {
    auditorID "row"
    DialogCheckBoxLauncher {
      auditorID "panels"
      state TRUE
      TopLevelDialog { label "Tools" auditorID "tools" DialogPushButton { buttonLabel "Run" auditorID "run" } }
      TopLevelDialog { label "Layers" auditorID "layers" }
    }
    DialogPushButtonLauncher {
      buttonLabel "Options..."
      auditorID "options"
      TopLevelDialog { label "Options" auditorID "optionsDialog" DialogCheckBox { auditorID "fast" } }
    }
    DialogCheckBox { auditorID "plain" }
    DialogPushButtonLauncher { buttonLabel "Nothing" auditorID "empty" }
  }
}
)";

class Launchers : public ::testing::Test {
protected:
  void SetUp() override
  {
    SoSeparator* root = readScene(kWindow);
    ASSERT_NE(root, nullptr);
    window = static_cast<SoTopLevelDialog*>(root->getChild(0));
    row = static_cast<SoRowDialog*>(window->searchForAuditorId("row"));
    panels = static_cast<SoDialogCheckBoxLauncher*>(window->searchForAuditorId("panels"));
    options = static_cast<SoDialogPushButtonLauncher*>(window->searchForAuditorId("options"));
    ASSERT_TRUE(row && panels && options);
    tools = static_cast<SoTopLevelDialog*>(panels->getChild(0));
    layers = static_cast<SoTopLevelDialog*>(panels->getChild(1));
    optionsDialog = static_cast<SoTopLevelDialog*>(options->getChild(0));
    window->addAuditor(&recorder);
  }

  static bool shown(SoTopLevelDialog* dialog)
  {
    return dialog->getBaseWidget() && dialog->getBaseWidget()->isVisible();
  }
  template <class Widget>
  static Widget* widgetOf(SoDialogComponent* node)
  {
    return node->getWidget()->findChild<Widget*>();
  }

  std::vector<std::string> log;
  Recorder recorder{log, "window"};
  SoTopLevelDialog* window = nullptr;
  SoRowDialog* row = nullptr;
  SoDialogCheckBoxLauncher* panels = nullptr;
  SoDialogPushButtonLauncher* options = nullptr;
  SoTopLevelDialog* tools = nullptr;
  SoTopLevelDialog* layers = nullptr;
  SoTopLevelDialog* optionsDialog = nullptr;
};

TEST_F(Launchers, pushButtonOpensItsDialogAfterTheAuditorsHeard)
{
  window->buildDialog(nullptr, 0);
  ASSERT_NE(optionsDialog->getBaseWidget(), nullptr) << "built with the button";
  EXPECT_FALSE(shown(optionsDialog));
  EXPECT_EQ(optionsDialog->getParent(), options);

  recorder.watched = optionsDialog;
  QTest::mousePress(widgetOf<QPushButton>(options), Qt::LeftButton);
  EXPECT_EQ(log, std::vector<std::string>{"window:button:options:hidden"});
  EXPECT_TRUE(shown(optionsDialog));

  QWidget* built = optionsDialog->getBaseWidget();
  optionsDialog->hide();
  QTest::mouseRelease(widgetOf<QPushButton>(options), Qt::LeftButton);
  QTest::mousePress(widgetOf<QPushButton>(options), Qt::LeftButton);
  EXPECT_TRUE(shown(optionsDialog));
  EXPECT_EQ(optionsDialog->getBaseWidget(), built) << "a dialog once built stays built";

  // A launcher without dialogs is a plain push button.
  log.clear();
  auto* empty = static_cast<SoDialogPushButtonLauncher*>(window->searchForAuditorId("empty"));
  QTest::mousePress(widgetOf<QPushButton>(empty), Qt::LeftButton);
  EXPECT_EQ(log, std::vector<std::string>{"window:button:empty:shown"});
}

TEST_F(Launchers, checkBoxShowsItsDialogsWhileChecked)
{
  window->buildDialog(nullptr, 0);
  EXPECT_TRUE(shown(tools));
  EXPECT_TRUE(shown(layers));
  EXPECT_TRUE(log.empty()) << "a launcher read as checked is no click";

  recorder.watched = tools;
  QCheckBox* box = widgetOf<QCheckBox>(panels);
  QWidget* built = tools->getBaseWidget();
  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_FALSE(panels->state.getValue());
  EXPECT_EQ(log, std::vector<std::string>{"window:check:panels:shown"}) << "hidden after the auditors ran";
  EXPECT_FALSE(shown(tools));
  EXPECT_FALSE(shown(layers));
  EXPECT_EQ(tools->getBaseWidget(), built);

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_TRUE(shown(tools));
  EXPECT_TRUE(shown(layers));
}

TEST_F(Launchers, applyAuditorsWalksIntoTheLaunchersDialogs)
{
  std::vector<std::string> heard;
  Recorder atRow(heard, "row"), atTools(heard, "tools"), atOptions(heard, "options");
  row->addAuditor(&atRow);
  tools->addAuditor(&atTools);
  optionsDialog->addAuditor(&atOptions);
  row->applyAuditors();
  // The launchers are not heard themselves, not even one without dialogs.
  EXPECT_EQ(heard, (std::vector<std::string>{"tools:button:run", "options:check:fast", "row:check:plain"}));
}

TEST_F(Launchers, searchEntersTheLaunchersDialogs)
{
  EXPECT_EQ(window->searchForAuditorId("fast")->getParent(), optionsDialog);
  EXPECT_EQ(window->searchForAuditorId("layers"), layers);
  EXPECT_EQ(row->searchForAuditorId("run")->getParent(), tools);
  EXPECT_EQ(options->searchForAuditorId("options"), nullptr) << "the launcher itself is not compared";
}

TEST_F(Launchers, childOperationsReportMisuse)
{
  DebugMessages messages;
  EXPECT_EQ(options->getChild(1), nullptr);
  EXPECT_TRUE(messages.contains("SoDialogPushButtonLauncher::getChild(): Index 1 is out of range 0 - 1; Be careful"));
  options->removeChild(tools);
  EXPECT_TRUE(messages.contains("SoDialogPushButtonLauncher::removeChild(): Index -1 is out of range 0 - 1"));
  panels->insertChild(tools, 3);
  EXPECT_TRUE(messages.contains("SoDialogCheckBoxLauncher::insertChild(): Index 3 is out of range 0 - 2"));
  panels->addChild(nullptr);
  EXPECT_TRUE(messages.contains("SoDialogCheckBoxLauncher::addChild(): NULL child node"));
  EXPECT_EQ(messages.count(), 4u);

  auto* extra = new SoTopLevelDialog;
  options->insertChild(extra, 1);
  EXPECT_EQ(options->getChild(1), extra) << "the index just past the end appends";
  EXPECT_EQ(extra->getParent(), options);
  options->replaceChild(extra, layers);
  EXPECT_EQ(options->findChild(layers), 1);
  options->removeChild(0);
  EXPECT_EQ(options->getNumChildren(), 1);
  EXPECT_EQ(options->getChild(0), layers);
}

TEST(LauncherFiles, onlyDialogsAreChildren)
{
  DebugMessages messages;
  EXPECT_EQ(readScene("#Inventor V2.1 ascii\nDialogPushButtonLauncher { DialogLabel { } }\n"), nullptr);
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "DialogCheckBoxLauncher { label \"Panels\" TopLevelDialog { } TopLevelDialog { } }\n");
  ASSERT_NE(root, nullptr);
  auto* launcher = static_cast<SoDialogCheckBoxLauncher*>(root->getChild(0));
  EXPECT_EQ(launcher->getNumChildren(), 2);
  EXPECT_EQ(launcher->label.getValue(), SbString("Panels"));
  EXPECT_EQ(static_cast<SoTopLevelDialog*>(launcher->getChild(1))->getParent(), launcher);
}

}
