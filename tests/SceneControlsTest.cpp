#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>

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

} // namespace
