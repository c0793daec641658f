#include <SoMenuPushButton.h>

#include <SoMenuPushButtonAuditor.h>

#include "Qt/SoMenuQPushButton.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QMenu>

SO_FORMWRIGHT_SOURCE(SoMenuPushButton, SoMenuItem, "MenuPushButton")

SoMenuPushButton::SoMenuPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPushButton);
  SO_FORMWRIGHT_ADD_FIELD(accelerator, "");
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPushButton::~SoMenuPushButton()
{
  if (menuItem)
    menuItem->forgetNode();
  delete acceleratorSensor;
}

void SoMenuPushButton::addAuditor(SoMenuPushButtonAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuPushButton::removeAuditor(SoMenuPushButtonAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuPushButton::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoMenuPushButtonAuditor::menuPushButton);
}

void SoMenuPushButton::buildMenu(void* holder, int is2D, int position)
{
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && !menuItem)
    insertMenuItem(position);
  makeFieldSensor(acceleratorSensor, accelerator);
}

void SoMenuPushButton::insertMenuItem(int position)
{
  id = nextMenuId++;
  menuItem = new SoMenuQPushButton(static_cast<QMenu*>(menuParent), position, id, this);
  changeLabel();
  changeEnable();
  changeAccelerator();
}

void SoMenuPushButton::updateFromSensor(SoSensor* sensor)
{
  if (sensor == acceleratorSensor)
    changeAccelerator();
  else
    SoMenuItem::updateFromSensor(sensor);
}

void SoMenuPushButton::menuEvent(void*, int)
{
  applyDlgCptAuditor();
}

void SoMenuPushButton::changeLabel()
{
  menuItem->changeLabel(SoControlWidgets::toNarrowText(label.getValue()).constData());
}

void SoMenuPushButton::changeEnable()
{
  menuItem->changeEnable(enable.getValue() != 0);
}

// Runs for an entry of the scene form too, which has no action.
void SoMenuPushButton::changeAccelerator()
{
  if (menuItem)
    menuItem->changeAccelerator(
      SoControlWidgets::toNarrowText(getKeyCombination(accelerator.getValue(), this, 0)).constData());
}
