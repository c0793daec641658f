#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogPushButton.h>

#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QFontMetrics>

namespace {

struct Combo : SoDialogComboBox {
  using SoDialogComboBox::labelSize;
  SoSwitch* list() const { return static_cast<SoSwitch*>(itemsSwitch.getValue()); }
  bool isOpen() const { return list()->whichChild.getValue() == SO_SWITCH_ALL; }
  float lift() const { return itemsLift->translation.getValue()[2]; }
  std::string shown() const { return selectedText->string[0].getString(); }
};

struct Heard : SoDialogAuditor {
  std::string events;
  void dialogPushButton(SoDialogPushButton*) override { events += "button "; }
  void dialogComboBox(SoDialogComboBox* node) override { events += std::to_string(node->selectedItem.getValue()) + " "; }
};

// A push button and below it a labelled combo box, both 200 by 30, on a
// plate that puts its first child 4 in and 23 down. The combo's frame starts
// 2 after the label column and ends 3 before its edge; item i hangs
// 22 * (i + 1) below the frame's centre.
class SceneComboBox : public ::testing::Test {
protected:
  void SetUp() override
  {
    combo->label = "Label text";
    const char* items[] = {"one", "two", "three"};
    combo->items.setValues(0, 3, items);
    for (SoDialogComponent* control : std::vector<SoDialogComponent*>{button, combo}) {
      control->width = 200;
      control->height = 30;
      control->fixedWidth = control->fixedHeight = TRUE;
      dialog->addChild(control);
    }
    dialog->addAuditor(&heard);
    scene.root->addChild(dialog);
    buildInScene(dialog);
    frameLeft = 4 + 3 + combo->labelSize[0] + 2;
    frameX = (frameLeft + 201) / 2;
  }
  static float itemY(int i) { return y - 22.0f * (i + 1); }
  static constexpr float y = -23 - 30 - 15;
  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  SoDialogPushButton* button = makeNode<SoDialogPushButton>();
  Combo* combo = new Combo;
  Heard heard;
  float frameLeft = 0, frameX = 0;
};

TEST_F(SceneComboBox, opensFromTextFrameOrButtonChoosesAnItemAndClosesForAnotherControl)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  scene.click(4 + 3 + metrics.horizontalAdvance("Label text") / 2.0f, y);
  EXPECT_FALSE(combo->isOpen()) << "the label";
  // The text starts 4 into the frame; the 16-wide button is centred 11 in.
  for (float x : {frameLeft + 4 + metrics.horizontalAdvance("o") / 2.0f, frameX, 201.0f - 11}) {
    scene.click(x, y);
    EXPECT_TRUE(combo->isOpen()) << x;
    scene.click(frameX, y);
    EXPECT_FALSE(combo->isOpen()) << "a second press on the frame closes, choosing nothing";
  }
  scene.click(frameX, y);
  // Plate 1 + edge 1 + the released button's cube centred 1 up = 3.5; plate
  // + edge + the combo's frame 1 + its button face 0.1 = 3.1.
  EXPECT_NEAR(combo->lift(), 3.5f - 3.1f + 0.1f, 0.001f);
  scene.click(frameX, itemY(0));
  scene.click(frameX, y);
  scene.click(frameX, itemY(2));
  EXPECT_EQ(combo->shown(), "three");
  scene.click(frameX, y);
  scene.click(frameX, -23 - 15); // the push button
  EXPECT_FALSE(combo->isOpen()) << "another control became active";
  EXPECT_EQ(heard.events, "0 2 button ") << "the selected item fires too";
}

TEST_F(SceneComboBox, itemsChangingAtRunTimeGetBlocksAndBadValuesAreMended)
{
  combo->items.setNum(1);
  EXPECT_EQ(combo->list()->getNumChildren(), 3) << "the lift, a step, a block";
  combo->items.set1Value(1, "b");
  combo->items.set1Value(2, "c");
  EXPECT_EQ(combo->list()->getNumChildren(), 7);
  combo->selectedItem = 2;
  for (int bad : {7, -1})
    combo->selectedItem = bad;
  EXPECT_EQ(combo->selectedItem.getValue(), 2) << "back to the last valid selection";
  EXPECT_EQ(combo->shown(), "c");
  EXPECT_EQ(heard.events, "") << "changes from the application fire nothing";
  combo->items.setNum(0);
  EXPECT_EQ(combo->list()->getNumChildren(), 3) << "the placeholder keeps one block";
  scene.click(frameX, y);
  scene.click(4 + 1, y);
  EXPECT_TRUE(combo->isOpen()) << "a press on the edge beside every part changes nothing";
  scene.click(frameX, itemY(0));
  EXPECT_EQ(combo->shown(), "");
  EXPECT_EQ(heard.events, "0 ");
}

} // namespace
