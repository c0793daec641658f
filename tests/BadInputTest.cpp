// Dialog files come from users and from disk. Every row of the table below is
// a file that is wrong in one way: it is refused with the reader's message,
// or it opens, with the library's message where it had to mend a value, and
// renders in both forms. After each row the library still reads and builds a
// good file, and the dialog read before the row is untouched.

#include "TestSupport.h"

#include <SoDialogCheckBox.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <SoFormMode.h>

#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QWidget>

namespace {

const char* const kHeader = "#Inventor V2.1 ascii\n\n";
// Stands in a row's text for the path of the row's own file.
const std::string kOwnPath = "OWN_PATH";

// A file that reads but holds no dialog is kept as read; one refused by
// the reader is not kept.
enum class Outcome { Refused, HoldsNoDialog, Opens };

struct BadInput {
  const char* what;
  std::string body; // follows the header line unless `withHeader` is false
  Outcome outcome;
  // A text that exactly one message holds; empty when none may come.
  std::string message;
  bool withHeader = true;
};

std::string nested(int depth)
{
  std::string text;
  for (int i = 0; i < depth; ++i)
    text += "DialogGroup {\n";
  text += "DialogLabel { label \"bottom\" }\n";
  for (int i = 0; i < depth; ++i)
    text += "}\n";
  return "TopLevelDialog { auditorID \"deep\" " + text + "}\n";
}

std::string manyItems(int count)
{
  std::string items;
  for (int i = 0; i < count; ++i)
    items += (i ? ", \"item " : "\"item ") + std::to_string(i) + "\"";
  return "TopLevelDialog { DialogComboBox { label \"Many\" items [ " + items + " ] selectedItem 4999 } }\n";
}

std::string inWindow(const std::string& component)
{
  return "TopLevelDialog { auditorID \"row\" " + component + " }\n";
}

// Sizes may go as far as Qt takes them, margins and spacing as far as the
// unlimited size.
const std::string kOutside = "is outside 0 - 16777215";
const std::string kOutsideSpacing = "is outside 0 - 32767";

std::vector<BadInput> badInputs()
{
  return {
    // Files cut short or not of the format.
    {"an empty file", "", Outcome::Refused, "Not a valid Inventor file", false},
    {"a header and nothing more", "", Outcome::HoldsNoDialog, "Cannot find any Formwright component in Scenic file"},
    {"no header line", "TopLevelDialog { }\n", Outcome::Refused, "Not a valid Inventor file", false},
    {"cut inside a node", "TopLevelDialog { label \"Export\" DialogCheckBox { label", Outcome::Refused,
     "Premature end of file"},
    {"cut inside a string", "TopLevelDialog { label \"Exp", Outcome::Refused, "Missing terminating quote-character"},
    {"bytes that are no text", std::string("TopLevelDialog { \x01\x02\xff\xfe\x80 }\n"), Outcome::Refused,
     "Expected '}'"},
    // Names that nothing has; unknown nodes, fields and enumeration values
    // are among the checker's cases.
    {"an undefined USE name", "TopLevelDialog { USE nowhere }\n", Outcome::Refused, "Unknown reference \"nowhere\""},
    // Children of a type that the container does not take.
    {"a shape in a window", "TopLevelDialog { Cube { } }\n", Outcome::Refused, "Cube"},
    {"a window in a window", "TopLevelDialog { TopLevelDialog { } }\n", Outcome::Refused, "TopLevelDialog"},
    {"a menu bar in a row", "TopLevelDialog { RowDialog { MenuBar { } } }\n", Outcome::Refused, "MenuBar"},
    {"a menu entry in a tab dialog", "TopLevelDialog { TabDialog { MenuPushButton { } } }\n", Outcome::Refused,
     "MenuPushButton"},
    {"a message in a window", "TopLevelDialog { MessageDialog { } }\n", Outcome::Refused, "MessageDialog"},
    {"a label in a menu bar", "TopLevelDialog { MenuBar { DialogLabel { } } }\n", Outcome::Refused,
     "Type 'DialogLabel' is not derived from 'MenuPopup'"},
    {"a shape in a menu", "TopLevelDialog { MenuBar { MenuPopup { Cube { } } } }\n", Outcome::Refused,
     "Type 'Cube' is not derived from 'MenuItem'"},
    {"a menu entry in a launcher", "TopLevelDialog { DialogCheckBoxLauncher { MenuPushButton { } } }\n",
     Outcome::Refused, "Type 'MenuPushButton' is not derived from 'TopLevelDialog'"},
    // Kit parts given nodes of another type.
    {"a row as a column's top part", inWindow("ColumnDialog { topSeparator RowDialog { } }"), Outcome::Refused,
     "\"RowDialog\" cannot be the part \"topSeparator\" of \"ColumnDialog\""},
    {"a label as a label's part", inWindow("DialogLabel { geomSwitch DialogLabel { } }"), Outcome::Refused,
     "\"DialogLabel\" cannot be the part \"geomSwitch\" of \"DialogLabel\""},
    // Enumerations with names that they do not have.
    {"an unknown alignment", inWindow("DialogLabel { labelAlignment MIDDLE }"), Outcome::Refused,
     "Unknown enumeration value \"MIDDLE\""},
    {"an unknown tab place", inWindow("TabDialog { tabsLocation MIDDLE }"), Outcome::Refused,
     "Unknown enumeration value \"MIDDLE\""},
    {"a number for a boolean", inWindow("DialogCheckBox { state 7 }"), Outcome::Refused, "Illegal value"},
    // Values that read but make no sense: the dialog opens all the same.
    {"negative sizes", inWindow("DialogCheckBox { label \"a\" width -30 height -20 }"), Outcome::Opens,
     "width -30 " + kOutside},
    {"huge sizes", inWindow("DialogCheckBox { label \"a\" width 2000000000 height 2000000000 }"), Outcome::Opens,
     "width 2000000000 " + kOutside},
    {"a huge window", "TopLevelDialog { width 2000000000 height 2000000000 DialogLabel { } }\n", Outcome::Opens,
     "width 2000000000 " + kOutside},
    {"negative margins and spacing",
     "TopLevelDialog { margin -100 rowSpacing -100 DialogLabel { } DialogLabel { } }\n", Outcome::Opens,
     "margin -100 " + kOutsideSpacing},
    {"huge margins and spacing",
     "TopLevelDialog { margin 2000000000 rowSpacing 2000000000 DialogLabel { } DialogLabel { } }\n",
     Outcome::Opens, "margin 2000000000 " + kOutsideSpacing},
    {"a huge row margin", inWindow("RowDialog { margin 2000000000 DialogLabel { } }"), Outcome::Opens,
     "margin 2000000000 " + kOutsideSpacing},
    {"huge column spacing", inWindow("ColumnDialog { columnSpacing 2000000000 DialogLabel { } DialogLabel { } }"),
     Outcome::Opens, "columnSpacing 2000000000 " + kOutsideSpacing},
    {"the minimum above the maximum", inWindow("DialogLabel { minWidth 300 maxWidth 100 }"), Outcome::Opens, ""},
    {"five thousand items", manyItems(5000), Outcome::Opens, ""},
    {"a format of two conversions", inWindow("DialogIntegerSlider { format \"%d of %d\" value 3 }"), Outcome::Opens,
     "The format \"%d of %d\" is not a single numeric conversion of the value; \"%d\" is used"},
    {"labels in Greek and Chinese", inWindow("DialogCheckBox { label \"Ελληνικά 中文\" onString \"是\" }"),
     Outcome::Opens, ""},
    {"control characters in a label", inWindow("DialogLabel { label \"tab\\there\\x01\\b\\r\\nnext\" }"),
     Outcome::Opens, ""},
    {"two thousand nested groups", nested(2000), Outcome::Opens, ""},
    {"six thousand nested groups", nested(6000), Outcome::Refused, "Dialog containers are nested more than 5000 deep"},
    {"a file that includes itself", "Separator { File { name \"" + kOwnPath + "\" } }\n", Outcome::HoldsNoDialog,
     "Files include one another more than 32 deep"},
    {"a file that includes itself through a launcher",
     "TopLevelDialog { DialogPushButtonLauncher { File { name \"" + kOwnPath + "\" } } }\n", Outcome::Refused,
     "Files include one another more than 32 deep"},
    {"a row that holds itself", inWindow("DEF self RowDialog { USE self DialogLabel { label \"x\" } }"),
     Outcome::Opens, "The child holds this node already: a dialog cannot hold itself"},
    {"a group held again below itself",
     inWindow("DEF outer DialogGroup { ColumnDialog { USE outer } DialogLabel { } }"), Outcome::Opens,
     "The child holds this node already: a dialog cannot hold itself"},
  };
}

class BadInputs : public ::testing::Test {
protected:
  // A class's first build in the scene reads its skin; a missing skin file
  // would speak up in whichever row builds the class first.
  void SetUp() override { SoFormwright::setSkin(SbString(FORMWRIGHT_EXAMPLES "/../skins/default")); }

  std::string writeFile(const std::string& name, const std::string& text)
  {
    const std::string path = m_dir.filePath(QString::fromStdString(name)).toStdString();
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return path;
  }
  static SoFormwright* load(const std::string& path)
  {
    return SoFormwright::loadFromFile(SbString(path.c_str()), SbString(""));
  }

  QTemporaryDir m_dir;
};

// A dialog as the application shows it, then as it stands in the scene.
void openInBothForms(SoFormwright* node, const char* what)
{
  ASSERT_TRUE(node->isOfType(SoTopLevelDialog::getClassTypeId())) << what;
  auto* dialog = static_cast<SoTopLevelDialog*>(node);
  dialog->buildDialog(nullptr, 0);
  dialog->show();
  QWidget* window = dialog->getBaseWidget();
  ASSERT_NE(window, nullptr) << what;
  const QSize size = window->size();
  EXPECT_GE(size.width(), 0) << what;
  EXPECT_LE(size.width(), 16777215) << what;
  // The top left corner as the preview renders it.
  const QPixmap picture = window->grab(QRect(QPoint(0, 0), size.boundedTo(QSize(400, 400))));
  EXPECT_FALSE(picture.isNull()) << what;
  dialog->hide();
  dialog->destroyWidget();
  SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);
  EXPECT_TRUE(dialog->isBuilt3D()) << what;
}

TEST_F(BadInputs, eachIsRefusedOrOpensAndTheLibraryCarriesOn)
{
  const std::string keeperPath = writeFile(
    "keeper.scn", std::string(kHeader) + "TopLevelDialog { label \"Kept\" DialogCheckBox { label \"a\" } }\n");
  SoFormwright* keeper = load(keeperPath);
  ASSERT_NE(keeper, nullptr);

  const std::vector<BadInput> rows = badInputs();
  ASSERT_GE(rows.size(), 30u);
  int index = 0;
  for (const BadInput& row : rows) {
    SCOPED_TRACE(row.what);
    const std::string name = "bad" + std::to_string(index) + ".scn";
    std::string body = row.body;
    if (const size_t own = body.find(kOwnPath); own != std::string::npos)
      body.replace(own, kOwnPath.size(), m_dir.filePath(QString::fromStdString(name)).toStdString());
    const std::string path = writeFile(name, (row.withHeader ? kHeader : "") + body);
    {
      DebugMessages messages(true);
      SoFormwright* node = load(path);
      if (row.outcome != Outcome::Opens) {
        EXPECT_EQ(node, nullptr);
      } else {
        ASSERT_NE(node, nullptr) << messages.joined();
        openInBothForms(node, row.what);
      }
      if (row.message.empty())
        EXPECT_TRUE(messages.all().empty()) << messages.joined();
      else
        EXPECT_EQ(messages.countHolding(row.message), 1) << messages.joined();
    }

    // Still usable, and nothing read before is lost; a refused file, once
    // mended, reads anew.
    const std::string goodName = row.outcome == Outcome::Refused ? name : "good" + std::to_string(index) + ".scn";
    const std::string goodPath = writeFile(goodName, std::string(kHeader) + "TopLevelDialog { auditorID \"good\" "
                                                     "DialogCheckBox { label \"b\" state TRUE } }\n");
    SoFormwright* good = load(goodPath);
    ASSERT_NE(good, nullptr);
    openInBothForms(good, "the good file");
    EXPECT_EQ(load(keeperPath), keeper);
    EXPECT_EQ(keeper->label.getValue(), SbString("Kept"));
    ++index;
  }
}

TEST_F(BadInputs, mendedSpacingKeepsTheFileValueAndSizesComeOutDrawable)
{
  const std::string path = writeFile(
    "sizes.scn", std::string(kHeader) + "TopLevelDialog { width -640 margin 2000000000 "
                                        "DialogCheckBox { width -30 maxHeight 2000000000 } }\n");
  auto* dialog = static_cast<SoTopLevelDialog*>(load(path));
  ASSERT_NE(dialog, nullptr);
  {
    DebugMessages messages(true);
    dialog->buildDialog(nullptr, 0);
    dialog->buildDialog(nullptr, 0);
    // One message for each node, however often it is built.
    EXPECT_EQ(messages.countHolding("is outside 0 - "), 2) << messages.joined();
  }
  auto* box = static_cast<SoDialogCheckBox*>(dialog->getChild(0));
  EXPECT_GE(dialog->width.getValue(), 0);
  EXPECT_EQ(dialog->margin.getValue(), 2000000000);
  // The sizes are the live ones, written back by the negotiation: mended.
  EXPECT_GE(box->width.getValue(), 0);
  EXPECT_LE(box->maxHeight.getValue(), 16777215);
  // The window takes the nearest bounds: no margin beyond the unlimited
  // size, no negative width.
  const QSize size = dialog->getBaseWidget()->size();
  EXPECT_GE(size.width(), 0);
  EXPECT_LE(size.width(), 2 * 32767 + 32767);
  dialog->destroyWidget();
}

}
