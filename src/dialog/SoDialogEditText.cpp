#include <SoDialogEditText.h>

#include <SoDialogEditTextAuditor.h>

#include "Qt/SoDialogQEditText.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoKeyCharacter.h"

#include <Inventor/SbLine.h>
#include <Inventor/SbPlane.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/nodes/SoClipPlane.h>
#include <Inventor/nodes/SoEventCallback.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/projectors/SbLineProjector.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <string>

SO_FORMWRIGHT_SOURCE(SoDialogEditText, SoDialogComponent, "DialogEditText")

SoDialogEditText::SoDialogEditText()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogEditText);
  SO_FORMWRIGHT_ADD_FIELD(editText, "");
  SO_FORMWRIGHT_ADD_FIELD(editable, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(multiLine, FALSE);
  SO_FORMWRIGHT_ADD_FIELD(wrapLine, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(trigOnEnter, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(isNumeric, FALSE);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSwitch, SoSwitch, SoSwitch, labelSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollVSwitch, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(downSep, SoSeparator, SoSeparator, scrollVSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(downSwitch, SoSwitch, SoSwitch, downSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(downReleased, SoGroup, SoGroup, downSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(downPressed, SoGroup, SoGroup, downSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(upSep, SoSeparator, SoSeparator, scrollVSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(upSwitch, SoSwitch, SoSwitch, upSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(upReleased, SoGroup, SoGroup, upSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(upPressed, SoGroup, SoGroup, upSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollVSep, SoSeparator, SoSeparator, scrollVSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollVBack, SoSeparator, SoSeparator, scrollVSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollVFrame, SoGroup, SoGroup, scrollVBack, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursorVSep, SoSeparator, SoSeparator, scrollVSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursorVFrame, SoGroup, SoGroup, cursorVSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollHSwitch, SoSwitch, SoSwitch, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(leftSep, SoSeparator, SoSeparator, scrollHSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(leftSwitch, SoSwitch, SoSwitch, leftSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(leftReleased, SoGroup, SoGroup, leftSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(leftPressed, SoGroup, SoGroup, leftSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rightSep, SoSeparator, SoSeparator, scrollHSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rightSwitch, SoSwitch, SoSwitch, rightSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rightReleased, SoGroup, SoGroup, rightSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(rightPressed, SoGroup, SoGroup, rightSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollHSep, SoSeparator, SoSeparator, scrollHSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollHBack, SoSeparator, SoSeparator, scrollHSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(scrollHFrame, SoGroup, SoGroup, scrollHBack, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursorHSep, SoSeparator, SoSeparator, scrollHSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(cursorHFrame, SoGroup, SoGroup, cursorHSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(editSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, editSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSwitch, SoSwitch, SoSwitch, frameSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(editFrame, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(textSep, SoSeparator, SoSeparator, editSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(textProp, SoGroup, SoGroup, textSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogEditText::~SoDialogEditText()
{
  SoControlWidgets::deleteFrameWidget(editTextWidget, componentWidget);
  delete editTextSensor;
  delete editableSensor;
  delete multiLineSensor;
  delete wrapLineSensor;
  delete projector;
}

void SoDialogEditText::addAuditor(SoDialogEditTextAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogEditText::removeAuditor(SoDialogEditTextAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoDialogEditText::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoDialogEditTextAuditor::dialogEditText);
}

void SoDialogEditText::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(editTextWidget))
      createLabelWidget();
    // At every build: the negotiation may have changed the least size.
    if (editTextWidget)
      editTextWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
    updateLabelWidget();
    updateEditTextWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogEditText();
    update3DEditText();
    update3DSideLabel();
  }
  makeFieldSensor(editableSensor, editable);
  makeFieldSensor(editTextSensor, editText);
  makeFieldSensor(multiLineSensor, multiLine);
  makeFieldSensor(wrapLineSensor, wrapLine);
}

void SoDialogEditText::createLabelWidget()
{
  editTextWidget = new SoDialogQEditText(componentWidget, this, multiLine.getValue() != 0);
  componentWidget = editTextWidget;
  // The widget's own wrapping is that of `wrapLine` TRUE; a file's FALSE
  // takes effect when the field next changes.
  if (!handTextToNewEntry())
    return;
  changeEditable();
  changeLabel();
  changeLabelAlignment();
  changeEnable();
  changeLabelVisibility();
  changeEdgeStyle();
  placeEditTextWidget(-1);
  componentLayout->addItem(layoutSpacer);
}

bool SoDialogEditText::handTextToNewEntry()
{
  // The entry hands its text back and the auditors hear it at once: one of
  // them may have taken the entry away, or moved it in the tree so that a
  // build nested in this one made and set up an entry of its own.
  const int32_t thisEntry = ++entriesMade;
  changeEditText();
  return editTextWidget && entriesMade == thisEntry;
}

void SoDialogEditText::placeEditTextWidget(int index)
{
  editTextWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
  componentLayout->insertWidget(index, editTextWidget, 0, Qt::Alignment());
}

void SoDialogEditText::destroyWidget()
{
  if (buildMode)
    SoControlWidgets::deleteFrameWidget(editTextWidget, componentWidget);
  SoDialogComponent::destroyWidget();
}

QWidget* SoDialogEditText::getLabelWidget()
{
  return labelWidget;
}

void SoDialogEditText::eventNotify(unsigned int event, unsigned long long)
{
  const bool outerEvent = !inEntryEvent;
  inEntryEvent = true;
  sendEntryEvent(event);
  if (outerEvent)
    inEntryEvent = false;
}

void SoDialogEditText::sendEntryEvent(unsigned int event)
{
  // The widget holds text decoded from the field's bytes; it goes back as
  // UTF-8, so that no character the user typed is lost.
  if (editTextWidget)
    setFieldUnwatched(editText, editTextSensor, SbString(editTextWidget->getText().toUtf8().constData()));
  if (trigOnEnter.getValue() && event != 1) {
    if (isBuilt3D())
      change3DEditText();
    return;
  }
  applyDlgCptAuditor();
  if (isBuilt3D())
    change3DEditText();
}

void SoDialogEditText::updateFromSensor(SoSensor* sensor)
{
  // The 2D actions test for the entry themselves: a control standing only
  // in the scene has none.
  if (sensor == editableSensor) {
    changeEditable();
  } else if (sensor == multiLineSensor) {
    changeMultiLine();
  } else if (sensor == wrapLineSensor) {
    changeWrapLine();
  } else if (sensor == editTextSensor) {
    if (buildMode)
      changeEditText();
    if (follows3DForm())
      change3DEditText();
  } else {
    SoDialogComponent::updateFromSensor(sensor);
  }
}

void SoDialogEditText::changeEditText()
{
  if (!editTextWidget)
    return;
  // Only the entry of several lines takes the escapes as line breaks.
  const SbString text = multiLine.getValue() ? convertToCString(editText.getValue(), this) : editText.getValue();
  // Not quietly: the entry hands its version of the text back to the field.
  editTextWidget->setText(SoControlWidgets::toWidgetText(text));
}

void SoDialogEditText::changeEditable()
{
  if (editTextWidget)
    editTextWidget->setReadOnly(!editable.getValue());
}

void SoDialogEditText::changeWrapLine()
{
  if (editTextWidget)
    editTextWidget->setWordWrap(wrapLine.getValue() != 0);
}

void SoDialogEditText::changeMultiLine()
{
  if (!editTextWidget)
    return;
  if (inEntryEvent) {
    // An auditor switched the kind while the entry is still in its own
    // signal: the entry is replaced once that signal has returned. A frame
    // gone meanwhile took the switch with it, and a rebuild reads the field.
    const QPointer<SoDialogQEditText> sender = editTextWidget;
    QMetaObject::invokeMethod(
      QCoreApplication::instance(),
      [this, sender] {
        if (sender && sender == editTextWidget)
          changeMultiLine();
      },
      Qt::QueuedConnection);
    return;
  }
  QWidget* parent = editTextWidget->getParentWidget();
  const QSize size = editTextWidget->size();
  const int index = componentLayout->indexOf(editTextWidget);
  SoControlWidgets::deleteFrameWidget(editTextWidget, componentWidget);
  editTextWidget = new SoDialogQEditText(parent, this, multiLine.getValue() != 0);
  componentWidget = editTextWidget;
  editTextWidget->resize(size);
  placeEditTextWidget(index);
  if (!handTextToNewEntry())
    return;
  changeEditable();
  changeLabel();
  changeLabelAlignment();
  changeEnable();
  changeLabelVisibility();
  changeEdgeStyle();
  updateLabelWidget();
  updateEditTextWidget();
  // A layout shows a new widget of a shown window only later.
  if (editTextWidget && parent && parent->isVisible())
    editTextWidget->show();
}

void SoDialogEditText::changeLabel()
{
  if (!editTextWidget)
    return;
  editTextWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
  updateLabelWidget();
}

void SoDialogEditText::changeLabelVisibility()
{
  if (!editTextWidget)
    return;
  editTextWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateEditTextWidget();
}

void SoDialogEditText::changeLabelAlignment()
{
  if (editTextWidget)
    editTextWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogEditText::processEvent(int) {}

void SoDialogEditText::updateLabelWidget()
{
  if (!editTextWidget)
    return;
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
  editTextWidget->setLabelPlace(SoControlWidgets::sideLabelPlace(height.getValue(), labelSize[0], text[1]));
}

void SoDialogEditText::updateEditTextWidget()
{
  if (!editTextWidget)
    return;
  int32_t x = 3;
  int32_t y = 3;
  int32_t w = width.getValue() - 6;
  const int32_t h = height.getValue() - 6;
  if (labelVisibility.getValue()) {
    x += labelSize[0] + 2;
    w -= labelSize[0] + 2;
  }
  if (multiLine.getValue()) {
    editTextWidget->setEditPlace(QRect(x, y, w, h));
    return;
  }
  const int32_t lineHeight = std::max(getLabelPixelSize(editText.getValue(), nullptr)[1], 20);
  y += (h - lineHeight) / 2;
  editTextWidget->setEditPlace(QRect(x, y, w, lineHeight));
}

SbVec2i32 SoDialogEditText::getComponentInitSize()
{
  if (componentInitSize[0] == -1) {
    editPixelSize = getLabelPixelSize(editText.getValue(), this);
    // The entry's frame, and the scroll bar of an entry of several lines.
    editPixelSize[0] += multiLine.getValue() ? 34 : 10;
    componentInitSize[0] = editPixelSize[0];
    editPixelSize[1] += 12;
    componentInitSize[1] = editPixelSize[1];
    if (!labelVisibility.getValue())
      componentInitSize[0] -= labelSize[0];
  }
  return componentInitSize;
}

void SoDialogEditText::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  size = componentSize;
  if (labelVisibility.getValue())
    size[0] += labelSize[0] + 2;
  if (editPixelSize[1] > size[1])
    size[1] = editPixelSize[1];
}

// The scene form: a box with its own small tail editor. Text is added at the
// end and taken from the end; a press in the text places nothing.

namespace {
// The side of the scroll buttons and the thickness of the bars.
const float kBar = 14.0f;
// The text keeps this far from every side of its box.
const float kInset = 4.0f;
// The box of a single line.
const float kLineBoxHeight = 22.0f;

// A measured box's size along `axis`; an empty box, as of an empty text, has
// none.
float extentOf(const SbBox3f& box, int axis)
{
  return box.isEmpty() ? 0.0f : box.getMax()[axis] - box.getMin()[axis];
}

float middleOf(const SbBox3f& box, int axis)
{
  return box.isEmpty() ? 0.0f : (box.getMax()[axis] + box.getMin()[axis]) / 2;
}

// A ratio that a control too small for its bars, or a text with no height,
// must not turn into an infinite scroll.
float safeRatio(float numerator, float denominator)
{
  const float ratio = numerator / denominator;
  return std::isfinite(ratio) ? ratio : 0.0f;
}
}

void SoDialogEditText::create3DDialogEditText()
{
  loadFontProperties();
  loadSkinOnce();
  // Bound in catalog order, which makes the parts in that order.
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  setPartAsDefault("downReleased", "DialogEditTextDownButtonReleased", TRUE);
  setPartAsDefault("downPressed", "DialogEditTextDownButtonPressed", TRUE);
  setPartAsDefault("upReleased", "DialogEditTextUpButtonReleased", TRUE);
  setPartAsDefault("upPressed", "DialogEditTextUpButtonPressed", TRUE);
  setPartAsDefault("scrollVFrame", "DialogEditTextScrollFrame", TRUE);
  setPartAsDefault("cursorVFrame", "DialogEditTextCursorFrame", TRUE);
  // The horizontal bar wears the vertical bar's buttons.
  setPartAsDefault("leftReleased", "DialogEditTextDownButtonReleased", TRUE);
  setPartAsDefault("leftPressed", "DialogEditTextDownButtonPressed", TRUE);
  setPartAsDefault("rightReleased", "DialogEditTextUpButtonReleased", TRUE);
  setPartAsDefault("rightPressed", "DialogEditTextUpButtonPressed", TRUE);
  setPartAsDefault("scrollHFrame", "DialogEditTextScrollFrame", TRUE);
  setPartAsDefault("cursorHFrame", "DialogEditTextCursorFrame", TRUE);
  setPartAsDefault("frame", "DialogEditTextFrame", TRUE);
  setPartAsDefault("editFrame", "DialogEditTextEditingFrame", TRUE);
  setPartAsDefault("textProp", "DialogTextProperties", TRUE);

  const bool multi = multiLine.getValue() != 0;
  setSwitchValue(frameSwitch.getValue(), 0);
  setSwitchValue(scrollVSwitch.getValue(), multi ? SO_SWITCH_ALL : SO_SWITCH_NONE);
  setSwitchValue(scrollHSwitch.getValue(), multi && !wrapLine.getValue() ? SO_SWITCH_ALL : SO_SWITCH_NONE);

  create3DSideLabel(get3DPart("labelSep"), get3DPart("labelSwitch"), get3DPart("labelProp"), labelSwitch.getValue(), false);

  buttonScale = new SoScale;
  buttonScale->scaleFactor.setValue(kBar, kBar, 1.0f);
  const auto placeButton = [this](const char* part) {
    SoGroup* button = get3DPart(part);
    auto* place = new SoTranslation;
    button->insertChild(buttonScale, 0);
    button->insertChild(place, 0);
    return place;
  };
  downTranslation = placeButton("downSep");
  upTranslation = placeButton("upSep");
  leftTranslation = placeButton("leftSep");
  rightTranslation = placeButton("rightSep");

  // A bar's thumb stands on the bar: a transform lifts it, and it is placed
  // at the bar's start and moved from there.
  const auto makeBar = [this](const char* sepPart, const char* backPart, const char* cursorPart,
                              SoTranslation*& centre, SoScale*& scale, SoTransform*& lift, SoTranslation*& cursorCentre,
                              SoTranslation*& cursorOffset, SoScale*& cursorScale) {
    SoGroup* bar = get3DPart(sepPart);
    SoGroup* cursor = get3DPart(cursorPart);
    centre = new SoTranslation;
    bar->insertChild(centre, 0);
    scale = new SoScale;
    get3DPart(backPart)->insertChild(scale, 0);
    lift = new SoTransform;
    bar->insertChild(lift, bar->findChild(cursor));
    cursorScale = new SoScale;
    cursor->insertChild(cursorScale, 0);
    cursorOffset = new SoTranslation;
    cursor->insertChild(cursorOffset, 0);
    cursorCentre = new SoTranslation;
    cursor->insertChild(cursorCentre, 0);
  };
  makeBar("scrollVSep", "scrollVBack", "cursorVSep", scrollVTranslation, scrollVScale, scrollVTransform, cursorVCentre,
          cursorVOffset, cursorVScale);
  makeBar("scrollHSep", "scrollHBack", "cursorHSep", scrollHTranslation, scrollHScale, scrollHTransform, cursorHCentre,
          cursorHOffset, cursorHScale);

  SoGroup* box = get3DPart("frameSep");
  frameScale = new SoScale;
  box->insertChild(frameScale, 0);
  frameTranslation = new SoTranslation;
  box->insertChild(frameTranslation, 0);
  SoGroup* edit = get3DPart("editSep");
  SoGroup* text = get3DPart("textSep");
  textTransform = new SoTransform;
  edit->insertChild(textTransform, edit->findChild(text));
  textScrollTranslation = new SoTranslation;
  text->insertChild(textScrollTranslation, 0);
  textTranslation = new SoTranslation;
  text->insertChild(textTranslation, 0);
  // Ahead of the translations, so that the text scrolls under still planes.
  clipBottom = new SoClipPlane;
  clipTop = new SoClipPlane;
  clipLeft = new SoClipPlane;
  clipRight = new SoClipPlane;
  for (SoClipPlane* plane : {clipBottom, clipTop, clipLeft, clipRight})
    text->insertChild(plane, 0);
  clipTop->on = multi;
  clipBottom->on = multi;
  textNode = new SoText3;
  textNode->parts = SoText3::FRONT;
  text->addChild(textNode);

  change3DLabel();
  change3DEditText();
  for (SoSFNode* button : {&downSwitch, &upSwitch, &leftSwitch, &rightSwitch})
    setSwitchValue(button->getValue(), 0);

  addStartCallback(&SoDialogEditText::startCB3D);
  addMotionCallback(&SoDialogEditText::motionCB3D);
  addFinishCallback(&SoDialogEditText::finishCB3D);
  editing3D = 0;
  projector = new SbLineProjector;

  // In the box, it hears the keyboard wherever the pointer is.
  keyCallback = new SoEventCallback;
  keyCallback->addEventCallback(SoKeyboardEvent::getClassTypeId(), &SoDialogEditText::processKeyEvents, this);
  box->addChild(keyCallback);

  setBuilt3D(1);
  textBBox.makeEmpty();
}

float SoDialogEditText::innerWidth3D()
{
  float w = static_cast<float>(width.getValue() - 6);
  if (labelVisibility.getValue())
    w -= static_cast<float>(labelSize[0] + 2);
  return w;
}

float SoDialogEditText::wrapWidth3D()
{
  return innerWidth3D() - kBar - 2 * kInset;
}

void SoDialogEditText::update3DEditText()
{
  if (!frameScale)
    return;
  // The thumbs are sized by the text.
  if (textBBox.isEmpty())
    textBBox = measure3DShownText();
  const float w = static_cast<float>(width.getValue() - 6);
  const float bw = innerWidth3D();
  float bh = static_cast<float>(height.getValue() - 6);
  float sv = kBar;
  float sh = 0.0f;
  if (!multiLine.getValue()) {
    bh = kLineBoxHeight;
    sv = 0.0f;
  } else if (!wrapLine.getValue()) {
    sh = kBar;
  }
  frameTranslation->translation.setValue((w - bw - sv) / 2, sh / 2, 0.0f);
  frameScale->scaleFactor.setValue(bw - sv, bh - sh, 1.0f);
  undoTransformMatrix(get3DPart("frameSep"), textTransform);
  const float across = -(bw - sv) / 2 + kInset;
  const float down = -(bh - sh) / 2 + kInset;
  clipLeft->plane = SbPlane(SbVec3f(1.0f, 0.0f, 0.0f), across);
  clipRight->plane = SbPlane(SbVec3f(-1.0f, 0.0f, 0.0f), across);
  clipBottom->plane = SbPlane(SbVec3f(0.0f, 1.0f, 0.0f), down);
  clipTop->plane = SbPlane(SbVec3f(0.0f, -1.0f, 0.0f), down);
  if (multiLine.getValue()) {
    update3DScrollBars();
    update3DCursors();
  }
  update3DTextPosition();
}

void SoDialogEditText::update3DBody()
{
  update3DEditText();
}

void SoDialogEditText::update3DScrollBars()
{
  const float sh = wrapLine.getValue() ? 0.0f : kBar;
  const float h = static_cast<float>(height.getValue());
  const float x = static_cast<float>(width.getValue() - 20) / 2;
  const float y = (h - 6 - kBar) / 2;
  upTranslation->translation.setValue(x, y, 0.0f);
  downTranslation->translation.setValue(x, -y + sh, 0.0f);
  scrollVTranslation->translation.setValue(x, sh / 2, 0.0f);
  scrollVScale->scaleFactor.setValue(kBar, h - 6 - 2 * kBar - sh, 1.0f);
  undoTransformMatrix(get3DPart("scrollVBack"), scrollVTransform);
  if (wrapLine.getValue())
    return;
  const float fx = frameTranslation->translation.getValue()[0];
  const float bwid = frameScale->scaleFactor.getValue()[0] - kBar;
  leftTranslation->translation.setValue(fx - bwid / 2, -y, 0.0f);
  rightTranslation->translation.setValue(fx + bwid / 2, -y, 0.0f);
  scrollHTranslation->translation.setValue(fx, -y, 0.0f);
  scrollHScale->scaleFactor.setValue(bwid - kBar, sh, 1.0f);
  undoTransformMatrix(get3DPart("scrollHBack"), scrollHTransform);
}

void SoDialogEditText::update3DCursors()
{
  // A thumb is as much of its bar as the box shows of the text, and starts
  // at the bar's top or left.
  float back = scrollVScale->scaleFactor.getValue()[1];
  const float textHeight = extentOf(textBBox, 1);
  float len = textHeight > 0 ? back / textHeight * static_cast<float>(height.getValue() - 14) : back;
  len = std::min(len, back);
  cursorVScale->scaleFactor.setValue(kBar, len, 1.0f);
  cursorVCentre->translation.setValue(0.0f, (back - len) / 2, 0.0f);
  if (!wrapLine.getValue()) {
    back = scrollHScale->scaleFactor.getValue()[0];
    const float textWidth = extentOf(textBBox, 0);
    len = textWidth > 0 ? back / textWidth * (innerWidth3D() - 2 * kInset - kBar) : back;
    len = std::min(len, back);
    cursorHScale->scaleFactor.setValue(len, kBar, 1.0f);
    cursorHCentre->translation.setValue(-(back - len) / 2, 0.0f, 0.0f);
  }
  update3DTextScrollPosition();
}

void SoDialogEditText::update3DTextScrollPosition()
{
  // The thumb's travel maps onto the bar's length less 8, so the text may
  // scroll a little beyond its end.
  const float sy = safeRatio(cursorVOffset->translation.getValue()[1] * extentOf(textBBox, 1),
                             scrollVScale->scaleFactor.getValue()[1] - 8);
  const float sx = safeRatio(cursorHOffset->translation.getValue()[0] * extentOf(textBBox, 0),
                             scrollHScale->scaleFactor.getValue()[0] - 8);
  textScrollTranslation->translation.setValue(-sx, -sy, 0.0f);
}

void SoDialogEditText::update3DTextPosition()
{
  if (textBBox.isEmpty())
    textBBox = measure3DShownText();
  if (multiLine.getValue()) {
    // The first line touches the top inset.
    const SbVec3f box = frameScale->scaleFactor.getValue();
    const float top = textBBox.isEmpty() ? 0.0f : textBBox.getMax()[1];
    textTranslation->translation.setValue(kInset - box[0] / 2, (box[1] - 2 * kInset) / 2 - top, 0.0f);
    return;
  }
  // A line wider than the box keeps its end in view.
  const float iw = innerWidth3D();
  const float textWidth = extentOf(textBBox, 0);
  float x = kInset - iw / 2;
  if (textWidth > iw - 2 * kInset)
    x = -kInset - (iw - 2 * kInset) / 2 - (textWidth - (iw - 2 * kInset));
  textTranslation->translation.setValue(std::trunc(x), -middleOf(textBBox, 1), 0.0f);
}

void SoDialogEditText::change3DEditText()
{
  if (!textNode)
    return;
  tailSealed = false;
  textNode->string.deleteValues(0, -1);
  const std::string text = convertToCString(editText.getValue(), nullptr).getString();
  const bool wraps = multiLine.getValue() && wrapLine.getValue();
  auto* props = static_cast<SoGroup*>(textProp.getValue());
  int line = 0;
  size_t start = 0;
  for (;;) {
    const size_t end = text.find('\n', start);
    const std::string piece = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    insertTextTo3DText(SbString(piece.c_str()), textNode, line, -1);
    if (wraps)
      line = wrap3DTextLine(textNode, line, wrapWidth3D(), props, this);
    ++line;
    if (end == std::string::npos)
      break;
    start = end + 1;
    if (start < text.size() && text[start] == '\r')
      ++start;
  }
  // New text goes to the end of the last line.
  lastLine = textNode->string.getNum() - 1;
  if (lastLine < 1) {
    lastLine = 0;
    lastColumn = 0;
  } else {
    lastColumn = textNode->string[lastLine].getLength();
  }
  seal3DTail();
  textBBox.makeEmpty();
  if (isBuilt3D())
    update3DTextCache(-1);
}

void SoDialogEditText::follow3DTyping()
{
  if (!editTextWidget)
    return;
  const SbString text = multiLine.getValue() ? convertToCString(editText.getValue(), this) : editText.getValue();
  editTextWidget->setTextQuietly(SoControlWidgets::toWidgetText(text));
  updateEditTextWidget();
}

void SoDialogEditText::insertCharTo3DText(char character)
{
  if (!textNode)
    return;
  unseal3DTail();
  const int before = lastLine;
  const char typed[2] = {character, '\0'};
  lastLine = insertTextTo3DText(SbString(typed), textNode, lastLine, -1);
  if (multiLine.getValue() && wrapLine.getValue())
    lastLine = wrap3DTextLine(textNode, lastLine, wrapWidth3D(), static_cast<SoGroup*>(textProp.getValue()), this);
  SbString text = editText.getValue();
  text += typed;
  setFieldUnwatched(editText, editTextSensor, text);
  seal3DTail();
  follow3DTyping();
  if (!trigOnEnter.getValue())
    applyDlgCptAuditor();
  update3DTextCache(before);
}

void SoDialogEditText::removeCharIn3DText()
{
  if (!textNode)
    return;
  unseal3DTail();
  const SbString text = editText.getValue();
  const int n = text.getLength();
  const int before = lastLine;
  SbString left;
  SbString previous;
  if (n > 1) {
    left = text.getSubString(0, n - 2);
    previous = text.getSubString(n - 2, n - 2);
  }
  SoMFString& lines = textNode->string;
  SbString current = lastLine < lines.getNum() ? lines[lastLine] : SbString();
  const int m = current.getLength();
  if (m >= 2) {
    lines.set1Value(lastLine, current.getSubString(0, m - 2));
  } else if (m == 1) {
    // After a line feed the line stays, emptied; otherwise it goes as a
    // whole from a box of several lines.
    if (previous == "\n") {
      lines.set1Value(lastLine, SbString());
    } else {
      current = SbString();
      if (!multiLine.getValue())
        lines.set1Value(lastLine, SbString());
    }
  }
  if (multiLine.getValue() && current.getLength() == 0) {
    if (lastLine < lines.getNum())
      lines.deleteValues(lastLine, 1);
    lastLine = std::max(lastLine - 1, 0);
  }
  setFieldUnwatched(editText, editTextSensor, left);
  seal3DTail();
  follow3DTyping();
  if (!trigOnEnter.getValue())
    applyDlgCptAuditor();
  update3DTextCache(before);
}

void SoDialogEditText::update3DTextCache(int before)
{
  textBBox = measure3DShownText();
  // Typing within one line of a box of several leaves the bars alone.
  if (multiLine.getValue() && before == lastLine)
    return;
  if (multiLine.getValue()) {
    update3DScrollBars();
    update3DCursors();
  }
  update3DTextPosition();
}

SbBox3f SoDialogEditText::measure3DShownText()
{
  // The toolkit takes a text's height from its last line alone, and finds
  // no bound to an empty one: empty lines are measured as a capital letter,
  // and the top is that of the first line.
  auto* measured = new SoText3;
  measured->ref();
  measured->string = textNode->string;
  const int n = measured->string.getNum();
  if (tailSealed)
    measured->string.set1Value(n - 1, SbString());
  bool anyText = false;
  for (int i = 0; i < n; ++i)
    anyText = anyText || measured->string[i].getLength() > 0;
  SbBox3f box;
  if (anyText) {
    for (int i = 0; i < n; ++i)
      if (measured->string[i].getLength() == 0)
        measured->string.set1Value(i, "X");
    SoGroup* props = get3DPart("textProp");
    box = measure3DText(props, measured);
    measured->string.setNum(1);
    const float top = measure3DText(props, measured).getMax()[1];
    box.setBounds(box.getMin(), SbVec3f(box.getMax()[0], top, box.getMax()[2]));
  }
  measured->unref();
  return box;
}

void SoDialogEditText::seal3DTail()
{
  SoMFString& lines = textNode->string;
  const int n = lines.getNum();
  tailSealed = n > 1 && lines[n - 1].getLength() == 0;
  if (tailSealed)
    lines.set1Value(n - 1, " ");
}

void SoDialogEditText::unseal3DTail()
{
  if (tailSealed)
    textNode->string.set1Value(textNode->string.getNum() - 1, SbString());
  tailSealed = false;
}

void SoDialogEditText::finish3DEditing()
{
  editing3D = 0;
  if (frameSwitch.getValue())
    setSwitchValue(frameSwitch.getValue(), 0);
  // Leaving commits, typed or not.
  if (trigOnEnter.getValue())
    applyDlgCptAuditor();
}

void SoDialogEditText::set3DInactive()
{
  finish3DEditing();
  SoDialogComponent::set3DInactive();
}

void SoDialogEditText::move3DCaret(int, int) {}

void SoDialogEditText::apply3DEvent(SbString) {}

void SoDialogEditText::processKeyEvents(void* data, SoEventCallback* callback)
{
  auto* self = static_cast<SoDialogEditText*>(data);
  const SoEvent* event = callback->getEvent();
  if (!self->editing3D || !SoKeyboardEvent::isKeyPressEvent(event, SoKeyboardEvent::ANY))
    return;
  const auto* keyEvent = static_cast<const SoKeyboardEvent*>(event);
  const int key = keyEvent->getKey();
  if (key == SoKeyboardEvent::RETURN) {
    if (keyEvent->wasShiftDown())
      self->insertCharTo3DText('\n');
    else
      self->finish3DEditing();
  } else if (key == SoKeyboardEvent::BACKSPACE) {
    self->removeCharIn3DText();
  } else {
    const char typed = SoKeyCharacter::typedBy(*keyEvent);
    if (!typed)
      return;
    self->insertCharTo3DText(typed);
  }
  // Every dragger around the box would hand the key on again.
  callback->setHandled();
}

void SoDialogEditText::startCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogEditText*>(dragger)->draggerStartCallback3D();
}

void SoDialogEditText::motionCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogEditText*>(dragger)->draggerMotionCallback3D();
}

void SoDialogEditText::finishCB3D(void*, SoDragger* dragger)
{
  static_cast<SoDialogEditText*>(dragger)->draggerFinishCallback3D();
}

void SoDialogEditText::draggerStartCallback3D()
{
  set3DCurrentActive(this);
  const SoPath* path = getPickPath();
  if (!path || !textNode)
    return;
  const auto hit = [path](const SoSFNode& part) { return path->containsNode(part.getValue()); };
  if (hit(editSep) && editable.getValue()) {
    editing3D = 1;
    setSwitchValue(frameSwitch.getValue(), 1);
    move3DCaret(lastLine, lastColumn);
    return;
  }
  const SbVec3f start = getLocalStartingPoint();
  lastProjected = start;
  if (hit(downSwitch) || hit(upSwitch)) {
    setSwitchValue((hit(downSwitch) ? downSwitch : upSwitch).getValue(), 1);
    startCursorV = cursorVOffset->translation.getValue();
  } else if (hit(cursorVSep)) {
    projector->setLine(SbLine(start, start + SbVec3f(0.0f, 1.0f, 0.0f)));
    projector->setViewVolume(getViewVolume());
    startCursorV = cursorVOffset->translation.getValue();
  } else if (hit(leftSwitch) || hit(rightSwitch)) {
    setSwitchValue((hit(leftSwitch) ? leftSwitch : rightSwitch).getValue(), 1);
    startCursorH = cursorHOffset->translation.getValue();
  } else if (hit(cursorHSep)) {
    projector->setLine(SbLine(start, start + SbVec3f(1.0f, 0.0f, 0.0f)));
    projector->setViewVolume(getViewVolume());
    startCursorH = cursorHOffset->translation.getValue();
  }
}

void SoDialogEditText::draggerMotionCallback3D()
{
  const SoPath* path = getPickPath();
  if (!path || !textNode)
    return;
  const bool vertical = path->containsNode(cursorVSep.getValue());
  if (!vertical && !path->containsNode(cursorHSep.getValue()))
    return;
  // Dragging a thumb ends the editing and leaves no control active.
  set3DCurrentActive(this);
  set3DInactive();
  projector->setWorkingSpace(getLocalToWorldMatrix());
  SbVec3f projected;
  if (projector->tryProject(getNormalizedLocaterPosition(), getProjectorEpsilon(), projected))
    lastProjected = projected;
  const SbVec3f moved = lastProjected - getLocalStartingPoint();
  if (vertical) {
    const float lowest = cursorVScale->scaleFactor.getValue()[1] - scrollVScale->scaleFactor.getValue()[1];
    const float y = std::min(0.0f, std::max(lowest, startCursorV[1] + moved[1]));
    cursorVOffset->translation.setValue(0.0f, y, 0.0f);
  } else {
    const float furthest = scrollHScale->scaleFactor.getValue()[0] - cursorHScale->scaleFactor.getValue()[0];
    const float x = std::max(0.0f, std::min(furthest, startCursorH[0] + moved[0]));
    cursorHOffset->translation.setValue(x, 0.0f, 0.0f);
  }
  update3DTextScrollPosition();
}

void SoDialogEditText::draggerFinishCallback3D()
{
  const SoPath* path = getPressPath();
  if (!path || !textNode)
    return;
  const auto hit = [path](const SoSFNode& part) { return path->containsNode(part.getValue()); };
  if (hit(leftSwitch) || hit(rightSwitch)) {
    // The horizontal buttons scroll nothing.
    setSwitchValue((hit(leftSwitch) ? leftSwitch : rightSwitch).getValue(), 0);
  } else if (hit(downSwitch) || hit(upSwitch)) {
    // One line's worth of thumb travel per release.
    const float th = extentOf(textBBox, 1);
    const float lines = static_cast<float>(textNode->string.getNum());
    const float travel = scrollVScale->scaleFactor.getValue()[1] - cursorVScale->scaleFactor.getValue()[1];
    const float step = safeRatio(th * travel, lines * (th - static_cast<float>(height.getValue() - 14)));
    const bool down = hit(downSwitch);
    move3DCursor(down ? -step : step);
    setSwitchValue((down ? downSwitch : upSwitch).getValue(), 0);
  }
}

void SoDialogEditText::move3DCursor(float dy)
{
  const float lowest = cursorVScale->scaleFactor.getValue()[1] - scrollVScale->scaleFactor.getValue()[1];
  const float y = std::min(0.0f, std::max(lowest, startCursorV[1] + dy));
  cursorVOffset->translation.setValue(0.0f, y, 0.0f);
  update3DTextScrollPosition();
}
