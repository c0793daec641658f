// What a built window shows after its tree is edited: screen order is node
// order, a removed child leaves no room behind, and a window that may not be
// resized is held at its negotiated size.

#include "TestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoTopLevelDialog.h>

#include <QApplication>
#include <QFrame>
#include <QLayout>
#include <QWidget>

namespace {

// Labels held at 80 x 30 by their limits, which a rebuild keeps, so that
// every size below is worked out by hand.
std::string fixedLabel(const char* text)
{
  return std::string("DialogLabel { label \"") + text +
         "\" minWidth 80 maxWidth 80 minHeight 30 maxHeight 30 }\n";
}

SoTopLevelDialog* buildWindow(const std::string& windowFields, const std::string& children)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\nTopLevelDialog { " + windowFields + "\n" + children + "}\n");
  EXPECT_NE(root, nullptr);
  auto* window = static_cast<SoTopLevelDialog*>(root->getChild(0));
  window->buildDialog(nullptr, 0);
  window->show();
  return window;
}

SoDialogLabel* makeLabel(const char* text)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n" + fixedLabel(text));
  auto* label = static_cast<SoDialogLabel*>(root->getChild(0));
  label->ref();
  heldForTheRun().push_back(label);
  root->unref();
  return label;
}

// The top of each child's frame, in node order, once Qt has laid them out.
std::vector<int> frameTops(SoTopLevelDialog* window)
{
  QApplication::processEvents();
  window->getBaseWidget()->layout()->activate();
  std::vector<int> tops;
  for (int i = 0; i < window->getNumChildren(); ++i)
    tops.push_back(static_cast<SoDialogComponent*>(window->getChild(i))->getWidget()->y());
  return tops;
}

int qtMinimumHeight(SoTopLevelDialog* window)
{
  window->getBaseWidget()->layout()->activate();
  return window->getBaseWidget()->minimumSizeHint().height();
}

TEST(BuiltTreeEdit, childrenInsertedRemovedOrReplacedStandInNodeOrderAndLeaveNoRoom)
{
  SoTopLevelDialog* window =
    buildWindow("windowResizedByChildren TRUE", fixedLabel("a") + fixedLabel("b") + fixedLabel("c"));
  ASSERT_EQ(qtMinimumHeight(window), 90);
  window->insertChild(makeLabel("first"), 0);
  window->insertChild(makeLabel("middle"), 2);
  EXPECT_EQ(frameTops(window), (std::vector<int>{0, 30, 60, 90, 120}));

  window->removeChild(1);
  EXPECT_EQ(window->minHeight.getValue(), 120);
  EXPECT_EQ(qtMinimumHeight(window), 120);
  EXPECT_EQ(frameTops(window), (std::vector<int>{0, 30, 60, 90}));
  EXPECT_EQ(window->getBaseWidget()->findChildren<QFrame*>("FWTSoDialogQLabelFrame").size(), 4);

  window->replaceChild(0, makeLabel("new"));
  EXPECT_EQ(window->minHeight.getValue(), 120);
  EXPECT_EQ(qtMinimumHeight(window), 120);
  EXPECT_EQ(frameTops(window), (std::vector<int>{0, 30, 60, 90}));
  EXPECT_EQ(window->getBaseWidget()->layout()->count(), 4);
}

TEST(BuiltTreeEdit, windowThatMayNotBeResizedKeepsItsSize)
{
  SoTopLevelDialog* window = buildWindow("resizable FALSE", fixedLabel("a") + fixedLabel("b"));
  EXPECT_EQ(window->width.getValue(), 80);
  EXPECT_EQ(window->height.getValue(), 60);
  QWidget* widget = window->getBaseWidget();
  EXPECT_EQ(widget->minimumSize(), QSize(80, 60));
  EXPECT_EQ(widget->maximumSize(), QSize(80, 60));
}

// A margin set on a built container keeps the children clear at once, and the
// sizes count it twice, beside the frame's 6 of a group and the tabs' (10, 33).
TEST(BuiltTreeEdit, marginChangedAfterTheBuildShowsAtOnce)
{
  const std::string two = fixedLabel("a") + fixedLabel("b");
  const std::pair<std::string, SbVec2i32> kinds[] = {
    {two, SbVec2i32(80 + 10, 60 + 10)},
    {"RowDialog { " + two + " }", SbVec2i32(80 + 6 + 10, 60 + 6 + 10)},
    {"ColumnDialog { " + two + " }", SbVec2i32(160 + 6 + 10, 30 + 6 + 10)},
    {"TabDialog { " + fixedLabel("a") + " }", SbVec2i32(80 + 10 + 10, 30 + 33 + 10)},
  };
  for (const auto& [children, sizeWithMargin5] : kinds) {
    SoTopLevelDialog* window = buildWindow("windowResizedByChildren TRUE", children);
    auto* group = dynamic_cast<SoDialogGroup*>(window->getChild(0));
    static_cast<SoSFInt32*>((group ? static_cast<SoNode*>(group) : window)->getField("margin"))->setValue(5);
    EXPECT_EQ(SbVec2i32(window->width.getValue(), window->height.getValue()), sizeWithMargin5) << children;
    QWidget* label = static_cast<SoDialogComponent*>(group ? group->getChild(0) : window->getChild(0))->getWidget();
    QApplication::processEvents();
    EXPECT_TRUE(label->parentWidget()->rect().marginsRemoved(QMargins(5, 5, 5, 5)).contains(label->geometry()))
      << children;
    window->destroyWidget();
  }
}

// Lets a test end a window the way the last unref of an application would.
class OwnedWindow : public SoTopLevelDialog {
public:
  ~OwnedWindow() override = default;
};

TEST(BuiltTreeEdit, windowEndsOnceWhateverWidgetsTheApplicationHandedIt)
{
  auto* window = new OwnedWindow;
  window->addChild(makeLabel("a"));
  window->buildDialog(nullptr, 0);
  auto* label = static_cast<SoDialogLabel*>(window->getChild(0));
  window->setCurrentFocusedWidget(label->getWidget());
  window->setCurrentScrolledWidget(window->getBaseWidget());
  delete window;
}

}
