#include <SoMenuCheckBox.h>

#include <SoMenuBar.h>
#include <SoMenuCheckBoxAuditor.h>

#include "Qt/SoMenuQCheckBox.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTranslation.h>


#include <algorithm>

SO_FORMWRIGHT_SOURCE(SoMenuCheckBox, SoMenuItem, "MenuCheckBox")

SoMenuCheckBox::SoMenuCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuCheckBox);
  SO_FORMWRIGHT_ADD_FIELD(state, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(onString, "");
  SO_FORMWRIGHT_ADD_FIELD(accelerator, "");
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(chkSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(chkSwtch, SoSwitch, SoSwitch, chkSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOff, SoGroup, SoGroup, chkSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(stateOn, SoGroup, SoGroup, chkSwtch, true);
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
      create3DCheckBox(position);
    update3DCheckBox();
  }
  makeFieldSensor(stateSensor, state);
  makeFieldSensor(onStringSensor, onString);
  makeFieldSensor(acceleratorSensor, accelerator);
}

void SoMenuCheckBox::insertMenuItem(int position)
{
  id = nextMenuId++;
  menuItem = new SoMenuQCheckBox(menuParent, position, id, this);
  // Only the text follows a state read from the file: like `enable`, the
  // mark waits for the field's next change.
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

namespace {
// The mark fills half the 20 units left of the text.
const float kMarkSize = 10.0f;
}

void SoMenuCheckBox::create3DCheckBox(int)
{
  loadSkinOnce();
  setPartAsDefault("stateOff", "MenuCheckBoxStateOff", TRUE);
  setPartAsDefault("stateOn", "MenuCheckBoxStateOn", TRUE);
  SoGroup* markGroup = get3DPart("chkSep");
  auto* markScale = new SoScale;
  markScale->scaleFactor.setValue(kMarkSize, kMarkSize, 1.0f);
  markGroup->insertChild(markScale, 0);
  markTranslation = new SoTranslation;
  markGroup->insertChild(markTranslation, 0);
  moveLabelToEnd();
  addFinishCallback(&SoMenuCheckBox::finishCB3D);
  change3DState();
}

void SoMenuCheckBox::update3DCheckBox()
{
  SbVec3f min, max;
  get3DLabelCachedBBox(min, max);
  const float w = static_cast<float>(itemSize[0]);
  markTranslation->translation.setValue(-w / 2 + 10, 0.0f, 0.0f);
  labelTranslation->translation.setValue(-w / 2 + 20, -(max[1] - min[1]) / 2, 0.0f);
}

SbString SoMenuCheckBox::shown3DLabel() const
{
  if (!state.getValue() || onString.getValue().getLength() == 0)
    return label.getValue();
  return onString.getValue();
}

void SoMenuCheckBox::change3DLabel()
{
  SoMenuItem::change3DLabel();
  if (markTranslation)
    update3DCheckBox();
}

void SoMenuCheckBox::change3DState()
{
  setSwitchValue(chkSwtch.getValue(), state.getValue() ? 1 : 0);
  change3DLabel();
}

void SoMenuCheckBox::change3DOnString()
{
  change3DLabel();
}

void SoMenuCheckBox::finishCB3D(void*, SoDragger* dragger)
{
  auto* box = static_cast<SoMenuCheckBox*>(dragger);
  const SoPath* path = box->getPressPath();
  if (path && path->containsNode(box))
    box->draggerFinishCallback3D();
}

void SoMenuCheckBox::draggerFinishCallback3D()
{
  setFieldUnwatched(state, stateSensor, !state.getValue());
  applyDlgCptAuditor();
  if (SoMenuBar* bar = getMenuBar())
    bar->show3DChildren(0);
  if (buildMode)
    changeState();
  if (follows3DForm())
    change3DState();
}
