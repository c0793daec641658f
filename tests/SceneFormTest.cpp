#include "ControlTestSupport.h"
#include "SceneTestSupport.h"

#include <SoColumnDialog.h>
#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoRowDialog.h>

#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoText3.h>

#include <QDir>
#include <QTemporaryDir>

#include <fstream>

namespace {

class CountingDialog : public SoTopLevelDialog {
public:
  int inactiveCalls = 0;

protected:
  void set3DInactive() override
  {
    ++inactiveCalls;
    SoTopLevelDialog::set3DInactive();
  }
};

// A window in the scene with one leaf of 101 by 30: its plate is 109 by 57,
// a border of 4 round the leaf and a title of 23 above it.
struct SceneWindow : testing::Test {
  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  SoDialogComponent* leaf = makeFixedLeaf(101, 30);
  SceneWindow() { dialog->addChild(leaf), scene.root->addChild(dialog); }
};

TEST_F(SceneWindow, aRebuildKeepsComputedSizesOutOfTheFileAndAnAddedChildGrowsThePlate)
{
  dialog->rowSpacing = 5;
  dialog->windowResizedByChildren = TRUE;
  buildInScene(dialog);
  buildInScene(dialog);
  for (SoSFInt32* size : {&leaf->width, &leaf->height, &dialog->width, &dialog->height})
    EXPECT_TRUE(size->isDefault());
  const int before = dialog->height.getValue();
  const SbVec3f plateBefore = dialog->getTopLevelSize();
  dialog->addChild(makeFixedLeaf(100, 50));
  EXPECT_EQ(dialog->height.getValue(), before + 50 + 5);
  EXPECT_FLOAT_EQ(dialog->getTopLevelSize()[1], plateBefore[1] + 55.0f) << "the plate follows";
}

TEST_F(SceneWindow, theFirstMeasureOfTheSceneBuildsAnUnbuiltDialog)
{
  dialog->position3D.setValue(10.0f, 20.0f, 0.0f);
  SoGetBoundingBoxAction measure(scene.viewport);
  measure.apply(scene.root);
  ASSERT_TRUE(dialog->isBuilt3D());
  const SbBox3f box = measure.getBoundingBox();
  EXPECT_NEAR(box.getMin()[0], 10.0f, 0.001f);
  EXPECT_FLOAT_EQ(box.getMax()[0], 10.0f + 109);
  EXPECT_FLOAT_EQ(box.getMax()[1], -20.0f);
  EXPECT_FLOAT_EQ(box.getMin()[1], -20.0f - 57);
  // The leaf stands on the plate's top, 4 in and 23 down.
  const SbVec3f centre = centreOf(leaf);
  EXPECT_FLOAT_EQ(centre[0], 10.0f + 4 + 50.5f);
  EXPECT_FLOAT_EQ(centre[1], -20.0f - 23 - 15);
  EXPECT_FLOAT_EQ(leaf->get3DParentTranslation()[2], 1.0f);
}

TEST_F(SceneWindow, draggingThePlateMovesItByTheDraggedPixels)
{
  dialog->position3D.setValue(20.0f, 10.0f, 0.0f);
  buildInScene(dialog);
  const SbVec3f leafBefore = centreOf(leaf);
  // The border left of the leaf is plate only.
  scene.button(SoButtonEvent::DOWN, 22.0f, -40.0f);
  scene.move(42.0f, -50.0f);
  scene.move(52.0f, -65.0f);
  scene.button(SoButtonEvent::UP, 52.0f, -65.0f);
  EXPECT_NEAR(dialog->position3D.getValue()[0], 50.0f, 0.01f);
  EXPECT_NEAR(dialog->position3D.getValue()[1], 35.0f, 0.01f) << "y counts downward";
  const SbVec3f leafAfter = centreOf(leaf);
  EXPECT_NEAR(leafAfter[0] - leafBefore[0], 30.0f, 0.01f) << "the children travel with the plate";
  EXPECT_NEAR(leafAfter[1] - leafBefore[1], -25.0f, 0.01f);
  EXPECT_FALSE(dialog->minimized.getValue());
}

TEST_F(SceneWindow, theMinimizeButtonShrinksThePlateToItsStripAndBack)
{
  buildInScene(dialog);
  // The button's centre lies 12 from the top and right edges.
  scene.click(109 - 12, -12.0f);
  ASSERT_TRUE(dialog->minimized.getValue());
  EXPECT_EQ(dialog->getTopLevelSize(), SbVec3f(109, 20, 1.0f));
  EXPECT_EQ(dialog->minimized3DPosition.getValue(), dialog->position3D.getValue()) << "a first strip stands in place";
  EXPECT_EQ(scene.pickedNode(50.0f, -40.0f), nullptr) << "the children are hidden";

  scene.click(109 - 12, -10.0f);
  EXPECT_FALSE(dialog->minimized.getValue());
  EXPECT_EQ(dialog->getTopLevelSize(), SbVec3f(109, 57, 1.0f));
  EXPECT_EQ(scene.pickedNode(50.0f, -40.0f), leaf);
}

TEST_F(SceneWindow, aTitleWiderThanThePlateStopsBeforeTheMinimizeButton)
{
  dialog->label = "Wide title Wide title Wide title Wide title";
  buildInScene(dialog);
  // Glyphs of the title along the button's middle row, 12 below the top:
  // the button spans 14 round a centre 12 from the right edge.
  std::vector<float> glyphs;
  for (float x = 12.0f; x <= 109; x += 0.5f) {
    SoRayPickAction pick(scene.viewport);
    pick.setPoint(Scene::pixel(x, -12.0f));
    pick.setPickAll(TRUE);
    pick.apply(scene.root);
    const SoPickedPointList& points = pick.getPickedPointList();
    for (int i = 0; i < points.getLength(); ++i)
      if (fullPathNodes(points[i]->getPath()).back()->isOfType(SoText3::getClassTypeId()))
        glyphs.push_back(x);
  }
  ASSERT_FALSE(glyphs.empty());
  EXPECT_LT(glyphs.back(), 109 - 12 - 7);
}

TEST_F(SceneWindow, aThickerSkinFrameLiftsTheChildrenWithIt)
{
  QTemporaryDir skin;
  std::ofstream(QDir(skin.path()).filePath("TopLevelDialog.scn").toStdString())
    << "#Inventor V2.1 ascii\n"
       "DEF TopLevelDialogFrame Group { Translation { translation 0 0 2.5 }  Cube { depth 5 }"
       "  Translation { translation 0 0 2.5 } }\n"
       "DEF TopLevelDialogMinReleased Group { Cube {} }\nDEF TopLevelDialogMinPressed Group { Cube {} }\n";
  SoFormwright::setSkin(SbString(skin.path().toUtf8().constData()));

  dialog->position3D.setValue(0.0f, 0.0f, 2.0f);
  buildInScene(dialog);
  EXPECT_FLOAT_EQ(leaf->get3DParentTranslation()[2], 2.0f + 5.0f);
  // Later builds in the same process take the default look again.
  SoFormwright::setSkin(SbString(FORMWRIGHT_EXAMPLES "/../skins/default"));
}

TEST(SceneForm, aPressOnAnotherControlEndsTheActiveOneOnce)
{
  Scene scene;
  auto* first = makeNode<CountingDialog>();
  first->addChild(makeFixedLeaf());
  auto* second = makeNode<CountingDialog>();
  second->addChild(makeFixedLeaf());
  second->position3D.setValue(200.0f, 0.0f, 0.0f);
  scene.root->addChild(first);
  scene.root->addChild(second);
  buildInScene(first);
  buildInScene(second);

  scene.click(2.0f, -40.0f);
  scene.click(202.0f, -40.0f);
  EXPECT_EQ(first->inactiveCalls, 1);
  scene.click(202.0f, -40.0f);
  EXPECT_EQ(first->inactiveCalls, 1);
  EXPECT_EQ(second->inactiveCalls, 0);
}

TEST(SceneForm, aDisabledGroupGreysAndDeadensItsChildrenUntilItComesBack)
{
  Scene scene;
  auto* dialog = makeNode<SoTopLevelDialog>();
  auto* row = makeNode<SoRowDialog>();
  SoDialogComponent* on = makeFixedLeaf();
  SoDialogComponent* off = makeFixedLeaf();
  off->enable = FALSE;
  row->addChild(on);
  row->addChild(off);
  dialog->addChild(row);
  scene.root->addChild(dialog);
  buildInScene(dialog);

  const SbVec3f onCentre = centreOf(on);
  const SbVec3f offCentre = centreOf(off);
  EXPECT_EQ(scene.pickedNode(onCentre[0], onCentre[1]), on);
  EXPECT_NE(scene.pickedNode(offCentre[0], offCentre[1]), off) << "disabled by itself from the start";

  const auto emissive = [](SoNode* node) {
    SoSearchAction search;
    search.setType(SoMaterial::getClassTypeId());
    search.setInterest(SoSearchAction::FIRST);
    search.setSearchingAll(TRUE);
    SoBaseKit::setSearchingChildren(TRUE);
    search.apply(node);
    SoBaseKit::setSearchingChildren(FALSE);
    auto* material = static_cast<SoMaterial*>(fullPathNodes(search.getPath()).back());
    return material->emissiveColor[0];
  };

  row->enable = FALSE;
  EXPECT_NE(scene.pickedNode(onCentre[0], onCentre[1]), on);
  EXPECT_EQ(emissive(on), SbColor(0.5f, 0.5f, 0.5f));

  row->enable = TRUE;
  EXPECT_EQ(scene.pickedNode(onCentre[0], onCentre[1]), on);
  EXPECT_EQ(emissive(on), SbColor(0.0f, 0.0f, 0.0f));
  EXPECT_NE(scene.pickedNode(offCentre[0], offCentre[1]), off) << "its own enable still says no";
  EXPECT_EQ(emissive(off), SbColor(0.5f, 0.5f, 0.5f));
}

TEST(ScenePlacement, aMeasuredRowKeepsItsChildrenOneBelowTheOther)
{
  auto* dialog = makeNode<SoTopLevelDialog>();
  auto* row = new SoRowDialog;
  row->rowSpacing = 7;
  SoDialogComponent* upper = makeFixedLeaf();
  SoDialogComponent* lower = makeFixedLeaf();
  row->addChild(upper);
  row->addChild(lower);
  dialog->addChild(row);
  buildInScene(dialog);

  // Measured as at every drawing and pick, the children keep their places.
  centreOf(dialog);
  centreOf(dialog);
  const SbVec3f first = centreOf(upper);
  const SbVec3f second = centreOf(lower);
  // One 30-high child and the spacing of 7 apart, straight below.
  EXPECT_FLOAT_EQ(first[1] - second[1], 37.0f);
  EXPECT_FLOAT_EQ(first[0], second[0]);

  // Controls that draw a look of their own stand in their frames too.
  auto* boxes = new SoRowDialog;
  boxes->rowSpacing = 4;
  auto* one = new SoDialogCheckBox;
  auto* two = new SoDialogCheckBox;
  boxes->addChild(one);
  boxes->addChild(two);
  auto* other = makeNode<SoTopLevelDialog>();
  other->addChild(boxes);
  buildInScene(other);
  centreOf(other);
  EXPECT_FLOAT_EQ(centreOf(one)[1] - centreOf(two)[1], static_cast<float>(one->height.getValue() + 4));
  dialog->unref();
  other->unref();
}

TEST_F(SceneWindow, aDisabledWindowTakesNoPickUntilEnabledAgain)
{
  dialog->enable = FALSE;
  buildInScene(dialog);
  EXPECT_EQ(scene.pickedNode(2.0f, -40.0f), nullptr);
  dialog->enable = TRUE;
  EXPECT_EQ(scene.pickedNode(2.0f, -40.0f), dialog);
}

TEST_F(SceneWindow, aCoupledStripMovedAndRestoredStandsWhereABuildPutsThePlate)
{
  dialog->independentMinimizedPosition = FALSE;
  buildInScene(dialog);
  dialog->minimized = TRUE;
  dialog->minimized3DPosition.setValue(30.0f, 40.0f, 0.0f);
  dialog->minimized = FALSE;
  EXPECT_FLOAT_EQ(centreOf(dialog)[0], 30.0f + 109.0f / 2);
}

TEST_F(SceneWindow, aWindowBuiltByItsFirstMeasureFollowsChangesOfItsTree)
{
  dialog->windowResizedByChildren = TRUE;
  SoDialogComponent* second = makeFixedLeaf(101, 30);
  dialog->addChild(second);
  centreOf(scene.root);
  dialog->removeChild(leaf);
  dialog->addChild(leaf);
  EXPECT_FLOAT_EQ(centreOf(second)[1], -23.0f - 15);
  EXPECT_FLOAT_EQ(centreOf(leaf)[1], -23.0f - 30 - 15);
}

struct ChosenInScene : SoMenuCheckBoxLauncher {
  using SoMenuCheckBoxLauncher::draggerFinishCallback3D;
};

// Launchers standing in the scene open plates at the dialogs' own places.
TEST(SceneLaunchers, buildTheirDialogsInTheSceneAndShowThemThere)
{
  Scene scene;
  SoTopLevelDialog* dialogs[3];
  for (int i = 0; i < 3; ++i) {
    dialogs[i] = new SoTopLevelDialog;
    dialogs[i]->position3D.setValue(300.0f, 100.0f * i, 0.0f);
    dialogs[i]->addChild(makeFixedLeaf());
  }
  const auto shown = [&](int i) { return scene.pickedNode(302.0f, -40.0f - 100 * i) == dialogs[i]; };
  auto* button = new SoDialogPushButtonLauncher;
  auto* box = new SoDialogCheckBoxLauncher;
  auto* entry = new ChosenInScene;
  button->addChild(dialogs[0]), box->addChild(dialogs[1]), entry->addChild(dialogs[2]);
  box->state = TRUE;
  SoFormMode::setSceneForm(true);
  // The button and the box one below the other, 60 apart.
  int top = 0;
  for (SoFormwright* launcher : std::initializer_list<SoFormwright*>{button, box, entry}) {
    SbVec2i32 size(0, 0), place(0, top);
    launcher->buildWidget(nullptr, size, place, 0);
    scene.root->addChild(launcher);
    top += 60;
  }
  EXPECT_TRUE(dialogs[0]->isBuilt3D());
  EXPECT_EQ(std::vector<bool>({shown(0), shown(1), shown(2)}), std::vector<bool>({false, true, false}));
  // Released on the button's block and on the box's frame, at their right
  // ends; the entry chosen in the scene as a release on it does.
  scene.click(button->width.getValue() - 5.0f, -button->height.getValue() / 2.0f);
  scene.click(box->width.getValue() - 5.0f, -60 - box->height.getValue() / 2.0f);
  entry->draggerFinishCallback3D();
  EXPECT_EQ(std::vector<bool>({shown(0), shown(1), shown(2)}), std::vector<bool>({true, false, true}));
  entry->draggerFinishCallback3D();
  EXPECT_FALSE(shown(2));
  SoFormMode::setSceneForm(false);
}

// Deep enough that a walk of all the levels below at every level stalls the
// suite, and light enough for the memory checker.
TEST(ScenePlacement, deeplyNestedColumnsBuildInTheScene)
{
  SoDialogComponent* nested = makeFixedLeaf();
  for (int level = 0; level < 400; ++level) {
    auto* column = new SoColumnDialog;
    column->addChild(nested);
    nested = column;
  }
  auto* dialog = makeNode<SoTopLevelDialog>();
  dialog->addChild(nested);
  buildInScene(dialog);
  EXPECT_EQ(dialog->width.getValue(), 100 + 400 * 6) << "each column's frame adds 6";
}

} // namespace
