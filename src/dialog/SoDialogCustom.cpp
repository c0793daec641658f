#include <SoDialogCustom.h>

#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QBoxLayout>
#include <QFrame>

SO_FORMWRIGHT_SOURCE(SoDialogCustom, SoDialogComponent, "DialogCustom")

SoDialogCustom::SoDialogCustom()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogCustom);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogCustom::~SoDialogCustom()
{
  SoControlWidgets::deleteFrameWidget(customWidget, componentWidget);
}

void SoDialogCustom::buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode)
{
  SoDialogComponent::buildWidget(parent, useSize, size, mode);
  if (mode == 0)
    return;
  // The frame is made once: it holds the application's widget, and the
  // component's layout is the frame's own from then on.
  if (!customWidget)
    createCustomWidget();
  customWidget->setMinimumSize(width.getValue(), height.getValue());
  customWidget->setMaximumWidth(fixedWidth.getValue() ? width.getValue() : maxWidth.getValue());
  customWidget->setMaximumHeight(fixedHeight.getValue() ? height.getValue() : maxHeight.getValue());
  changeEdgeStyle();
}

void SoDialogCustom::createCustomWidget()
{
  customWidget = new QFrame(componentWidget);
  componentWidget = customWidget;
  componentLayout->addWidget(customWidget, 0, Qt::Alignment());
  componentLayout->addItem(layoutSpacer);
  componentLayout = new QHBoxLayout(customWidget);
  componentLayout->setObjectName("FWTSoDialogQCustomLayout");
  componentLayout->setContentsMargins(0, 0, 0, 0);
  componentLayout->setSpacing(0);
}

void SoDialogCustom::destroyWidget()
{
  if (buildMode && customWidget) {
    // The frame takes the layout on it along.
    componentLayout = nullptr;
    SoControlWidgets::deleteFrameWidget(customWidget, componentWidget);
  }
  SoDialogComponent::destroyWidget();
}
