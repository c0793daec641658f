#include "ControlTestSupport.h"

#include <SoDialogChoiceAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogRadioButtons.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

namespace {

// Hears a choice and, if told to, makes a choice of its own.
class ChoiceAuditor : public SoDialogChoiceAuditor {
public:
  std::vector<int> heard;
  int overrideWith = -1;

  void dialogChoice(SoDialogChoice* node) override
  {
    heard.push_back(node->selectedItem.getValue());
    if (overrideWith >= 0)
      node->selectedItem = overrideWith;
  }
};

template <class Choice>
Choice* makeChoice(const char* label, std::initializer_list<const char*> entries)
{
  Choice* node = makeNode<Choice>();
  node->label = label;
  node->items.setNum(0);
  int i = 0;
  for (const char* entry : entries)
    node->items.set1Value(i++, entry);
  return node;
}

// Builds and shows `node` with an auditor that answers every choice with the
// first entry; false when the window never came up.
bool showWithOverridingAuditor(ControlWindow& window, SoDialogChoice* node, ChoiceAuditor& auditor)
{
  auditor.overrideWith = 0;
  node->addAuditor(&auditor);
  window.build(node);
  return window.show();
}

std::vector<std::string> itemsOf(const SoDialogChoice* node)
{
  std::vector<std::string> texts;
  for (int i = 0; i < node->items.getNum(); ++i)
    texts.push_back(node->items[i].getString());
  return texts;
}

QComboBox* comboOf(const ControlWindow& window)
{
  return window.find<QComboBox>("FWTSoDialogQComboBoxComboBoxWidget");
}

QList<QRadioButton*> buttonsOf(const ControlWindow& window)
{
  return window.widget.findChildren<QRadioButton*>("FWTSoDialogQRadioButtonsRadioButtonWidget");
}

int checkedIndex(const ControlWindow& window)
{
  const QList<QRadioButton*> buttons = buttonsOf(window);
  for (int i = 0; i < buttons.size(); ++i)
    if (buttons[i]->isChecked())
      return i;
  return -1;
}

// The entry that the widget shows chosen.
int shownIndex(const ControlWindow& window, bool combo)
{
  return combo ? comboOf(window)->currentIndex() : checkedIndex(window);
}

TEST(DialogChoice, placeholderStandsForTheEmptyList)
{
  SoDialogComboBox* node = makeNode<SoDialogComboBox>();
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{""}) << "one empty entry, and no real choice";
  node->addItem("Red");
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{"Red"}) << "the first entry takes the placeholder's place";
  node->addItem("Green");
  node->insertItem(100, "Blue");
  node->insertItem(-1, "Black");
  node->insertItem(2, "Grey");
  EXPECT_EQ(itemsOf(node), (std::vector<std::string>{"Black", "Red", "Grey", "Green", "Blue"}));
  node->removeItem(5);
  node->removeItem(-1);
  EXPECT_EQ(node->items.getNum(), 5) << "an index that names no entry changes nothing";
  for (int i = 0; i < 5; ++i)
    node->removeItem(0);
  EXPECT_EQ(node->items.getNum(), 0);
  node->addItem("White");
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{"White"});

  SoDialogRadioButtons* fresh = makeNode<SoDialogRadioButtons>();
  fresh->insertItem(7, "Only");
  EXPECT_EQ(itemsOf(fresh), std::vector<std::string>{"Only"}) << "an insertion replaces the placeholder too";
  fresh->removeItem(0);
  fresh->removeItem(0);
  EXPECT_EQ(fresh->items.getNum(), 0);

  // A list given one real entry before any build is no empty list.
  SoDialogChoice* one = makeChoice<SoDialogRadioButtons>("", {"B"});
  one->insertItem(0, "A");
  EXPECT_EQ(itemsOf(one), (std::vector<std::string>{"A", "B"}));
  SoDialogChoice* single = makeChoice<SoDialogComboBox>("", {"B"});
  single->removeItem(0);
  EXPECT_EQ(single->items.getNum(), 0);

  // A list read empty is built with the placeholder in it.
  ControlWindow window;
  window.build(fresh);
  EXPECT_EQ(itemsOf(fresh), std::vector<std::string>{""});
  EXPECT_TRUE(buttonsOf(window).isEmpty());
  SoDialogComboBox* empty = makeChoice<SoDialogComboBox>("", {});
  window.build(empty);
  EXPECT_EQ(itemsOf(empty), std::vector<std::string>{""});
  EXPECT_EQ(comboOf(window)->count(), 1);
}

TEST(DialogChoice, removingTheLastRealEntryOfShownButtonsBringsThePlaceholderBack)
{
  ControlWindow window;
  SoDialogRadioButtons* node = makeChoice<SoDialogRadioButtons>("", {"One", "Two"});
  window.build(node);
  ASSERT_EQ(buttonsOf(window).size(), 2);
  node->removeItem(1);
  EXPECT_EQ(buttonsOf(window).size(), 1);
  node->removeItem(0);
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{""});
  EXPECT_EQ(buttonsOf(window).size(), 1) << "the placeholder keeps one button";
  node->removeItem(0);
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{""}) << "the placeholder is no real entry";
  node->addItem("Again");
  EXPECT_EQ(itemsOf(node), std::vector<std::string>{"Again"});
  ASSERT_EQ(buttonsOf(window).size(), 1);
  EXPECT_EQ(buttonsOf(window)[0]->text(), QString("Again"));
}

TEST(DialogComboBox, buildsListAndLabelInItsFrame)
{
  ControlWindow window;
  SoDialogComboBox* node = makeChoice<SoDialogComboBox>("Units:", {"Millimetres", "In\\nches", "P\xc3\xa9t"});
  node->selectedItem = 1;
  window.build(node);

  QWidget* frame = node->getWidget();
  ASSERT_NE(frame, nullptr);
  const std::vector<QWidget*> children = ControlWindow::childWidgets(frame);
  ASSERT_EQ(children.size(), 2u);
  auto* combo = qobject_cast<QComboBox*>(children[0]);
  auto* text = qobject_cast<QLabel*>(children[1]);
  ASSERT_TRUE(combo && text);
  EXPECT_FALSE(combo->isEditable());
  EXPECT_EQ(combo->font(), SoFormwright::getFormwrightFont());
  ASSERT_EQ(combo->count(), 3);
  EXPECT_EQ(combo->itemText(1), QString("In\\nches")) << "entries are shown as typed";
  EXPECT_EQ(combo->itemText(2), QString::fromUtf8("P\xc3\xa9t"));
  EXPECT_EQ(combo->currentIndex(), 1);
  EXPECT_EQ(text->text(), QString("Units:"));
  EXPECT_EQ(node->getLabelWidget(), nullptr);

  // The widest entry with room for the arrow, beside the label; the height
  // is the default, and the list sits in its middle at its first entry's
  // height.
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  const int widest = std::max({metrics.horizontalAdvance("Millimetres"), metrics.horizontalAdvance("In\\nches"),
                               metrics.horizontalAdvance(QString::fromUtf8("P\xc3\xa9t"))}) + 3;
  const SbVec2i32 label = textPixels("Units:");
  const SbVec2i32 first = textPixels("Millimetres");
  EXPECT_EQ(node->width.getValue(), widest + 30 + label[0] + 2);
  EXPECT_EQ(node->height.getValue(), 28);
  EXPECT_EQ(combo->geometry(), QRect(3 + label[0] + 2, 3 + (28 - 10 - first[1]) / 2,
                                     node->width.getValue() - 6 - label[0] - 2, first[1] + 4));
  EXPECT_EQ(text->geometry(), QRect(3, 3 + (28 - 6 - label[1]) / 2, label[0], label[1]));

  resizeFrame(frame, 300, 41);
  EXPECT_EQ(combo->geometry(), QRect(3 + label[0] + 2, 3 + (41 - 10 - first[1]) / 2, 300 - 6 - label[0] - 2,
                                     first[1] + 4));
  node->labelVisibility = FALSE;
  EXPECT_TRUE(text->isHidden());
  EXPECT_EQ(combo->geometry().left(), 3);
  EXPECT_EQ(combo->geometry().width(), 294);
}

// Past the end both pull the selection back to the last entry; below the
// start the radio buttons mend it to the first, the combo box keeps it and
// shows no choice. The same holds when the build reads the field and when it
// changes later.
TEST(DialogChoice, selectionOutOfRangeIsMendedOrShownAsNoChoice)
{
  const struct {
    bool combo;
    int set, stored, shown;
  } cases[] = {{true, 9, 2, 2}, {true, -3, -3, -1}, {true, 1, 1, 1},
               {false, 7, 2, 2}, {false, -2, 0, 0}, {false, 1, 1, 1}};
  for (const auto& c : cases)
    for (const bool beforeBuild : {true, false}) {
      SCOPED_TRACE(std::to_string(c.combo) + " " + std::to_string(c.set) + " " + std::to_string(beforeBuild));
      ControlWindow window;
      SoDialogChoice* node = c.combo ? static_cast<SoDialogChoice*>(makeChoice<SoDialogComboBox>("", {"a", "b", "c"}))
                                     : makeChoice<SoDialogRadioButtons>("", {"a", "b", "c"});
      if (beforeBuild)
        node->selectedItem = c.set;
      window.build(node);
      if (!beforeBuild)
        node->selectedItem = c.set;
      EXPECT_EQ(node->selectedItem.getValue(), c.stored);
      EXPECT_EQ(shownIndex(window, c.combo), c.shown);
    }

  ControlWindow window;
  SoDialogComboBox* shrunk = makeChoice<SoDialogComboBox>("", {"a", "b", "c"});
  window.build(shrunk);
  shrunk->removeItem(2);
  shrunk->removeItem(1);
  shrunk->selectedItem = 1;
  EXPECT_EQ(comboOf(window)->count(), 1);
  EXPECT_EQ(shrunk->selectedItem.getValue(), 0) << "the list's new length bounds the selection";
}

// The auditors hear the person's choice; their own change stands in the
// field but reaches the widget only with the next change.
TEST(DialogChoice, aPersonsChoiceTellsTheAuditorsAndKeepsTheirOwnChangeFromTheWidget)
{
  for (const bool combo : {true, false}) {
    SCOPED_TRACE(combo ? "combo box" : "radio buttons");
    ControlWindow window;
    SoDialogChoice* node = combo ? static_cast<SoDialogChoice*>(makeChoice<SoDialogComboBox>("", {"a", "b", "c"}))
                                 : makeChoice<SoDialogRadioButtons>("", {"a", "b", "c"});
    ChoiceAuditor auditor;
    ASSERT_TRUE(showWithOverridingAuditor(window, node, auditor));
    if (combo) {
      comboOf(window)->setFocus();
      QTest::keyClick(comboOf(window), Qt::Key_Down);
    } else {
      QRadioButton* second = buttonsOf(window)[1];
      QTest::mouseClick(second, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, second->height() / 2));
    }
    EXPECT_EQ(auditor.heard, std::vector<int>{1});
    EXPECT_EQ(node->selectedItem.getValue(), 0);
    EXPECT_EQ(shownIndex(window, combo), 1);

    auditor.overrideWith = -1;
    node->selectedItem = 2;
    EXPECT_EQ(shownIndex(window, combo), 2);
    EXPECT_EQ(auditor.heard.size(), 1u) << "a change from the application is no choice";
  }
}

TEST(DialogRadioButtons, buildsOneButtonPerChoiceInATitledBox)
{
  ControlWindow window;
  SoDialogRadioButtons* node = makeChoice<SoDialogRadioButtons>("Quality", {"Draft", "Normal", "Best"});
  node->selectedItem = 1;
  window.build(node);

  QWidget* frame = node->getWidget();
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(node->getLabelWidget(), frame);
  auto* box = window.find<QGroupBox>("FWTSoDialogQRadioButtonsButtonGroupWidget");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->parentWidget(), frame);
  EXPECT_EQ(box->title(), QString("Quality"));
  const QList<QRadioButton*> buttons = buttonsOf(window);
  ASSERT_EQ(buttons.size(), 3);
  EXPECT_EQ(buttons[0]->text(), QString("Draft"));
  EXPECT_EQ(buttons[2]->text(), QString("Best"));
  EXPECT_EQ(buttons[2]->parentWidget(), box);
  EXPECT_EQ(checkedIndex(window), 1);
  ASSERT_TRUE(window.show());
  for (QRadioButton* button : buttons)
    EXPECT_TRUE(box->contentsRect().contains(QRect(button->pos(), button->sizeHint()))) << "a whole button";

  // 100 wide at least, and 16 pixels a choice plus 28 high at least.
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  const int widest = std::max({metrics.horizontalAdvance("Draft"), metrics.horizontalAdvance("Normal"),
                               metrics.horizontalAdvance("Best")}) + 3;
  const int buttonsHeight = 3 * (metrics.height() + 3) + 30;
  const int title = textPixels("Quality")[0];
  EXPECT_EQ(node->width.getValue(), std::max(std::max(title + 24, widest + 48) + 2, 100));
  EXPECT_GE(node->height.getValue(), std::max(buttonsHeight, 3 * 16 + 28)) << "or more, for whole buttons";
  EXPECT_EQ(node->minWidth.getValue(), 100);
  EXPECT_EQ(node->minHeight.getValue(), 76);
  EXPECT_EQ(box->geometry(), QRect(3, 3, node->width.getValue() - 6, node->height.getValue() - 6));
  resizeFrame(frame, 150, 120);
  EXPECT_EQ(box->geometry(), QRect(3, 3, 144, 114));

  node->labelVisibility = FALSE;
  EXPECT_EQ(box->title(), QString());
  node->labelVisibility = TRUE;
  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(box->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);

  node->items.set1Value(3, "Extra");
  ASSERT_EQ(buttonsOf(window).size(), 4);
  EXPECT_EQ(buttonsOf(window)[3]->text(), QString("Extra"));
  node->items.set1Value(0, "Rough");
  EXPECT_EQ(buttonsOf(window)[0]->text(), QString("Rough"));
  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQRadioButtonsFrame");
  EXPECT_EQ(checkedIndex(window), 1) << "a new build reads the fields";
}

}
