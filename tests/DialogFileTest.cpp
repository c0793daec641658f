#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogCheckBox.h>
#include <SoDialogEditText.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoMenuBar.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/misc/SoChildList.h>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char* const kHeader = "#Inventor V2.1 ascii\n\n";

const char* const kExportDialog = R"(
TopLevelDialog {
  label "Export"
  auditorID "exportDialog"
  position 100 80
  margin 5
  rowSpacing 4
  MenuBar { }
  DialogEditText { label "Name:" auditorID "name" labelAlignment CENTER enable FALSE }
  ColumnDialog {
    columnSpacing 6
    edgeStyle SHADOW_IN
    DialogCheckBox { label "Binary" auditorID "binary" state TRUE }
    DialogPushButton { label "Go" auditorID "go" }
  }
}
)";

// Lets tests take a node out of the file cache as the toolkit does when the
// last reference goes.
struct CacheAccess : SoFormwright {
  using SoFormwright::destroyByRef;
};

class DialogFiles : public ::testing::Test {
protected:
  std::string writeFile(const std::string& name, const std::string& body)
  {
    const std::string path = m_dir.filePath(QString::fromStdString(name)).toStdString();
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write((kHeader + body).c_str());
    return path;
  }

  static SoFormwright* load(const std::string& path, const char* id)
  {
    return SoFormwright::loadFromFile(SbString(path.c_str()), SbString(id));
  }

  QTemporaryDir m_dir;
};

TEST_F(DialogFiles, dialogIsReadOnceAndFoundByIdentifier)
{
  const std::string path = writeFile("export.scn", kExportDialog);
  SoFormwright* found = load(path, "exportDialog");
  ASSERT_NE(found, nullptr);
  ASSERT_TRUE(found->isOfType(SoTopLevelDialog::getClassTypeId()));
  auto* dialog = static_cast<SoTopLevelDialog*>(found);
  EXPECT_EQ(dialog->label.getValue(), SbString("Export"));
  EXPECT_EQ(dialog->position.getValue(), SbVec2i32(100, 80));
  ASSERT_EQ(dialog->getNumChildren(), 3);
  EXPECT_TRUE(dialog->getChild(0)->isOfType(SoMenuBar::getClassTypeId()));
  EXPECT_EQ(static_cast<SoDialogEditText*>(dialog->getChild(1))->labelAlignment.getValue(), SoFormwright::CENTER);
  auto* column = static_cast<SoColumnDialog*>(dialog->getChild(2));
  ASSERT_EQ(column->getNumChildren(), 2);
  EXPECT_TRUE(static_cast<SoDialogCheckBox*>(column->getChild(0))->state.getValue());
  EXPECT_EQ(static_cast<SoFormwright*>(column->getChild(1))->getParent(), column);
  EXPECT_EQ(column->getParent(), dialog);

  // The cache answers from memory: the file is gone, the node is the same.
  ASSERT_TRUE(QFile::remove(QString::fromStdString(path)));
  EXPECT_EQ(load(path, "exportDialog"), found);
  // Keys are the raw names: another spelling of the same path is another file.
  DebugMessages messages;
  EXPECT_EQ(load(m_dir.path().toStdString() + "/./export.scn", "exportDialog"), nullptr);
}

TEST_F(DialogFiles, lookupWalksTopLevelNodesOnly)
{
  const std::string path = writeFile("several.scn", R"(
Separator { }
TopLevelDialog { auditorID "first" DialogLabel { auditorID "nested" } }
TopLevelDialog { auditorID "twice" label "A" }
TopLevelDialog { auditorID "twice" label "B" }
)");
  EXPECT_EQ(load(path, "")->auditorID.getValue(), SbString("first"));
  EXPECT_EQ(load(path, "twice")->label.getValue(), SbString("A"));

  DebugMessages messages;
  EXPECT_EQ(load(path, "nested"), nullptr);
  ASSERT_EQ(messages.count(), 1u);
  EXPECT_TRUE(messages.contains("SoFormwright::loadFromFile"));
  EXPECT_TRUE(messages.contains("Cannot find any Formwright component with auditorID = \"nested\" in Scenic file \"" +
                                path + "\"."));

  const std::string empty = writeFile("empty.scn", "Separator { }\n");
  EXPECT_EQ(load(empty, ""), nullptr);
  EXPECT_TRUE(messages.contains("Cannot find any Formwright component in Scenic file \"" + empty + "\"."));
  // A file in which nothing was found stays cached all the same.
  ASSERT_TRUE(QFile::remove(QString::fromStdString(empty)));
  EXPECT_EQ(load(empty, ""), nullptr);
  EXPECT_EQ(messages.count(), 3u);
  EXPECT_EQ(load(m_dir.path().toStdString() + "/missing.scn", ""), nullptr);
}

TEST_F(DialogFiles, releasedEntriesAreReadAgain)
{
  const std::string path = writeFile("released.scn", "TopLevelDialog { label \"old\" }\n");
  SoFormwright* old = load(path, "");
  ASSERT_NE(old, nullptr);
  writeFile("released.scn", "TopLevelDialog { label \"new\" }\n");
  EXPECT_EQ(load(path, "")->label.getValue(), SbString("old"));
  CacheAccess::destroyByRef(old);
  EXPECT_EQ(load(path, "")->label.getValue(), SbString("new"));

  // Ending the library empties the cache.
  writeFile("released.scn", "TopLevelDialog { label \"after restart\" }\n");
  SoFormwright::finish();
  SoFormwright::init();
  EXPECT_EQ(load(path, "")->label.getValue(), SbString("after restart"));
}

template <class What>
std::string writeToText(What* what, bool binary = false)
{
  SoOutput output;
  output.setBinary(binary);
  output.setBuffer(malloc(1024), 1024, realloc);
  SoWriteAction writer(&output);
  writer.apply(what);
  void* buffer = nullptr;
  size_t size = 0;
  output.getBuffer(buffer, size);
  std::string text(static_cast<const char*>(buffer), size);
  free(buffer);
  return text;
}

// A dialog file is written from its root, as an application saves it.
TEST(DialogFileWriting, writtenDialogReadsBackTheSameInTextAndBinary)
{
  SoSeparator* original = readScene(std::string(kHeader) + kExportDialog);
  ASSERT_NE(original, nullptr);
  const std::string text = writeToText(original);
  EXPECT_EQ(text.find("geomSwitch"), std::string::npos) << "kit parts are not part of a dialog file";
  EXPECT_EQ(text.find("topSeparator"), std::string::npos);
  EXPECT_EQ(text.find("width"), std::string::npos) << "a size left to be computed is not written";
  EXPECT_NE(text.find("DialogPushButton"), std::string::npos) << text;
  EXPECT_NE(text.find("columnSpacing 6"), std::string::npos);

  SoSeparator* fromText = readScene(text);
  SoSeparator* fromBinary = readScene(writeToText(original, true));
  ASSERT_TRUE(fromText && fromBinary);
  EXPECT_EQ(writeToText(fromText), text);
  EXPECT_EQ(writeToText(fromBinary), text);
}

// A part given in the file takes its place in the kit, below the parts that
// hold it; parts the file leaves alone stay as made.
TEST(DialogFileWriting, partGivenInTheFileTakesItsPlaceInTheKit)
{
  SoSeparator* root = readScene(std::string(kHeader) +
                                "DialogLabel { label \"a\" edgeStyleNone DEF MinePart Group { } }\n");
  ASSERT_NE(root, nullptr);
  auto* label = static_cast<SoDialogLabel*>(root->getChild(0));
  SoNode* mine = SoNode::getByName("MinePart");
  ASSERT_NE(mine, nullptr);
  EXPECT_EQ(label->getPart("edgeStyleNone", FALSE), mine) << "found through the parts that hold it";
  EXPECT_EQ(label->getPart("edgeStyleShadowIn", FALSE), nullptr);
  EXPECT_EQ(label->getChildren()->getLength(), 1) << "the kit's own top part";
}

TEST(DialogFileWriting, writingPartOfAPathStopsAtThePathsChild)
{
  SoSeparator* root = readScene(std::string(kHeader) +
                                "DialogGroup { DialogLabel { label \"a\" } DialogLabel { label \"b\" } "
                                "DialogLabel { label \"c\" } }\n");
  ASSERT_NE(root, nullptr);
  SoPath* path = new SoPath(root->getChild(0));
  path->ref();
  path->append(1);
  const std::string text = writeToText(path);
  EXPECT_NE(text.find("\"b\""), std::string::npos);
  EXPECT_EQ(text.find("\"c\""), std::string::npos);
  path->unref();
}

// Each kind of container keeps its margin clear of its children, and a dialog
// built, written and read back comes out at the size it had. The labels are
// given 80 x 30 and may grow, so that room handed out twice shows.
TEST(DialogFileWriting, builtContainersKeepTheirMarginAndSizeThroughRoundTrips)
{
  const std::string one = "DialogLabel { label \"a\" width 80 height 30 } ", two = one + one;
  const std::pair<std::string, SbVec2i32> kinds[] = {
    // The margins, the frame's 6 or the tabs' (10, 33), and the labels.
    {"margin 4 " + two, SbVec2i32(8 + 80, 8 + 60)},
    {"RowDialog { margin 4 " + two + "}", SbVec2i32(8 + 6 + 80, 8 + 6 + 60)},
    {"RowDialog { margin 4 edgeStyle SHADOW_IN " + two + "}", SbVec2i32(8 + 6 + 80, 8 + 6 + 60)},
    {"ColumnDialog { margin 4 " + two + "}", SbVec2i32(8 + 6 + 160, 8 + 6 + 30)},
    {"ColumnDialog { margin 4 edgeStyle SHADOW_OUT " + two + "}", SbVec2i32(8 + 6 + 160, 8 + 6 + 30)},
    {"TabDialog { margin 4 " + one + "}", SbVec2i32(8 + 10 + 80, 8 + 33 + 30)},
  };
  for (const auto& [children, size] : kinds) {
    std::string text = std::string(kHeader) + "TopLevelDialog { " + children + "}";
    for (int round = 0; round < 3; ++round) {
      SoSeparator* root = readScene(text);
      auto* window = static_cast<SoTopLevelDialog*>(root->getChild(0));
      window->buildDialog(nullptr, 0);
      window->show();
      ASSERT_TRUE(QTest::qWaitForWindowExposed(window->getBaseWidget()));
      EXPECT_EQ(SbVec2i32(window->width.getValue(), window->height.getValue()), size) << children << round;
      auto* group = dynamic_cast<SoDialogGroup*>(window->getChild(0));
      QWidget* label = static_cast<SoDialogComponent*>(group ? group->getChild(0) : window->getChild(0))->getWidget();
      EXPECT_TRUE(label->parentWidget()->rect().marginsRemoved(QMargins(4, 4, 4, 4)).contains(label->geometry()))
        << children;
      text = writeToText(root);
      window->hide();
    }
  }
}

}
