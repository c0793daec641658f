#include <SoMenuCheckBox.h>

#include <SoMenuCheckBoxAuditor.h>

#include "Qt/SoMenuQCheckBox.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QMenu>

#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoMenuCheckBox, SoMenuItem, "MenuCheckBox")

SoMenuCheckBox::SoMenuCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuCheckBox);
  SO_FORMWRIGHT_ADD_FIELD(state, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(onString, "");
  SO_FORMWRIGHT_ADD_FIELD(accelerator, "");
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuCheckBox::~SoMenuCheckBox()
{
  if (menuItem)
    menuItem->forgetNode();
  delete stateSensor;
  delete onStringSensor;
  delete acceleratorSensor;
}

void SoMenuCheckBox::addAuditor(SoMenuCheckBoxAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuCheckBox::removeAuditor(SoMenuCheckBoxAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuCheckBox::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoMenuCheckBoxAuditor::menuCheckBox);
}

void SoMenuCheckBox::buildMenu(void* holder, int is2D, int position)
{
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && !menuItem)
    insertMenuItem(position);
  makeFieldSensor(stateSensor, state);
  makeFieldSensor(onStringSensor, onString);
  makeFieldSensor(acceleratorSensor, accelerator);
}

void SoMenuCheckBox::insertMenuItem(int position)
{
  id = nextMenuId++;
  menuItem = new SoMenuQCheckBox(static_cast<QMenu*>(menuParent), position, id, this);
  changeLabel();
  changeAccelerator();
}

void SoMenuCheckBox::updateFromSensor(SoSensor* sensor)
{
  if (sensor == stateSensor) {
    if (buildMode)
      changeState();
    if (follows3DForm())
      change3DState();
  } else if (sensor == onStringSensor) {
    if (buildMode)
      changeOnString();
    if (follows3DForm())
      change3DOnString();
  } else if (sensor == acceleratorSensor) {
    changeAccelerator();
  } else {
    SoMenuItem::updateFromSensor(sensor);
  }
}

void SoMenuCheckBox::menuEvent(void*, int)
{
  const bool watched = stateSensor && stateSensor->getAttachedField() == &state;
  if (watched)
    stateSensor->detach();
  state = !state.getValue();
  changeState();
  if (isBuilt3D())
    change3DState();
  applyDlgCptAuditor();
  if (watched)
    stateSensor->attach(&state);
}

void SoMenuCheckBox::changeLabel()
{
  const bool showsOn = state.getValue() && onString.getValue().getLength() != 0;
  const SbString& text = showsOn ? onString.getValue() : label.getValue();
  menuItem->changeLabel(SoControlWidgets::toNarrowText(text).constData());
}

void SoMenuCheckBox::changeEnable()
{
  menuItem->changeEnable(enable.getValue() != 0);
}

// Also reached from a choice in the scene form, which has no action.
void SoMenuCheckBox::changeState()
{
  if (!menuItem)
    return;
  menuItem->changeState(state.getValue() != 0);
  changeLabel();
}

void SoMenuCheckBox::changeOnString()
{
  changeLabel();
}

// Runs for an entry of the scene form too, which has no action.
void SoMenuCheckBox::changeAccelerator()
{
  if (menuItem)
    menuItem->changeAccelerator(
      SoControlWidgets::toNarrowText(getKeyCombination(accelerator.getValue(), this, 0)).constData());
}

SbVec2i32 SoMenuCheckBox::getItemInitSize()
{
  const int32_t labelWidth = getLabelPixelSize(label.getValue(), nullptr)[0];
  const int32_t onWidth = getLabelPixelSize(onString.getValue(), nullptr)[0];
  return SbVec2i32(std::max(labelWidth, onWidth) + 28, 18);
}

void SoMenuCheckBox::change3DState() {}
void SoMenuCheckBox::change3DOnString() {}
