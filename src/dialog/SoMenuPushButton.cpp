#include <SoMenuPushButton.h>

#include <SoMenuBar.h>
#include <SoMenuPushButtonAuditor.h>

#include "Qt/SoMenuQPushButton.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>


SO_FORMWRIGHT_SOURCE(SoMenuPushButton, SoMenuItem, "MenuPushButton")

SoMenuPushButton::SoMenuPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPushButton);
  SO_FORMWRIGHT_ADD_FIELD(accelerator, "");
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(btnSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(btnSwtch, SoSwitch, SoSwitch, btnSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(released, SoGroup, SoGroup, btnSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(pressed, SoGroup, SoGroup, btnSwtch, true);
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
  const bool first3D = !is2D && !isBuilt3D();
  SoMenuItem::buildMenu(holder, is2D, position);
  if (is2D && menuItem && !menuItem->standsIn(holder)) {
    delete menuItem;
    menuItem = nullptr;
  }
  if (is2D && !menuItem)
    insertMenuItem(position);
  if (!is2D) {
    if (first3D)
      create3DPushButton(position);
    update3DPushButton();
  }
  makeFieldSensor(acceleratorSensor, accelerator);
}

void SoMenuPushButton::create3DPushButton(int)
{
  loadSkinOnce();
  setPartAsDefault("released", "MenuPushButtonReleased", TRUE);
  setPartAsDefault("pressed", "MenuPushButtonPressed", TRUE);
  buttonScale = new SoScale;
  get3DPart("btnSep")->insertChild(buttonScale, 0);
  // The text stands on the button's top, which sinks when pressed.
  buttonTransform = new SoTransform;
  SoGroup* switchNode = get3DPart("geomSwitch");
  moveLabelToEnd();
  switchNode->insertChild(buttonTransform, switchNode->findChild(labelSep.getValue()));
  setSwitchValue(btnSwtch.getValue(), 0);
  addStartCallback(&SoMenuPushButton::startCB3D);
  addFinishCallback(&SoMenuPushButton::finishCB3D);
}

void SoMenuPushButton::update3DPushButton()
{
  SbVec3f min, max;
  get3DLabelCachedBBox(min, max);
  const float w = static_cast<float>(itemSize[0]);
  buttonScale->scaleFactor.setValue(w - 4, static_cast<float>(itemSize[1] - 4), 1.0f);
  labelTranslation->translation.setValue(-w / 2 + 4, -(max[1] + min[1]) / 2, 0.0f);
  undoTransformMatrix(btnSep.getValue(), buttonTransform);
}

void SoMenuPushButton::change3DLabel()
{
  SoMenuItem::change3DLabel();
  if (buttonScale)
    update3DPushButton();
}

void SoMenuPushButton::change3DButtonState(int pressedNow)
{
  setSwitchValue(btnSwtch.getValue(), pressedNow);
  undoTransformMatrix(btnSep.getValue(), buttonTransform);
}

void SoMenuPushButton::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoMenuPushButton*>(dragger)->change3DButtonState(1);
}

void SoMenuPushButton::draggerFinishCallback3D()
{
  applyDlgCptAuditor();
}

void SoMenuPushButton::finishCB3D(void*, SoDragger* dragger)
{
  auto* button = static_cast<SoMenuPushButton*>(dragger);
  // The toolkit has forgotten the pick by now: the press's copy tells.
  const SoPath* path = button->getPressPath();
  if (!path || !path->containsNode(button))
    return;
  button->change3DButtonState(0);
  button->draggerFinishCallback3D();
  // A chosen entry closes its menu.
  if (SoMenuBar* bar = button->getMenuBar())
    bar->show3DChildren(0);
}

void SoMenuPushButton::insertMenuItem(int position)
{
  id = nextMenuId++;
  menuItem = new SoMenuQPushButton(menuParent, position, id, this);
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
