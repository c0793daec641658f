#include <SoDialogComboBox.h>

#include <SoDialogGroup.h>
#include <SoTopLevelDialog.h>

#include "Qt/SoDialogQComboBox.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QBoxLayout>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoDialogComboBox, SoDialogChoice, "DialogComboBox")

SoDialogComboBox::SoDialogComboBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogComboBox);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(textSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(textProp, SoGroup, SoGroup, textSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonSwitch, SoSwitch, SoSwitch, buttonSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonReleased, SoGroup, SoGroup, buttonSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(buttonPressed, SoGroup, SoGroup, buttonSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemsSwitch, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemStrucSep, SoSeparator, SoSeparator, itemsSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemSep, SoSeparator, SoSeparator, itemStrucSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemFrame, SoGroup, SoGroup, itemSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemTextSep, SoSeparator, SoSeparator, itemStrucSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemTextProp, SoGroup, SoGroup, itemTextSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
  textBBox.makeEmpty();
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
    SoControlWidgets::limitFrame(comboBoxWidget, SbVec2i32(minWidth.getValue(), minHeight.getValue()), *this);
    updateLabelWidget();
    updateComboBoxWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogComboBox();
    update3DComboBox();
    update3DSideLabel();
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

void SoDialogComboBox::create3DDialogComboBox()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("textProp", "DialogTextProperties", TRUE);
  setPartAsDefault("itemTextProp", "DialogTextProperties", TRUE);
  setPartAsDefault("frame", "DialogComboBoxFrame", TRUE);
  setPartAsDefault("buttonReleased", "DialogComboBoxButtonReleased", TRUE);
  setPartAsDefault("buttonPressed", "DialogComboBoxButtonPressed", TRUE);
  setPartAsDefault("itemFrame", "DialogComboBoxItemFrame", TRUE);

  SoGroup* switchNode = get3DPart("geomSwitch");
  SoGroup* labelGroup = get3DPart("labelSwitch");
  SoGroup* frameGroup = get3DPart("frameSep");
  SoGroup* textGroup = get3DPart("textSep");
  SoGroup* buttonGroup = get3DPart("buttonSep");
  get3DPart("buttonSwitch");
  SoGroup* list = get3DPart("itemsSwitch");
  SoGroup* firstItem = get3DPart("itemStrucSep");
  SoGroup* itemBlock = get3DPart("itemSep");
  SoGroup* itemTextGroup = get3DPart("itemTextSep");

  create3DSideLabel(labelGroup, labelGroup, static_cast<SoGroup*>(labelProp.getValue()), labelSwitch.getValue(), true);

  frameTranslation = new SoTranslation;
  switchNode->insertChild(frameTranslation, switchNode->findChild(frameGroup));
  frameScale = new SoScale;
  frameGroup->insertChild(frameScale, 0);
  // The text, the button and the items lie on the frame.
  textTransform = new SoTransform;
  switchNode->insertChild(textTransform, switchNode->findChild(textGroup));
  textTranslation = new SoTranslation;
  textGroup->insertChild(textTranslation, 0);
  selectedText = SoControl3D::newFrontText();
  textGroup->addChild(selectedText);
  auto* buttonScale = new SoScale;
  buttonScale->scaleFactor.setValue(16.0f, 16.0f, 1.0f);
  buttonGroup->insertChild(buttonScale, 0);
  buttonTranslation = new SoTranslation;
  buttonGroup->insertChild(buttonTranslation, 0);
  setSwitchValue(buttonSwitch.getValue(), 0);

  // The first item block, from the catalog parts.
  itemsLift = new SoTranslation;
  list->insertChild(itemsLift, 0);
  itemStep = new SoTranslation;
  itemStep->translation.setValue(0.0f, -22.0f, 0.0f);
  list->insertChild(itemStep, 1);
  itemBlock->insertChild(frameScale, 0);
  itemTransform = new SoTransform;
  firstItem->insertChild(itemTransform, firstItem->findChild(itemTextGroup));
  itemTextGroup->insertChild(textTranslation, 0);
  auto* firstText = SoControl3D::newFrontText();
  itemTextGroup->addChild(firstText);
  itemSeparators.append(firstItem);
  itemTexts.append(firstText);
  setSwitchValue(list, SO_SWITCH_NONE);

  addStartCallback(&SoDialogComboBox::startCB3D);
  change3DLabel();
  change3DItems();
  change3DEnable();
  setBuilt3D(1);
  // The items were given their texts before the form counted as built.
  change3DSelectedItem();
}

void SoDialogComboBox::update3DComboBox()
{
  const int32_t w = width.getValue();
  int32_t bodyWidth = w - 6;
  int32_t start = 3;
  if (labelVisibility.getValue()) {
    start += 2 + labelSize[0];
    bodyWidth -= labelSize[0] + 2;
  }
  const float halfBody = bodyWidth / 2.0f;
  frameTranslation->translation.setValue(start + halfBody - w / 2.0f, 0.0f, 0.0f);
  // The box is 22 high, whatever the control's height, as is each item.
  frameScale->scaleFactor.setValue(static_cast<float>(bodyWidth), 22.0f, 1.0f);
  if (textBBox.isEmpty())
    textBBox = SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(textProp.getValue()), selectedText));
  textTranslation->translation.setValue(-halfBody + 4, -(textBBox.getMax()[1] + textBBox.getMin()[1]) / 2, 0.0f);
  undoTransformMatrix(frameSep.getValue(), textTransform);
  buttonTranslation->translation.setValue(halfBody - 11, 0.0f, 0.0f);
  undoTransformMatrix(itemSep.getValue(), itemTransform);
}

void SoDialogComboBox::update3DBody()
{
  update3DComboBox();
}

void SoDialogComboBox::change3DSelectedItem()
{
  if (!selectedText)
    return;
  const int32_t index = mendSelectedItem();
  textBBox.makeEmpty();
  SoControl3D::clearText(selectedText);
  setStringToText3(selectedText, index < items.getNum() ? items[index] : SbString());
  if (isBuilt3D())
    update3DComboBox();
}

void SoDialogComboBox::addItemBlock()
{
  auto* list = static_cast<SoGroup*>(itemsSwitch.getValue());
  list->addChild(itemStep);
  auto* block = new SoSeparator;
  block->addChild(itemSep.getValue());
  block->addChild(itemTransform);
  auto* textGroup = new SoSeparator;
  textGroup->addChild(textTranslation);
  textGroup->addChild(itemTextProp.getValue());
  SoText3* text = SoControl3D::newFrontText();
  textGroup->addChild(text);
  block->addChild(textGroup);
  list->addChild(block);
  itemSeparators.append(block);
  itemTexts.append(text);
}

void SoDialogComboBox::change3DItems()
{
  if (!itemStep)
    return;
  fixItemsNumber();
  auto* list = static_cast<SoGroup*>(itemsSwitch.getValue());
  const int oldCount = itemSeparators.getLength();
  // The placeholder keeps a block: the list never stands empty.
  const int count = items.getNum();
  for (int i = 0; i < count; ++i) {
    if (i >= itemTexts.getLength())
      addItemBlock();
    auto* text = static_cast<SoText3*>(itemTexts[i]);
    SoControl3D::clearText(text);
    setStringToText3(text, items[i]);
  }
  // Each block goes with the step above it; the first block's step stays.
  for (int i = oldCount; i > count; --i) {
    itemSeparators.remove(i - 1);
    itemTexts.remove(i - 1);
    list->removeChild(2 * i);
    if (i > 1)
      list->removeChild(2 * i - 1);
  }
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

void SoDialogComboBox::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogComboBox*>(dragger)->draggerStartCallback3D();
}

void SoDialogComboBox::draggerStartCallback3D()
{
  const SoPath* path = getPressPath();
  if (!path || !(path->containsNode(itemsSwitch.getValue()) || path->containsNode(frameSep.getValue()) ||
                 path->containsNode(buttonSep.getValue()) || path->containsNode(textSep.getValue())))
    return;
  if (listOpen)
    chooseAndClose(path);
  else
    openList();
}

void SoDialogComboBox::openList()
{
  SoNode* list = itemsSwitch.getValue();
  // The closed list must not count in the measures below.
  itemsLift->translation.setValue(0.0f, 0.0f, 0.0f);
  setSwitchValue(list, SO_SWITCH_NONE);
  setSwitchValue(buttonSwitch.getValue(), 1);
  bboxAction->apply(geomSeparator.getValue());
  const float own = SoControl3D::finiteBox(bboxAction->getBoundingBox()).getMax()[2];
  // Outside a top-level dialog, the outermost group stands for it.
  SoFormwright* top = getFirstTopParent(0, 0);
  if (!top)
    top = getFirstTopParent(0, 1);
  float topMax = 0.0f;
  if (top) {
    bboxAction->apply(top);
    topMax = SoControl3D::finiteBox(bboxAction->getBoundingBox()).getMax()[2];
  }
  // Just clear of the tallest thing in the dialog, so that the list may
  // overlap the controls below it.
  itemsLift->translation.setValue(0.0f, 0.0f, topMax - own + 0.1f);
  setSwitchValue(list, SO_SWITCH_ALL);
  listOpen = 1;
  set3DCurrentActive(this);
}

void SoDialogComboBox::chooseAndClose(const SoPath* path)
{
  if (path->containsNode(itemsSwitch.getValue())) {
    int32_t chosen = selectedItem.getValue();
    const int count = std::min(items.getNum(), itemSeparators.getLength());
    for (int i = 0; i < count; ++i)
      if (path->containsNode(itemSeparators[i]))
        chosen = i;
    if (chosen != selectedItem.getValue()) {
      setFieldUnwatched(selectedItem, selectedItemSensor, chosen);
      change3DSelectedItem();
      if (buildMode)
        changeSelectedItem();
    }
    // Choosing the selected item again is heard too.
    applyDlgCptAuditor();
  }
  set3DInactive();
}

void SoDialogComboBox::set3DInactive()
{
  if (itemsLift) {
    setSwitchValue(itemsSwitch.getValue(), SO_SWITCH_NONE);
    setSwitchValue(buttonSwitch.getValue(), 0);
    itemsLift->translation.setValue(0.0f, 0.0f, 0.0f);
  }
  listOpen = 0;
  SoFormwright::set3DInactive();
}
