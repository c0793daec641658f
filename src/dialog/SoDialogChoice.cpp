#include <SoDialogChoice.h>

#include <SoDialogChoiceAuditor.h>

#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogChoice, SoDialogComponent, "DialogChoice")

SoDialogChoice::SoDialogChoice()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogChoice);
  SO_FORMWRIGHT_ADD_FIELD(items, "");
  SO_FORMWRIGHT_ADD_FIELD(selectedItem, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogChoice::~SoDialogChoice()
{
  delete itemsSensor;
  delete selectedItemSensor;
}

void SoDialogChoice::addAuditor(SoDialogChoiceAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogChoice::removeAuditor(SoDialogChoiceAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogChoice::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogChoiceAuditor::dialogChoice);
}

void SoDialogChoice::fixItemsNumber()
{
  itemCount = items.getNum();
  if (itemCount == 0) {
    setFieldUnwatched(items, itemsSensor, SbString(""));
    itemCount = 1;
    isEmptyList = 1;
  }
  noteRealItems();
}

void SoDialogChoice::noteRealItems()
{
  if (itemCount > 1 || (itemCount == 1 && items[0].getLength() != 0))
    isEmptyList = 0;
}

void SoDialogChoice::readItemCount()
{
  itemCount = items.getNum();
  noteRealItems();
}

int32_t SoDialogChoice::mendSelectedItem()
{
  const auto inRange = [this](int32_t index) { return index >= 0 && index < itemCount; };
  int32_t index = selectedItem.getValue();
  if (!inRange(index)) {
    index = inRange(lastSelectedItem) ? lastSelectedItem : 0;
    setFieldUnwatched(selectedItem, selectedItemSensor, index);
  }
  lastSelectedItem = index;
  return index;
}

void SoDialogChoice::addItem(SbString text)
{
  readItemCount();
  if (itemCount == isEmptyList) {
    isEmptyList = 0;
    items.set1Value(0, text);
    itemCount = items.getNum();
  } else {
    isEmptyList = 0;
    items.set1Value(items.getNum(), text);
  }
}

void SoDialogChoice::insertItem(int index, SbString text)
{
  readItemCount();
  if (itemCount == isEmptyList) {
    isEmptyList = 0;
    items.set1Value(0, text);
    return;
  }
  isEmptyList = 0;
  // Only the text's arrival is a change the widgets hear of, not the gap
  // made for it.
  const bool attached = itemsSensor && itemsSensor->getAttachedField() == &items;
  if (attached)
    itemsSensor->detach();
  if (index >= itemCount)
    index = itemCount;
  else if (index < 0)
    index = 0;
  items.insertSpace(index, 1);
  if (attached)
    itemsSensor->attach(&items);
  items.set1Value(index, text);
}

void SoDialogChoice::removeItem(int index)
{
  readItemCount();
  if (index >= itemCount - isEmptyList || index < 0)
    return;
  items.deleteValues(index, 1);
}

QWidget* SoDialogChoice::getLabelWidget()
{
  return labelWidget;
}

void SoDialogChoice::updateFromSensor(SoSensor* sensor)
{
  if (sensor == itemsSensor) {
    if (buildMode)
      changeItems();
    if (follows3DForm())
      change3DItems();
  } else if (sensor == selectedItemSensor) {
    if (buildMode)
      changeSelectedItem();
    if (follows3DForm())
      change3DSelectedItem();
  } else {
    SoDialogComponent::updateFromSensor(sensor);
  }
}

void SoDialogChoice::destroyWidget()
{
  if (buildMode && labelWidget)
    SoControlWidgets::deleteFrameWidget(labelWidget, componentWidget);
  SoDialogComponent::destroyWidget();
}

void SoDialogChoice::eventNotify(unsigned int index, unsigned long long)
{
  const bool attached = selectedItemSensor && selectedItemSensor->getAttachedField() == &selectedItem;
  if (attached)
    selectedItemSensor->detach();
  selectedItem = static_cast<int32_t>(index);
  applyDlgCptAuditor();
  if (selectedItemSensor && selectedItemSensor->getAttachedField() != &selectedItem)
    selectedItemSensor->attach(&selectedItem);
  if (isBuilt3D())
    change3DSelectedItem();
}

void SoDialogChoice::changeItems() {}
void SoDialogChoice::changeSelectedItem() {}
void SoDialogChoice::change3DSelectedItem() {}
void SoDialogChoice::change3DItems() {}
