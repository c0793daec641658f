#include <SoDialogComboBox.h>

#include "Qt/SoDialogQComboBox.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogComboBox, SoDialogChoice, "DialogComboBox")

SoDialogComboBox::SoDialogComboBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogComboBox);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogComboBox::~SoDialogComboBox()
{
  SoControlWidgets::deleteFrameWidget(comboBoxWidget, componentWidget);
}

void SoDialogComboBox::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogChoice::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(comboBoxWidget))
      createLabelWidget();
    updateLabelWidget();
    updateComboBoxWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogComboBox();
    update3DComboBox();
  }
  makeFieldSensor(itemsSensor, items);
  makeFieldSensor(selectedItemSensor, selectedItem);
}

void SoDialogComboBox::createLabelWidget()
{
  comboBoxWidget = new SoDialogQComboBox(componentWidget, this);
  componentWidget = comboBoxWidget;
  changeItems();
  changeLabel();
  changeLabelAlignment();
  changeEnable();
  changeLabelVisibility();
  changeEdgeStyle();
  comboBoxWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
  if (fixedWidth.getValue())
    comboBoxWidget->setMaximumWidth(width.getValue());
  if (fixedHeight.getValue())
    comboBoxWidget->setMaximumHeight(height.getValue());
  componentLayout->addWidget(comboBoxWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogComboBox::destroyWidget()
{
  if (buildMode)
    SoControlWidgets::deleteFrameWidget(comboBoxWidget, componentWidget);
  SoDialogChoice::destroyWidget();
}

void SoDialogComboBox::changeItems()
{
  if (!comboBoxWidget)
    return;
  comboBoxWidget->clear();
  for (int i = 0; i < items.getNum(); ++i)
    comboBoxWidget->addItem(SoControlWidgets::toWidgetText(items[i]), -1);
  changeSelectedItem();
}

void SoDialogComboBox::changeSelectedItem()
{
  if (!comboBoxWidget)
    return;
  const int count = comboBoxWidget->count();
  if (count > 0 && selectedItem.getValue() > count - 1)
    selectedItem = count - 1;
  comboBoxWidget->setCurrentIndex(selectedItem.getValue());
}

void SoDialogComboBox::changeLabel()
{
  comboBoxWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
  updateLabelWidget();
}

void SoDialogComboBox::changeLabelVisibility()
{
  comboBoxWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateComboBoxWidget();
}

void SoDialogComboBox::changeLabelAlignment()
{
  comboBoxWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogComboBox::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  comboBoxWidget->setLabelPlace(QRect(3, 3 + (height.getValue() - 6 - text[1]) / 2, labelSize[0], text[1]));
}

void SoDialogComboBox::updateComboBoxWidget()
{
  int32_t x = 3;
  int32_t w = width.getValue() - 6;
  if (labelVisibility.getValue()) {
    x += labelSize[0] + 2;
    w -= labelSize[0] + 2;
  }
  // An emptied list measures as an empty entry.
  const SbString first = items.getNum() > 0 ? items[0] : SbString();
  const SbVec2i32 text = getLabelPixelSize(first, this);
  const int32_t y = 3 + (height.getValue() - 6 - 4 - text[1]) / 2;
  comboBoxWidget->setComboBoxPlace(QRect(x, y, w, text[1] + 4));
}

SbVec2i32 SoDialogComboBox::getComponentInitSize()
{
  if (componentInitSize[0] == -1) {
    componentInitSize.setValue(0, 0);
    fixItemsNumber();
    for (int i = 0; i < getRealItemCount(); ++i) {
      const SbVec2i32 text = getLabelPixelSize(items[i], this);
      componentInitSize.setValue(std::max(componentInitSize[0], text[0]), std::max(componentInitSize[1], text[1]));
    }
    // Room for the drop-down arrow.
    componentInitSize[0] += 30;
    if (!labelVisibility.getValue())
      componentInitSize[0] -= labelSize[0];
  }
  return componentInitSize;
}

void SoDialogComboBox::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogChoice::getDefaultSize(size, min, max);
  size[0] = componentSize[0];
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
}

void SoDialogComboBox::create3DDialogComboBox() {}
void SoDialogComboBox::update3DComboBox() {}
