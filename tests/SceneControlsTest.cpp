#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogEditTextAuditor.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>
#include <SoRowDialog.h>

#include <Inventor/nodes/SoEventCallback.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QCheckBox>
#include <QFontMetrics>

#include <cmath>

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

std::vector<std::string> lines(SoText3* text)
{
  std::vector<std::string> result;
  for (int i = 0; i < text->string.getNum(); ++i)
    result.emplace_back(text->string[i].getString());
  return result;
}

// Controls of a fixed size in a dialog in the scene, heard by the
// dialog's auditor.
class SceneControls : public ::testing::Test {
protected:
  SceneControls()
  {
    dialog->addAuditor(&heard);
    scene.root->addChild(dialog);
  }
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
    if (build)
      buildInScene(dialog);
    return control;
  }
  // The control's centre: 4 in from the plate's left and 23 below its top.
  static SbVec2f centre(SoDialogComponent* c)
  {
    return SbVec2f(4 + c->width.getValue() / 2.0f, -23 - c->height.getValue() / 2.0f);
  }
  // The middle of the words "Label text" of a control's label, which starts
  // 3 into the control.
  static float labelTextX()
  {
    return 4 + 3 + QFontMetrics(SoFormwright::getFormwrightFont()).horizontalAdvance("Label text") / 2.0f;
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
  const auto captionTop = [&] { return boxBelow(scene.root, button->buttonLabelText).getCenter()[2]; };
  const float released = captionTop();

  scene.button(SoButtonEvent::DOWN, body, c[1]);
  // The released block's top stands at 2 and the pressed one's at 1.
  EXPECT_NEAR(captionTop(), released - 1, 0.01f);
  EXPECT_TRUE(heard.events.empty()) << "the button fires at release";
  scene.button(SoButtonEvent::UP, body, c[1]);
  EXPECT_NEAR(captionTop(), released, 0.01f);
  EXPECT_EQ(heard.events, std::vector<std::string>{"button"});

  scene.button(SoButtonEvent::DOWN, body, c[1]);
  scene.move(390.0f, -390.0f);
  scene.button(SoButtonEvent::UP, 390.0f, -390.0f);
  EXPECT_EQ(heard.events.size(), 2u) << "released outside, it fires all the same";

  scene.click(labelTextX(), c[1]);
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

  scene.click(labelTextX(), c[1]);
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
class SceneComboBox : public SceneControls {
protected:
  void SetUp() override
  {
    place<SoDialogPushButton>(200, 30, false);
    combo = place<Combo>(200, 30, false);
    combo->label = "Label text";
    const char* items[] = {"one", "two", "three"};
    combo->items.setValues(0, 3, items);
    buildInScene(dialog);
    frameLeft = 4 + 3 + combo->labelSize[0] + 2;
    frameX = (frameLeft + 201) / 2;
  }
  static float itemY(int i) { return y - 22.0f * (i + 1); }
  static constexpr float y = -23 - 30 - 15;
  Combo* combo = nullptr;
  float frameLeft = 0, frameX = 0;
};

TEST_F(SceneComboBox, opensFromTextFrameOrButtonChoosesAnItemAndClosesForAnotherControl)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  scene.click(labelTextX(), y);
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

// Sliders with the shown number in reach.
template <class Base>
struct Exposed : Base {
  using SoDialogSlider::editText3;
};
using IntSlider = Exposed<SoDialogIntegerSlider>;
using RealSlider = Exposed<SoDialogRealSlider>;

using Values = std::vector<float>;
using Key = SoKeyboardEvent;

// One slider from `min` to `max` in a dialog in the scene; the fixture hears
// the values that its auditors are told.
template <class Slider>
struct SliderScene : SoDialogAuditor {
  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  Slider* slider = new Slider;
  Values heard;
  float grabbedAt = 0.0f;

  SliderScene(int min, int max)
  {
    slider->min = min;
    slider->max = max;
    slider->value = min;
    slider->width = 240;
    dialog->addChild(slider);
    dialog->addAuditor(this);
    scene.root->addChild(dialog);
    buildInScene(dialog);
  }
  void dialogIntegerSlider(SoDialogIntegerSlider* node) override { heard.push_back(node->value.getValue()); }
  void dialogRealSlider(SoDialogRealSlider* node) override { heard.push_back(node->value.getValue()); }
  // Where a part of the slider lies in the scene.
  SbBox3f box(const char* part)
  {
    return boxBelow(scene.root, static_cast<SoSFNode*>(slider->getField(part))->getValue());
  }
  float cursorX() { return box("cursorSep").getCenter()[0]; }
  // The cursor's centre at `position`: it travels the bar less its width, 10.
  float cursorAt(float position)
  {
    const SbBox3f bar = box("frameSep");
    return bar.getMin()[0] + 5 + position * (bar.getSize()[0] - 10);
  }
  std::string text() const { return slider->editText3->string[0].getString(); }
  void clickValueBox() { scene.click(box("edtFrmSep").getCenter()); }
  // Presses on the cone and moves it to `x`, held until `release`.
  void dragCursorTo(float x)
  {
    const SbVec3f cone = box("cursorSep").getCenter();
    grabbedAt = cone[1];
    scene.button(SoButtonEvent::DOWN, cone[0], grabbedAt);
    scene.move(std::round(x), grabbedAt);
  }
  void release() { scene.button(SoButtonEvent::UP, cursorX(), grabbedAt); }
};

TEST(SceneSlider, aPressOnTheBarPutsTheCursorsCentreThereClampedAndFires)
{
  SliderScene<IntSlider> at(0, 10);
  const SbBox3f bar = at.box("frameSep");
  // Above the cone, which stands on the bar's lower half.
  const float y = bar.getCenter()[1] + 5;
  const float x = std::round(at.cursorAt(0.3f));
  at.scene.click(x, y);
  EXPECT_NEAR(at.cursorX(), x, 1.0f);
  EXPECT_EQ(at.text(), "3");
  at.scene.click(bar.getMax()[0] - 1, y);
  EXPECT_NEAR(at.cursorX(), at.cursorAt(1), 0.01f);
  at.scene.click(bar.getMin()[0] + 1, y);
  EXPECT_NEAR(at.cursorX(), at.cursorAt(0), 0.01f);
  EXPECT_EQ(at.heard, (Values{3, 10, 0}));
}

TEST(SceneSlider, typedDigitsMoveTheCursorOnlyAtReturnAndAnIntegerBoxRefusesTheMinus)
{
  SliderScene<IntSlider> at(0, 10);
  const float start = at.cursorX();
  at.clickValueBox();
  at.scene.type({Key::BACKSPACE, Key::NUMBER_7, Key::MINUS});
  EXPECT_EQ(at.text(), "7");
  EXPECT_EQ(at.cursorX(), start);
  EXPECT_TRUE(at.heard.empty());
  at.scene.type({Key::RETURN, Key::NUMBER_1});
  EXPECT_EQ(at.slider->value.getValue(), 7);
  EXPECT_NEAR(at.cursorX(), at.cursorAt(0.7f), 0.01f);
  EXPECT_EQ(at.text(), "7") << "Return ends the editing";
  EXPECT_EQ(at.heard, Values{7});
  at.clickValueBox();
  at.scene.type({Key::NUMBER_2});
  at.dragCursorTo(at.cursorX() + 1);
  at.release();
  at.scene.type({Key::NUMBER_3, Key::RETURN});
  EXPECT_EQ(at.slider->value.getValue(), 7) << "a drag of the cursor ends an edit untaken";
}

TEST(SceneSlider, theToggleFlipsContinuousTriggerAtReleaseSilentlyAndHidingItLengthensTheBar)
{
  SliderScene<IntSlider> at(0, 10);
  const SbVec3f toggle = at.box("checkSep").getCenter();
  at.scene.button(SoButtonEvent::DOWN, toggle[0], toggle[1]);
  EXPECT_FALSE(at.slider->continuousTrigger.getValue());
  at.scene.button(SoButtonEvent::UP, toggle[0], toggle[1]);
  EXPECT_TRUE(at.slider->continuousTrigger.getValue());

  // Followed while dragged, so the release adds nothing.
  at.dragCursorTo(at.cursorAt(0.5f));
  EXPECT_EQ(at.heard, Values{5});
  at.release();

  at.scene.click(toggle[0], toggle[1]);
  EXPECT_FALSE(at.slider->continuousTrigger.getValue());
  at.dragCursorTo(at.cursorAt(0.2f));
  EXPECT_EQ(at.text(), "2");
  EXPECT_EQ(at.heard, Values{5}) << "the value waits for the release";
  at.release();
  EXPECT_EQ(at.heard, (Values{5, 2}));

  const SbBox3f shown = at.box("frameSep");
  at.slider->toggleVisible = FALSE;
  const SbBox3f hidden = at.box("frameSep");
  EXPECT_NEAR(hidden.getSize()[0] - shown.getSize()[0], 18, 0.01f);
  EXPECT_NEAR(hidden.getMax()[0], shown.getMax()[0], 0.01f) << "the value box keeps its place";
}

TEST(SceneSlider, aStillPressOnTheCursorChangesNothing)
{
  SliderScene<RealSlider> at(0, 10);
  at.slider->min = -1.3f;
  at.slider->max = 2.7f;
  at.slider->value = 0.7f;
  at.scene.click(at.box("cursorSep").getCenter());
  EXPECT_EQ(at.slider->value.getValue(), 0.7f);
  EXPECT_TRUE(at.heard.empty());
}

TEST(SceneSlider, badInputGivesNumbersNeverNaN)
{
  SliderScene<IntSlider> equal(5, 5);
  EXPECT_EQ(equal.text(), "5") << "equal limits show min";
  const SbBox3f bar = equal.box("frameSep");
  equal.scene.click(bar.getCenter()[0], bar.getCenter()[1] + 5);
  EXPECT_EQ(equal.slider->value.getValue(), 5);
  EXPECT_TRUE(std::isfinite(equal.cursorX()));
  equal.clickValueBox();
  equal.scene.type({Key::BACKSPACE, Key::BACKSPACE, Key::RETURN});
  EXPECT_EQ(equal.slider->value.getValue(), 0) << "an empty box reads as 0";

  SliderScene<RealSlider> real(0, 10);
  real.clickValueBox();
  real.scene.type({Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::MINUS,
             Key::NUMBER_1, Key::PERIOD, Key::NUMBER_5, Key::A, Key::LEFT_ARROW, Key::LEFT_SHIFT});
  EXPECT_EQ(real.text(), "1.5") << "a lone minus and a letter make no number";
  real.scene.type({Key::RETURN});
  EXPECT_FLOAT_EQ(real.slider->value.getValue(), 1.5f);
  EXPECT_NEAR(real.cursorX(), real.cursorAt(0.15f), 0.01f);
  EXPECT_EQ(real.text(), "1.500");
}

class HeardTexts : public SoDialogEditTextAuditor {
public:
  std::vector<std::string> heard;
  void dialogEditText(SoDialogEditText* node) override { heard.push_back(node->editText.getValue().getString()); }
};

// An edit text and a read-only one side by side in a row of a window, so
// that a key crosses three nested interface nodes; a callback behind the
// window counts the key presses that nobody took.
struct EditScene {
  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  SoDialogEditText* edit = makeNode<SoDialogEditText>();
  SoDialogEditText* other = makeNode<SoDialogEditText>();
  HeardTexts auditor;
  int untakenKeys = 0;
  SbVec3f editAt, otherAt;

  explicit EditScene(bool trigOnEnter, bool multiLine = false, int width = 120)
  {
    auto* row = makeNode<SoRowDialog>();
    edit->trigOnEnter = trigOnEnter;
    edit->multiLine = multiLine;
    edit->labelVisibility = FALSE;
    edit->width = width;
    other->width = width;
    edit->height = multiLine ? 80 : 30;
    other->editable = FALSE;
    row->addChild(edit);
    row->addChild(other);
    dialog->addChild(row);
    edit->addAuditor(&auditor);
    scene.root->addChild(dialog);
    auto* behind = new SoEventCallback;
    behind->addEventCallback(SoKeyboardEvent::getClassTypeId(), &EditScene::countUntaken, this);
    scene.root->addChild(behind);
    buildInScene(dialog);
    // Before any text, which may reach out of the box.
    editAt = centreOf(edit);
    otherAt = centreOf(other);
  }
  // The nodes live on, and the edit text may still hold the keyboard.
  ~EditScene() { edit->removeAuditor(&auditor); }
  EditScene(const EditScene&) = delete;
  EditScene& operator=(const EditScene&) = delete;
  static void countUntaken(void* data, SoEventCallback* callback)
  {
    if (SoKeyboardEvent::isKeyPressEvent(callback->getEvent(), SoKeyboardEvent::ANY))
      ++static_cast<EditScene*>(data)->untakenKeys;
  }
  std::string text() const { return edit->editText.getValue().getString(); }
};

// The text drawn in the box: the last text of the control.
SoText3* shownText(SoDialogEditText* node)
{
  SoSearchAction search;
  search.setType(SoText3::getClassTypeId());
  search.setInterest(SoSearchAction::LAST);
  SoBaseKit::setSearchingChildren(TRUE);
  search.apply(node);
  SoBaseKit::setSearchingChildren(FALSE);
  return static_cast<SoText3*>(fullPathNodes(search.getPath()).back());
}

TEST(SceneEditText, keysGoToTheTailOncePerPressAndReturnCommits)
{
  EditScene at(true);
  at.scene.type({SoKeyboardEvent::A});
  EXPECT_EQ(at.text(), "") << "no key is taken before a press on the box";
  EXPECT_EQ(at.untakenKeys, 1);

  at.scene.click(at.editAt);
  at.scene.type({SoKeyboardEvent::A, SoKeyboardEvent::B, SoKeyboardEvent::NUMBER_1, SoKeyboardEvent::PAD_7});
  EXPECT_EQ(at.text(), "ab17") << "the keypad's navigation keys type their digits";
  at.scene.type({SoKeyboardEvent::LEFT_ARROW, SoKeyboardEvent::LEFT_SHIFT});
  EXPECT_EQ(at.text(), "ab17");
  EXPECT_EQ(at.untakenKeys, 3) << "keys that type nothing go on";
  at.scene.type({SoKeyboardEvent::BACKSPACE});
  at.scene.key(SoKeyboardEvent::RETURN, true);
  EXPECT_EQ(at.text(), "ab1\n");
  EXPECT_TRUE(at.auditor.heard.empty()) << "only Return or leaving tells";

  at.scene.type({SoKeyboardEvent::RETURN, SoKeyboardEvent::C});
  EXPECT_EQ(at.auditor.heard, std::vector<std::string>{"ab1\n"});
  EXPECT_EQ(at.text(), "ab1\n") << "Return ends the editing";

  // A press on another control commits as Return does.
  at.scene.click(at.editAt);
  at.scene.type({SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::Q});
  at.scene.click(at.otherAt);
  at.scene.type({SoKeyboardEvent::X});
  EXPECT_EQ(at.auditor.heard, (std::vector<std::string>{"ab1\n", "ab1q"}));
  EXPECT_EQ(at.text(), "ab1q");
  EXPECT_EQ(at.other->editText.getValue(), "") << "a read-only box takes no key";
}

TEST(SceneEditText, withoutTrigOnEnterEveryKeyTells)
{
  EditScene at(false);
  at.scene.click(at.editAt);
  at.scene.type({SoKeyboardEvent::X, SoKeyboardEvent::Y, SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::RETURN});
  EXPECT_EQ(at.auditor.heard, (std::vector<std::string>{"x", "xy", "x"}));
}

float measuredWidth(const std::string& text)
{
  auto* measured = new SoSeparator;
  measured->ref();
  measured->addChild(SoNode::getByName("DialogTextProperties"));
  auto* line = new SoText3;
  line->string = text.c_str();
  measured->addChild(line);
  SoGetBoundingBoxAction box{SbViewportRegion()};
  box.apply(measured);
  measured->unref();
  return box.getBoundingBox().getSize()[0];
}

TEST(SceneEditText, aLongLineWrapsRepeatingTheCharacterThatOverflows)
{
  EditScene at(true, true);
  at.scene.click(at.editAt);
  const std::string typed = "abcdefghijklmnopqrstuvwxyz";
  for (char c : typed)
    at.scene.key(static_cast<SoKeyboardEvent::Key>(SoKeyboardEvent::A + (c - 'a')));
  ASSERT_EQ(at.text(), typed);

  // The box less its border, scroll bar and insets.
  const float room = static_cast<float>(at.edit->width.getValue() - 6 - 14 - 8);
  size_t end = 1;
  while (end < typed.size() && measuredWidth(typed.substr(0, end)) < room)
    ++end;
  ASSERT_LT(end, typed.size()) << "the line must be long enough to wrap";
  const size_t next = measuredWidth(typed.substr(0, end)) > room ? end - 1 : end;
  const SoMFString& lines = shownText(at.edit)->string;
  ASSERT_GE(lines.getNum(), 2);
  EXPECT_EQ(std::string(lines[0].getString()), typed.substr(0, end));
  EXPECT_EQ(lines[1].getString()[0], typed[next]);

  at.scene.key(SoKeyboardEvent::RETURN, true);
  at.scene.type({SoKeyboardEvent::Z});
  EXPECT_EQ(std::string(lines[lines.getNum() - 1].getString()), "z") << "Shift+Return opens a line";
  EXPECT_EQ(at.text(), typed + "\nz");
}

TEST(SceneEditText, aBoxNarrowerThanOneCharacterTakesOneCharacterPerLine)
{
  EditScene at(true, true, 30);
  const float room = static_cast<float>(at.edit->width.getValue() - 6 - 14 - 8);
  ASSERT_GT(measuredWidth("m"), room);
  // The box lies left of its bar, 7 left of the control's centre.
  at.scene.click(at.editAt[0] - 7, at.editAt[1]);
  at.scene.type({SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::M, SoKeyboardEvent::M, SoKeyboardEvent::M});
  EXPECT_EQ(at.text(), "mmm") << "a backspace in an empty box leaves it empty";
  const SoMFString& lines = shownText(at.edit)->string;
  ASSERT_EQ(lines.getNum(), 3);
  EXPECT_EQ(std::string(lines[2].getString()), "m");
}

} // namespace
