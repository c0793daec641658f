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
  // Replace the two looks of the block in the 3D form. The names read
  // inverted: the first replaces the look shown while released, the second
  // the one shown while pressed. The caption follows a new look at the next
  // press or release.
  void set3DPressedGeometry(SoNode* geometry);
  void set3DReleasedGeometry(SoNode* geometry);

protected:
  ~SoDialogPushButton() override;

  void changeLabelVisibility() override;
  void changeLabel() override;
  void changeLabelAlignment() override;
  void changeButtonLabel();
  // Pressed or released look; only the 3D form has one of its own.
  void changeButtonState(int pressedNow);
  void change3DButtonLabel();
  // The block goes down or up, and the caption with its top.
  void change3DButtonState(int pressedNow);
  // A press on the block or its caption presses the button; the release
  // fires it, wherever the pointer has gone.
  virtual void draggerStartCallback3D();
  virtual void draggerFinishCallback3D();
  // Whether the press hit the block or its caption, not the label.
  bool pressHitsButton(const SoPath* path) const;

  QPointer<SoDialogQPushButton> buttonWidget;
  // The button text's pixel size with the button's margins.
  SbVec2i32 buttonPixelSize{0, 0};
  SoFieldSensor* buttonLabelSensor = nullptr;

  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode frameSep;
  SoSFNode frameSwitch;
  SoSFNode released;
  SoSFNode pressed;
  SoSFNode buttonLabelSep;
  SoSFNode buttonLabelProp;
  SoScale* frameScale = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoTransform* frameTransform = nullptr;
  SoText3* buttonLabelText = nullptr;
  SoTranslation* buttonLabelTranslation = nullptr;
  // The caption's measured box; empty until measured.
  SbBox3f buttonLabelBBox;

private:
  void createLabelWidget();
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void create3DDialogPushButton();
  void update3DButton();
  void update3DBody() override;
  static void startCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);
};
