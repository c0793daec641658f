#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>
#include <SoMenuSeparator.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>

#include <Inventor/details/SoNodeKitDetail.h>
#include <Inventor/nodes/SoSwitch.h>

namespace {

struct Push : SoMenuPushButton {
  int look() const { return static_cast<SoSwitch*>(btnSwtch.getValue())->whichChild.getValue(); }
};

struct Heard : SoDialogAuditor {
  std::vector<std::string> events;
  void menuPushButton(SoMenuPushButton*) override { events.push_back("push"); }
  void menuCheckBox(SoMenuCheckBox* node) override { events.push_back(node->state.getValue() ? "on" : "off"); }
  void menuRadioButtons(SoMenuRadioButtons* node) override
  {
    events.push_back("item " + std::to_string(node->selectedItem.getValue()));
  }
};

// A dialog with a bar of two menus. File holds, from the top: a push entry,
// a check entry, a separator, a radio group of two and a cascade.
class SceneMenu : public ::testing::Test {
protected:
  SceneMenu()
  {
    for (SoMenuPopup* menu : {file, edit})
      bar->addChild(menu);
    file->label = "File";
    edit->label = "Edit";
    push->label = "Open";
    check->label = "Wrap";
    check->onString = "Wrapped";
    radio->items.set1Value(0, "one");
    radio->items.set1Value(1, "two");
    cascade->label = "More";
    for (SoMenuItem* item : std::vector<SoMenuItem*>{push, check, makeNode<SoMenuSeparator>(), radio, cascade})
      file->addChild(item);
    cascade->addChild(inner);
    edit->addChild(makeNode<SoMenuPushButton>());
    dialog->addChild(bar);
    auto* label = makeNode<SoDialogLabel>();
    label->height = 30;
    label->fixedHeight = TRUE;
    dialog->addChild(label);
    dialog->addAuditor(&heard);
    scene.root->addChild(dialog);
    buildInScene(dialog);
  }
  // Titles stand side by side from the children's corner (4, -41), one unit
  // apart, on the 20 high strip above it.
  SbVec2f title(SoMenuPopup* menu) const
  {
    const float x = menu == file ? 4.0f : 4.0f + file->getItemSize()[0] + 1;
    return SbVec2f(x + menu->getItemSize()[0] / 2.0f, -31.0f);
  }
  void clickTitle(SoMenuPopup* menu) { scene.click(title(menu)[0], title(menu)[1]); }

  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  SoMenuBar* bar = makeNode<SoMenuBar>();
  SoMenuPopup* file = makeNode<SoMenuPopup>();
  SoMenuPopup* edit = makeNode<SoMenuPopup>();
  Push* push = new Push;
  SoMenuCheckBox* check = makeNode<SoMenuCheckBox>();
  SoMenuRadioButtons* radio = makeNode<SoMenuRadioButtons>();
  SoMenuPopup* cascade = makeNode<SoMenuPopup>();
  SoMenuPushButton* inner = makeNode<SoMenuPushButton>();
  Heard heard;
};

TEST_F(SceneMenu, aPopupOpensInFrontOfItsDialogAndOnlyOneStaysOpen)
{
  const float front = boxOf(dialog).getMax()[2];
  clickTitle(file);
  ASSERT_TRUE(file->isOpen3D());
  // The first entry hangs below the bar: its 18 high frame from y -41 down,
  // as wide as the widest entry of File.
  const SbBox3f entry = boxOf(push);
  EXPECT_NEAR(entry.getMin()[1], -59.0f, 0.01f);
  EXPECT_NEAR(entry.getMin()[0], 4.0f, 0.01f);
  EXPECT_EQ(push->getItemSize()[0], radio->getItemSize()[0]) << "all entries of one popup have one width";
  EXPECT_NEAR(entry.getMin()[2], front, 0.01f) << "the items lie on the dialog's front";

  // A pick names the entry and the look it hit: the button on its frame.
  SoRayPickAction pick(scene.viewport);
  pick.setPoint(Scene::pixel(entry.getCenter()[0], entry.getCenter()[1]));
  pick.apply(scene.root);
  ASSERT_NE(pick.getPickedPoint(), nullptr);
  const auto* detail = dynamic_cast<const SoNodeKitDetail*>(pick.getPickedPoint()->getDetail(push));
  ASSERT_NE(detail, nullptr);
  EXPECT_EQ(detail->getNodeKit(), push);
  EXPECT_STREQ(detail->getPartName().getString(), "released");

  clickTitle(edit);
  EXPECT_FALSE(file->isOpen3D()) << "opening a second popup closes the first";
  EXPECT_TRUE(edit->isOpen3D());
  EXPECT_TRUE(boxOf(push).isEmpty());
  clickTitle(edit);
  EXPECT_FALSE(edit->isOpen3D()) << "a second press closes it";
}

TEST_F(SceneMenu, entriesFireAtReleaseAndCloseTheMenu)
{
  // Entries hang 18 apart below y -41, the separator 8; the radio group's
  // two lines follow, then the cascade. Marks stand 10 in from the left.
  const float x = 4.0f + push->getItemSize()[0] / 2.0f;
  clickTitle(file);
  scene.button(SoButtonEvent::DOWN, x, -50.0f);
  EXPECT_EQ(push->look(), 1);
  EXPECT_TRUE(heard.events.empty()) << "an entry fires at release";
  EXPECT_TRUE(file->isOpen3D()) << "a press on an entry keeps its menu open";
  scene.button(SoButtonEvent::UP, x, -50.0f);
  EXPECT_EQ(push->look(), 0);
  EXPECT_EQ(heard.events, std::vector<std::string>{"push"});
  EXPECT_FALSE(file->isOpen3D());

  clickTitle(file);
  scene.click(x, -68.0f);
  EXPECT_TRUE(check->state.getValue());
  EXPECT_FALSE(file->isOpen3D());

  for (int pass = 0; pass < 2; ++pass) {
    clickTitle(file);
    scene.click(14.0f, -41.0f - 18 - 18 - 8 - 18 - 9);
  }
  EXPECT_EQ(radio->selectedItem.getValue(), 1);
  EXPECT_EQ(heard.events, (std::vector<std::string>{"push", "on", "item 1", "item 1"}))
    << "the chosen item, chosen again, still fires";

  // A disabled entry takes no press until it is enabled again.
  push->enable = FALSE;
  clickTitle(file);
  scene.click(x, -50.0f);
  EXPECT_EQ(heard.events.size(), 4u);
  push->enable = TRUE;
  scene.click(x, -50.0f);
  EXPECT_EQ(heard.events.back(), "push");
}

// A cascade moved onto the bar after the scene build stands there as a
// title that opens its popup.
TEST_F(SceneMenu, aCascadeMovedOntoTheBarOpensFromThere)
{
  file->removeChild(cascade);
  bar->addChild(cascade);
  const float x = 4.0f + file->getItemSize()[0] + 1 + edit->getItemSize()[0] + 1 + cascade->getItemSize()[0] / 2.0f;
  scene.click(x, -31.0f);
  EXPECT_TRUE(cascade->isOpen3D());
}

TEST_F(SceneMenu, aCascadeOpensRightOfItsItemAtItsTop)
{
  clickTitle(file);
  // The cascade's item: 18 high below the radio group, whose bottom is
  // 41 + 18 + 18 + 8 + 36 below the plate's top.
  const float top = -121.0f;
  const float width = static_cast<float>(cascade->getItemSize()[0]);
  scene.click(4.0f + width / 2, top - 9.0f);
  ASSERT_TRUE(cascade->isOpen3D());
  EXPECT_TRUE(file->isOpen3D()) << "a cascade leaves its menu open";
  const SbBox3f entry = boxOf(inner);
  EXPECT_NEAR(entry.getMin()[0], 4.0f + width, 0.01f);
  EXPECT_NEAR(entry.getMax()[1], top, 0.01f);

  auto* wide = makeNode<SoMenuPushButton>();
  wide->label = "A much longer entry";
  cascade->addChild(wide);
  EXPECT_NEAR(boxOf(wide).getMax()[1], top - 18.0f, 0.01f) << "an entry added later hangs below the others";
  EXPECT_EQ(inner->getItemSize()[0], wide->getItemSize()[0]);
}

TEST_F(SceneMenu, thePlateHoldsItsChildrenWithABarAndAnEmptyBarHides)
{
  // The label, 30 high, starts 41 below the plate's top under a bar and 23
  // without one; the plate ends the same 4 lower in both cases.
  EXPECT_EQ(dialog->getTopLevelSize()[1], 41.0f + 30.0f + 4.0f);

  auto* bare = makeNode<SoTopLevelDialog>();
  auto* empty = makeNode<SoMenuBar>();
  bare->addChild(empty);
  bare->addChild(makeNode<SoDialogLabel>());
  scene.root->addChild(bare);
  bare->buildDialog(nullptr, 0);
  buildInScene(bare);
  EXPECT_TRUE(boxOf(empty).isEmpty()) << "a bar with no popups is hidden in the scene";
  // Nor does it come back when the plate is minimized and restored.
  bare->minimized = TRUE;
  bare->minimized = FALSE;
  EXPECT_TRUE(boxOf(empty).isEmpty());
}

// The tab dialog in the scene: its tabs, scroll buttons and pages.

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
    for (int i = 0; i < tabs->getNumChildren(); ++i)
      EXPECT_EQ(boxOf(tabs->getChild(i)).isEmpty(), i != selected) << "page " << i;
    const SbVec3f middle = centreOf(tabs->getChild(selected));
    EXPECT_EQ(scene.pickedNode(middle[0], middle[1]), tabs->getChild(selected));
  }

  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  Tabs* tabs = new Tabs;
  PageListener listener;
};

// Pages chosen by a press in the scene, out of range or removed change
// unheard: no auditor hears a page that no widget chose. A page added or
// removed after the build brings or takes its tab.
TEST_F(SceneTabs, aPressOnATabShowsItsPageAloneAndTabsFollowThePages)
{
  build(3, 300);
  expectOnlyPageShown(0);
  // A page's component is not stretched to the page: it keeps its least size.
  auto* first = static_cast<SoDialogComponent*>(tabs->getChild(0));
  EXPECT_EQ(first->width.getValue(), first->minWidth.getValue());
  EXPECT_EQ(first->height.getValue(), first->minHeight.getValue());
  // A press on the tab already chosen is no choice.
  for (int slot : {2, 2, 1}) {
    pressTab(slot);
    EXPECT_EQ(tabs->selectedPage.getValue(), slot);
    expectOnlyPageShown(slot);
  }
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
  EXPECT_EQ(listener.calls, 0);
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
  // The first tab, out of view, is placed again only when it comes back.
  tabs->addChild(page(6));
  pressTab(0);
  EXPECT_EQ(tabs->selectedPage.getValue(), 1);
  scene.click(button(26), kStripMiddle);
  pressTab(0);
  EXPECT_EQ(tabs->selectedPage.getValue(), 0);
}

// A page sized by the tab dialog, after the window measured it otherwise,
// lays its children out in its own size.
TEST(SceneTabPages, keepTheirChildrenInsideThem)
{
  auto* dialog = readWindow("#Inventor V2.1 ascii\n"
                            "TopLevelDialog { TabDialog {"
                            "  RowDialog { label \"A\" DialogCheckBox { label \"x\" } }"
                            "  RowDialog { label \"B\" margin 4 rowSpacing 4 DialogCheckBox { } DialogCheckBox { } } } }\n");
  ASSERT_NE(dialog, nullptr);
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
