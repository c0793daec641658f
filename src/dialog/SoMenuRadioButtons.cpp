#include <SoMenuRadioButtons.h>

#include <SoMenuBar.h>
#include <SoMenuPopup.h>
#include <SoMenuRadioButtonsAuditor.h>

#include "Qt/SoMenuQRadioButtons.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>


#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoMenuRadioButtons, SoMenuItem, "MenuRadioButtons")

SoMenuRadioButtons::SoMenuRadioButtons()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuRadioButtons);
  SO_FORMWRIGHT_ADD_FIELD(items, "");
  SO_FORMWRIGHT_ADD_FIELD(selectedItem, 0);
  SO_FORMWRIGHT_ADD_FIELD(accelerators, "");
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(radioSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemsSep, SoSeparator, SoSeparator, radioSep, false);
  // Never shown: it only holds the skin's two looks that every item shares.
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemSwtch, SoSwitch, SoSwitch, radioSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOff, SoGroup, SoGroup, itemSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOn, SoGroup, SoGroup, itemSwtch, true);
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
  // Shared by every item's separator.
  if (markTranslation)
    markTranslation->unref();
  if (markScale)
    markScale->unref();
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
  const bool first3D = !is2D && !isBuilt3D();
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && menuItems && numItems != 0 && !menuItems[0]->standsIn(holder))
    deleteBridges();
  if (is2D && !menuItems)
    insertMenuItem(position);
  if (!is2D) {
    if (first3D)
      create3DRadioButtons(position);
    update3DRadioButtons();
  }
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
    menuItems[i] = new SoMenuQRadioButtons(menuParent, -1, id + i, this);
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
  // A group whose menu has gone makes its actions when it is built again.
  if (!menuItems || !menuParent)
    return;
  const int position = numItems != 0 ? menuItems[0]->getPosition() : 0;
  deleteBridges();
  insertMenuItem(position);
}

void SoMenuRadioButtons::deleteBridges()
{
  for (int i = 0; i < numItems; ++i)
    delete menuItems[i];
  delete[] menuItems;
  menuItems = nullptr;
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

namespace {
// The mark fills half the 20 units left of the text.
const float kMarkSize = 10.0f;
}

void SoMenuRadioButtons::create3DRadioButtons(int)
{
  loadSkinOnce();
  setPartAsDefault("stateOff", "MenuRadioButtonsStateOff", TRUE);
  setPartAsDefault("stateOn", "MenuRadioButtonsStateOn", TRUE);
  setSwitchValue(itemSwtch.getValue(), SO_SWITCH_NONE);
  firstItemTranslation = new SoTranslation;
  get3DPart("radioSep")->insertChild(firstItemTranslation, 0);
  markTranslation = new SoTranslation;
  markTranslation->ref();
  markScale = new SoScale;
  markScale->ref();
  markScale->scaleFactor.setValue(kMarkSize, kMarkSize, 1.0f);
  moveLabelToEnd();
  for (int i = 0; i < items.getNum(); ++i)
    add3DItem(i);
  addFinishCallback(&SoMenuRadioButtons::finishCB3D);
  change3DSelectedItem();
}

void SoMenuRadioButtons::add3DItem(int index)
{
  auto* item = new SoSeparator;
  auto* row = new SoTranslation;
  item->addChild(row);
  auto* textGroup = new SoSeparator;
  auto* textTranslation = new SoTranslation;
  textGroup->addChild(textTranslation);
  textGroup->addChild(labelProp.getValue());
  SoText3* text = SoControl3D::newFrontText();
  setStringToText3(text, convertToCString(items[index], nullptr));
  textGroup->addChild(text);
  item->addChild(textGroup);
  item->addChild(markTranslation);
  item->addChild(markScale);
  auto* mark = new SoSwitch;
  mark->addChild(stateOff.getValue());
  mark->addChild(stateOn.getValue());
  mark->whichChild = 0;
  item->addChild(mark);
  get3DPart("itemsSep")->addChild(item);
  itemSeparators.append(item);
  itemSwitches.append(mark);
  itemTexts.append(text);
  itemTextTranslations.append(textTranslation);
}

void SoMenuRadioButtons::update3DRadioButtons()
{
  const int n = itemSeparators.getLength();
  if (n == 0)
    return;
  const float w = static_cast<float>(itemSize[0]);
  const float line = static_cast<float>(itemSize[1]) / n;
  for (int i = 0; i < n; ++i) {
    const SbBox3f box =
      SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(labelProp.getValue()), static_cast<SoText3*>(itemTexts[i])));
    const float height = box.getMax()[1] - box.getMin()[1];
    static_cast<SoTranslation*>(itemTextTranslations[i])->translation.setValue(-w / 2 + 20, -height / 2, 0.0f);
    static_cast<SoTranslation*>(static_cast<SoGroup*>(itemSeparators[i])->getChild(0))
      ->translation.setValue(0.0f, -line * i, 0.0f);
  }
  markTranslation->translation.setValue(-w / 2 + 10, 0.0f, 0.0f);
  // The frame is centred on the group: the first line is above the middle.
  firstItemTranslation->translation.setValue(0.0f, line / 2 * (n - 1), 0.0f);
}

// The group's own label shows nowhere: its items carry the texts.
SbString SoMenuRadioButtons::shown3DLabel() const
{
  return SbString();
}

void SoMenuRadioButtons::change3DSelectedItem()
{
  for (int i = 0; i < itemSwitches.getLength(); ++i) {
    auto* mark = static_cast<SoSwitch*>(itemSwitches[i]);
    const int look = selectedItem.getValue() == i ? 1 : 0;
    if (mark->whichChild.getValue() != look)
      mark->whichChild = look;
  }
}

void SoMenuRadioButtons::change3DItems()
{
  SoGroup* group = get3DPart("itemsSep");
  while (itemSeparators.getLength() > items.getNum()) {
    const int last = itemSeparators.getLength() - 1;
    group->removeChild(itemSeparators[last]);
    for (SoNodeList* list : {&itemSeparators, &itemSwitches, &itemTexts, &itemTextTranslations})
      list->remove(last);
  }
  for (int i = 0; i < itemTexts.getLength(); ++i) {
    SoText3* text = static_cast<SoText3*>(itemTexts[i]);
    SoControl3D::clearText(text);
    setStringToText3(text, convertToCString(items[i], nullptr));
  }
  for (int i = itemSeparators.getLength(); i < items.getNum(); ++i)
    add3DItem(i);
  change3DSelectedItem();
  setItemSize(getItemInitSize(), 1);
  if (parentNode && parentNode->isOfType(SoMenuPopup::getClassTypeId())) {
    auto* popup = static_cast<SoMenuPopup*>(parentNode);
    popup->update3DChildrenSize();
    popup->update3DChildren();
  } else {
    update3DItem();
    update3DRadioButtons();
  }
}

void SoMenuRadioButtons::finishCB3D(void*, SoDragger* dragger)
{
  auto* group = static_cast<SoMenuRadioButtons*>(dragger);
  const SoPath* path = group->getPressPath();
  if (!path)
    return;
  int chosen = -1;
  for (int i = 0; i < group->itemSeparators.getLength() && chosen < 0; ++i)
    if (path->containsNode(group->itemSeparators[i]))
      chosen = i;
  if (chosen < 0)
    return;
  if (chosen != group->selectedItem.getValue()) {
    const int previous = group->selectedItem.getValue();
    if (previous >= 0 && previous < group->itemSwitches.getLength())
      static_cast<SoSwitch*>(group->itemSwitches[previous])->whichChild = 0;
    static_cast<SoSwitch*>(group->itemSwitches[chosen])->whichChild = 1;
    setFieldUnwatched(group->selectedItem, group->selectedItemSensor, chosen);
    if (group->buildMode)
      group->changeSelectedItem();
  }
  // Chosen again, an item still tells its auditors.
  group->applyDlgCptAuditor();
  if (SoMenuBar* bar = group->getMenuBar())
    bar->show3DChildren(0);
}
