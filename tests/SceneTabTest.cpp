// The tab dialog in the scene: its tabs, scroll buttons and pages.

#include "SceneTestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogPushButton.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>

#include <Inventor/nodes/SoSwitch.h>

namespace {

int whichChild(SoNode* node) { return static_cast<SoSwitch*>(node)->whichChild.getValue(); }

// The strip holds its two clip planes ahead of the tabs.
struct Tabs : SoTabDialog {
  using SoTabDialog::rButtonSwtch;
  SoGroup* strip() const { return static_cast<SoGroup*>(pagesSep.getValue()); }
  int tabCount() const { return strip()->getNumChildren() - 2; }
  bool tabShown(int page) const { return whichChild(strip()->getChild(page + 2)) != SO_SWITCH_NONE; }
};

struct PageListener : SoTabDialogAuditor {
  int calls = 0;
  void tabDialog(SoTabDialog*) override { ++calls; }
};

class SceneTabs : public ::testing::Test {
protected:
  // Pages titled by one letter, narrower than the least title width of 25:
  // every tab is 25 + 14 wide. The window dictates the tab dialog's width.
  void build(int pages, int tabsWidth)
  {
    dialog->margin = 0;
    dialog->width = tabsWidth;
    for (int i = 0; i < pages; ++i)
      tabs->addChild(page(i));
    tabs->addAuditor(&listener);
    dialog->addChild(tabs);
    scene.root->addChild(dialog);
    buildInScene(dialog);
  }
  static SoDialogPushButton* page(int i)
  {
    auto* button = new SoDialogPushButton;
    button->label = SbString(static_cast<char>('A' + i));
    button->labelVisibility = FALSE;
    return button;
  }
  // The tab dialog's corner stands 4 in from the plate's left and 23 below
  // its top; the strip starts 3 further in, its middle 13 below the corner.
  static constexpr float kStripLeft = 7.0f;
  static constexpr float kStripMiddle = -36.0f;
  void pressTab(int slot) { scene.click(kStripLeft + 39.0f * slot + 19.5f, kStripMiddle); }
  // The buttons' middles: 26 and 10 in from the strip's right end.
  float button(float fromRight) const { return kStripLeft + (tabs->width.getValue() - 6) - fromRight; }
  // A hidden page has nothing to measure.
  void expectOnlyPageShown(int selected)
  {
    for (int i = 0; i < tabs->getNumChildren(); ++i) {
      SoGetBoundingBoxAction box{SbViewportRegion()};
      box.apply(tabs->getChild(i));
      EXPECT_EQ(box.getBoundingBox().isEmpty(), i != selected) << "page " << i;
    }
    const SbVec3f middle = centreOf(tabs->getChild(selected));
    EXPECT_EQ(scene.pickedNode(middle[0], middle[1]), tabs->getChild(selected));
  }

  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  Tabs* tabs = new Tabs;
  PageListener listener;
};

// Pages chosen by a press are heard; pages out of range or removed fall
// back unheard; a page added or removed after the build brings or takes
// its tab.
TEST_F(SceneTabs, aPressOnATabShowsItsPageAloneAndTabsFollowThePages)
{
  build(3, 300);
  expectOnlyPageShown(0);
  // A press on the tab already chosen is no choice.
  for (int slot : {2, 2, 1}) {
    pressTab(slot);
    EXPECT_EQ(tabs->selectedPage.getValue(), slot);
    expectOnlyPageShown(slot);
  }
  EXPECT_EQ(listener.calls, 2);
  for (int outOfRange : {9, 3, -1}) {
    tabs->selectedPage = outOfRange;
    EXPECT_EQ(tabs->selectedPage.getValue(), 1) << outOfRange;
  }
  expectOnlyPageShown(1);

  tabs->addChild(page(3));
  EXPECT_EQ(tabs->tabCount(), 4);
  pressTab(3);
  expectOnlyPageShown(3);
  // The page to fall back on goes with the chosen one: the first is left.
  tabs->removeChild(3);
  EXPECT_EQ(tabs->tabCount(), 3);
  EXPECT_EQ(tabs->selectedPage.getValue(), 0);
  expectOnlyPageShown(0);
  EXPECT_EQ(listener.calls, 3);
}

TEST_F(SceneTabs, theScrollButtonsShowDownAtThePressAndMoveTheStripByOneAtRelease)
{
  // 194 wide: four tabs fit within 160, and the fifth shows, cut.
  build(6, 200);
  EXPECT_TRUE(tabs->tabShown(4));
  EXPECT_FALSE(tabs->tabShown(5));
  scene.button(SoButtonEvent::DOWN, button(10), kStripMiddle);
  EXPECT_EQ(whichChild(tabs->rButtonSwtch.getValue()), 1);
  EXPECT_TRUE(tabs->tabShown(0)) << "the strip moves at release";
  scene.button(SoButtonEvent::UP, button(10), kStripMiddle);
  EXPECT_EQ(whichChild(tabs->rButtonSwtch.getValue()), 0);
  EXPECT_FALSE(tabs->tabShown(0));
  EXPECT_TRUE(tabs->tabShown(5));
  pressTab(0);
  EXPECT_EQ(tabs->selectedPage.getValue(), 1);
  scene.click(button(26), kStripMiddle);
  pressTab(0);
  EXPECT_EQ(tabs->selectedPage.getValue(), 0);
}

} // namespace

namespace {

// A page sized by the tab dialog, after the window measured it otherwise,
// lays its children out in its own size.
TEST(SceneTabPages, keepTheirChildrenInsideThem)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "TopLevelDialog { TabDialog {"
                                "  RowDialog { label \"A\" DialogCheckBox { label \"x\" } }"
                                "  RowDialog { label \"B\" margin 4 rowSpacing 4 DialogCheckBox { } DialogCheckBox { } } } }\n");
  ASSERT_NE(root, nullptr);
  auto* dialog = static_cast<SoTopLevelDialog*>(root->getChild(0));
  buildInScene(dialog);
  auto* tabs = static_cast<SoTabDialog*>(dialog->getChild(0));
  for (int page = 0; page < 2; ++page) {
    auto* row = static_cast<SoDialogGroup*>(tabs->getChild(page));
    for (int i = 0; i < row->getNumChildren(); ++i)
      EXPECT_LE(static_cast<SoDialogComponent*>(row->getChild(i))->height.getValue(), row->height.getValue())
        << "page " << page << ", child " << i;
  }
}

} // namespace
