#include "TestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoDialogWidgetList.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <Inventor/sensors/SoFieldSensor.h>
#include <QPointer>
#include <QWidget>

namespace {

// Counts the calls that a field change makes on a node.
class ProbeNode : public SoFormwright {
public:
  using SoFormwright::addAuditor;
  using SoFormwright::getAuditor;
  using SoFormwright::getAuditorListLength;
  using SoFormwright::removeAuditor;

  int changes2D = 0, changes3D = 0;
  bool enableSeenDuringChange = true;

  void build(int mode)
  {
    SbVec2i32 useSize(0, 0), size(0, 0);
    buildWidget(nullptr, useSize, size, mode);
  }

protected:
  void changeEnable() override
  {
    ++changes2D;
    enableSeenDuringChange = enable.getValue();
  }
  void changeLabel() override { ++changes2D; }
  void changeLabelAlignment() override { ++changes2D; }
  void change3DEnable() override { ++changes3D; }
  void change3DLabel() override { ++changes3D; }
  void change3DLabelAlignment() override { ++changes3D; }
};

TEST(RootNode, fieldChangesReachEachBuiltFormOnce)
{
  ProbeNode* node = makeNode<ProbeNode>();
  node->enable = FALSE;
  node->label = "before";
  EXPECT_EQ(node->changes2D, 0) << "nothing is built";

  node->build(1);
  node->build(1); // a second build only refreshes: still one sensor per field
  node->enable = TRUE;
  EXPECT_TRUE(node->enableSeenDuringChange) << "the change runs after the value is stored";
  node->label = "after";
  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(node->changes2D, 3);
  EXPECT_EQ(node->changes3D, 0) << "no 3D form stands";
  SoFieldSensor foreign;
  node->updateFromSensor(&foreign);
  EXPECT_EQ(node->changes2D, 3) << "a foreign sensor is ignored";

  // With the widget gone only the 3D form hears, and only while traversable.
  node->setBuilt3D(1);
  node->destroyWidget();
  node->enable = FALSE;
  node->label = "x";
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(node->changes2D, 3);
  EXPECT_EQ(node->changes3D, 3);
  node->setCanBeTraversed(0);
  node->enable = TRUE;
  EXPECT_EQ(node->changes3D, 3);
}

TEST(RootNode, auditorListKeepsOrderAndIgnoresRepeats)
{
  ProbeNode* node = makeNode<ProbeNode>();
  struct Listener : SoDialogAuditor {};
  Listener first, second, third;
  node->removeAuditor(&first); // no list yet: harmless
  EXPECT_EQ(node->getAuditorListLength(), 0);

  node->addAuditor(&first);
  node->addAuditor(&first);
  node->addAuditor(&second);
  node->addAuditor(&third);
  node->removeAuditor(&second);
  ASSERT_EQ(node->getAuditorListLength(), 2);
  EXPECT_EQ(node->getAuditor(0), &first);
  EXPECT_EQ(node->getAuditor(1), &third);
  node->removeAuditor(&first);
  node->removeAuditor(&first);
  ASSERT_EQ(node->getAuditorListLength(), 1);
  EXPECT_EQ(node->getAuditor(0), &third);
}

TEST(RootNode, firstTopParentFollowsTraversableParents)
{
  auto* dialog = makeNode<SoTopLevelDialog>();
  auto* outer = makeNode<SoDialogGroup>();
  auto* inner = makeNode<SoDialogGroup>();
  auto* label = makeNode<SoDialogLabel>();

  // Free-standing: only a group can stand at the top, and only when asked.
  EXPECT_EQ(label->getFirstTopParent(0, 1), nullptr);
  EXPECT_EQ(inner->getFirstTopParent(0, 1), inner);
  EXPECT_EQ(inner->getFirstTopParent(0, 0), nullptr);

  label->setParent(inner);
  inner->setParent(outer);
  EXPECT_EQ(label->getFirstTopParent(0, 1), outer);
  outer->setParent(dialog);
  EXPECT_EQ(label->getFirstTopParent(0, 0), dialog);

  outer->setCanBeTraversed(0);
  EXPECT_EQ(label->getFirstTopParent(0, 0), nullptr);
  EXPECT_EQ(label->getFirstTopParent(0, 1), inner) << "the walk stops below the untraversable parent";
  EXPECT_EQ(label->getFirstTopParent(1, 0), dialog);
}

TEST(RootNode, widgetListHoldsPointersAndOwnsNone)
{
  QWidget a, b, c;
  QPointer<QWidget> kept = &a;
  {
    SoDialogWidgetList list(2);
    list.append(&a);
    list.append(&c);
    list.insert(&b, 1);
    EXPECT_EQ(list.getLength(), 3);
    EXPECT_EQ(list.find(&b), 1);
    EXPECT_EQ(list[2], &c);
    SoDialogWidgetList copy(list);
    list[0] = &c;
    EXPECT_EQ(copy[0], &a) << "a copy is a list of its own";
    copy = list;
    EXPECT_EQ(copy.find(&a), -1);
    EXPECT_EQ(copy.find(&c), 0);
  }
  EXPECT_FALSE(kept.isNull()) << "the list deletes no widget";
}

}
