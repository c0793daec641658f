// Skins across an end and a new start of the library, with the toolkit ended
// and started between, as an application that restarts both does.

#include "ControlTestSupport.h"

#include <SoFormwright.h>
#include <SoPreferences.h>
#include <SoTopLevelDialog.h>

#include <SoFormMode.h>

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

void restartLibraryAndToolkit()
{
  SoFormwright::finish();
  SoDB::finish();
  SoFormwright::init();
}

// Builds a one-child dialog in the scene form and gives the size of its plate.
SbVec3f builtPlateSize()
{
  auto* dialog = makeNode<SoTopLevelDialog>();
  SizedLeaf* leaf = makeFixedLeaf();
  dialog->addChild(leaf);
  leaf->unref();
  SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);
  SoGetBoundingBoxAction measure{SbViewportRegion(400, 400)};
  measure.apply(dialog);
  dialog->unref();
  SbVec3f size(0.0f, 0.0f, 0.0f);
  if (!measure.getBoundingBox().isEmpty())
    size = measure.getBoundingBox().getMax() - measure.getBoundingBox().getMin();
  return size;
}

// The colour of the first material in a skin group found by its DEF name.
SbColor frameColour(const char* name)
{
  SoNode* node = SoNode::getByName(name);
  if (!node || !node->isOfType(SoGroup::getClassTypeId()))
    return SbColor(-1.0f, -1.0f, -1.0f);
  auto* group = static_cast<SoGroup*>(node);
  for (int i = 0; i < group->getNumChildren(); ++i)
    if (group->getChild(i)->isOfType(SoMaterial::getClassTypeId()))
      return static_cast<SoMaterial*>(group->getChild(i))->diffuseColor[0];
  return SbColor(-1.0f, -1.0f, -1.0f);
}

// A skin named "default" in a directory of its own whose plate has the
// given colour.
void writePlateSkin(const QTemporaryDir& dir, const char* colour)
{
  ASSERT_TRUE(QDir(dir.path()).mkpath("default"));
  QFile out(QDir(dir.path()).filePath("default/TopLevelDialog.scn"));
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(QByteArray("#Inventor V2.1 ascii\nDEF TopLevelDialogFrame Group { Material { diffuseColor ") + colour +
            " }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }"
            "  Translation { translation 0 0 0.5 } }\n"
            "DEF TopLevelDialogMinReleased Group { }\nDEF TopLevelDialogMinPressed Group { }\n");
}

TEST(SkinRestart, aBuildAfterARestartReadsTheSkinsAgainAndShowsThePlate)
{
  DebugMessages quiet;
  // From a clean start, whatever skin earlier tests chose.
  restartLibraryAndToolkit();
  // The plate is the child, 100 by 30, with a border of 4 and a title of 23.
  const SbVec3f first = builtPlateSize();
  EXPECT_FLOAT_EQ(first[0], 108.0f);
  EXPECT_FLOAT_EQ(first[1], 57.0f);

  restartLibraryAndToolkit();
  ASSERT_EQ(SoNode::getByName("TopLevelDialogFrame"), nullptr) << "the ended toolkit took the skin's names";
  const SbVec3f again = builtPlateSize();
  EXPECT_FLOAT_EQ(again[0], 108.0f);
  EXPECT_FLOAT_EQ(again[1], 57.0f);
  EXPECT_NE(SoNode::getByName("TopLevelDialogFrame"), nullptr);
  EXPECT_NE(SoNode::getByName("DialogTextProperties"), nullptr);
}

TEST(SkinRestart, theNextStartLooksForTheSkinDirectoryAgain)
{
  DebugMessages quiet;
  QTemporaryDir red;
  QTemporaryDir blue;
  writePlateSkin(red, "1 0 0");
  writePlateSkin(blue, "0 0 1");

  SoFormwright::setSkinsDirectories(red.path().toUtf8().constData());
  restartLibraryAndToolkit();
  builtPlateSize();
  EXPECT_EQ(frameColour("TopLevelDialogFrame"), SbColor(1.0f, 0.0f, 0.0f));

  SoFormwright::setSkinsDirectories(blue.path().toUtf8().constData());
  restartLibraryAndToolkit();
  builtPlateSize();
  EXPECT_EQ(frameColour("TopLevelDialogFrame"), SbColor(0.0f, 0.0f, 1.0f));

  // Later tests build with the built-in skins again.
  SoPreferences::unsetString("FORMWRIGHT_SKINS_DIR");
  restartLibraryAndToolkit();
}

}
