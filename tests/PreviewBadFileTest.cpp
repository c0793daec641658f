// The preview, given a bad file, ends by itself: 0 when it rendered the
// dialog, 1 with one line when it refused the file; never by a signal and
// never by hanging.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct PreviewCase {
  const char* what;
  std::string text;
  int status;
};

std::string deepGroups(int depth)
{
  std::string text = "#Inventor V2.1 ascii\nTopLevelDialog {\n";
  for (int i = 0; i < depth; ++i)
    text += "RowDialog {\n";
  text += "DialogLabel { label \"bottom\" }\n";
  for (int i = 0; i < depth; ++i)
    text += "}\n";
  return text + "}\n";
}

TEST(PreviewOnBadFiles, endsWithZeroOrOneAndOneLineWhenItRefuses)
{
  const std::vector<PreviewCase> cases = {
    {"negative sizes", "#Inventor V2.1 ascii\nTopLevelDialog { width -50 DialogCheckBox { width -30 minWidth -5 } }\n",
     0},
    {"huge sizes", "#Inventor V2.1 ascii\nTopLevelDialog { width 2000000000 height 2000000000 DialogLabel { } }\n",
     0},
    {"huge margins", "#Inventor V2.1 ascii\nTopLevelDialog { margin 2000000000 rowSpacing 2000000000 DialogLabel { } }\n",
     0},
    {"five hundred nested rows", deepGroups(500), 0},
    {"no dialog in it", "#Inventor V2.1 ascii\nSeparator { Cube { } }\n", 1},
    {"not the format", "\x7f" "ELF\x02\x01\x01 binary bytes", 1},
    {"cut short", "#Inventor V2.1 ascii\nTopLevelDialog { DialogLabel { label \"", 1},
    {"empty", "", 1},
  };
  QTemporaryDir dir;
  for (const PreviewCase& each : cases) {
    SCOPED_TRACE(each.what);
    const QString file = dir.filePath("case.scn");
    const QString png = dir.filePath("case.png");
    QFile::remove(png);
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
    out.write(each.text.data(), static_cast<qint64>(each.text.size()));
    out.close();

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.start(FORMWRIGHT_PREVIEW, {file, "--screenshot", png});
    const bool finished = process.waitForFinished(60000);
    if (!finished)
      process.kill();
    ASSERT_TRUE(finished) << "the preview hung";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "the preview ended by a signal";
    EXPECT_EQ(process.exitCode(), each.status);
    const QString err = QString::fromLocal8Bit(process.readAllStandardError());
    if (each.status == 0) {
      EXPECT_FALSE(QImage(png).isNull());
    } else {
      const QStringList ownLines = err.split('\n').filter("formwright-preview:");
      EXPECT_EQ(ownLines.size(), 1) << err.toStdString();
    }
  }
}

}
