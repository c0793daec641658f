#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoSFString.h>

class SoDialogPushButtonAuditor;
class SoDialogQPushButton;

// A push button, with the node's label beside it. It tells its auditors as
// soon as it is pressed.
class SoDialogPushButton : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogPushButton)
  SO_FORMWRIGHT_SKIN_HEADER(DialogPushButton)

public:
  // The text on the button; `label` is the text beside it.
  SoSFString buttonLabel;

  SoDialogPushButton();

  void addAuditor(SoDialogPushButtonAuditor* auditor);
  void removeAuditor(SoDialogPushButtonAuditor* auditor);

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // Null in the 2D form: the label lives inside the button's frame.
  QWidget* getLabelWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  // The button was pressed; both arguments are ignored.
  void eventNotify(unsigned int event, unsigned long long value) override;
  // Does nothing in the 2D form.
  void activateButton();
  void updateLabelWidget();
  void updateButtonWidget();
  void applyDlgCptAuditor();

protected:
  ~SoDialogPushButton() override;

  void changeLabelVisibility() override;
  void changeLabel() override;
  void changeLabelAlignment() override;
  void changeButtonLabel();
  // Pressed or released look; only the 3D form has one of its own.
  void changeButtonState(int pressed);
  // The 3D form; empty until the in-scene presentation is built.
  void change3DButtonLabel();
  void change3DButtonState(int pressed);

  SoDialogQPushButton* buttonWidget = nullptr;
  // The button text's pixel size with the button's margins.
  SbVec2i32 buttonPixelSize{0, 0};
  SoFieldSensor* buttonLabelSensor = nullptr;

private:
  void createLabelWidget();
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void create3DDialogPushButton();
  void update3DButton();
  void update3DLabel();
};
