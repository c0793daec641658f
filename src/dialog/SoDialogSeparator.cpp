#include <SoDialogSeparator.h>

#include "Qt/SoDialogQSeparator.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>

#include <QBoxLayout>

SO_FORMWRIGHT_SOURCE(SoDialogSeparator, SoDialogComponent, "DialogSeparator")

SoDialogSeparator::SoDialogSeparator()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogSeparator);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSep, SoSeparator, SoSeparator, geomSwitch, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frameSwitch, SoSwitch, SoSwitch, frameSep, false);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(vFrame, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(hFrame, SoGroup, SoGroup, frameSwitch, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogSeparator::~SoDialogSeparator()
{
  SoControlWidgets::deleteFrameWidget(separatorWidget, componentWidget);
}

void SoDialogSeparator::setOrientationHorz(int horizontal)
{
  orientationHorz = horizontal;
}

void SoDialogSeparator::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode != 0) {
    if (!existWidget(separatorWidget))
      createSeparatorWidget();
    SoControlWidgets::limitFrame(separatorWidget, SbVec2i32(width.getValue(), height.getValue()), *this);
    updateSeparatorWidget();
  } else {
    if (!isBuilt3D())
      create3DSeparator();
    update3DSeparator();
  }
}

void SoDialogSeparator::createSeparatorWidget()
{
  separatorWidget = new SoDialogQSeparator(componentWidget, this);
  componentWidget = separatorWidget;
  changeEdgeStyle();
  componentLayout->addWidget(separatorWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
}

void SoDialogSeparator::destroyWidget()
{
  if (buildMode)
    SoControlWidgets::deleteFrameWidget(separatorWidget, componentWidget);
  SoDialogComponent::destroyWidget();
}

void SoDialogSeparator::updateSeparatorWidget()
{
  const int32_t w = width.getValue();
  const int32_t h = height.getValue();
  if (orientationHorz) {
    separatorWidget->setMaximumHeight(maxHeight.getValue());
    separatorWidget->setLineShape(QFrame::HLine);
    separatorWidget->setLinePlace(QRect(3, 3, w - 6, 2));
  } else {
    separatorWidget->setMaximumWidth(maxWidth.getValue());
    separatorWidget->setLineShape(QFrame::VLine);
    separatorWidget->setLinePlace(QRect(3, 3, 2, h - 6));
  }
}

void SoDialogSeparator::getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  // A line is 8 pixels thick and as long as its container makes it.
  if (orientationHorz) {
    size.setValue(0, 8);
    min.setValue(0, 8);
    max.setValue(32767, 8);
  } else {
    size.setValue(8, 0);
    min.setValue(8, 0);
    max.setValue(8, 32767);
  }
}

void SoDialogSeparator::create3DSeparator()
{
  loadFontProperties();
  loadSkinOnce();
  setPartAsDefault("vFrame", "DialogSeparatorVertical", TRUE);
  setPartAsDefault("hFrame", "DialogSeparatorHorizontal", TRUE);
  frameScale = new SoScale;
  get3DPart("frameSep")->insertChild(frameScale, 0);
  change3DEnable();
  setBuilt3D(1);
}

void SoDialogSeparator::update3DSeparator()
{
  frameScale->scaleFactor.setValue(static_cast<float>(width.getValue() - 6), static_cast<float>(height.getValue() - 6),
                                   1.0f);
  setSwitchValue(frameSwitch.getValue(), orientationHorz != 0);
}
