// Sequences of actions on built dialogs that once crashed the library, each
// cut down to what it needs.

#include "SceneTestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogLabel.h>
#include <SoDialogRadioButtons.h>
#include <SoRowDialog.h>
#include <SoTabDialog.h>

#include <functional>

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

// The window deleted by the application takes the controls' widgets with
// it; the controls keep their values unbuilt and in a later scene build,
// which passes nothing on to the widgets that went, nor does the end of the
// widgets the application asks for after.
TEST(FuzzFound, controlsOutliveTheWindowQtDeleted)
{
  for (const bool endedByTheApplication : {false, true}) {
    readScene("#Inventor V2.1 ascii\nDEF W TopLevelDialog { RowDialog { DEF S DialogIntegerSlider { min 0 max 10 value 5 }"
              " DEF R DialogRadioButtons { items [\"a\", \"b\"] selectedItem 1 } } }\n");
    auto* window = static_cast<SoTopLevelDialog*>(SoNode::getByName("W"));
    auto* slider = static_cast<SoDialogIntegerSlider*>(SoNode::getByName("S"));
    auto* radio = static_cast<SoDialogRadioButtons*>(SoNode::getByName("R"));
    window->buildDialog(nullptr, 0);
    delete window->getBaseWidget();
    if (endedByTheApplication)
      window->destroyWidget();
    buildInScene(window);
    slider->value = 10;
    EXPECT_FLOAT_EQ(slider->getValue(), 1.0f);
    EXPECT_EQ(radio->selectedItem.getValue(), 1);
    window->buildDialog(nullptr, 0);
    EXPECT_EQ(window->getBaseWidget()->findChildren<QRadioButton*>().size(), 2);
    window->destroyWidget();
  }
}

// A tab dialog given itself or the row that holds it as a page refuses it,
// as every container does: a scene build went round for ever.
TEST(FuzzFound, aTabDialogRefusesToHoldItself)
{
  const std::function<void(SoTabDialog*, SoDialogComponent*)> edits[] = {
    [](SoTabDialog* tabs, SoDialogComponent* child) { tabs->addChild(child); },
    [](SoTabDialog* tabs, SoDialogComponent* child) { tabs->insertChild(child, 0); },
    [](SoTabDialog* tabs, SoDialogComponent* child) { tabs->replaceChild(0, child); },
  };
  for (const auto& edit : edits) {
    auto* window = makeNode<SoTopLevelDialog>();
    auto* row = makeNode<SoRowDialog>();
    auto* tabs = makeNode<SoTabDialog>();
    auto* page = makeNode<SoDialogLabel>();
    window->addChild(row);
    row->addChild(tabs);
    tabs->addChild(page);
    for (SoDialogComponent* holder : {static_cast<SoDialogComponent*>(tabs), static_cast<SoDialogComponent*>(row)}) {
      DebugMessages messages;
      edit(tabs, holder);
      EXPECT_TRUE(messages.contains("a dialog cannot hold itself"));
    }
    ASSERT_EQ(tabs->getNumChildren(), 1);
    EXPECT_EQ(tabs->getChild(0), page);
    buildInScene(window);
  }
}

// An auditor that removes the control it hears of, or the window's widgets,
// while Qt still handles the key that changed the control (a combo box's
// arrow, a slider's value typed and entered): the widgets go once the event
// is over, and the window builds again.
class Remover : public SoDialogAuditor {
public:
  std::function<void()> act;
  void dialogComboBox(SoDialogComboBox*) override { act(); }
  void dialogEditText(SoDialogEditText*) override { act(); }
  void dialogIntegerSlider(SoDialogIntegerSlider*) override { act(); }
};

TEST(FuzzFound, anAuditorDeletesTheWidgetsOfTheEventItHears)
{
  const struct {
    const char* control;
    std::function<QWidget*(QWidget*)> find;
    std::function<void(QWidget*)> type;
  } cases[] = {
    {"DialogComboBox { items [\"x\", \"y\"] }", [](QWidget* w) { return w->findChild<QComboBox*>(); },
     [](QWidget* combo) { QTest::keyClick(combo, Qt::Key_Down); }},
    {"DialogIntegerSlider { min 0 max 10 }", [](QWidget* w) { return w->findChild<QLineEdit*>(); },
     [](QWidget* zone) { QTest::keyClicks(zone, "7"), QTest::keyClick(zone, Qt::Key_Return); }},
  };
  for (const auto& kind : cases)
    for (const bool wholeWindow : {false, true}) {
      auto* window = readWindow(std::string("#Inventor V2.1 ascii\nTopLevelDialog { ") + kind.control + " }\n");
      Remover remover;
      remover.act = [&] { wholeWindow ? window->destroyWidget() : window->removeAllChildren(); };
      window->addAuditor(&remover);
      window->buildDialog(nullptr, 0);
      QPointer<QWidget> widget = kind.find(window->getBaseWidget());
      ASSERT_NE(widget, nullptr) << kind.control;
      kind.type(widget);
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      EXPECT_TRUE(widget.isNull()) << kind.control << wholeWindow;
      window->removeAuditor(&remover);
      window->buildDialog(nullptr, 0);
      EXPECT_NE(window->getBaseWidget(), nullptr);
      window->destroyWidget();
    }
}

// The entry hands the text it is built with back to the field, and its
// auditor hears it at once: one that removes the entry leaves the rest of
// the entry's build nothing to set up; one that destroys the window's
// widgets has them go once the window's build is over; one that moves the
// entry (inserted again, then removed) rebuilds the window inside the
// entry's own build, which must leave one entry standing.
TEST(FuzzFound, anAuditorRemovesOrMovesAnEntryOrItsWindowWhileItIsBuilt)
{
  enum Act { RemoveEntry, DestroyWindow, MoveEntry };
  for (const Act act : {RemoveEntry, DestroyWindow, MoveEntry}) {
    auto* window =
      readWindow("#Inventor V2.1 ascii\nTopLevelDialog { DEF E DialogEditText { editText \"a\" trigOnEnter FALSE } }\n");
    auto* entry = static_cast<SoTopComponent*>(SoNode::getByName("E"));
    const auto move = [&] {
      window->insertChild(entry, 0);
      window->removeChild(1);
    };
    int depth = 0;
    Remover remover;
    remover.act = [&] {
      if (act == RemoveEntry)
        window->removeAllChildren();
      else if (act == DestroyWindow)
        window->destroyWidget();
      else if (depth < 3) {
        ++depth;
        move();
        --depth;
      }
    };
    window->addAuditor(&remover);
    window->buildDialog(nullptr, 0);
    if (act == MoveEntry)
      move();
    window->removeAuditor(&remover);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->getNumChildren(), act == RemoveEntry ? 0 : 1) << act;
    EXPECT_EQ(window->getBaseWidget() == nullptr, act == DestroyWindow) << act;
    if (act == MoveEntry) {
      move();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      EXPECT_EQ(window->getBaseWidget()->findChildren<QLineEdit*>().size(), 1);
    }
    window->buildDialog(nullptr, 0);
    EXPECT_NE(window->getBaseWidget(), nullptr);
    window->destroyWidget();
  }
}

// A window placed at the ends of the int range: its corners must stay within
// what Qt can hold, or Qt's own arithmetic on them overflows.
TEST(FuzzFound, aWindowPlacedAtTheEndsOfTheRangeStaysWithinQtsSizes)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->buildDialog(nullptr, 0);
  QWidget* base = window->getBaseWidget();
  window->position.setValue(SbVec2i32(2147483647, -2147483647 - 1));
  EXPECT_EQ(base->pos(), QPoint(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX + 20));
  window->position.setValue(SbVec2i32(-2147483647 - 1, 2147483647));
  EXPECT_EQ(base->pos(), QPoint(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX + 20));
  EXPECT_EQ(base->width(), base->geometry().right() - base->geometry().left() + 1);
}

// A label shared by two pages loses its frame when the page it stood on is
// replaced; the other page builds it anew, and showing the selected page
// meanwhile touches no frame that went.
TEST(FuzzFound, aPageReplacedUnderASharedComponentLeavesItOnItsOtherPage)
{
  auto* window = readWindow("#Inventor V2.1 ascii\nTopLevelDialog { DEF T TabDialog { DialogLabel { } DEF B DialogLabel { } } }\n");
  auto* tabs = static_cast<SoTabDialog*>(SoNode::getByName("T"));
  auto* shared = static_cast<SoDialogLabel*>(SoNode::getByName("B"));
  window->buildDialog(nullptr, 0);
  tabs->replaceChild(0, shared);
  tabs->replaceChild(0, makeNode<SoDialogLabel>());
  auto* tabWidget = window->getBaseWidget()->findChild<QTabWidget*>("FWTSoDialogQTabDialogTabWidget");
  ASSERT_TRUE(tabWidget && shared->getWidget());
  EXPECT_EQ(shared->getWidget()->parentWidget(), tabWidget->widget(1));
}
