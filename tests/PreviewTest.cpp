#include "TestSupport.h"

#include <SoTopLevelDialog.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

struct PreviewRun {
  int status;
  QString out;
  QString err;
};

// As on a machine with no display.
void startHeadless(QProcess& process, const QStringList& arguments)
{
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  environment.remove("QT_QPA_PLATFORM");
  process.setProcessEnvironment(environment);
  process.start(FORMWRIGHT_PREVIEW, arguments);
}

PreviewRun preview(const QStringList& arguments)
{
  QProcess process;
  startHeadless(process, arguments);
  EXPECT_TRUE(process.waitForFinished(30000));
  return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
          QString::fromLocal8Bit(process.readAllStandardError())};
}

const QString kExport = QString(FORMWRIGHT_EXAMPLES) + "/export.scn";

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

TEST(Preview, badInputGivesOneLineAndStatusOne)
{
  QTemporaryDir dir;
  const QString broken = dir.filePath("broken.scn");
  QFile file(broken);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("#Inventor V2.1 ascii\nTopLevelDialog { DialogLabel { label \"x\" }\n");
  file.close();

  for (const QStringList& arguments : {QStringList{dir.filePath("missing.scn")}, QStringList{broken},
                                        QStringList{kExport, "--id", "nothing"}}) {
    const PreviewRun run = preview(arguments);
    EXPECT_EQ(run.status, 1) << arguments.join(' ').toStdString();
    EXPECT_EQ(run.err.split('\n').filter("formwright-preview:").size(), 1) << run.err.toStdString();
  }
}

}
