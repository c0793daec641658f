#include <SoDialogEditText.h>

#include <SoDialogEditTextAuditor.h>

#include "Qt/SoDialogQEditText.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

#include <algorithm>

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
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogEditText::~SoDialogEditText()
{
  SoControlWidgets::deleteFrameWidget(editTextWidget, componentWidget);
  delete editTextSensor;
  delete editableSensor;
  delete multiLineSensor;
  delete wrapLineSensor;
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
    updateLabelWidget();
    updateEditTextWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogEditText();
    update3DEditText();
    update3DLabel();
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
  changeEditText();
  changeEditable();
  changeLabel();
  changeLabelAlignment();
  changeEnable();
  changeLabelVisibility();
  changeEdgeStyle();
  placeEditTextWidget(-1);
  componentLayout->addItem(layoutSpacer);
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
  QWidget* parent = editTextWidget->getParentWidget();
  const QSize size = editTextWidget->size();
  const int index = componentLayout->indexOf(editTextWidget);
  SoControlWidgets::deleteFrameWidget(editTextWidget, componentWidget);
  editTextWidget = new SoDialogQEditText(parent, this, multiLine.getValue() != 0);
  componentWidget = editTextWidget;
  editTextWidget->resize(size);
  placeEditTextWidget(index);
  changeEditText();
  changeEditable();
  changeLabel();
  changeLabelAlignment();
  changeEnable();
  changeLabelVisibility();
  changeEdgeStyle();
  updateLabelWidget();
  updateEditTextWidget();
  // A layout shows a new widget of a shown window only later.
  if (parent && parent->isVisible())
    editTextWidget->show();
}

void SoDialogEditText::changeLabel()
{
  editTextWidget->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
  updateLabelWidget();
}

void SoDialogEditText::changeLabelVisibility()
{
  editTextWidget->setLabelVisible(labelVisibility.getValue() != 0);
  updateEditTextWidget();
}

void SoDialogEditText::changeLabelAlignment()
{
  editTextWidget->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

void SoDialogEditText::processEvent(int) {}

void SoDialogEditText::updateLabelWidget()
{
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

void SoDialogEditText::create3DDialogEditText() {}
void SoDialogEditText::update3DEditText() {}
void SoDialogEditText::update3DLabel() {}
void SoDialogEditText::change3DEditText() {}
