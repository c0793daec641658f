#pragma once

#include "SoDialogGroup.h"

// A container that stacks its components from top to bottom, one row each.
// Labels of the rows share one column.
class SoRowDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoRowDialog)

public:
  SoSFInt32 rowSpacing;

  SoRowDialog();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void updateFromSensor(SoSensor* sensor) override;
  SbVec2i32 getComponentInitSize() override;
  // Spreads a height change over the children, one pixel at a time.
  void computeNewChildrenHeight(SbVec2i32& newSize);

protected:
  ~SoRowDialog() override;

  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void fixSizeWithBorder(SbVec2i32& size, int sign) override;
  void setChildrenComponentSize() override;
  void setChildrenLabelSize() override;
  void changeEdgeStyle() override;
  void update3DChildren() override;

  SoFieldSensor* rowSpacingSensor = nullptr;

private:
  void changeRowSpacing();
};
