// Push buttons, check boxes and menu entries that open dialogs or ask for a
// file: building, showing and hiding them, and the launchers' place in the
// auditor walks.

#include "EventLog.h"
#include "SoPreferences.h"
#include "TestSupport.h"

#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuPushButtonLauncher.h>
#include <SoRowDialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace {

// A window with a row of launchers beside a plain check box and a launcher
// without dialogs, and a menu of launchers and a file entry. The file dialog
// is Qt's own, answered from inside its event loop as a person would.
const char* const kWindow = R"(#Inventor V2.1 ascii
TopLevelDialog {
  MenuBar {
    MenuPopup {
      label "Window"
      MenuPushButtonLauncher {
        label "Open both"
        auditorID "both"
        TopLevelDialog { label "First" auditorID "first" DialogLabel { auditorID "inFirst" } }
        TopLevelDialog { label "Second" auditorID "second" }
      }
      MenuCheckBoxLauncher {
        label "Palette"
        auditorID "palette"
        TopLevelDialog { label "Palette" auditorID "paletteDialog" }
      }
      MenuFileSelection {
        label "Open..."
        auditorID "open"
        title "Open a scene"
        filter [ "*.scn", "Scenic file", "*.iv" ]
        fileDirectory "$FWT_TEST_FILES"
      }
    }
  }
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
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    window = readWindow(kWindow);
    ASSERT_NE(window, nullptr);
    row = static_cast<SoRowDialog*>(window->searchForAuditorId("row"));
    panels = static_cast<SoDialogCheckBoxLauncher*>(window->searchForAuditorId("panels"));
    options = static_cast<SoDialogPushButtonLauncher*>(window->searchForAuditorId("options"));
    both = static_cast<SoMenuPushButtonLauncher*>(window->searchForAuditorId("both"));
    palette = static_cast<SoMenuCheckBoxLauncher*>(window->searchForAuditorId("palette"));
    open = static_cast<SoMenuFileSelection*>(window->searchForAuditorId("open"));
    ASSERT_TRUE(row && panels && options && both && palette && open);
    tools = static_cast<SoTopLevelDialog*>(panels->getChild(0));
    layers = static_cast<SoTopLevelDialog*>(panels->getChild(1));
    optionsDialog = static_cast<SoTopLevelDialog*>(options->getChild(0));
    first = static_cast<SoTopLevelDialog*>(both->getChild(0));
    second = static_cast<SoTopLevelDialog*>(both->getChild(1));
    paletteDialog = static_cast<SoTopLevelDialog*>(palette->getChild(0));
    window->addAuditor(&recorder);
    window->buildDialog(nullptr, 0);
    menu = menuBarOf(window)->actions()[0]->menu();
    ASSERT_EQ(menu->actions().size(), 3);
  }

  template <class Widget>
  static Widget* widgetOf(SoDialogComponent* node)
  {
    return node->getWidget()->findChild<Widget*>();
  }

  // Types a path into the file dialog's name field and presses its Open or
  // Save button.
  static void type(QFileDialog* dialog, const QString& path)
  {
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(name, nullptr);
    name->setText(path);
    auto* buttons = dialog->findChild<QDialogButtonBox*>("buttonBox");
    ASSERT_NE(buttons, nullptr);
    const bool opens = dialog->acceptMode() == QFileDialog::AcceptOpen;
    QPushButton* confirm = buttons->button(opens ? QDialogButtonBox::Open : QDialogButtonBox::Save);
    ASSERT_NE(confirm, nullptr);
    confirm->click();
  }

  // Triggers the file entry and lets `answer` deal with the dialog that it
  // opens, as soon as the dialog is on screen.
  std::string chooseFile(const std::function<void(QFileDialog*)>& answer)
  {
    QString seen;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      QFileDialog* dialog = nullptr;
      for (QWidget* candidate : QApplication::topLevelWidgets())
        if (candidate->isVisible() && qobject_cast<QFileDialog*>(candidate))
          dialog = static_cast<QFileDialog*>(candidate);
      if (!dialog)
        return;
      poll.stop();
      seen = dialog->windowTitle() + "|" + dialog->directory().absolutePath() + "|" +
             (dialog->acceptMode() == QFileDialog::AcceptOpen ? "open" : "save");
      answer(dialog);
    });
    poll.start(10);
    menu->actions()[2]->trigger();
    return seen.toStdString();
  }

  EventLog recorder;
  std::vector<std::string>& log = recorder.entries;
  SoTopLevelDialog* window = nullptr;
  SoRowDialog* row = nullptr;
  SoDialogCheckBoxLauncher* panels = nullptr;
  SoDialogPushButtonLauncher* options = nullptr;
  SoMenuPushButtonLauncher* both = nullptr;
  SoMenuCheckBoxLauncher* palette = nullptr;
  SoMenuFileSelection* open = nullptr;
  SoTopLevelDialog* tools = nullptr;
  SoTopLevelDialog* layers = nullptr;
  SoTopLevelDialog* optionsDialog = nullptr;
  SoTopLevelDialog* first = nullptr;
  SoTopLevelDialog* second = nullptr;
  SoTopLevelDialog* paletteDialog = nullptr;
  QMenu* menu = nullptr;
};

TEST_F(Launchers, pushButtonOpensItsDialogAfterTheAuditorsHeard)
{
  ASSERT_NE(optionsDialog->getBaseWidget(), nullptr) << "built with the button";
  EXPECT_FALSE(isShown(optionsDialog));
  EXPECT_EQ(optionsDialog->getParent(), options);

  recorder.watched = optionsDialog;
  QTest::mousePress(widgetOf<QPushButton>(options), Qt::LeftButton);
  EXPECT_EQ(log, std::vector<std::string>{"button:options::hidden"});
  EXPECT_TRUE(isShown(optionsDialog));

  QWidget* built = optionsDialog->getBaseWidget();
  optionsDialog->hide();
  optionsDialog->width = built->width() + 40;
  QTest::mouseRelease(widgetOf<QPushButton>(options), Qt::LeftButton);
  QTest::mousePress(widgetOf<QPushButton>(options), Qt::LeftButton);
  EXPECT_TRUE(isShown(optionsDialog));
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
  EXPECT_TRUE(isShown(tools));
  EXPECT_TRUE(isShown(layers));
  EXPECT_TRUE(log.empty()) << "a launcher read as checked is no click";

  recorder.watched = tools;
  QCheckBox* box = widgetOf<QCheckBox>(panels);
  QWidget* built = tools->getBaseWidget();
  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_FALSE(panels->state.getValue());
  EXPECT_EQ(log, std::vector<std::string>{"check:panels:FALSE:shown"}) << "hidden after the auditors ran";
  EXPECT_FALSE(isShown(tools));
  EXPECT_FALSE(isShown(layers));
  EXPECT_EQ(tools->getBaseWidget(), built);

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_TRUE(isShown(tools));
  EXPECT_TRUE(isShown(layers));
}

TEST_F(Launchers, applyAuditorsAndSearchWalkIntoTheLaunchersDialogs)
{
  EXPECT_EQ(window->searchForAuditorId("fast")->getParent(), optionsDialog);
  EXPECT_EQ(window->searchForAuditorId("layers"), layers);
  EXPECT_EQ(row->searchForAuditorId("run")->getParent(), tools);
  EXPECT_EQ(options->searchForAuditorId("options"), nullptr) << "the launcher itself is not compared";

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

TEST_F(Launchers, searchReachesTheMenusDialogsAndTheMenuPushButtonOpensThemAll)
{
  EXPECT_TRUE(window->searchForAuditorId("inFirst")->isOfType(SoDialogLabel::getClassTypeId()));
  EXPECT_EQ(window->searchForAuditorId("paletteDialog"), paletteDialog);
  EXPECT_EQ(both->searchForAuditorId("second"), second);

  EXPECT_EQ(first->getBaseWidget(), nullptr) << "nothing is built before the first choice";
  recorder.watched = first;
  menu->actions()[0]->trigger();
  EXPECT_EQ(log, std::vector<std::string>{"push:both::hidden"});
  EXPECT_TRUE(isShown(first));
  EXPECT_TRUE(isShown(second));
  EXPECT_EQ(first->getParent(), both);
}

TEST_F(Launchers, menuCheckBoxShowsAndHidesItsDialogAfterTheAuditors)
{
  recorder.watched = paletteDialog;
  menu->actions()[1]->trigger();
  EXPECT_TRUE(isShown(paletteDialog));
  EXPECT_TRUE(menu->actions()[1]->isChecked());
  menu->actions()[1]->trigger();
  EXPECT_FALSE(isShown(paletteDialog));
  EXPECT_EQ(log, (std::vector<std::string>{"menuCheck:palette:TRUE:hidden", "menuCheck:palette:FALSE:shown"}));
}

class FileSelection : public Launchers {
protected:
  void SetUp() override
  {
    ASSERT_TRUE(files.isValid());
    ASSERT_TRUE(QDir(files.path()).mkdir("scenes"));
    QFile scene(files.filePath("scenes/robot.scn"));
    ASSERT_TRUE(scene.open(QIODevice::WriteOnly));
    scene.close();
    SoPreferences::setString("FWT_TEST_FILES", files.path().toLocal8Bit().constData());
    Launchers::SetUp();
  }
  void TearDown() override { SoPreferences::unsetString("FWT_TEST_FILES"); }

  QTemporaryDir files;
};

TEST_F(FileSelection, chosenFileIsSplitIntoDirectoryAndName)
{
  const QString scenes = files.filePath("scenes");
  const std::string seen = chooseFile([&](QFileDialog* dialog) { type(dialog, scenes + "/robot.scn"); });
  EXPECT_EQ(seen, "Open a scene|" + QDir(files.path()).absolutePath().toStdString() + "|open")
    << "the variable is expanded";
  EXPECT_EQ(open->filename.getValue(), SbString("robot.scn"));
  EXPECT_EQ(open->fileDirectory.getValue(), SbString(scenes.toLocal8Bit().constData()));
  EXPECT_EQ(log, std::vector<std::string>{"file:open:" + scenes.toStdString() + "|robot.scn"})
    << "heard as a file selection and not as a push button";
}

TEST_F(FileSelection, cancelEmptiesTheNameAndIsHeardAndSaveModeAsksForANewFile)
{
  open->filename = "old.scn";
  chooseFile([](QFileDialog* dialog) { dialog->reject(); });
  EXPECT_EQ(open->filename.getValue(), SbString(""));
  EXPECT_EQ(open->fileDirectory.getValue(), SbString("$FWT_TEST_FILES"));
  EXPECT_EQ(log, std::vector<std::string>{"file:open:$FWT_TEST_FILES|"});

  open->mode = SoMenuFileSelection::SAVE;
  const std::string seen = chooseFile([&](QFileDialog* dialog) { type(dialog, files.filePath("new.scn")); });
  EXPECT_EQ(seen.substr(seen.size() - 5), "|save") << seen;
  EXPECT_EQ(open->filename.getValue(), SbString("new.scn"));
}

}
