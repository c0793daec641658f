#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogRealSlider.h>

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoText3.h>

#include <cmath>

namespace {

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
    SoSearchAction search;
    search.setNode(static_cast<SoSFNode*>(slider->getField(part))->getValue());
    SoBaseKit::setSearchingChildren(TRUE);
    search.apply(scene.root);
    SoBaseKit::setSearchingChildren(FALSE);
    SoGetBoundingBoxAction measure{SbViewportRegion()};
    measure.apply(search.getPath());
    return measure.getBoundingBox();
  }
  float cursorX() { return box("cursorSep").getCenter()[0]; }
  // The cursor's centre at `position`: it travels the bar less its width, 10.
  float cursorAt(float position)
  {
    const SbBox3f bar = box("frameSep");
    return bar.getMin()[0] + 5 + position * (bar.getSize()[0] - 10);
  }
  std::string text() const { return slider->editText3->string[0].getString(); }
  void type(std::initializer_list<Key::Key> keys)
  {
    for (Key::Key key : keys)
      scene.key(key);
  }
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
  at.type({Key::BACKSPACE, Key::NUMBER_7, Key::MINUS});
  EXPECT_EQ(at.text(), "7");
  EXPECT_EQ(at.cursorX(), start);
  EXPECT_TRUE(at.heard.empty());
  at.type({Key::RETURN, Key::NUMBER_1});
  EXPECT_EQ(at.slider->value.getValue(), 7);
  EXPECT_NEAR(at.cursorX(), at.cursorAt(0.7f), 0.01f);
  EXPECT_EQ(at.text(), "7") << "Return ends the editing";
  EXPECT_EQ(at.heard, Values{7});
  at.clickValueBox();
  at.type({Key::NUMBER_2});
  at.dragCursorTo(at.cursorX() + 1);
  at.release();
  at.type({Key::NUMBER_3, Key::RETURN});
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

TEST(SceneSlider, badInputGivesNumbersNeverNaN)
{
  SliderScene<IntSlider> equal(5, 5);
  EXPECT_EQ(equal.text(), "5") << "equal limits show min";
  const SbBox3f bar = equal.box("frameSep");
  equal.scene.click(bar.getCenter()[0], bar.getCenter()[1] + 5);
  EXPECT_EQ(equal.slider->value.getValue(), 5);
  EXPECT_TRUE(std::isfinite(equal.cursorX()));
  equal.clickValueBox();
  equal.type({Key::BACKSPACE, Key::BACKSPACE, Key::RETURN});
  EXPECT_EQ(equal.slider->value.getValue(), 0) << "an empty box reads as 0";

  SliderScene<RealSlider> real(0, 10);
  real.clickValueBox();
  real.type({Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::BACKSPACE, Key::MINUS,
             Key::NUMBER_1, Key::PERIOD, Key::NUMBER_5, Key::A, Key::LEFT_ARROW, Key::LEFT_SHIFT});
  EXPECT_EQ(real.text(), "1.5") << "a lone minus and a letter make no number";
  real.type({Key::RETURN});
  EXPECT_FLOAT_EQ(real.slider->value.getValue(), 1.5f);
  EXPECT_NEAR(real.cursorX(), real.cursorAt(0.15f), 0.01f);
  EXPECT_EQ(real.text(), "1.500");
}

} // namespace
