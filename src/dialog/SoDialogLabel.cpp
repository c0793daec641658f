#include <SoDialogLabel.h>

#include "Qt/SoDialogQLabel.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>

SO_FORMWRIGHT_SOURCE(SoDialogLabel, SoDialogComponent, "DialogLabel")

SoDialogLabel::SoDialogLabel()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogLabel);
  SO_FORMWRIGHT_INIT_INSTANCE();
  // A left-aligned label is what a label is, so it is not written out.
  labelAlignment = LEFT;
  labelAlignment.setDefault(TRUE);
}

SoDialogLabel::~SoDialogLabel()
{
  if (ownsLabelWidget)
    delete labelWidget;
  labelWidget = nullptr;
}

SoDialogQLabel* SoDialogLabel::bridge() const
{
  return static_cast<SoDialogQLabel*>(labelWidget);
}

void SoDialogLabel::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(labelWidget))
      createLabelWidget();
    updateLabelWidget();
  } else {
    if (!isBuilt3D())
      create3DDialogLabel();
    update3DLabel();
  }
}

void SoDialogLabel::createLabelWidget()
{
  auto* frame = new SoDialogQLabel(componentWidget, this);
  labelWidget = frame;
  componentWidget = frame;
  // The frame is the component's widget, which the component deletes.
  ownsLabelWidget = 0;
  changeLabelAlignment();
  changeLabel();
  frame->setMinimumSize(minWidth.getValue(), minHeight.getValue());
  componentLayout->addWidget(frame, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogLabel::destroyWidget()
{
  if (buildMode) {
    if (ownsLabelWidget)
      delete labelWidget;
    labelWidget = nullptr;
  }
  SoDialogComponent::destroyWidget();
}

void SoDialogLabel::updateLabelWidget()
{
  const SbVec2i32 text = getLabelPixelSize(label.getValue(), this);
  const int32_t frameHeight = height.getValue();
  bridge()->setLabelPlace(QRect(3, 3 + (frameHeight - 6 - text[1]) / 2, width.getValue() - 6, text[1]));
}

void SoDialogLabel::changeLabel()
{
  bridge()->setLabelText(SoControlWidgets::toWidgetText(convertToCString(label.getValue(), nullptr)));
  updateLabelWidget();
}

void SoDialogLabel::changeLabelAlignment()
{
  bridge()->setLabelAlignment(SoControlWidgets::toWidgetAlignment(labelAlignment.getValue()));
}

SbVec2i32 SoDialogLabel::getLabelInitSize()
{
  return SbVec2i32(0, 0);
}

SbVec2i32 SoDialogLabel::getComponentInitSize()
{
  if (componentInitSize[0] == -1) {
    labelPixelSize = getLabelPixelSize(label.getValue(), nullptr);
    componentInitSize = labelPixelSize;
    labelPixelSize[0] += 4 - labelSize[0];
    componentInitSize[0] = labelPixelSize[0];
  }
  return componentInitSize;
}

void SoDialogLabel::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  SoDialogComponent::getDefaultSize(size, min, max);
  // The kept component size is raised too, not only the result: the label's
  // frame never gets less than the minimum.
  for (int axis = 0; axis < 2; ++axis)
    if (min[axis] > componentSize[axis])
      componentSize[axis] = min[axis];
  size = componentSize;
  if (labelPixelSize[1] > size[1])
    size[1] = labelPixelSize[1];
}

void SoDialogLabel::create3DDialogLabel() {}
void SoDialogLabel::update3DLabel() {}
