#include <SoDialogRadioButtons.h>

#include <SoDialogGroup.h>
#include <SoTopLevelDialog.h>

#include "Qt/SoDialogQRadioButtons.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QBoxLayout>
#include <QRadioButton>
#include <QSize>
#include <QStringList>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogRadioButtons, SoDialogChoice, "DialogRadioButtons")

SoDialogRadioButtons::SoDialogRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogRadioButtons);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemsSep, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemSep, SoSeparator, SoSeparator, itemsSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemFrameSep, SoSeparator, SoSeparator, itemSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemFrame, SoGroup, SoGroup, itemFrameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemBtnSep, SoSeparator, SoSeparator, itemSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemBtnSwtch, SoSwitch, SoSwitch, itemBtnSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOff, SoGroup, SoGroup, itemBtnSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOn, SoGroup, SoGroup, itemBtnSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemTextSep, SoSeparator, SoSeparator, itemSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemTextProp, SoGroup, SoGroup, itemTextSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
  itemBBox.makeEmpty();
}

SoDialogRadioButtons::~SoDialogRadioButtons()
{
  // The step stands in the scene only between items: the node keeps it.
  if (itemStepTranslation)
    itemStepTranslation->unref();
}

SoDialogQRadioButtons* SoDialogRadioButtons::bridge() const
{
  return static_cast<SoDialogQRadioButtons*>(labelWidget.data());
}

void SoDialogRadioButtons::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogChoice::buildWidget(parent, useSize, size, mode);
  // A build in the scene is handed its place, not its size: the height to
  // share is the one just negotiated.
  SbVec2i32 shared = size;
  if (mode == 0)
    shared.setValue(width.getValue(), height.getValue());
  computeNewButtonsHeight(shared);
  if (mode != 0) {
    if (!existWidget(labelWidget))
      createLabelWidget();
    updateLabelWidget();
    updateRadioButtonsWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogRadioButtons();
    update3DRadioButtons();
    update3DLabel();
  }
  makeFieldSensor(itemsSensor, items);
  makeFieldSensor(selectedItemSensor, selectedItem);
}

void SoDialogRadioButtons::createLabelWidget()
{
  // Buttons left from a frame that Qt deleted went with it.
  buttonWidgets.truncate(0);
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
  // Buttons that Qt deleted with their window are only forgotten.
  forgetLostWidgets();
  if (buildMode) {
    const int count = std::min(getRealItemCount(), buttonWidgets.getLength());
    for (int i = 0; i < count; ++i) {
      SoWidgetEvent::deleteWidget(buttonWidgets[i]);
      buttonWidgets[i] = nullptr;
    }
  }
  buttonWidgets.truncate(0);
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
    SoWidgetEvent::deleteWidget(buttonWidgets[i]);
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
  QStringList choices;
  for (int i = 0; i < getRealItemCount(); ++i) {
    const SbVec2i32 text = getLabelPixelSize(items[i], nullptr);
    buttonsSize[0] = std::max(buttonsSize[0], text[0]);
    buttonsSize[1] += text[1];
    choices << SoControlWidgets::toWidgetText(items[i]);
  }
  // The group box's frame and the buttons' indicators.
  buttonsSize[1] += 30;
  title[0] += 24;
  buttonsSize[0] += 48;
  // A font whose text is lower than a button's indicator would have the
  // buttons clipped in these sizes: they grow until every button shows whole.
  QString shownTitle;
  if (labelVisibility.getValue())
    shownTitle = SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr));
  const QSize whole = SoDialogQRadioButtons::frameSizeFor(shownTitle, choices);
  buttonsSize[0] = std::max(buttonsSize[0], int32_t(whole.width()));
  buttonsSize[1] = std::max(buttonsSize[1], int32_t(whole.height()));
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

void SoDialogRadioButtons::create3DDialogRadioButtons()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("frame", "DialogRadioButtonsFrame", TRUE);
  setPartAsDefault("itemFrame", "DialogRadioButtonsItemFrame", TRUE);
  setPartAsDefault("stateOff", "DialogRadioButtonsStateOff", TRUE);
  setPartAsDefault("stateOn", "DialogRadioButtonsStateOn", TRUE);
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("itemTextProp", "DialogTextProperties", TRUE);

  SoGroup* switchNode = get3DPart("geomSwitch");
  frameScale = new SoScale;
  get3DPart("frameSep")->insertChild(frameScale, 0);
  // The title and the items lie on the frame.
  frameTransform = new SoTransform;
  switchNode->insertChild(frameTransform, switchNode->findChild(get3DPart("labelSep")));
  SoGroup* labelGroup = get3DPart("labelSwitch");
  labelTranslation = new SoTranslation;
  labelGroup->insertChild(labelTranslation, 0);
  labelText = SoControl3D::newFrontText();
  labelGroup->addChild(labelText);
  setSwitchValue(labelSwitch.getValue(), labelVisibility.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);

  // The first item, from the catalog parts.
  SoGroup* firstItem = get3DPart("itemSep");
  get3DPart("itemFrameSep");
  SoGroup* buttonGroup = get3DPart("itemBtnSep");
  SoGroup* textGroup = get3DPart("itemTextSep");
  itemsTranslation = new SoTranslation;
  get3DPart("itemsSep")->insertChild(itemsTranslation, 0);
  itemStepTranslation = new SoTranslation;
  itemStepTranslation->ref();
  itemScale = new SoScale;
  get3DPart("itemFrameSep")->insertChild(itemScale, 0);
  itemTransform = new SoTransform;
  firstItem->insertChild(itemTransform, firstItem->findChild(buttonGroup));
  btnScale = new SoScale;
  buttonGroup->insertChild(btnScale, 0);
  btnTranslation = new SoTranslation;
  buttonGroup->insertChild(btnTranslation, 0);
  SoGroup* firstSwitch = get3DPart("itemBtnSwtch");
  setSwitchValue(firstSwitch, 0);
  textTranslation = new SoTranslation;
  textGroup->insertChild(textTranslation, 0);
  SoText3* firstText = SoControl3D::newFrontText();
  textGroup->addChild(firstText);
  itemSeparators.append(firstItem);
  itemSwitches.append(firstSwitch);
  itemTexts.append(firstText);

  addFinishCallback(&SoDialogRadioButtons::finishCB3D);
  change3DLabel();
  change3DItems();
  change3DEnable();
  setBuilt3D(1);
  // The items were made before the form counted as built.
  change3DSelectedItem();
}

void SoDialogRadioButtons::add3DItem(int index)
{
  auto* itemsGroup = static_cast<SoGroup*>(itemsSep.getValue());
  if (index > 0)
    itemsGroup->addChild(itemStepTranslation);
  auto* item = new SoSeparator;
  item->addChild(itemFrameSep.getValue());
  item->addChild(itemTransform);
  auto* buttonGroup = new SoSeparator;
  buttonGroup->addChild(btnTranslation);
  buttonGroup->addChild(btnScale);
  auto* looks = new SoSwitch;
  looks->addChild(stateOff.getValue());
  looks->addChild(stateOn.getValue());
  looks->whichChild = 0;
  buttonGroup->addChild(looks);
  item->addChild(buttonGroup);
  auto* textGroup = new SoSeparator;
  textGroup->addChild(textTranslation);
  textGroup->addChild(itemTextProp.getValue());
  SoText3* text = SoControl3D::newFrontText();
  textGroup->addChild(text);
  item->addChild(textGroup);
  itemsGroup->addChild(item);
  itemSeparators.append(item);
  itemSwitches.append(looks);
  itemTexts.append(text);
}

void SoDialogRadioButtons::change3DItems()
{
  auto* itemsGroup = static_cast<SoGroup*>(itemsSep.getValue());
  if (!itemsGroup || !itemStepTranslation)
    return;
  fixItemsNumber();
  const int oldCount = itemSeparators.getLength();
  const int count = getRealItemCount();
  for (int i = 0; i < count; ++i) {
    if (i >= oldCount)
      add3DItem(i);
    auto* text = static_cast<SoText3*>(itemTexts[i]);
    SoControl3D::clearText(text);
    setStringToText3(text, items[i]);
  }
  // Each item but the first goes with the step above it.
  for (int i = oldCount; i > count; --i) {
    itemSeparators.remove(i - 1);
    itemSwitches.remove(i - 1);
    itemTexts.remove(i - 1);
    itemsGroup->removeChild(itemsGroup->getNumChildren() - 1);
    if (i > 1)
      itemsGroup->removeChild(itemsGroup->getNumChildren() - 1);
  }
  setSwitchValue(itemsGroup, count == 0 ? SO_SWITCH_NONE : SO_SWITCH_ALL);
  itemBBox.makeEmpty();
  // A new count of items needs a new share of the height.
  if (count != oldCount && parentNode && isBuilt3D()) {
    resetSize();
    if (parentNode->isOfType(SoTopLevelDialog::getClassTypeId()))
      static_cast<SoTopLevelDialog*>(parentNode)->updateAfterSceneGraphChange();
    else if (parentNode->isOfType(SoDialogGroup::getClassTypeId()))
      static_cast<SoDialogGroup*>(parentNode)->updateAfterSceneGraphChange();
  }
  if (buildMode)
    changeSelectedItem();
  if (follows3DForm())
    change3DSelectedItem();
}

void SoDialogRadioButtons::change3DSelectedItem()
{
  const int32_t index = mendSelectedItem();
  for (int i = 0; i < itemSwitches.getLength(); ++i)
    setSwitchValue(itemSwitches[i], i == index);
}

void SoDialogRadioButtons::update3DRadioButtons()
{
  if (!buttonSizes || numButtonSizes == 0)
    return;
  // All items get the mean height.
  float itemHeight = 0.0f;
  for (int i = 0; i < numButtonSizes; ++i)
    itemHeight += static_cast<float>(buttonSizes[i][1]);
  itemHeight /= static_cast<float>(numButtonSizes);
  const float itemWidth = static_cast<float>(width.getValue() - 20);
  itemStepTranslation->translation.setValue(0.0f, -itemHeight, 0.0f);
  // The first item's centre: 20 below the frame's top, plus half an item.
  itemsTranslation->translation.setValue(0.0f, (height.getValue() - 6) / 2.0f - 20 + itemHeight / 2, 0.0f);
  itemScale->scaleFactor.setValue(itemWidth, itemHeight, 1.0f);
  undoTransformMatrix(itemFrameSep.getValue(), itemTransform);
  btnScale->scaleFactor.setValue(12.0f, 12.0f, 1.0f);
  btnTranslation->translation.setValue(-itemWidth / 2 + 14, 0.0f, 0.0f);
  if (itemBBox.isEmpty() && itemTexts.getLength() > 0)
    itemBBox = SoControl3D::finiteBox(
      measure3DText(static_cast<SoGroup*>(itemTextProp.getValue()), static_cast<SoText3*>(itemTexts[0])));
  textTranslation->translation.setValue(-itemWidth / 2 + 24, -(itemBBox.getMax()[1] + itemBBox.getMin()[1]) / 2,
                                        0.0f);
}

void SoDialogRadioButtons::update3DLabel()
{
  frameScale->scaleFactor.setValue(static_cast<float>(width.getValue() - 6), static_cast<float>(height.getValue() - 6),
                                   1.0f);
  change3DLabelAlignment();
  undoTransformMatrix(frameSep.getValue(), frameTransform);
}

void SoDialogRadioButtons::change3DLabelAlignment()
{
  if (!labelText)
    return;
  if (!isLabelCachedBBox())
    setLabelCacheBBox(SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(labelProp.getValue()), labelText)));
  const SbBox3f box = getLabelCachedBBox();
  const float textWidth = box.getMax()[0] - box.getMin()[0];
  const float halfFrame = (width.getValue() - 6) / 2.0f;
  float x = -textWidth / 2;
  if (labelAlignment.getValue() == LEFT)
    x = 8 - halfFrame;
  else if (labelAlignment.getValue() == RIGHT)
    x = halfFrame - textWidth - 8;
  // The title runs across the top of the frame, 12 below its edge.
  labelTranslation->translation.setValue(static_cast<float>(static_cast<int32_t>(x)),
                                         (height.getValue() - 6) / 2.0f - 12 - (box.getMax()[1] + box.getMin()[1]) / 2,
                                         0.0f);
}

void SoDialogRadioButtons::change3DLabel()
{
  if (!labelText)
    return;
  SoControl3D::clearText(labelText);
  setStringToText3(labelText, convertToCString(label.getValue(), nullptr));
  SoFormwright::change3DLabel();
  change3DLabelAlignment();
}

void SoDialogRadioButtons::change3DLabelVisibility()
{
  if (!isBuilt3D())
    return;
  setSwitchValue(labelSwitch.getValue(), labelVisibility.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);
  update3DLabel();
}

void SoDialogRadioButtons::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogRadioButtons*>(dragger)->draggerFinishCallback3D();
}

void SoDialogRadioButtons::draggerFinishCallback3D()
{
  set3DCurrentActive(this);
  set3DInactive();
  const SoPath* path = getPressPath();
  // A press beside the items keeps the choice; the auditor hears of the
  // press all the same.
  int chosen = selectedItem.getValue();
  for (int i = 0; path && i < itemSeparators.getLength(); ++i)
    if (path->containsNode(itemSeparators[i]))
      chosen = i;
  if (chosen != selectedItem.getValue()) {
    setFieldUnwatched(selectedItem, selectedItemSensor, chosen);
    if (buildMode)
      changeSelectedItem();
    if (follows3DForm())
      change3DSelectedItem();
  }
  applyDlgCptAuditor();
}
