#pragma once

#include "SoDialogComponent.h"

class SoDialogQSeparator;

// A line between components, across its container's direction: its
// container turns it when it sizes its children.
class SoDialogSeparator : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogSeparator)
  SO_FORMWRIGHT_SKIN_HEADER(DialogSeparator)

public:
  SoDialogSeparator();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // Not 0 draws a horizontal line. Only stored: it shows at the next build.
  void setOrientationHorz(int horizontal);
  void updateSeparatorWidget();

protected:
  ~SoDialogSeparator() override;

  QPointer<SoDialogQSeparator> separatorWidget;
  int32_t orientationHorz = 1;

  SoSFNode frameSep;
  SoSFNode frameSwitch;
  SoSFNode vFrame;
  SoSFNode hFrame;
  SoScale* frameScale = nullptr;

private:
  void createSeparatorWidget();
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void create3DSeparator();
  // A line of the control's size less its border, turned by the orientation.
  void update3DSeparator();
};
