#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFString.h>

class SoDialogCheckBoxAuditor;
class SoDialogQCheckBox;

// A two-state box with the node's label beside it, whose text may differ
// between the two states.
class SoDialogCheckBox : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogCheckBox)
  SO_FORMWRIGHT_SKIN_HEADER(DialogCheckBox)

public:
  SoSFBool state;
  // The box's text while checked, and while unchecked if `offString` is empty.
  SoSFString onString;
  SoSFString offString;

  SoDialogCheckBox();

  void addAuditor(SoDialogCheckBoxAuditor* auditor);
  void removeAuditor(SoDialogCheckBoxAuditor* auditor);

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // The user set the box to `value` (0 or 1).
  void eventNotify(unsigned int value, unsigned long long data) override;
  // Null in the 2D form: the label lives inside the box's frame.
  QWidget* getLabelWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  void updateLabelWidget();
  void updateCheckBoxWidget();
  void applyDlgCptAuditor();

protected:
  ~SoDialogCheckBox() override;

  void changeOnOffString();
  // A release after a press on the mark, the frame or the box's text
  // toggles the box; a press on the label does nothing.
  virtual void draggerFinishCallback3D();
  void change3DState();
  void change3DOnOffString();

  QPointer<SoDialogQCheckBox> checkBoxWidget;
  SoFieldSensor* stateSensor = nullptr;
  SoFieldSensor* onStringSensor = nullptr;
  SoFieldSensor* offStringSensor = nullptr;
  // The pixel sizes of the two texts with the box's margins.
  SbVec2i32 onPixelSize{0, 0};
  SbVec2i32 offPixelSize{0, 0};

  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode stateSep;
  SoSFNode stateSwitch;
  SoSFNode stateOff;
  SoSFNode stateOn;
  SoSFNode onOffStringSep;
  SoSFNode onOffStringProp;
  SoScale* frameScale = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoTransform* frameTransform = nullptr;
  SoTranslation* stateTranslation = nullptr;
  SoText3* onOffText = nullptr;
  SoTranslation* onOffTranslation = nullptr;
  // The box text's measured box; empty until measured.
  SbBox3f onOffBBox;

private:
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void createLabelWidget();
  void changeState();
  void changeLabelVisibility() override;
  void changeLabel() override;
  void changeLabelAlignment() override;
  void create3DDialogCheckBox();
  void update3DCheckBox();
  void update3DBody() override;
  static void finishCB3D(void* data, SoDragger* dragger);
};
