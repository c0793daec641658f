#include "TestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogCheckBox.h>
#include <SoDialogEditText.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoMenuBar.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SoOutput.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/actions/SoWriteAction.h>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

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
  DialogEditText { label "Name:" auditorID "name" }
  ColumnDialog {
    columnSpacing 6
    DialogCheckBox { label "Binary" auditorID "binary" }
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
  std::string writeFile(const std::string& name, const std::string& body, bool withHeader = true)
  {
    const std::string path = m_dir.filePath(QString::fromStdString(name)).toStdString();
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(((withHeader ? std::string(kHeader) : std::string()) + body).c_str());
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
  EXPECT_EQ(dialog->margin.getValue(), 5);
  ASSERT_EQ(dialog->getNumChildren(), 3);
  EXPECT_TRUE(dialog->getChild(0)->isOfType(SoMenuBar::getClassTypeId()));
  EXPECT_TRUE(dialog->getChild(1)->isOfType(SoDialogEditText::getClassTypeId()));
  auto* column = static_cast<SoColumnDialog*>(dialog->getChild(2));
  EXPECT_EQ(column->columnSpacing.getValue(), 6);
  ASSERT_EQ(column->getNumChildren(), 2);
  EXPECT_EQ(static_cast<SoFormwright*>(column->getChild(1))->auditorID.getValue(), SbString("go"));
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
  SoFormwright* first = load(path, "");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->auditorID.getValue(), SbString("first"));
  SoFormwright* twice = load(path, "twice");
  ASSERT_NE(twice, nullptr);
  EXPECT_EQ(twice->label.getValue(), SbString("A"));

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
  EXPECT_FALSE(messages.contains("Cannot open file"));
}

TEST_F(DialogFiles, releasedEntriesAreReadAgain)
{
  const std::string path = writeFile("released.scn", "TopLevelDialog { label \"old\" }\n");
  SoFormwright* old = load(path, "");
  ASSERT_NE(old, nullptr);
  writeFile("released.scn", "TopLevelDialog { label \"new\" }\n");
  EXPECT_EQ(load(path, "")->label.getValue(), SbString("old"));

  CacheAccess::destroyByRef(old);
  SoFormwright* fresh = load(path, "");
  ASSERT_NE(fresh, nullptr);
  EXPECT_EQ(fresh->label.getValue(), SbString("new"));

  // Ending the library empties the cache.
  writeFile("released.scn", "TopLevelDialog { label \"after restart\" }\n");
  SoFormwright::finish();
  SoFormwright::init();
  SoFormwright* restarted = load(path, "");
  ASSERT_NE(restarted, nullptr);
  EXPECT_EQ(restarted->label.getValue(), SbString("after restart"));
}

TEST_F(DialogFiles, malformedFilesFailCleanlyAndAreNotCached)
{
  const char* const malformed[] = {
    "TopLevelDialog { label \"unclosed\" \n",
    "TopLevelDialog { Cube { } }\n",
    "TopLevelDialog { DialogGroup { MenuBar { } } }\n",
    "TopLevelDialog { TopLevelDialog { } }\n",
    "TopLevelDialog { DialogGroup { bogusField 3 } }\n",
    "TopLevelDialog { vScrollVisibility SOMETIMES }\n",
    "TopLevelDialog { width \"wide\" }\n",
    "TopLevelDialog { DialogFrobnicator { } }\n",
    "TopLevelDialog { position 10 }\n",
    "RowDialog { DialogLabel { label \"a } }\n",
    "ColumnDialog { DialogLabel { } DialogGroup { DialogLabel { label } } }\n",
  };
  int index = 0;
  for (const char* text : malformed) {
    const std::string name = "bad" + std::to_string(index++) + ".scn";
    const std::string path = writeFile(name, text);
    {
      DebugMessages messages;
      EXPECT_EQ(load(path, ""), nullptr) << text;
    }
    // Nothing entered the cache: once mended, the same name reads anew.
    writeFile(name, "TopLevelDialog { auditorID \"mended\" }\n");
    SoFormwright* mended = load(path, "");
    ASSERT_NE(mended, nullptr) << text;
    EXPECT_EQ(mended->auditorID.getValue(), SbString("mended"));
  }
  EXPECT_EQ(load(m_dir.path().toStdString() + "/missing.scn", ""), nullptr);
  EXPECT_EQ(load(writeFile("garbage.scn", std::string("\x01\x02\xff\xfe", 4), false), ""), nullptr);
  EXPECT_NE(load(writeFile("good.scn", kExportDialog), "exportDialog"), nullptr);
}

std::string writeToText(SoNode* node, bool binary)
{
  SoOutput output;
  output.setBinary(binary);
  output.setBuffer(malloc(1024), 1024, realloc);
  SoWriteAction writer(&output);
  writer.apply(node);
  void* buffer = nullptr;
  size_t size = 0;
  output.getBuffer(buffer, size);
  std::string text(static_cast<const char*>(buffer), size);
  free(buffer);
  return text;
}

// Compares the fields of a dialog file's vocabulary; the kit's part fields
// hold each node's own parts and never compare equal.
void expectSameFields(SoNode* expected, SoNode* actual)
{
  SoFieldList fields;
  expected->getFields(fields);
  for (int i = 0; i < fields.getLength(); ++i) {
    if (fields[i]->isOfType(SoSFNode::getClassTypeId()))
      continue;
    SbName name;
    expected->getFieldName(fields[i], name);
    SoField* other = actual->getField(name);
    ASSERT_NE(other, nullptr) << name.getString();
    EXPECT_TRUE(fields[i]->isSame(*other)) << expected->getTypeId().getName().getString() << "." << name.getString();
  }
}

// Two trees are equal when their types, fields and children are.
void expectSameTree(SoNode* expected, SoNode* actual)
{
  ASSERT_NE(actual, nullptr);
  ASSERT_EQ(actual->getTypeId(), expected->getTypeId());
  expectSameFields(expected, actual);
  SoChildList* expectedChildren = expected->getChildren();
  if (!expected->isOfType(SoDialogGroup::getClassTypeId()) && !expected->isOfType(SoTopLevelDialog::getClassTypeId()))
    return;
  const int count = expected->isOfType(SoDialogGroup::getClassTypeId())
                      ? static_cast<SoDialogGroup*>(expected)->getNumChildren()
                      : static_cast<SoTopLevelDialog*>(expected)->getNumChildren();
  const int actualCount = actual->isOfType(SoDialogGroup::getClassTypeId())
                            ? static_cast<SoDialogGroup*>(actual)->getNumChildren()
                            : static_cast<SoTopLevelDialog*>(actual)->getNumChildren();
  ASSERT_EQ(actualCount, count);
  for (int i = 0; i < count; ++i)
    expectSameTree((*expectedChildren)[i], (*actual->getChildren())[i]);
}

TEST(DialogFileWriting, writtenDialogReadsBackEqualInTextAndBinary)
{
  SoSeparator* original = readScene(std::string(kHeader) + kExportDialog);
  ASSERT_NE(original, nullptr);
  SoNode* dialog = original->getChild(0);

  const std::string text = writeToText(dialog, false);
  EXPECT_EQ(text.find("geomSwitch"), std::string::npos) << "kit parts are not part of a dialog file";
  EXPECT_EQ(text.find("topSeparator"), std::string::npos);
  EXPECT_EQ(text.find("width"), std::string::npos) << "a size left to be computed is not written";
  EXPECT_NE(text.find("columnSpacing 6"), std::string::npos);
  SoSeparator* again = readScene(text);
  ASSERT_NE(again, nullptr);
  expectSameTree(dialog, again->getChild(0));

  SoSeparator* binary = readScene(writeToText(dialog, true));
  ASSERT_NE(binary, nullptr);
  expectSameTree(dialog, binary->getChild(0));
}

TEST(DialogFileWriting, writingPartOfAPathStopsAtThePathsChild)
{
  SoSeparator* root = readScene(std::string(kHeader) +
                                "DialogGroup { DialogLabel { label \"a\" } DialogLabel { label \"b\" } "
                                "DialogLabel { label \"c\" } }\n");
  ASSERT_NE(root, nullptr);
  auto* group = static_cast<SoDialogGroup*>(root->getChild(0));
  SoPath* path = new SoPath(group);
  path->ref();
  path->append(1);
  SoOutput output;
  output.setBuffer(malloc(1024), 1024, realloc);
  SoWriteAction writer(&output);
  writer.apply(path);
  void* buffer = nullptr;
  size_t size = 0;
  output.getBuffer(buffer, size);
  const std::string text(static_cast<const char*>(buffer), size);
  free(buffer);
  EXPECT_NE(text.find("\"b\""), std::string::npos);
  EXPECT_EQ(text.find("\"c\""), std::string::npos);
  path->unref();
}

}
