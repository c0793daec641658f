#pragma once

#include "SoDialogGroup.h"

// A container that puts its components side by side, one column each.
class SoColumnDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoColumnDialog)

public:
  SoSFInt32 columnSpacing;

  SoColumnDialog();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void updateFromSensor(SoSensor* sensor) override;
  SbVec2i32 getComponentInitSize() override;
  // Spreads a width change over the children, one pixel at a time.
  void computeNewChildrenWidth(SbVec2i32& newSize);

protected:
  ~SoColumnDialog() override;

  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void fixSizeWithBorder(SbVec2i32& size, int sign) override;
  void setChildrenComponentSize() override;
  void setChildrenLabelSize() override;
  void changeEdgeStyle() override;
  void update3DChildren() override;

  SoFieldSensor* columnSpacingSensor = nullptr;

private:
  void changeColumnSpacing();
};
