#include "SceneTestSupport.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <set>

namespace {

struct PreviewRun {
  int status;
  QString out;
  QString err;
};

// As on a machine with no display, unless `program` brings one.
void startHeadless(QProcess& process, const QStringList& arguments, const QString& program = FORMWRIGHT_PREVIEW)
{
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  environment.remove("QT_QPA_PLATFORM");
  process.setProcessEnvironment(environment);
  process.start(program, arguments);
}

PreviewRun preview(const QStringList& arguments)
{
  QProcess process;
  startHeadless(process, arguments);
  EXPECT_TRUE(process.waitForFinished(30000));
  // A crash counts as -1, which no case expects.
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          QString::fromLocal8Bit(process.readAllStandardOutput()),
          QString::fromLocal8Bit(process.readAllStandardError())};
}

const QString kExport = QString(FORMWRIGHT_EXAMPLES) + "/export.scn";

void writeFile(const QString& path, const QByteArray& text)
{
  QFile out(path);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
  out.write(text);
}

TEST(Preview, everyExampleRendersAtTheSizeOfItsNegotiatedDialog)
{
  QTemporaryDir dir;
  const QStringList examples = QDir(FORMWRIGHT_EXAMPLES).entryList({"*.scn"}, QDir::Files);
  ASSERT_FALSE(examples.isEmpty());
  for (const QString& example : examples) {
    const QString png = dir.filePath(example + ".png");
    const PreviewRun run = preview({QDir(FORMWRIGHT_EXAMPLES).filePath(example), "--screenshot", png});
    EXPECT_EQ(run.status, 0) << example.toStdString() << ": " << run.err.toStdString();
    EXPECT_FALSE(QImage(png).isNull()) << example.toStdString();
  }

  auto* dialog = static_cast<SoTopLevelDialog*>(
    SoFormwright::loadFromFile(SbString(kExport.toLocal8Bit().constData()), "exportDialog"));
  ASSERT_NE(dialog, nullptr);
  dialog->buildDialog(nullptr, 0);
  EXPECT_EQ(QImage(dir.filePath("export.scn.png")).size(), dialog->getBaseWidget()->size());

  // Without a file the built-in dialog is drawn into the working directory.
  QProcess process;
  process.setWorkingDirectory(dir.path());
  startHeadless(process, {});
  ASSERT_TRUE(process.waitForFinished(30000));
  EXPECT_EQ(process.exitCode(), 0);
  EXPECT_FALSE(QImage(dir.filePath("formwright-preview.png")).isNull());
}

// Clicks are made without a display too, where the scene is not drawn: the
// user's actions print as in the 2D form.
TEST(Preview, aClickInTheSceneWorksTheControlUnderItAndPrintsItsLine)
{
  QTemporaryDir dir;
  const QString file = dir.filePath("box.scn");
  writeFile(file, "#Inventor V2.1 ascii\nTopLevelDialog { margin 5\n"
                 "DialogCheckBox { auditorID \"binary\" width 100 height 30 minWidth 100 minHeight 30 } }\n");
  // The plate starts 10 units in, at 2 pixels a unit; the box's frame
  // starts 4 + 5 units right of its edge and 23 + 5 below its top.
  const QString middle = QString("%1,%2").arg(2 * (10 + 4 + 5 + 50)).arg(2 * (10 + 23 + 5 + 15));
  const PreviewRun run = preview({file, "--3d", "--click", middle, "--click", middle});
  EXPECT_EQ(run.status, 0) << run.err.toStdString();
  EXPECT_EQ(run.out, "DialogCheckBox \"binary\": TRUE\nDialogCheckBox \"binary\": FALSE\n");

  // A page chosen in the scene reaches no auditor, yet prints as in the 2D
  // form. Tabs with one-letter titles are 39 wide; the strip starts 4 + 3
  // units in from the plate's edge, its middle 23 + 13 below its top.
  writeFile(file, "#Inventor V2.1 ascii\nTopLevelDialog { margin 0 width 300 TabDialog { auditorID \"pages\"\n"
                 "DialogLabel { label \"A\" } DialogLabel { label \"B\" } } }\n");
  const QString secondTab = QString("%1,%2").arg(2 * (10 + 7 + 39 + 19)).arg(2 * (10 + 36));
  const PreviewRun tabs = preview({file, "--3d", "--click", secondTab, "--click", secondTab});
  EXPECT_EQ(tabs.status, 0) << tabs.err.toStdString();
  EXPECT_EQ(tabs.out, "TabDialog \"pages\": 1\n");
}

// Given a bad file the preview ends by itself: 0 when it rendered the dialog,
// 1 with one line of its own when it refused; never by a signal or a hang.
// What the library makes of each kind of bad file is tested on its own.
TEST(Preview, badFilesEndWithZeroOrOneAndOneLineWhenRefused)
{
  QTemporaryDir dir;
  const QString file = dir.filePath("case.scn");
  const QString png = dir.filePath("case.png");
  const QStringList shot{file, "--screenshot", png};
  const struct {
    const char* what;
    QByteArray text;
    QStringList arguments;
    int status;
  } cases[] = {
    {"negative sizes", "#Inventor V2.1 ascii\nTopLevelDialog { width -50 DialogCheckBox { width -30 minWidth -5 } }\n",
     shot, 0},
    {"a file that includes itself", "#Inventor V2.1 ascii\nSeparator { File { name \"" + file.toUtf8() + "\" } }\n",
     shot, 1},
    {"not the format", "\x7f" "ELF\x02\x01\x01 binary bytes", shot, 1},
    {"a missing file", "", {dir.filePath("missing.scn")}, 1},
    {"an identifier that names nothing", "", {kExport, "--id", "nothing"}, 1},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    QFile::remove(png);
    writeFile(file, each.text);
    const PreviewRun run = preview(each.arguments);
    EXPECT_EQ(run.status, each.status);
    if (each.status == 0)
      EXPECT_FALSE(QImage(png).isNull());
    else
      EXPECT_EQ(run.err.split('\n').filter("formwright-preview:").size(), 1) << run.err.toStdString();
  }
}

// Menu entries and the dialogs that launchers open are part of the tree.
TEST(Preview, listShowsEveryAuditorIdOfTheFileOrOfOneDialog)
{
  QTemporaryDir dir;
  const QString file = dir.filePath("menus.scn");
  writeFile(file, R"(#Inventor V2.1 ascii
TopLevelDialog { auditorID "main" MenuBar { auditorID "bar" MenuPopup { auditorID "file"
  MenuPushButtonLauncher { auditorID "about" TopLevelDialog { auditorID "aboutDialog" } } } }
  DialogCheckBoxLauncher { auditorID "more" TopLevelDialog { DialogCheckBox { auditorID "extra" } } } }
TopLevelDialog { auditorID "second" DialogLabel { auditorID "note" } })");
  const QString second = "TopLevelDialog \"second\"\n  DialogLabel \"note\"\n";
  EXPECT_EQ(preview({file, "--list"}).out, "TopLevelDialog \"main\"\n  MenuBar \"bar\"\n    MenuPopup \"file\"\n"
                                           "      MenuPushButtonLauncher \"about\"\n        TopLevelDialog \"aboutDialog\"\n"
                                           "  DialogCheckBoxLauncher \"more\"\n    TopLevelDialog \"\"\n"
                                           "      DialogCheckBox \"extra\"\n" + second);
  EXPECT_EQ(preview({file, "--list", "--id", "second"}).out, second);
}

// Each save is seen once, whether the editor renames a new file onto the
// old or writes it over; a save that does not read leaves the dialog shown.
TEST(Preview, aWatchedFileIsReadAgainAtEachSaveInBothForms)
{
  const auto save = [](const QString& path, const char* control) {
    QSaveFile out(path);
    return out.open(QIODevice::WriteOnly) &&
           out.write(QByteArray("#Inventor V2.1 ascii\nTopLevelDialog { ") + control + " { } }\n") > 0 && out.commit();
  };
  for (const QStringList& form : {QStringList(), QStringList{"--3d"}}) {
    SCOPED_TRACE(form.join(' ').toStdString());
    QTemporaryDir dir;
    const QString file = dir.filePath("watched.scn");
    const QString reloaded = "reloaded " + file + "\n";
    ASSERT_TRUE(save(file, "DialogCheckBox"));
    QProcess process;
    startHeadless(process, QStringList{file, "--watch"} + form);
    QString out[2];
    const auto waitFor = [&](QProcess::ProcessChannel channel, const QString& text, int saves) {
      process.setReadChannel(channel);
      for (int second = 0; second < 20 && !out[channel].contains(text); ++second) {
        if (saves-- > 0)
          save(file, "DialogPushButton");
        process.waitForReadyRead(1000);
        out[channel] += QString::fromLocal8Bit(process.readAll());
      }
      return out[channel].contains(text);
    };
    // The watch starts once the dialog is up: saved again until it is seen.
    ASSERT_TRUE(waitFor(QProcess::StandardOutput, reloaded, 20));
    writeFile(file, "#Inventor V2.1 ascii\nTopLevelDialog { DialogCheckBox {");
    ASSERT_TRUE(waitFor(QProcess::StandardError, "formwright-preview:", 0));
    ASSERT_TRUE(save(file, "DialogLabel"));
    EXPECT_TRUE(waitFor(QProcess::StandardOutput, reloaded + reloaded, 0));
    process.kill();
    process.waitForFinished();
    EXPECT_EQ(out[0] + process.readAllStandardOutput(), reloaded + reloaded);
  }
}

// The preview's scene form, drawn by OpenGL: run under a virtual display, as
// on a machine without one.

bool nearlyBlack(QRgb pixel)
{
  return qRed(pixel) < 30 && qGreen(pixel) < 30 && qBlue(pixel) < 30;
}

TEST(PreviewScene, aDialogStandsInTheSceneWithItsPlateItsTitleAndItsChildren)
{
  const QString virtualDisplay = QStandardPaths::findExecutable("xvfb-run");
  if (virtualDisplay.isEmpty())
    GTEST_SKIP() << "xvfb-run is not installed";
  QTemporaryDir dir;
  const QString png = dir.filePath("scene.png");
  QProcess process;
  startHeadless(process, {"-a", FORMWRIGHT_PREVIEW, "--3d", "--screenshot", png,
                          QDir(FORMWRIGHT_EXAMPLES).filePath("nested.scn")}, virtualDisplay);
  ASSERT_TRUE(process.waitForFinished(60000));
  ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();

  const QImage image(png);
  ASSERT_FALSE(image.isNull());
  // Two pixels a unit, with 10 units of scene round the plate.
  DebugMessages quiet; // of the skin files, which the tests do without
  auto* dialog = static_cast<SoTopLevelDialog*>(SoFormwright::loadFromFile(
    SbString(QDir(FORMWRIGHT_EXAMPLES).filePath("nested.scn").toLocal8Bit().constData()), "render"));
  ASSERT_NE(dialog, nullptr);
  buildInScene(dialog);
  const SbVec3f plate = dialog->getTopLevelSize();
  EXPECT_EQ(image.size(), QSize(2 * (static_cast<int>(plate[0]) + 20), 2 * (static_cast<int>(plate[1]) + 20)));
  // The scene around the dialog is all one colour.
  const QRgb background = image.pixel(0, 0);
  int left = 0;
  while (left < image.width() && image.pixel(left, image.height() / 2) == background)
    ++left;
  EXPECT_NEAR(left, 20, 1) << "the plate's edge";
  EXPECT_EQ(image.pixel(image.width() - 1, 0), background);
  EXPECT_EQ(image.pixel(0, image.height() - 1), background);
  EXPECT_EQ(image.pixel(image.width() - 1, image.height() - 1), background);
  // The dialog fills the middle: the plate and the frames of its children
  // differ from the scene and from each other.
  std::set<QRgb> middle;
  for (int y = image.height() / 4; y < 3 * image.height() / 4; ++y)
    middle.insert(image.pixel(image.width() / 2, y));
  EXPECT_EQ(middle.count(background), 0u);
  EXPECT_GE(middle.size(), 3u);
  // The title is black type on the plate, in the upper part of the image.
  int type = 0;
  for (int y = 0; y < image.height() / 2; ++y)
    for (int x = 0; x < image.width(); ++x)
      type += nearlyBlack(image.pixel(x, y)) ? 1 : 0;
  EXPECT_GT(type, 20) << "no title drawn";
  EXPECT_FALSE(nearlyBlack(background));
}

}
