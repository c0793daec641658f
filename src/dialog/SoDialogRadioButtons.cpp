#include <SoDialogRadioButtons.h>

#include "Qt/SoDialogQRadioButtons.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>
#include <QRadioButton>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogRadioButtons, SoDialogChoice, "DialogRadioButtons")

SoDialogRadioButtons::SoDialogRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogRadioButtons);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogRadioButtons::~SoDialogRadioButtons() = default;

SoDialogQRadioButtons* SoDialogRadioButtons::bridge() const
{
  return static_cast<SoDialogQRadioButtons*>(labelWidget);
}

void SoDialogRadioButtons::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogChoice::buildWidget(parent, useSize, size, mode);
  computeNewButtonsHeight(size);
  if (mode != 0) {
    if (!existWidget(labelWidget))
      createLabelWidget();
    updateLabelWidget();
    updateRadioButtonsWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogRadioButtons();
    update3DRadioButtons();
  }
  makeFieldSensor(itemsSensor, items);
  makeFieldSensor(selectedItemSensor, selectedItem);
}

void SoDialogRadioButtons::createLabelWidget()
{
  auto* frame = new SoDialogQRadioButtons(componentWidget, this);
  labelWidget = frame;
  componentWidget = frame;
  ownsLabelWidget = 0;
  changeLabel();
  changeLabelAlignment();
  changeItems();
  changeEdgeStyle();
  frame->setMinimumSize(width.getValue(), height.getValue());
  if (fixedWidth.getValue())
    frame->setMaximumWidth(width.getValue());
  if (fixedHeight.getValue())
    frame->setMaximumHeight(height.getValue());
  componentLayout->addWidget(frame, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogRadioButtons::createRadioButtonsWidget(int index)
{
  buttonWidgets.insert(bridge()->createButton(index), index);
  changeItemText(index, items[index]);
  if (index == selectedItem.getValue())
    bridge()->checkButton(index);
}

void SoDialogRadioButtons::changeItemText(int index, SbString text)
{
  static_cast<QRadioButton*>(buttonWidgets[index])->setText(SoControlWidgets::toWidgetText(text));
}

void SoDialogRadioButtons::destroyWidget()
{
  if (buildMode) {
    const int count = std::min(getRealItemCount(), buttonWidgets.getLength());
    for (int i = 0; i < count; ++i) {
      delete buttonWidgets[i];
      buttonWidgets[i] = nullptr;
    }
    buttonWidgets.truncate(0);
  }
  SoDialogChoice::destroyWidget();
}

void SoDialogRadioButtons::updateFromSensor(SoSensor* sensor)
{
  if (sensor == itemsSensor)
    itemsChanging = 1;
  SoDialogChoice::updateFromSensor(sensor);
  itemsChanging = 0;
}

void SoDialogRadioButtons::changeItems()
{
  fixItemsNumber();
  const int real = getRealItemCount();
  for (int i = 0; i < real; ++i) {
    if (i < buttonWidgets.getLength())
      changeItemText(i, items[i]);
    else
      createRadioButtonsWidget(i);
  }
  // The placeholder keeps one button, so that the group box never stands
  // empty once it had a choice.
  for (int i = buttonWidgets.getLength() - 1; i >= itemCount; --i) {
    delete buttonWidgets[i];
    buttonWidgets[i] = nullptr;
    buttonWidgets.remove(i);
  }
  numButtons = real;
  if (buildMode)
    changeSelectedItem();
  if (follows3DForm())
    change3DSelectedItem();
}

void SoDialogRadioButtons::changeSelectedItem()
{
  int32_t index = selectedItem.getValue();
  if (itemCount > 0 && index > itemCount - 1)
    index = itemCount - 1;
  if (index < 0)
    index = 0;
  if (index != selectedItem.getValue())
    setFieldUnwatched(selectedItem, selectedItemSensor, index);
  bridge()->checkButton(index);
}

void SoDialogRadioButtons::changeLabel()
{
  QString title;
  if (labelVisibility.getValue())
    title = SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr));
  bridge()->setTitle(title);
}

void SoDialogRadioButtons::changeLabelVisibility()
{
  changeLabel();
}

void SoDialogRadioButtons::changeLabelAlignment()
{
  bridge()->setTitleAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogRadioButtons::drawLabel() {}

void SoDialogRadioButtons::updateLabelWidget()
{
  bridge()->setGroupBoxPlace(QRect(3, 3, width.getValue() - 6, height.getValue() - 6));
}

void SoDialogRadioButtons::updateRadioButtonsWidget() {}

SbVec2i32 SoDialogRadioButtons::getLabelInitSize()
{
  return SbVec2i32(0, 0);
}

SbVec2i32 SoDialogRadioButtons::getComponentInitSize()
{
  SbVec2i32 title(0, 0);
  if (labelVisibility.getValue())
    title = getLabelPixelSize(label.getValue(), nullptr);
  buttonsSize.setValue(0, 0);
  fixItemsNumber();
  for (int i = 0; i < getRealItemCount(); ++i) {
    const SbVec2i32 text = getLabelPixelSize(items[i], nullptr);
    buttonsSize[0] = std::max(buttonsSize[0], text[0]);
    buttonsSize[1] += text[1];
  }
  // The group box's frame and the buttons' indicators.
  buttonsSize[1] += 30;
  title[0] += 24;
  buttonsSize[0] += 48;
  // A title wider than the buttons gives the whole result, its small height
  // included.
  SbVec2i32 result = title[0] > buttonsSize[0] ? title : buttonsSize;
  result[0] -= labelSize[0] - 2;
  return result;
}

void SoDialogRadioButtons::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogChoice::getDefaultSize(size, min, max);
  size = componentSize;
  if (buttonsSize[1] > size[1])
    size[1] = buttonsSize[1];
  min.setValue(100, getRealItemCount() * 16 + 28);
}

void SoDialogRadioButtons::resetSize()
{
  buttonSizes.reset();
  buttonMinSizes.reset();
  buttonMaxSizes.reset();
  numButtonSizes = 0;
  nextButton = 0;
  buttonsSize.setValue(0, 0);
  SoDialogChoice::resetSize();
}

void SoDialogRadioButtons::computeNewButtonsHeight(SbVec2i32& size)
{
  // An entry count read before the list last changed must not index past it.
  const int32_t count = std::min(getRealItemCount(), items.getNum());
  if (size[1] == height.getValue() && size[0] == width.getValue() && buttonSizes && numButtonSizes == count)
    return;
  if (numButtonSizes != count) {
    buttonSizes.reset(new SbVec2i32[count]);
    buttonMinSizes.reset(new SbVec2i32[count]);
    buttonMaxSizes.reset(new SbVec2i32[count]);
    numButtonSizes = count;
  }
  if (nextButton >= count)
    nextButton = 0;

  int32_t total = 0;
  for (int i = 0; i < count; ++i) {
    buttonSizes[i] = getLabelPixelSize(items[i], nullptr);
    total += buttonSizes[i][1];
    buttonMinSizes[i].setValue(minWidth.getValue() - 28, 16);
    buttonSizes[i].setValue(std::max(buttonSizes[i][0], buttonMinSizes[i][0]),
                            std::max(buttonSizes[i][1], buttonMinSizes[i][1]));
    buttonMaxSizes[i].setValue(maxWidth.getValue() != 0 ? maxWidth.getValue() : 32767,
                               maxHeight.getValue() != 0 ? (maxHeight.getValue() - 30) / count : 32767);
  }

  // One pixel at a time, button after button, until the height is spent or
  // a whole round finds no button that may change. Both bounds are strict.
  int32_t diff = size[1] - 30 - total;
  const int32_t step = diff < 0 ? -1 : 1;
  int32_t misses = 0;
  while (diff != 0 && misses < count) {
    ++misses;
    const int32_t next = buttonSizes[nextButton][1] + step;
    if (next > buttonMinSizes[nextButton][1] && next < buttonMaxSizes[nextButton][1]) {
      buttonSizes[nextButton][1] += step;
      diff -= step;
      misses = 0;
    }
    if (++nextButton == count)
      nextButton = 0;
  }
}

void SoDialogRadioButtons::create3DDialogRadioButtons() {}
void SoDialogRadioButtons::update3DRadioButtons() {}
