#include <SoDialogSlider.h>

#include <SoDialogCheckBox.h>
#include <SoDialogEditText.h>

#include "Qt/SoDialogCustomSlider.h"
#include "Qt/SoDialogQSlider.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoKeyCharacter.h"

#include <Inventor/SbLine.h>
#include <Inventor/SbRotation.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/nodes/SoEventCallback.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/projectors/SbLineProjector.h>

#include <QBoxLayout>

#include <algorithm>
#include <cmath>

SO_FORMWRIGHT_SOURCE(SoDialogSlider, SoDialogComponent, "DialogSlider")

SoDialogSlider::SoDialogSlider()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogSlider);
  SO_FORMWRIGHT_ADD_FIELD(valueVisible, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(format, "%3f");
  SO_FORMWRIGHT_ADD_FIELD(continuousTrigger, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(toggleVisible, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(fixedLimits, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(colors, SbColor(0.66f, 0.66f, 0.66f));
  SO_FORMWRIGHT_ADD_FIELD(shadedColors, TRUE);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(checkSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(checkSwtch, SoSwitch, SoSwitch, checkSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(checkStateOff, SoGroup, SoGroup, checkSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(checkStateOn, SoGroup, SoGroup, checkSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(sliderSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, sliderSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursorSep, SoSeparator, SoSeparator, sliderSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursor, SoGroup, SoGroup, cursorSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edtSwtch, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edtFrmSep, SoSeparator, SoSeparator, edtSwtch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(edtFrmSwtch, SoSwitch, SoSwitch, edtFrmSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(valueFrame, SoGroup, SoGroup, edtFrmSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(editValueFrame, SoGroup, SoGroup, edtFrmSwtch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(editTextSep, SoSeparator, SoSeparator, edtSwtch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(editTextProp, SoGroup, SoGroup, editTextSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogSlider::~SoDialogSlider()
{
  if (ownsCustomSlider)
    delete customSlider;
  customSlider = nullptr;
  SoControlWidgets::deleteFrameWidget(sliderWidget, componentWidget);
  delete colorsSensor;
  delete shadedColorsSensor;
  delete valueVisibleSensor;
  delete continuousTriggerSensor;
  delete toggleVisibleSensor;
  delete fixedLimitsSensor;
  delete formatSensor;
  delete projector;
}

void SoDialogSlider::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    // The frame makes the toggle, the bar and the value zone with it.
    if (!existWidget(sliderWidget))
      createLabelWidget();
    SoControlWidgets::limitFrame(sliderWidget, SbVec2i32(width.getValue(), height.getValue()), *this);
    updateLabelWidget();
    updateToggleWidget();
    updateSliderWidget();
    updateEditWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogSlider();
    update3DSlider();
    update3DSideLabel();
  }
  makeFieldSensor(colorsSensor, colors);
  makeFieldSensor(shadedColorsSensor, shadedColors);
  makeFieldSensor(valueVisibleSensor, valueVisible);
  makeFieldSensor(continuousTriggerSensor, continuousTrigger);
  makeFieldSensor(toggleVisibleSensor, toggleVisible);
  makeFieldSensor(fixedLimitsSensor, fixedLimits);
  makeFieldSensor(formatSensor, format);
}

void SoDialogSlider::createLabelWidget()
{
  editZoneWidth = computeEditZoneWidth();
  sliderWidget = new SoDialogQSlider(componentWidget, this);
  componentWidget = sliderWidget;
  customSlider = sliderWidget->getCustomSlider();
  // The bar goes with its frame, which Qt deletes with the window the
  // application may delete under the node.
  QObject::connect(sliderWidget, &QObject::destroyed, sliderWidget, [this, bar = customSlider] {
    if (customSlider == bar)
      customSlider = nullptr;
  });
  customSlider->addValueChangedCallback(valueChangeCallback, this);
  // While the value follows the drag, the end of the drag adds nothing.
  if (!continuousTrigger.getValue())
    customSlider->addFinishCallback(finishCallback, this);
  changeColors();
  ownsCustomSlider = 0;
  changeLabel();
  changeLabelAlignment();
  changeLabelVisibility();
  changeContinuousTrigger();
  changeToggleVisible();
  changeSliderValue();
  changeEditValue();
  changeEdgeStyle();
  changeValueVisible();
  componentLayout->addWidget(sliderWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogSlider::destroyWidget()
{
  if (buildMode) {
    if (ownsCustomSlider)
      delete customSlider;
    customSlider = nullptr;
    SoControlWidgets::deleteFrameWidget(sliderWidget, componentWidget);
  }
  SoDialogComponent::destroyWidget();
}

QWidget* SoDialogSlider::getLabelWidget()
{
  return labelWidget;
}

void SoDialogSlider::eventNotify(unsigned int event, unsigned long long)
{
  if (event != 1 || !sliderWidget)
    return;
  const bool attached = continuousTriggerSensor && continuousTriggerSensor->getAttachedField() == &continuousTrigger;
  if (attached)
    continuousTriggerSensor->detach();
  continuousTrigger.setValue(sliderWidget->isToggleChecked());
  if (continuousTrigger.getValue())
    customSlider->removeFinishCallback(finishCallback, this);
  else
    customSlider->addFinishCallback(finishCallback, this);
  if (attached)
    continuousTriggerSensor->attach(&continuousTrigger);
  if (isBuilt3D())
    change3DContinuousTrigger();
}

void SoDialogSlider::updateFromSensor(SoSensor* sensor)
{
  if (sensor == valueVisibleSensor) {
    if (buildMode)
      changeValueVisible();
    if (follows3DForm())
      change3DValueVisible();
  } else if (sensor == toggleVisibleSensor) {
    if (buildMode)
      changeToggleVisible();
    if (follows3DForm())
      change3DToggleVisible();
  } else if (sensor == colorsSensor || sensor == shadedColorsSensor) {
    if (buildMode)
      changeColors();
  } else if (sensor == continuousTriggerSensor) {
    if (buildMode)
      changeContinuousTrigger();
    if (follows3DForm())
      change3DContinuousTrigger();
  } else if (sensor == formatSensor) {
    if (buildMode)
      changeFormat();
  } else {
    SoDialogComponent::updateFromSensor(sensor);
  }
}

void SoDialogSlider::changeColors()
{
  customSlider->setColors(colors.getValues(0), colors.getNum(), shadedColors.getValue());
}

float SoDialogSlider::getValue()
{
  return customSlider ? customSlider->getValue() : normalizedValue;
}

void SoDialogSlider::valueChangeCallback(void* data, float value)
{
  static_cast<SoDialogSlider*>(data)->changeValueFromSlider(value);
}

void SoDialogSlider::finishCallback(void* data, float value)
{
  static_cast<SoDialogSlider*>(data)->changeValueAfterFinish(value);
}

void SoDialogSlider::changeValueFromSlider(float value)
{
  setValueFromSlider(value);
  if (continuousTrigger.getValue())
    setValue();
  // The value zone follows the drag even when the value waits for its end.
  if (buildMode)
    changeEditValue();
  if (follows3DForm())
    change3DEditValue();
  if (isBuilt3D())
    change3DCursor();
}

void SoDialogSlider::changeValueAfterFinish(float value)
{
  setValueFromSlider(value);
  setValue();
  if (buildMode)
    changeEditValue();
  if (follows3DForm())
    change3DEditValue();
}

void SoDialogSlider::changeSliderFromEdit()
{
  setValueFromEdit(1);
  if (buildMode)
    changeSliderValue();
  if (follows3DForm())
    change3DSliderValue();
  setValue();
}

SbString SoDialogSlider::getValueFromEdit()
{
  return SbString(sliderWidget->getEditText().toLatin1().constData());
}

void SoDialogSlider::updateWidget()
{
  editZoneWidth = computeEditZoneWidth();
  if (buildMode) {
    updateSliderWidget();
    updateEditWidget();
  }
  if (follows3DForm())
    update3DSlider();
}

void SoDialogSlider::setValueFromSlider(float value)
{
  normalizedValue = value;
}

void SoDialogSlider::changeSliderValue()
{
  if (customSlider)
    customSlider->setValue(normalizedValue);
}

void SoDialogSlider::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  sliderWidget->setLabelPlace(SoControlWidgets::sideLabelPlace(height.getValue(), labelSize[0], text[1]));
}

void SoDialogSlider::updateToggleWidget()
{
  if (!toggleVisible.getValue())
    return;
  const int32_t x = labelVisibility.getValue() ? labelSize[0] + 5 : 3;
  sliderWidget->setTogglePlace(QRect(x, 3, 16, height.getValue() - 6));
}

void SoDialogSlider::updateSliderWidget()
{
  int32_t x = 3;
  int32_t w = width.getValue() - 6;
  if (toggleVisible.getValue()) {
    x = 21;
    w -= 18;
  }
  if (labelVisibility.getValue()) {
    x += labelSize[0] + 2;
    w -= labelSize[0] + 2;
  }
  if (valueVisible.getValue())
    w -= editZoneWidth + 2;
  sliderWidth = w;
  sliderWidget->setSliderPlace(QRect(x, 3, w, height.getValue() - 6));
}

void SoDialogSlider::updateEditWidget()
{
  int32_t x = 3 + sliderWidth + 2;
  if (toggleVisible.getValue())
    x += 18;
  if (labelVisibility.getValue())
    x += labelSize[0] + 2;
  // An emptied zone keeps the height of one digit, or it could not be
  // clicked again.
  const QString shown = sliderWidget->getEditText();
  const SbVec2i32 text = getLabelPixelSize(SbString(shown.isEmpty() ? "0" : shown.toUtf8().constData()), nullptr);
  const int32_t y = 3 + (height.getValue() - 6 - text[1]) / 2;
  sliderWidget->setEditPlace(QRect(x, y, editZoneWidth, text[1]));
}

void SoDialogSlider::changeValueVisible()
{
  sliderWidget->setEditVisible(valueVisible.getValue() != 0);
  updateSliderWidget();
  if (valueVisible.getValue())
    updateEditWidget();
}

void SoDialogSlider::changeToggleVisible()
{
  sliderWidget->setToggleVisible(toggleVisible.getValue() != 0);
  updateSliderWidget();
  if (toggleVisible.getValue())
    updateToggleWidget();
}

void SoDialogSlider::changeLabelVisibility()
{
  sliderWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateSliderWidget();
  updateToggleWidget();
}

// The toggle tells the node of its new state, which registers or drops the
// bar's finish callback to match.
void SoDialogSlider::changeContinuousTrigger()
{
  sliderWidget->setToggleChecked(continuousTrigger.getValue() != 0);
}

void SoDialogSlider::changeLabel()
{
  sliderWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
}

void SoDialogSlider::changeLabelAlignment()
{
  sliderWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogSlider::changeEnable()
{
  SoDialogComponent::changeEnable();
  customSlider->setEnable(enable.getValue());
}

SbVec2i32 SoDialogSlider::getComponentInitSize()
{
  return SbVec2i32(150, 30);
}

void SoDialogSlider::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  size = componentSize;
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
}

void SoDialogSlider::applyDlgCptAuditor() {}
void SoDialogSlider::setValueFromEdit(int) {}
void SoDialogSlider::setValue() {}
void SoDialogSlider::changeEditValue() {}
int SoDialogSlider::computeEditZoneWidth()
{
  return 0;
}
void SoDialogSlider::changeFormat() {}
void SoDialogSlider::computeNewSliderEditValue(SoKeyboardEvent*) {}

// The scene form: a row of the label, the toggle square, the bar with its
// cone cursor and the value box.

namespace {
// The cone's width: the cursor travels the bar less this.
const int kCursorWidth = 10;
// The height of the bar and of the value box.
const float kBarHeight = 20.0f;

float middleOf(const SbBox3f& box, int axis)
{
  return (box.getMax()[axis] + box.getMin()[axis]) / 2;
}

// `offset` along a travel of `travel` as a position from 0 to 1; a travel too
// short to move in leaves the cursor at the start.
float positionAlong(float offset, float travel)
{
  if (!(travel > 0.0f) || !std::isfinite(travel) || !std::isfinite(offset))
    return 0.0f;
  return std::clamp(offset, 0.0f, travel) / travel;
}
}

void SoDialogSlider::create3DDialogSlider()
{
  loadFontProperties();
  // The toggle and the value box wear the check box's and the edit text's
  // looks.
  if (!SoDialogCheckBox::isSkinLoaded()) {
    readDefaultSkinsParts("DialogCheckBox.scn", SoDialogCheckBox::DialogCheckBox);
    SoDialogCheckBox::setSkinLoaded(1);
  }
  if (!SoDialogEditText::isSkinLoaded()) {
    readDefaultSkinsParts("DialogEditText.scn", SoDialogEditText::DialogEditText);
    SoDialogEditText::setSkinLoaded(1);
  }
  loadSkinOnce();
  // Bound in catalog order, which makes the parts in that order.
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("checkStateOff", "DialogCheckBoxStateOff", TRUE);
  setPartAsDefault("checkStateOn", "DialogCheckBoxStateOn", TRUE);
  setPartAsDefault("frame", "DialogSliderFrame", TRUE);
  setPartAsDefault("cursor", "DialogSliderCursor", TRUE);
  setPartAsDefault("valueFrame", "DialogEditTextFrame", TRUE);
  setPartAsDefault("editValueFrame", "DialogEditTextEditingFrame", TRUE);
  setPartAsDefault("editTextProp", "DialogTextProperties", TRUE);
  setSwitchValue(edtFrmSwtch.getValue(), 0);

  create3DSideLabel(get3DPart("labelSep"), get3DPart("labelSwitch"), get3DPart("labelProp"), labelSwitch.getValue(), true);

  SoGroup* check = get3DPart("checkSep");
  auto* checkScale = new SoScale;
  checkScale->scaleFactor.setValue(14.0f, 14.0f, 1.0f);
  check->insertChild(checkScale, 0);
  checkTranslation = new SoTranslation;
  check->insertChild(checkTranslation, 0);

  // The cursor stands on the bar: a transform lifts it, and it is placed at
  // the bar's start and moved from there.
  SoGroup* slider = get3DPart("sliderSep");
  SoGroup* cursorGroup = get3DPart("cursorSep");
  sliderTranslation = new SoTranslation;
  slider->insertChild(sliderTranslation, 0);
  frameScale = new SoScale;
  get3DPart("frameSep")->insertChild(frameScale, 0);
  frameTransform = new SoTransform;
  slider->insertChild(frameTransform, slider->findChild(cursorGroup));
  auto* cursorScale = new SoScale;
  cursorScale->scaleFactor.setValue(float(kCursorWidth), float(kCursorWidth), 1.0f);
  cursorGroup->insertChild(cursorScale, 0);
  cursorOffset = new SoTranslation;
  cursorGroup->insertChild(cursorOffset, 0);
  cursorBase = new SoTranslation;
  cursorGroup->insertChild(cursorBase, 0);

  SoGroup* edit = get3DPart("edtSwtch");
  SoGroup* text = get3DPart("editTextSep");
  editScale = new SoScale;
  get3DPart("edtFrmSep")->insertChild(editScale, 0);
  editTransform = new SoTransform;
  edit->insertChild(editTransform, edit->findChild(text));
  editTranslation = new SoTranslation;
  edit->insertChild(editTranslation, 0);
  editTextTranslation = new SoTranslation;
  text->insertChild(editTextTranslation, 0);
  editText3 = SoControl3D::newFrontText();
  text->addChild(editText3);

  change3DLabel();
  change3DEditValue();
  setSwitchValue(checkSwtch.getValue(), toggleSwitchValue());
  setSwitchValue(edit, valueVisible.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);

  addStartCallback(&SoDialogSlider::startCB3D);
  addMotionCallback(&SoDialogSlider::motionCB3D);
  addFinishCallback(&SoDialogSlider::finishCB3D);
  editing3D = 0;
  projector = new SbLineProjector;
  // Inside the value box's switch: a hidden box hears no keys.
  keyCallback = new SoEventCallback;
  keyCallback->addEventCallback(SoKeyboardEvent::getClassTypeId(), &SoDialogSlider::processKeyEvents, this);
  edit->insertChild(keyCallback, 0);
  setBuilt3D(1);
  change3DEnable();
}

int SoDialogSlider::toggleSwitchValue() const
{
  if (!toggleVisible.getValue())
    return SO_SWITCH_NONE;
  return continuousTrigger.getValue() ? 1 : 0;
}

void SoDialogSlider::update3DSlider()
{
  if (!frameScale)
    return;
  const float w = float(width.getValue());
  int32_t len = width.getValue() - 6;
  editZoneWidth = computeEditZoneWidth();
  int32_t x = 3;
  if (labelVisibility.getValue()) {
    x += 2 + labelSize[0];
    len -= labelSize[0] + 2;
  }
  // The toggle lies 10 in from its zone's start, even when hidden.
  checkTranslation->translation.setValue(x - w / 2 + 10, 0.0f, 0.0f);
  x += 2;
  len -= 2;
  if (toggleVisible.getValue()) {
    x += 18;
    len -= 18;
  }
  if (valueVisible.getValue())
    len -= editZoneWidth + 2;
  sliderTranslation->translation.setValue(x - w / 2 + len / 2.0f, 0.0f, 0.0f);
  frameWidth = len;
  frameScale->scaleFactor.setValue(float(len), kBarHeight, 1.0f);
  undoTransformMatrix(frameSep.getValue(), frameTransform);
  // The cone starts flush with the bar's left end, on the bar's lower half.
  cursorBase->translation.setValue(-len / 2.0f + kCursorWidth / 2.0f, -kCursorWidth / 2.0f, 0.0f);
  change3DCursor();
  if (!valueVisible.getValue())
    return;
  if (editBBox.isEmpty())
    editBBox = SoControl3D::finiteBox(measure3DText(get3DPart("editTextProp"), editText3));
  editTextTranslation->translation.setValue(-editZoneWidth / 2.0f + 3, -middleOf(editBBox, 1), 0.0f);
  editTranslation->translation.setValue((w - 6 - editZoneWidth) / 2, 0.0f, 0.0f);
  editScale->scaleFactor.setValue(float(editZoneWidth), kBarHeight, 1.0f);
  undoTransformMatrix(edtFrmSep.getValue(), editTransform);
}

void SoDialogSlider::update3DBody()
{
  update3DSlider();
}

void SoDialogSlider::change3DEnable()
{
  change3DSliderValue();
  SoDialogComponent::change3DEnable();
}

void SoDialogSlider::change3DSliderValue()
{
  change3DCursor();
}

void SoDialogSlider::change3DCursor()
{
  if (cursorOffset)
    cursorOffset->translation.setValue(float(frameWidth - kCursorWidth) * normalizedValue, 0.0f, 0.0f);
}

// The subclasses write the number first.
void SoDialogSlider::change3DEditValue()
{
  editBBox.makeEmpty();
}

SbString SoDialogSlider::get3DValueFromEdit()
{
  return editText3 && editText3->string.getNum() > 0 ? editText3->string[0] : SbString();
}

void SoDialogSlider::change3DValueVisible()
{
  setSwitchValue(edtSwtch.getValue(), valueVisible.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);
  update3DSlider();
}

void SoDialogSlider::change3DToggleVisible()
{
  setSwitchValue(checkSwtch.getValue(), toggleSwitchValue());
  update3DSlider();
}

// A hidden toggle comes back when the field changes.
void SoDialogSlider::change3DContinuousTrigger()
{
  if (isBuilt3D())
    setSwitchValue(checkSwtch.getValue(), continuousTrigger.getValue() != 0);
}

void SoDialogSlider::set3DInactive()
{
  // What was typed stays in the box, neither taken nor restored.
  editing3D = 0;
  if (edtFrmSwtch.getValue())
    setSwitchValue(edtFrmSwtch.getValue(), 0);
  SoDialogComponent::set3DInactive();
}

// Ends the editing after a commit; the control stays active.
void SoDialogSlider::finish3DEditing()
{
  editing3D = 0;
  setSwitchValue(edtFrmSwtch.getValue(), 0);
  applyDlgCptAuditor();
}

SoDialogSlider::ValueKey SoDialogSlider::read3DKey(const SoKeyboardEvent* event, char& typed)
{
  typed = 0;
  if (!editText3)
    return ValueKey::Taken;
  const int key = event->getKey();
  if (key == SoKeyboardEvent::BACKSPACE) {
    const SbString current = get3DValueFromEdit();
    const int n = current.getLength();
    editText3->string.setValue(n > 1 ? current.getSubString(0, n - 2) : SbString());
    return ValueKey::Taken;
  }
  if (key == SoKeyboardEvent::RETURN)
    return ValueKey::Commit;
  typed = SoKeyCharacter::typedBy(*event);
  return ValueKey::Typed;
}

void SoDialogSlider::store3DEditText(const SbString& text)
{
  editText3->string.setValue(text);
}

void SoDialogSlider::processKeyEvents(void* data, SoEventCallback* callback)
{
  auto* self = static_cast<SoDialogSlider*>(data);
  const SoEvent* event = callback->getEvent();
  if (self->editing3D != 1 || !SoKeyboardEvent::isKeyPressEvent(event, SoKeyboardEvent::ANY))
    return;
  auto* keyEvent = static_cast<SoKeyboardEvent*>(const_cast<SoEvent*>(event));
  const int key = keyEvent->getKey();
  const SbString before = self->get3DValueFromEdit();
  self->computeNewSliderEditValue(keyEvent);
  // Every dragger around the box would hand a taken key on again; a refused
  // key goes on.
  if (key == SoKeyboardEvent::RETURN || key == SoKeyboardEvent::BACKSPACE || self->get3DValueFromEdit() != before)
    callback->setHandled();
}

void SoDialogSlider::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogSlider*>(dragger)->draggerStartCallback3D();
}

void SoDialogSlider::motionCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogSlider*>(dragger)->draggerMotionCallback3D();
}

void SoDialogSlider::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogSlider*>(dragger)->draggerFinishCallback3D();
}

void SoDialogSlider::draggerStartCallback3D()
{
  set3DCurrentActive(this);
  const SoPath* path = getPickPath();
  if (!path || !frameScale)
    return;
  if (path->containsNode(cursorSep.getValue())) {
    const SbVec3f start = getLocalStartingPoint();
    lastProjected = start;
    projector->setLine(SbLine(start, start + SbVec3f(1.0f, 0.0f, 0.0f)));
    projector->setViewVolume(getViewVolume());
    startCursor = cursorOffset->translation.getValue();
  } else if (path->containsNode(edtSwtch.getValue())) {
    editing3D = 1;
    setSwitchValue(edtFrmSwtch.getValue(), 1);
  } else if (path->containsNode(frameSep.getValue())) {
    jump3DCursor();
  }
}

void SoDialogSlider::jump3DCursor()
{
  // The bar's world place and stretch, wherever the dialog stands.
  matrixAction->apply(const_cast<SoPath*>(getPickPath()));
  SbVec3f t;
  SbVec3f s;
  SbRotation r;
  SbRotation so;
  matrixAction->getMatrix().getTransform(t, r, s, so);
  const float k = frameScale->scaleFactor.getValue()[0] / s[0];
  const float travel = float(frameWidth - kCursorWidth) / k;
  const float offset = getWorldStartingPoint()[0] - t[0] + s[0] / 2 - (kCursorWidth / 2.0f) / k;
  setValueFromSlider(positionAlong(offset, travel));
  change3DCursor();
  setValue();
  showTakenValue();
}

void SoDialogSlider::showTakenValue()
{
  if (buildMode) {
    changeSliderValue();
    changeEditValue();
  }
  if (follows3DForm())
    change3DEditValue();
}

void SoDialogSlider::draggerMotionCallback3D()
{
  const SoPath* path = getPickPath();
  if (!path || !frameScale || !path->containsNode(cursorSep.getValue()))
    return;
  // Dragging the cursor ends an edit of the value box, untaken, and leaves
  // no control active.
  set3DCurrentActive(this);
  set3DInactive();
  projector->setWorkingSpace(getLocalToWorldMatrix());
  SbVec3f projected;
  if (projector->tryProject(getNormalizedLocaterPosition(), getProjectorEpsilon(), projected))
    lastProjected = projected;
  const SbVec3f moved = startCursor + (lastProjected - getLocalStartingPoint());
  setValueFromSlider(positionAlong(moved[0], float(frameWidth - kCursorWidth)));
  change3DCursor();
  if (continuousTrigger.getValue())
    setValue();
  showTakenValue();
}

void SoDialogSlider::draggerFinishCallback3D()
{
  const SoPath* path = getPressPath();
  if (!path || !frameScale)
    return;
  if (path->containsNode(checkSep.getValue())) {
    // The toggle tells no auditor.
    const bool attached = continuousTriggerSensor && continuousTriggerSensor->getAttachedField() == &continuousTrigger;
    if (attached)
      continuousTriggerSensor->detach();
    continuousTrigger = !continuousTrigger.getValue();
    change3DContinuousTrigger();
    if (customSlider) {
      if (continuousTrigger.getValue())
        customSlider->removeFinishCallback(finishCallback, this);
      else
        customSlider->addFinishCallback(finishCallback, this);
      changeContinuousTrigger();
    }
    if (attached)
      continuousTriggerSensor->attach(&continuousTrigger);
  } else if (path->containsNode(cursorSep.getValue())) {
    // A cursor pressed and let go where it stood keeps the value it showed,
    // which a round trip through its position would blur.
    if (cursorOffset->translation.getValue() == startCursor)
      return;
    setValue();
    if (buildMode)
      changeEditValue();
    if (follows3DForm())
      change3DEditValue();
  }
}
