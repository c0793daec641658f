#include <SoColumnDialog.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoSizeRules.h"

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoColumnDialog, SoDialogGroup, "ColumnDialog")

SoColumnDialog::SoColumnDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoColumnDialog);
  SO_FORMWRIGHT_ADD_FIELD(columnSpacing, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
  makeFieldSensor(columnSpacingSensor, columnSpacing);
}

SoColumnDialog::~SoColumnDialog()
{
  delete columnSpacingSensor;
}

void SoColumnDialog::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  buildStacked(
    parent, useSize, size, mode, [](QWidget* frame) -> QBoxLayout* { return new QHBoxLayout(frame); },
    "FWTSoColumnDialogLayout", SoSizeRules::usable(columnSpacing));
}

void SoColumnDialog::updateFromSensor(SoSensor* sensor)
{
  if (sensor == columnSpacingSensor)
    changeColumnSpacing();
  else
    SoDialogGroup::updateFromSensor(sensor);
}

void SoColumnDialog::changeColumnSpacing()
{
  if (componentLayout)
    componentLayout->setSpacing(SoSizeRules::usable(columnSpacing));
}

SbVec2i32 SoColumnDialog::getComponentInitSize()
{
  return stackedComponentInitSize(0, SoSizeRules::usable(columnSpacing));
}

void SoColumnDialog::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  stackedDefaultSize(0, SoSizeRules::usable(columnSpacing), size, min, max);
}

void SoColumnDialog::computeNewChildrenWidth(SbVec2i32& newSize)
{
  computeNewChildrenSize(0, newSize);
}

void SoColumnDialog::fixSizeWithBorder(SbVec2i32& size, int sign)
{
  addFrameAllowance(size, sign);
  SoDialogGroup::fixSizeWithBorder(size, sign);
}

void SoColumnDialog::changeEdgeStyle()
{
  SoDialogGroup::changeEdgeStyle();
  setFrameMargins();
}

// Side by side, every column keeps its own label size.
void SoColumnDialog::setChildrenLabelSize()
{
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    SbVec2i32 labelSize = child->labelVisibility.getValue() ? child->getLabelInitSize() : SbVec2i32(0, 0);
    child->setLabelSize(labelSize);
  }
}

// Side by side, every column keeps its own component size, at least as high
// as its visible label.
void SoColumnDialog::setChildrenComponentSize()
{
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    SbVec2i32 componentSize = child->getComponentInitSize();
    if (child->labelVisibility.getValue())
      componentSize[1] = std::max(componentSize[1], child->getLabelInitSize()[1]);
    child->setComponentSize(componentSize);
  }
}

void SoColumnDialog::update3DChildren()
{
  update3DStackedChildren(0, SoSizeRules::usable(columnSpacing));
}
