// Push buttons and check boxes that open dialogs: building, showing and
// hiding them, and the launchers' place in the auditor walks.

#include "EventLog.h"
#include "TestSupport.h"

#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoRowDialog.h>

#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QWidget>

namespace {

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

  EventLog recorder;
  std::vector<std::string>& log = recorder.entries;
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
  EXPECT_EQ(log, std::vector<std::string>{"button:options::hidden"});
  EXPECT_TRUE(shown(optionsDialog));

  QWidget* built = optionsDialog->getBaseWidget();
  optionsDialog->hide();
  optionsDialog->width = built->width() + 40;
  QTest::mouseRelease(widgetOf<QPushButton>(options), Qt::LeftButton);
  QTest::mousePress(widgetOf<QPushButton>(options), Qt::LeftButton);
  EXPECT_TRUE(shown(optionsDialog));
  EXPECT_EQ(built->width(), optionsDialog->width.getValue()) << "in the width set while it was hidden";
  EXPECT_EQ(optionsDialog->getBaseWidget(), built) << "a dialog once built stays built";

  // A launcher without dialogs is a plain push button.
  log.clear();
  auto* empty = static_cast<SoDialogPushButtonLauncher*>(window->searchForAuditorId("empty"));
  QTest::mousePress(widgetOf<QPushButton>(empty), Qt::LeftButton);
  EXPECT_EQ(log, std::vector<std::string>{"button:empty::shown"});
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
  EXPECT_EQ(log, std::vector<std::string>{"check:panels:FALSE:shown"}) << "hidden after the auditors ran";
  EXPECT_FALSE(shown(tools));
  EXPECT_FALSE(shown(layers));
  EXPECT_EQ(tools->getBaseWidget(), built);

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_TRUE(shown(tools));
  EXPECT_TRUE(shown(layers));
}

TEST_F(Launchers, applyAuditorsWalksIntoTheLaunchersDialogs)
{
  EventLog atRow, atTools, atOptions;
  row->addAuditor(&atRow);
  tools->addAuditor(&atTools);
  optionsDialog->addAuditor(&atOptions);
  row->applyAuditors();
  // The launchers are not heard themselves, not even one without dialogs.
  EXPECT_EQ(atRow.entries, std::vector<std::string>{"check:plain:FALSE"});
  EXPECT_EQ(atTools.entries, std::vector<std::string>{"button:run:"});
  EXPECT_EQ(atOptions.entries, std::vector<std::string>{"check:fast:FALSE"});
}

TEST_F(Launchers, searchEntersTheLaunchersDialogs)
{
  EXPECT_EQ(window->searchForAuditorId("fast")->getParent(), optionsDialog);
  EXPECT_EQ(window->searchForAuditorId("layers"), layers);
  EXPECT_EQ(row->searchForAuditorId("run")->getParent(), tools);
  EXPECT_EQ(options->searchForAuditorId("options"), nullptr) << "the launcher itself is not compared";
}

}
