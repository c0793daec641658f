#include <SoRowDialog.h>

#include "SoFormwrightSubNodeSource.h"
#include "SoSizeRules.h"

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoRowDialog, SoDialogGroup, "RowDialog")

SoRowDialog::SoRowDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoRowDialog);
  SO_FORMWRIGHT_ADD_FIELD(rowSpacing, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
  makeFieldSensor(rowSpacingSensor, rowSpacing);
}

SoRowDialog::~SoRowDialog()
{
  delete rowSpacingSensor;
}

void SoRowDialog::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  buildStacked(
    parent, useSize, size, mode, [](QWidget* frame) -> QBoxLayout* { return new QVBoxLayout(frame); },
    "FWT_SoColumnDialog_Layout", SoSizeRules::usable(rowSpacing));
}

void SoRowDialog::updateFromSensor(SoSensor* sensor)
{
  if (sensor == rowSpacingSensor)
    changeRowSpacing();
  else
    SoDialogGroup::updateFromSensor(sensor);
}

void SoRowDialog::changeRowSpacing()
{
  if (componentLayout)
    componentLayout->setSpacing(SoSizeRules::usable(rowSpacing));
}

SbVec2i32 SoRowDialog::getComponentInitSize()
{
  return stackedComponentInitSize(1, SoSizeRules::usable(rowSpacing));
}

void SoRowDialog::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  stackedDefaultSize(1, SoSizeRules::usable(rowSpacing), size, min, max);
}

void SoRowDialog::computeNewChildrenHeight(SbVec2i32& newSize)
{
  computeNewChildrenSize(1, newSize);
}

void SoRowDialog::fixSizeWithBorder(SbVec2i32& size, int sign)
{
  addFrameAllowance(size, sign);
  SoDialogGroup::fixSizeWithBorder(size, sign);
}

void SoRowDialog::changeEdgeStyle()
{
  SoDialogGroup::changeEdgeStyle();
  setFrameMargins();
}

// The rows share one label column; a hidden label keeps its height here.
void SoRowDialog::setChildrenLabelSize()
{
  int32_t labelWidth = 0;
  for (int i = 0; i < numChildren; ++i)
    if (getComponent(i)->labelVisibility.getValue())
      labelWidth = std::max(labelWidth, getComponent(i)->getLabelInitSize()[0]);
  for (int i = 0; i < numChildren; ++i) {
    SbVec2i32 labelSize(labelWidth, getComponent(i)->getLabelInitSize()[1]);
    getComponent(i)->setLabelSize(labelSize);
  }
}

// The rows share one component width.
void SoRowDialog::setChildrenComponentSize()
{
  int32_t componentWidth = 0;
  for (int i = 0; i < numChildren; ++i)
    componentWidth = std::max(componentWidth, getComponent(i)->getComponentInitSize()[0]);
  for (int i = 0; i < numChildren; ++i) {
    SoDialogComponent* child = getComponent(i);
    const int32_t labelHeight = child->labelVisibility.getValue() ? child->getLabelInitSize()[1] : 0;
    SbVec2i32 componentSize(componentWidth, std::max(labelHeight, child->getComponentInitSize()[1]));
    child->setComponentSize(componentSize);
  }
}

void SoRowDialog::update3DChildren()
{
  update3DStackedChildren(1, SoSizeRules::usable(rowSpacing));
}
