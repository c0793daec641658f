#include "TestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoFormwright.h>
#include <SoDialogAuditor.h>
#include <SoTopLevelDialog.h>

#include <Inventor/nodekits/SoNodekitCatalog.h>
#include <Inventor/sensors/SoFieldSensor.h>
#include <gtest/gtest.h>

namespace {

// Counts the calls that a field change makes on a node.
class ProbeNode : public SoFormwright {
public:
  using SoFormwright::addAuditor;
  using SoFormwright::getAuditor;
  using SoFormwright::getAuditorListLength;
  using SoFormwright::removeAuditor;

  int enableChanges = 0, labelChanges = 0, alignmentChanges = 0;
  int enable3DChanges = 0, label3DChanges = 0, alignment3DChanges = 0;
  bool enableSeenDuringChange = true;

  SoNode* geomSwitchPart() { return getAnyPart("geomSwitch", FALSE); }

  void build(int mode)
  {
    SbVec2i32 useSize(0, 0), size(0, 0);
    buildWidget(nullptr, useSize, size, mode);
  }

protected:
  void changeEnable() override
  {
    ++enableChanges;
    enableSeenDuringChange = enable.getValue();
  }
  void changeLabel() override { ++labelChanges; }
  void changeLabelAlignment() override { ++alignmentChanges; }
  void change3DEnable() override { ++enable3DChanges; }
  void change3DLabel() override { ++label3DChanges; }
  void change3DLabelAlignment() override { ++alignment3DChanges; }
};

ProbeNode* makeProbe()
{
  auto* probe = new ProbeNode;
  probe->ref();
  return probe;
}

TEST(RootNode, fieldsDefaultsAndCatalog)
{
  ProbeNode* node = makeProbe();
  EXPECT_TRUE(node->enable.getValue());
  EXPECT_EQ(node->label.getValue(), SbString());
  EXPECT_EQ(node->auditorID.getValue(), SbString());
  EXPECT_EQ(node->labelAlignment.getValue(), SoFormwright::RIGHT);
  EXPECT_EQ(node->geomSwitchPart(), nullptr) << "the 3D root is made on demand";

  const SoNodekitCatalog* catalog = SoFormwright::getClassNodekitCatalog();
  const int part = catalog->getPartNumber("geomSwitch");
  ASSERT_GE(part, 0);
  EXPECT_EQ(catalog->getParentName(part), SbName("geomSeparator"));
  EXPECT_FALSE(catalog->isPublic(part));
  EXPECT_TRUE(catalog->isNullByDefault(part));
}

TEST(RootNode, enumerationNamesAreReadFromDialogFiles)
{
  SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                "DialogLabel { labelAlignment CENTER enable FALSE label \"Name\" auditorID \"n\" }\n");
  ASSERT_NE(root, nullptr);
  auto* label = static_cast<SoDialogLabel*>(root->getChild(0));
  EXPECT_EQ(label->labelAlignment.getValue(), SoFormwright::CENTER);
  EXPECT_FALSE(label->enable.getValue());
  EXPECT_EQ(label->label.getValue(), SbString("Name"));
  EXPECT_EQ(label->auditorID.getValue(), SbString("n"));
  root->unref();
}

TEST(RootNode, fieldChangesReachTheFormOnlyOnceBuilt)
{
  ProbeNode* node = makeProbe();
  node->enable = FALSE;
  node->label = "before";
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(node->enableChanges + node->labelChanges + node->alignmentChanges, 0);

  node->build(1);
  node->build(1); // a second build only refreshes: still one sensor per field
  node->enable = TRUE;
  EXPECT_EQ(node->enableChanges, 1);
  EXPECT_TRUE(node->enableSeenDuringChange) << "the change runs after the value is stored";
  node->label = "after";
  EXPECT_EQ(node->labelChanges, 1);
  node->labelAlignment = SoFormwright::CENTER;
  EXPECT_EQ(node->alignmentChanges, 1);
  EXPECT_EQ(node->enable3DChanges + node->label3DChanges + node->alignment3DChanges, 0)
    << "no 3D form stands";
}

TEST(RootNode, destroyedWidgetStopsTheTwoDimensionalRouteOnly)
{
  ProbeNode* node = makeProbe();
  node->build(1);
  node->setBuilt3D(1);
  node->destroyWidget();
  node->enable = FALSE;
  node->label = "x";
  node->labelAlignment = SoFormwright::LEFT;
  EXPECT_EQ(node->enableChanges + node->labelChanges + node->alignmentChanges, 0);
  EXPECT_EQ(node->enable3DChanges, 1);
  EXPECT_EQ(node->label3DChanges, 1);
  EXPECT_EQ(node->alignment3DChanges, 1);

  node->setCanBeTraversed(0);
  node->enable = TRUE;
  EXPECT_EQ(node->enable3DChanges, 1) << "an untraversable node takes no 3D updates";
}

TEST(RootNode, foreignSensorIsIgnored)
{
  ProbeNode* node = makeProbe();
  node->build(1);
  SoFieldSensor foreign;
  node->updateFromSensor(&foreign);
  node->updateFromSensor(nullptr);
  EXPECT_EQ(node->enableChanges + node->labelChanges + node->alignmentChanges, 0);
}

TEST(RootNode, auditorListKeepsOrderAndIgnoresRepeats)
{
  ProbeNode* node = makeProbe();
  struct Listener : SoDialogAuditor {};
  Listener first, second, third;
  node->removeAuditor(&first); // no list yet: harmless
  EXPECT_EQ(node->getAuditorListLength(), 0);

  node->addAuditor(&first);
  node->addAuditor(&first);
  node->addAuditor(&second);
  node->addAuditor(&third);
  ASSERT_EQ(node->getAuditorListLength(), 3);
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
  auto* dialog = new SoTopLevelDialog;
  auto* outer = new SoDialogGroup;
  auto* inner = new SoDialogGroup;
  auto* label = new SoDialogLabel;
  for (SoNode* node : {static_cast<SoNode*>(dialog), static_cast<SoNode*>(outer), static_cast<SoNode*>(inner),
                       static_cast<SoNode*>(label)})
    node->ref();

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

}
