#include <SoDialogLabel.h>

#include "Qt/SoDialogQLabel.h"
#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QBoxLayout>

#include <string>

SO_FORMWRIGHT_SOURCE(SoDialogLabel, SoDialogComponent, "DialogLabel")

SoDialogLabel::SoDialogLabel()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogLabel);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSep, true);
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
  return static_cast<SoDialogQLabel*>(labelWidget.data());
}

void SoDialogLabel::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(labelWidget))
      createLabelWidget();
    // At every build: the negotiation may have changed the least size.
    labelWidget->setMinimumSize(minWidth.getValue(), minHeight.getValue());
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

void SoDialogLabel::create3DDialogLabel()
{
  loadFontProperties();
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  SoGroup* group = get3DPart("labelSep");
  labelTranslation = new SoTranslation;
  group->insertChild(labelTranslation, 0);
  labelText = SoControl3D::newFrontText();
  group->addChild(labelText);
  change3DLabel();
  change3DLabelAlignment();
  change3DEnable();
  setBuilt3D(1);
}

void SoDialogLabel::change3DLabel()
{
  if (!labelText)
    return;
  SoControl3D::clearText(labelText);
  auto* props = static_cast<SoGroup*>(labelProp.getValue());
  const float wrapWidth = static_cast<float>(width.getValue() - 6);
  const std::string text = convertToCString(label.getValue(), nullptr).getString();
  int line = 0;
  size_t start = 0;
  for (;;) {
    const size_t end = text.find('\n', start);
    const std::string piece = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    insertTextTo3DText(SbString(piece.c_str()), labelText, line, 0);
    line = wrap3DTextLine(labelText, line, wrapWidth, props, this) + 1;
    if (end == std::string::npos)
      break;
    start = end + 1;
  }
  SoFormwright::change3DLabel();
  if (isBuilt3D())
    update3DLabel();
}

void SoDialogLabel::change3DLabelAlignment()
{
  if (!labelText)
    return;
  const int alignment = labelAlignment.getValue();
  labelText->justification = alignment == CENTER  ? SoText3::CENTER
                             : alignment == RIGHT ? SoText3::RIGHT
                                                  : SoText3::LEFT;
  if (isBuilt3D())
    update3DLabel();
}

void SoDialogLabel::update3DLabel()
{
  if (!isLabelCachedBBox())
    setLabelCacheBBox(SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(labelProp.getValue()), labelText)));
  const SbBox3f box = getLabelCachedBBox();
  const float w = static_cast<float>(width.getValue());
  float x = -(box.getMax()[0] + box.getMin()[0]) / 2;
  if (labelAlignment.getValue() == LEFT)
    x = 3 - w / 2;
  else if (labelAlignment.getValue() == RIGHT)
    x = w / 2 - 3 - (box.getMax()[0] - box.getMin()[0]);
  labelTranslation->translation.setValue(static_cast<float>(static_cast<int32_t>(x)),
                                         -(box.getMax()[1] + box.getMin()[1]) / 2, 0.0f);
}
