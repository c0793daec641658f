#pragma once

#include "SoDialogComponent.h"

class QFrame;

// A frame in which the application puts a widget of its own: after the
// build, getWidget() is the frame and getLayout() the horizontal layout on
// it.
class SoDialogCustom : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogCustom)

public:
  SoDialogCustom();

  // Makes the frame in the 2D form. The node shows nothing of its own in the
  // 3D form.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // The application adds its widget to getLayout() itself: nothing to do.
  void addChildWidget() {}

protected:
  ~SoDialogCustom() override;

  QPointer<QFrame> customWidget;

private:
  void createCustomWidget();
};
