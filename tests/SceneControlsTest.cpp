#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QCheckBox>
#include <QFontMetrics>

namespace {

// The controls with the pieces of their 3D form in reach.
struct Label : SoDialogLabel {
  using SoDialogLabel::labelText;
};
struct Button : SoDialogPushButton {
  using SoDialogPushButton::buttonLabelText;
};
struct CheckBox : SoDialogCheckBox {
  using SoDialogCheckBox::labelSize;
  using SoDialogCheckBox::onOffText;
};
struct Radio : SoDialogRadioButtons {
  using SoDialogRadioButtons::itemsSep;
  using SoDialogRadioButtons::itemSwitches;
  // Which item shows the chosen look.
  int shownChoice() const
  {
    for (int i = 0; i < itemSwitches.getLength(); ++i)
      if (static_cast<SoSwitch*>(itemSwitches[i])->whichChild.getValue() == 1)
        return i;
    return -1;
  }
};

struct Heard : SoDialogAuditor {
  std::vector<std::string> events;
  void dialogPushButton(SoDialogPushButton*) override { events.push_back("button"); }
  void dialogCheckBox(SoDialogCheckBox* node) override
  {
    events.push_back(node->state.getValue() ? "checked" : "unchecked");
  }
  void dialogRadioButtons(SoDialogRadioButtons* node) override
  {
    events.push_back("item " + std::to_string(node->selectedItem.getValue()));
  }
  void dialogComboBox(SoDialogComboBox* node) override
  {
    events.push_back("choice " + std::to_string(node->selectedItem.getValue()));
  }
};

// Where a node stands in the scene, its place on every path taken into account.
SbVec3f placeOf(SoNode* root, SoNode* node)
{
  SoSearchAction search;
  search.setNode(node);
  search.setSearchingAll(TRUE);
  SoBaseKit::setSearchingChildren(TRUE);
  search.apply(root);
  SoBaseKit::setSearchingChildren(FALSE);
  SoGetBoundingBoxAction box{SbViewportRegion()};
  box.apply(search.getPath());
  return box.getBoundingBox().getCenter();
}

std::vector<std::string> lines(SoText3* text)
{
  std::vector<std::string> result;
  for (int i = 0; i < text->string.getNum(); ++i)
    result.emplace_back(text->string[i].getString());
  return result;
}

// One control of a fixed size in a dialog in the scene, heard by the
// dialog's auditor.
class SceneControls : public ::testing::Test {
protected:
  template <class Control>
  Control* place(int w, int h, bool build = true)
  {
    auto* control = new Control;
    control->width = w;
    control->height = h;
    control->minWidth = 1;
    control->fixedWidth = TRUE;
    control->fixedHeight = TRUE;
    dialog->addChild(control);
    dialog->addAuditor(&heard);
    scene.root->addChild(dialog);
    if (build)
      buildInScene(dialog);
    return control;
  }
  // The control's centre: 4 in from the plate's left and 23 below its top.
  static SbVec2f centre(SoDialogComponent* c)
  {
    return SbVec2f(4 + c->width.getValue() / 2.0f, -23 - c->height.getValue() / 2.0f);
  }

  // The nodes live on after the test; the auditor does not.
  void TearDown() override { dialog->removeAuditor(&heard); }

  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  Heard heard;
};

TEST_F(SceneControls, aPushButtonFiresAtReleaseWhereverThePointerWentAndNotFromItsLabel)
{
  auto* button = place<Button>(200, 30, false);
  button->label = "Label text";
  button->buttonLabel = "Go";
  buildInScene(dialog);
  const SbVec2f c = centre(button);
  const float body = c[0] + 100 - 10;
  const float captionTop = placeOf(scene.root, button->buttonLabelText)[2];

  scene.button(SoButtonEvent::DOWN, body, c[1]);
  // The released block's top stands at 2 and the pressed one's at 1.
  EXPECT_NEAR(placeOf(scene.root, button->buttonLabelText)[2], captionTop - 1, 0.01f);
  EXPECT_TRUE(heard.events.empty()) << "the button fires at release";
  scene.button(SoButtonEvent::UP, body, c[1]);
  EXPECT_NEAR(placeOf(scene.root, button->buttonLabelText)[2], captionTop, 0.01f);
  EXPECT_EQ(heard.events, std::vector<std::string>{"button"});

  scene.button(SoButtonEvent::DOWN, body, c[1]);
  scene.move(390.0f, -390.0f);
  scene.button(SoButtonEvent::UP, 390.0f, -390.0f);
  EXPECT_EQ(heard.events.size(), 2u) << "released outside, it fires all the same";

  const float labelWidth = static_cast<float>(QFontMetrics(SoFormwright::getFormwrightFont()).horizontalAdvance("Label text"));
  scene.click(c[0] - 100 + 3 + labelWidth / 2, c[1]);
  EXPECT_EQ(heard.events.size(), 2u) << "a press on the label does nothing";

  button->enable = FALSE;
  scene.click(body, c[1]);
  EXPECT_EQ(heard.events.size(), 2u) << "a disabled button takes no press";
}

TEST_F(SceneControls, aCheckBoxTogglesAtReleaseInTheSceneAndInItsWindow)
{
  auto* box = place<CheckBox>(200, 30, false);
  box->label = "Label text";
  box->onString = "on";
  dialog->buildDialog(nullptr, 0);
  buildInScene(dialog);
  auto* widget = dialog->getBaseWidget()->findChild<QCheckBox*>("FWTSoDialogQCheckBoxCheckBoxWidget");
  ASSERT_NE(widget, nullptr);
  const SbVec2f c = centre(box);
  // The body starts 2 after the label column; the mark lies 10 into it.
  const float mark = c[0] - 100 + 3 + box->labelSize[0] + 2 + 10;

  scene.click(mark, c[1]);
  EXPECT_TRUE(box->state.getValue());
  EXPECT_TRUE(widget->isChecked());
  EXPECT_EQ(widget->text(), QString("on"));
  scene.click(c[0] + 90, c[1]);
  EXPECT_FALSE(box->state.getValue()) << "a press on the frame toggles too";
  EXPECT_FALSE(widget->isChecked());
  EXPECT_EQ(lines(box->onOffText), std::vector<std::string>{"on"}) << "no off text: the on text in both states";
  EXPECT_EQ(heard.events, (std::vector<std::string>{"checked", "unchecked"}));

  const float labelWidth = static_cast<float>(QFontMetrics(SoFormwright::getFormwrightFont()).horizontalAdvance("Label text"));
  scene.click(c[0] - 100 + 3 + labelWidth / 2, c[1]);
  EXPECT_FALSE(box->state.getValue()) << "a press on the label does nothing";
  EXPECT_EQ(heard.events.size(), 2u);
}

TEST_F(SceneControls, radioButtonsChooseAtReleaseAndFollowTheirItems)
{
  auto* radio = place<Radio>(200, 90, false);
  radio->items.set1Value(0, "one");
  radio->items.set1Value(1, "two");
  radio->items.set1Value(2, "three");
  buildInScene(dialog);
  // Three items share the 90 less 30: 20 each. The first one's centre lies
  // 20 below the frame's top, which is 3 below the control's, plus half an
  // item; the items are 20 narrower than the control.
  const SbVec2f c = centre(radio);
  const auto itemY = [&](int i) { return c[1] + 42 - 20 + 10 - 20 * i; };

  EXPECT_EQ(radio->shownChoice(), 0) << "the first item is chosen from the start";
  scene.click(c[0], itemY(2));
  EXPECT_EQ(radio->selectedItem.getValue(), 2);
  EXPECT_EQ(radio->shownChoice(), 2);
  scene.click(c[0], itemY(2));
  scene.click(c[0] - 95, itemY(0));
  EXPECT_EQ(heard.events, (std::vector<std::string>{"item 2", "item 2", "item 2"}))
    << "choosing the chosen item, or pressing beside the items, fires with the choice unchanged";

  auto* items = static_cast<SoSwitch*>(radio->itemsSep.getValue());
  radio->items.setNum(0);
  EXPECT_EQ(items->whichChild.getValue(), SO_SWITCH_NONE);
  EXPECT_EQ(items->getNumChildren(), 1) << "the first item's translation alone";
  EXPECT_EQ(radio->selectedItem.getValue(), 0);
  scene.click(c[0], itemY(0));
  EXPECT_EQ(heard.events.back(), "item 0") << "no item to choose: the frame's press keeps the guarded choice";

  radio->items.set1Value(0, "a");
  radio->items.set1Value(1, "b");
  EXPECT_EQ(items->whichChild.getValue(), SO_SWITCH_ALL);
  // The translation, the first item, one step, the second item.
  EXPECT_EQ(items->getNumChildren(), 4);
}

TEST_F(SceneControls, aLabelShowsExactlyItsNewTextAndBreaksToItsWidth)
{
  // Narrower than any character: one character to a line.
  auto* narrow = new Label;
  narrow->width = 8;
  narrow->minWidth = 1;
  narrow->fixedWidth = TRUE;
  narrow->label = "abc";
  dialog->addChild(narrow);
  auto* label = place<Label>(100, 60, false);
  label->label = "one\ntwo\nthree";
  buildInScene(dialog);
  EXPECT_EQ(lines(narrow->labelText), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(lines(label->labelText), (std::vector<std::string>{"one", "two", "three"}));
  label->label = "x\ny";
  EXPECT_EQ(lines(label->labelText), (std::vector<std::string>{"x", "y"}));
  label->label = "";
  EXPECT_EQ(lines(label->labelText), std::vector<std::string>{""});
}

struct Combo : SoDialogComboBox {
  using SoDialogComboBox::labelSize;
  SoSwitch* list() const { return static_cast<SoSwitch*>(itemsSwitch.getValue()); }
  bool isOpen() const { return list()->whichChild.getValue() == SO_SWITCH_ALL; }
  float lift() const { return itemsLift->translation.getValue()[2]; }
  std::string shown() const { return selectedText->string[0].getString(); }
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
  EXPECT_EQ(heard.events, (std::vector<std::string>{"choice 0", "choice 2", "button"})) << "the selected item fires too";
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
  EXPECT_TRUE(heard.events.empty()) << "changes from the application fire nothing";
  combo->items.setNum(0);
  EXPECT_EQ(combo->list()->getNumChildren(), 3) << "the placeholder keeps one block";
  scene.click(frameX, y);
  scene.click(4 + 1, y);
  EXPECT_TRUE(combo->isOpen()) << "a press on the edge beside every part changes nothing";
  scene.click(frameX, itemY(0));
  EXPECT_EQ(combo->shown(), "");
  EXPECT_EQ(heard.events, std::vector<std::string>{"choice 0"});
}

} // namespace
