#include "ControlTestSupport.h"
#include "SceneTestSupport.h"
#include "SbFileHelper.h"
#include "SbStringConvert.h"
#include "SoPreferences.h"
#include "SoSFFilePathString.h"

#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogSeparator.h>
#include <SoDialogSlider.h>
#include <SoFormMode.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuItem.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>
#include <SoMenuSeparator.h>
#include <SoPreferences.h>
#include <SoTabDialog.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/lists/SoNodeList.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

struct SkinAccess : SoFormwright {
  using SoFormwright::readDefaultSkinsParts;
};

struct ClassSkin {
  const char* file;
  char* builtIn;
  std::vector<const char*> names;
};

const std::vector<ClassSkin>& classSkins()
{
  static const std::vector<ClassSkin> skins{
    {"TextProperties.scn", SoFormwright::Formwright, {"DialogTextProperties"}},
    {"DialogComponent.scn", SoDialogComponent::DialogComponent,
     {"DialogComponentEdgeStyleNone", "DialogComponentEdgeStyleShadowIn", "DialogComponentEdgeStyleShadowOut"}},
    {"DialogCheckBox.scn", SoDialogCheckBox::DialogCheckBox,
     {"DialogCheckBoxFrame", "DialogCheckBoxStateOff", "DialogCheckBoxStateOn"}},
    {"DialogComboBox.scn", SoDialogComboBox::DialogComboBox,
     {"DialogComboBoxFrame", "DialogComboBoxItemFrame", "DialogComboBoxButtonReleased",
      "DialogComboBoxButtonPressed"}},
    {"DialogRadioButtons.scn", SoDialogRadioButtons::DialogRadioButtons,
     {"DialogRadioButtonsFrame", "DialogRadioButtonsItemFrame", "DialogRadioButtonsStateOff",
      "DialogRadioButtonsStateOn"}},
    {"DialogEditText.scn", SoDialogEditText::DialogEditText,
     {"DialogEditTextFrame", "DialogEditTextEditingFrame", "DialogEditTextDownButtonPressed",
      "DialogEditTextDownButtonReleased", "DialogEditTextUpButtonPressed", "DialogEditTextUpButtonReleased",
      "DialogEditTextScrollFrame", "DialogEditTextCursorFrame", "DialogEditTextCaretFrame"}},
    {"DialogPushButton.scn", SoDialogPushButton::DialogPushButton,
     {"DialogPushButtonReleased", "DialogPushButtonPressed"}},
    {"DialogSeparator.scn", SoDialogSeparator::DialogSeparator,
     {"DialogSeparatorVertical", "DialogSeparatorHorizontal"}},
    {"DialogSlider.scn", SoDialogSlider::DialogSlider, {"DialogSliderFrame", "DialogSliderCursor"}},
    {"TabDialog.scn", SoTabDialog::TabDialog,
     {"TabDialogSelectedTabFrame", "TabDialogUnselectedTabFrame", "TabDialogLeftButtonPressed",
      "TabDialogLeftButtonReleased", "TabDialogRightButtonPressed", "TabDialogRightButtonReleased",
      "TabDialogFrame"}},
    {"TopLevelDialog.scn", SoTopLevelDialog::TopLevelDialog,
     {"TopLevelDialogFrame", "TopLevelDialogMinReleased", "TopLevelDialogMinPressed"}},
    {"MenuBar.scn", SoMenuBar::MenuBar, {"MenuBarFrame"}},
    {"MenuItem.scn", SoMenuItem::MenuItem, {"MenuItemFrame"}},
    {"MenuCheckBox.scn", SoMenuCheckBox::MenuCheckBox, {"MenuCheckBoxStateOn", "MenuCheckBoxStateOff"}},
    {"MenuPopup.scn", SoMenuPopup::MenuPopup,
     {"MenuPopupPressedFrame", "MenuPopupReleasedFrame", "MenuPopupReleasedShape", "MenuPopupPressedShape"}},
    {"MenuPushButton.scn", SoMenuPushButton::MenuPushButton, {"MenuPushButtonReleased", "MenuPushButtonPressed"}},
    {"MenuRadioButtons.scn", SoMenuRadioButtons::MenuRadioButtons,
     {"MenuRadioButtonsStateOn", "MenuRadioButtonsStateOff"}},
    {"MenuSeparator.scn", SoMenuSeparator::MenuSeparator, {"MenuSeparatorFrame"}},
  };
  return skins;
}

const std::string kDefaultSkin = std::string(FORMWRIGHT_EXAMPLES) + "/../skins/default";

// The height at the end of a skin part: where the next layer stands.
float topOf(SoNode* part)
{
  SoSearchAction search;
  search.setInterest(SoSearchAction::LAST);
  search.setType(SoNode::getClassTypeId(), TRUE);
  search.apply(part);
  SoGetMatrixAction matrix{SbViewportRegion()};
  matrix.apply(search.getPath());
  return matrix.getMatrix()[3][2];
}

// One file of a skin, at `path` within `dir`.
void writeSkinFile(const QTemporaryDir& dir, const QString& path, const QByteArray& text)
{
  ASSERT_TRUE(QDir(dir.path()).mkpath(QFileInfo(path).path()));
  QFile out(QDir(dir.path()).filePath(path));
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(text);
}

int countNamed(const char* name)
{
  SoNodeList nodes;
  return SoNode::getByName(name, nodes);
}

// Each class's built-in text, and the default skin's file for it, define
// every group of its look.
TEST(Skins, everyBuiltInTextAndDefaultFileDefinesItsClassesGroups)
{
  for (const ClassSkin& skin : classSkins()) {
    SCOPED_TRACE(skin.file);
    SoSeparator* root = readScene(skin.builtIn);
    ASSERT_NE(root, nullptr);
    for (const char* name : skin.names) {
      SoNode* node = SoNode::getByName(name);
      ASSERT_NE(node, nullptr) << name;
      EXPECT_TRUE(node->isOfType(SoGroup::getClassTypeId())) << name;
      EXPECT_GT(static_cast<SoGroup*>(node)->getNumChildren(), 0) << name;
    }
  }
  // The released button stands twice as high as the pressed one, so that it
  // sinks when pressed; frames leave the next layer on their top.
  EXPECT_FLOAT_EQ(topOf(SoNode::getByName("DialogPushButtonReleased")), 2.0f);
  EXPECT_FLOAT_EQ(topOf(SoNode::getByName("DialogPushButtonPressed")), 1.0f);
  EXPECT_FLOAT_EQ(topOf(SoNode::getByName("TopLevelDialogFrame")), 1.0f);
  EXPECT_FLOAT_EQ(topOf(SoNode::getByName("TabDialogUnselectedTabFrame")), 0.8f);

  DebugMessages messages;
  SoFormwright::setSkin(SbString(kDefaultSkin.c_str()));
  EXPECT_EQ(messages.count(), 0u) << (messages.count() ? messages.all().front() : "");
  for (const ClassSkin& skin : classSkins())
    for (const char* name : skin.names)
      EXPECT_GT(static_cast<SoGroup*>(SoNode::getByName(name))->getNumChildren(), 0) << name;
}

TEST(Skins, aSwapKeepsEachSharedGroupAndChangesItsChildrenAndAnUnknownSkinNothing)
{
  QTemporaryDir red;
  writeSkinFile(red, "TopLevelDialog.scn",
                "#Inventor V2.1 ascii\n"
                "DEF TopLevelDialogFrame Group { Material { diffuseColor 1 0 0 }  Translation { translation 0 0 2.5 }"
                "  Cube { width 1 height 1 depth 5 }  Translation { translation 0 0 2.5 } }\n"
                "DEF TopLevelDialogMinReleased Group { Cube {} }\nDEF TopLevelDialogMinPressed Group { Cube {} }\n");
  SoFormwright::setSkin(SbString(kDefaultSkin.c_str()));
  SoNode* shared = SoNode::getByName("TopLevelDialogFrame");
  ASSERT_NE(shared, nullptr);
  EXPECT_FLOAT_EQ(topOf(shared), 1.0f);

  DebugMessages messages;
  SoFormwright::setSkin(SbString(red.path().toUtf8().constData()));
  EXPECT_EQ(SoNode::getByName("TopLevelDialogFrame"), shared);
  EXPECT_FLOAT_EQ(topOf(shared), 5.0f);
  EXPECT_TRUE(messages.contains("The skin file : <DialogCheckBox.scn> cannot be found."))
    << "the classes that the skin lacks fall back on their built-in look";

  SoFormwright::setSkin(SbString(kDefaultSkin.c_str()));
  EXPECT_EQ(SoNode::getByName("TopLevelDialogFrame"), shared);
  EXPECT_FLOAT_EQ(topOf(shared), 1.0f);
  for (const ClassSkin& skin : classSkins())
    for (const char* name : skin.names) {
      EXPECT_EQ(countNamed(name), 1) << name;
      EXPECT_EQ(countNamed((std::string("_Fwt_Tmp_") + name).c_str()), 0) << name;
    }

  // A skin that is nowhere changes nothing, silently.
  const size_t before = messages.count();
  SoFormwright::setSkin("no-such-skin");
  EXPECT_EQ(messages.count(), before);
  EXPECT_FLOAT_EQ(topOf(shared), 1.0f);
}

// The skin's shared group is each instance's part unless the dialog file
// gave the instance one of its own.
TEST(Skins, aPartGivenInTheFileKeepsItsPlaceBesideTheSharedGroup)
{
  readScene("#Inventor V2.1 ascii\nDEF W TopLevelDialog { DEF OWN DialogCheckBox { frame DEF MINE Group {} }"
            " DEF SKINNED DialogCheckBox {} }\n");
  buildInScene(static_cast<SoTopLevelDialog*>(SoNode::getByName("W")));
  const auto frameOf = [](const char* box) {
    return static_cast<SoSFNode*>(SoNode::getByName(box)->getField("frame"))->getValue();
  };
  EXPECT_EQ(frameOf("OWN"), SoNode::getByName("MINE"));
  EXPECT_EQ(frameOf("SKINNED"), SoNode::getByName("DialogCheckBoxFrame"));
}

// A class whose skin file is missing or broken falls back on its built-in
// look. Only the first miss of the process explains at length, which a test
// run in a process of its own sees.
TEST(Skins, aMissingOrBrokenFileFallsBackOnTheBuiltInText)
{
  QTemporaryDir broken;
  writeSkinFile(broken, "DialogSeparator.scn", "#Inventor V2.1 ascii\nDEF DialogSeparatorVertical Group { Cube {");
  DebugMessages messages;
  SoFormwright::setSkin(SbString(broken.path().toUtf8().constData()));
  const size_t before = messages.count();
  ASSERT_GT(before, 0u) << "the skin lacks the other classes' files";
  const std::string atLength = "\nIMPORTANT : Internal Formwright component skin is loaded to prevent from your "
                               "application to exit.\nFor loading your own Formwright skins, please verify the "
                               "FORMWRIGHT_SKINS_DIR environment variable.";
  if (messages.contains("IMPORTANT")) {
    EXPECT_EQ(messages.countHolding("IMPORTANT"), 1);
    EXPECT_NE(messages.all()[0].find(atLength), std::string::npos) << messages.all()[0];
  }
  SkinAccess::readDefaultSkinsParts("DialogSeparator.scn", SoDialogSeparator::DialogSeparator);
  SkinAccess::readDefaultSkinsParts("Missing.scn", SoDialogSeparator::DialogSeparator);
  ASSERT_EQ(messages.count(), before + 2);
  EXPECT_NE(messages.all()[before].find("The skin file : <DialogSeparator.scn> cannot be found."), std::string::npos);
  EXPECT_NE(messages.all()[before + 1].find("The skin file : <Missing.scn> cannot be found."), std::string::npos);
  SoNode* vertical = SoNode::getByName("DialogSeparatorVertical");
  ASSERT_NE(vertical, nullptr);
  EXPECT_GT(static_cast<SoGroup*>(vertical)->getNumChildren(), 0);
  SoFormwright::setSkin(SbString(kDefaultSkin.c_str()));
}

// The skins installed with the library come last, below its own directory.
TEST(Skins, theSearchListRunsFromTheInstalledSkinsToTheLibrarysOwnAndFindsASkinByName)
{
  const QString installed = QString(FORMWRIGHT_LIBRARY_DIRECTORY) + "/";
  const auto entries = [] {
    const QString list = SoFormwright::getSkinsDirectories().getString();
    return list.split(';');
  };
  SoPreferences::setString("SCENICHOME", "/opt/scenic");
  SoFormwright::setSkinsDirectories("/home/me/skins;/srv/skins");
  QStringList list = entries();
  ASSERT_EQ(list.size(), 4);
  EXPECT_EQ(list.mid(0, 3), QStringList({"/opt/scenic/data/Formwright/skins/", "/home/me/skins", "/srv/skins"}));
  EXPECT_TRUE(list[3].startsWith(installed) && list[3].endsWith("/data/Formwright/skins")) << list[3].toStdString();
  EXPECT_EQ(SoFormwright::getSkinsDirectory(), SoFormwright::getSkinsDirectories());
  SoPreferences::setString("SCENICHOME", "");
  EXPECT_EQ(entries().mid(0, 2), QStringList({"/home/me/skins", "/srv/skins"}));
  SoPreferences::unsetString("FORMWRIGHT_SKINS_DIR");
  EXPECT_EQ(entries(), QStringList{list[3]});
  SoPreferences::unsetString("SCENICHOME");

  QTemporaryDir home;
  writeSkinFile(home, "data/Formwright/skins/blue/MenuBar.scn", "#Inventor V2.1 ascii\nDEF MenuBarFrame Group { Sphere {} }\n");
  SoPreferences::setString("SCENICHOME", home.path().toUtf8().constData());
  SoFormwright::setSkin("blue");
  SoPreferences::unsetString("SCENICHOME");
  SoPreferences::unsetString("FORMWRIGHT_SKINS_DIR");
  auto* frame = static_cast<SoGroup*>(SoNode::getByName("MenuBarFrame"));
  ASSERT_NE(frame, nullptr);
  ASSERT_EQ(frame->getNumChildren(), 1);
  EXPECT_STREQ(frame->getChild(0)->getTypeId().getName().getString(), "Sphere");
}

// Skins across an end and a new start of the library, with the toolkit ended
// and started between, as an application that restarts both does.

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
  writeSkinFile(dir, "default/TopLevelDialog.scn",
                QByteArray("#Inventor V2.1 ascii\nDEF TopLevelDialogFrame Group { Material { diffuseColor ") + colour +
                  " }  Translation { translation 0 0 0.5 }  Cube { width 1 height 1 depth 1 }"
                  "  Translation { translation 0 0 0.5 } }\n"
                  "DEF TopLevelDialogMinReleased Group { }\nDEF TopLevelDialogMinPressed Group { }\n");
}

// Each start reads the skins again, from the directory named at that time.
TEST(SkinRestart, aBuildAfterARestartReadsTheSkinsAgainFromTheDirectoryNamedNow)
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
  ASSERT_EQ(SoNode::getByName("TopLevelDialogFrame"), nullptr) << "the ended toolkit took the skin's names";
  // The plate is the child, 100 by 30, with a border of 4 and a title of 23.
  const SbVec3f plate = builtPlateSize();
  EXPECT_FLOAT_EQ(plate[0], 108.0f);
  EXPECT_FLOAT_EQ(plate[1], 57.0f);
  EXPECT_EQ(frameColour("TopLevelDialogFrame"), SbColor(0.0f, 0.0f, 1.0f));
  EXPECT_NE(SoNode::getByName("DialogTextProperties"), nullptr);

  // Later tests build with the built-in skins again.
  SoPreferences::unsetString("FORMWRIGHT_SKINS_DIR");
  restartLibraryAndToolkit();
}

// The preferences and paths of our toolkit layer, on which the skin search
// rests.
TEST(Toolkit, preferencesOverrideTheEnvironmentForThisProcessAndPathsTakeForwardSlashes)
{
  setenv("FORMWRIGHT_TEST_KEY", "from environment", 1);
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from environment");
  SoPreferences::setString("FORMWRIGHT_TEST_KEY", "from process");
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from process");
  EXPECT_STREQ(std::getenv("FORMWRIGHT_TEST_KEY"), "from environment");
  SoPreferences::unsetString("FORMWRIGHT_TEST_KEY");
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from environment");
  unsetenv("FORMWRIGHT_TEST_KEY");
  EXPECT_EQ(SoPreferences::getString("FORMWRIGHT_TEST_KEY", "fallback"), SbString("fallback"));

  SoPreferences::setString("FORMWRIGHT_TEST_DIR", "/data/my skins");
  EXPECT_EQ(SbFileHelper::expandString("${FORMWRIGHT_TEST_DIR}/default/"), SbString("/data/my skins/default/"));
  EXPECT_EQ(SbFileHelper::expandString("$FORMWRIGHT_TEST_DIR/x/$FORMWRIGHT_UNSET_VARIABLE"),
            SbString("/data/my skins/x/"));
  SoPreferences::unsetString("FORMWRIGHT_TEST_DIR");
  EXPECT_EQ(SbStringConvert::toString_l("%.2f", 1.5), SbString("1.50"));
  SoSFFilePathString field;
  ASSERT_TRUE(field.set("\"C:\\skins\\default\\Frame.scn\""));
  EXPECT_EQ(field.getValue(), SbString("C:/skins/default/Frame.scn"));
}

}
