#include <SoMenuRadioButtons.h>

#include <SoMenuRadioButtonsAuditor.h>

#include "Qt/SoMenuQRadioButtons.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QMenu>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoMenuRadioButtons, SoMenuItem, "MenuRadioButtons")

SoMenuRadioButtons::SoMenuRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuRadioButtons);
  SO_FORMWRIGHT_ADD_FIELD(items, "");
  SO_FORMWRIGHT_ADD_FIELD(selectedItem, 0);
  SO_FORMWRIGHT_ADD_FIELD(accelerators, "");
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuRadioButtons::~SoMenuRadioButtons()
{
  for (int i = 0; menuItems && i < numItems; ++i)
    menuItems[i]->forgetNode();
  delete[] menuItems;
  delete selectedItemSensor;
  delete itemsSensor;
  delete acceleratorsSensor;
}

void SoMenuRadioButtons::addAuditor(SoMenuRadioButtonsAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuRadioButtons::removeAuditor(SoMenuRadioButtonsAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuRadioButtons::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoMenuRadioButtonsAuditor::menuRadioButtons);
}

void SoMenuRadioButtons::buildMenu(void* holder, int is2D, int position)
{
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && !menuItems)
    insertMenuItem(position);
  makeFieldSensor(selectedItemSensor, selectedItem);
  makeFieldSensor(itemsSensor, items);
  makeFieldSensor(acceleratorsSensor, accelerators);
}

void SoMenuRadioButtons::insertMenuItem(int)
{
  id = nextMenuId;
  numItems = items.getNum();
  menuItems = new SoMenuQRadioButtons*[numItems];
  for (int i = 0; i < numItems; ++i) {
    menuItems[i] = new SoMenuQRadioButtons(static_cast<QMenu*>(menuParent), -1, id + i, this);
    ++nextMenuId;
  }
  changeSelectedItem();
  changeLabel();
  changeAccelerators();
}

void SoMenuRadioButtons::updateFromSensor(SoSensor* sensor)
{
  if (sensor == selectedItemSensor) {
    if (buildMode)
      changeSelectedItem();
    if (follows3DForm())
      change3DSelectedItem();
  } else if (sensor == itemsSensor) {
    previousNumItems = numItems;
    if (buildMode)
      changeItems();
    if (follows3DForm())
      change3DItems();
  } else if (sensor == acceleratorsSensor) {
    changeAccelerators();
  } else {
    SoMenuItem::updateFromSensor(sensor);
  }
}

void SoMenuRadioButtons::menuEvent(void*, int actionId)
{
  setFieldUnwatched(selectedItem, selectedItemSensor, actionId - id);
  applyDlgCptAuditor();
  if (buildMode)
    changeSelectedItem();
  if (follows3DForm())
    change3DSelectedItem();
}

void SoMenuRadioButtons::changeLabel()
{
  const int count = std::min(numItems, items.getNum());
  for (int i = 0; i < count; ++i)
    menuItems[i]->changeLabel(SoControlWidgets::toNarrowText(items[i]).constData());
}

void SoMenuRadioButtons::changeEnable()
{
  for (int i = 0; i < numItems; ++i)
    menuItems[i]->changeEnable(enable.getValue() != 0);
}

void SoMenuRadioButtons::changeSelectedItem()
{
  for (int i = 0; i < numItems; ++i)
    menuItems[i]->changeState(selectedItem.getValue() == i);
}

void SoMenuRadioButtons::changeItems()
{
  if (!menuItems)
    return;
  const int position = numItems != 0 ? menuItems[0]->getPosition() : 0;
  for (int i = 0; i < numItems; ++i)
    delete menuItems[i];
  delete[] menuItems;
  menuItems = nullptr;
  insertMenuItem(position);
}

// Runs for a group of the scene form too, which has no actions.
void SoMenuRadioButtons::changeAccelerators()
{
  if (!menuItems)
    return;
  const int count = std::min(accelerators.getNum(), numItems);
  for (int i = 0; i < count; ++i)
    menuItems[i]->changeAccelerator(
      SoControlWidgets::toNarrowText(getKeyCombination(accelerators[i], this, 0)).constData());
}

SbVec2i32 SoMenuRadioButtons::getItemInitSize()
{
  // A group with actions keeps counting them: its bridges number numItems.
  if (!menuItems)
    numItems = items.getNum();
  int32_t widest = 0;
  for (int i = 0; i < items.getNum(); ++i)
    widest = std::max(widest, getLabelPixelSize(items[i], nullptr)[0]);
  return SbVec2i32(widest + 28, items.getNum() * 18);
}

void SoMenuRadioButtons::setItemSize(SbVec2i32 size, int force)
{
  storeItemSize(size, force, numItems * 18);
}

void SoMenuRadioButtons::change3DSelectedItem() {}
void SoMenuRadioButtons::change3DItems() {}
