// The dialog-file checker, run as a user runs it, on one file per kind of
// fault. Line numbers count the header line as 1 and its blank line as 2.

#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace {

struct CheckedFile {
  const char* what;
  std::string body; // follows the header line and one blank line
  int status;
  // Each line of the output: its start after "FILE:", and a text it holds.
  std::vector<std::pair<std::string, std::string>> lines;
};

std::vector<CheckedFile> checkedFiles()
{
  return {
    {"a clean dialog", "TopLevelDialog {\n  auditorID \"d\"\n  DialogCheckBox { auditorID \"c\" }\n"
                       "  DialogLabel { label \"no auditor needed\" }\n}\n", 0, {}},
    {"a syntax error", "TopLevelDialog {\n  DialogLabel { label \"a\" }\n  DialogLabel { label 7 7 }\n}\n", 1,
     {{"5: ", ""}}},
    {"an unknown node", "TopLevelDialog {\n\n  DialogKnob { }\n}\n", 1, {{"5: ", "DialogKnob"}}},
    {"an unknown field of a control", "TopLevelDialog {\n  DialogCheckBox {\n    colour 3\n  }\n}\n", 1,
     {{"5: ", "Unknown field \"colour\" in \"DialogCheckBox\""}}},
    {"an unknown field of a container, its value on the next line",
     "TopLevelDialog {\n  RowDialog {\n    rowSpcing\n      4\n    DialogLabel { }\n  }\n}\n", 1,
     {{"5: ", "Unknown field \"rowSpcing\" in \"RowDialog\""}}},
    {"an unknown field of a window", "TopLevelDialog {\n  labl \"x\"\n}\n", 1,
     {{"4: ", "Unknown field \"labl\" in \"TopLevelDialog\""}}},
    {"a child that a group cannot hold", "TopLevelDialog {\n  DialogGroup {\n    Sphere { }\n  }\n}\n", 1,
     {{"5: ", "Sphere"}}},
    {"an unknown enumeration value", "TopLevelDialog {\n  DialogGroup { edgeStyle GROOVE }\n}\n", 1,
     {{"4: ", "GROOVE"}}},
    {"an auditorID twice in one dialog",
     "TopLevelDialog {\n  DialogPushButton { auditorID \"go\" }\n  ColumnDialog {\n"
     "    DialogPushButton { buttonLabel \"{\" auditorID \"go\" }\n  }\n}\n",
     1, {{"6: ", "\"go\""}}},
    {"one auditorID in a dialog and in the dialog it launches",
     "TopLevelDialog {\n  DialogPushButtonLauncher {\n    auditorID \"more\"\n"
     "    TopLevelDialog { DialogPushButton { auditorID \"more\" } }\n  }\n}\n",
     0, {}},
    {"controls without an auditorID",
     "TopLevelDialog {\n  MenuBar { MenuPopup {\n    MenuPushButton { label \"Quit\" }\n  } }\n"
     "  # DialogEditText { }\n  DialogEditText { }\n}\n",
     0, {{"5: warning: ", "MenuPushButton"}, {"8: warning: ", "DialogEditText"}}},
  };
}

TEST(Checker, tellsEachFaultOnItsLine)
{
  QTemporaryDir dir;
  for (const CheckedFile& row : checkedFiles()) {
    SCOPED_TRACE(row.what);
    const std::string path = dir.filePath("dialog.scn").toStdString();
    std::ofstream(path) << "#Inventor V2.1 ascii\n\n" << row.body;
    QProcess process;
    process.start(FORMWRIGHT_CHECK, {QString::fromStdString(path)});
    ASSERT_TRUE(process.waitForFinished(30000));
    EXPECT_EQ(process.exitCode(), row.status);
    const QStringList output =
      QString::fromLocal8Bit(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(output.size(), static_cast<int>(row.lines.size())) << output.join('\n').toStdString();
    for (size_t i = 0; i < row.lines.size(); ++i) {
      const std::string line = output[static_cast<int>(i)].toStdString();
      EXPECT_EQ(line.rfind(path + ":" + row.lines[i].first, 0), 0u) << line;
      EXPECT_NE(line.find(row.lines[i].second), std::string::npos) << line;
    }
  }
}

}
