// Children of a row keep the places their build gave them when the scene is
// measured, as it is at every drawing and pick, even while their controls
// have no look of their own in the scene.

#include "TestSupport.h"

#include <SoDialogCheckBox.h>
#include <SoDialogComponent.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include <SoFormMode.h>

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <gtest/gtest.h>

namespace {

class FixedLeaf : public SoDialogComponent {
protected:
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override
  {
    size.setValue(100, 30);
    min = size;
    max.setValue(32767, 32767);
  }
};

SbVec3f centreOf(SoNode* node)
{
  SoGetBoundingBoxAction box{SbViewportRegion(400, 400)};
  box.apply(node);
  return box.getBoundingBox().getCenter();
}

void measure(SoNode* node)
{
  SoGetBoundingBoxAction box{SbViewportRegion(400, 400)};
  box.apply(node);
}

TEST(ScenePlacement, aMeasuredRowKeepsItsChildrenOneBelowTheOther)
{
  auto* dialog = makeNode<SoTopLevelDialog>();
  auto* row = new SoRowDialog;
  row->rowSpacing = 7;
  auto* upper = new FixedLeaf;
  auto* lower = new FixedLeaf;
  for (SoDialogComponent* leaf : {upper, lower}) {
    leaf->labelVisibility = FALSE;
    row->addChild(leaf);
  }
  dialog->addChild(row);
  SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);

  measure(dialog);
  measure(dialog);
  const SbVec3f first = centreOf(upper);
  const SbVec3f second = centreOf(lower);
  // One 30-high child and the spacing of 7 apart, straight below.
  EXPECT_FLOAT_EQ(first[1] - second[1], 37.0f);
  EXPECT_FLOAT_EQ(first[0], second[0]);

  // Check boxes have no look of their own in the scene yet: they stand in
  // their frames all the same.
  auto* boxes = new SoRowDialog;
  boxes->rowSpacing = 4;
  auto* one = new SoDialogCheckBox;
  auto* two = new SoDialogCheckBox;
  boxes->addChild(one);
  boxes->addChild(two);
  auto* other = makeNode<SoTopLevelDialog>();
  other->addChild(boxes);
  SoFormMode::setSceneForm(true);
  other->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);
  measure(other);
  EXPECT_FLOAT_EQ(centreOf(one)[1] - centreOf(two)[1], static_cast<float>(one->height.getValue() + 4));
  dialog->unref();
  other->unref();
}

}
