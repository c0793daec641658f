#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFString.h>

class SoDialogEditTextAuditor;
class SoDialogQEditText;

// A text entry of one line or several, with the node's label beside it.
// Every change the user makes goes into `editText` at once; the auditors
// hear of it on the Enter key only, unless `trigOnEnter` is FALSE.
class SoDialogEditText : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogEditText)
  SO_FORMWRIGHT_SKIN_HEADER(DialogEditText)

public:
  SoSFString editText;
  SoSFBool editable;
  SoSFBool multiLine;
  // Long lines wrap, in the entry of several lines.
  SoSFBool wrapLine;
  SoSFBool trigOnEnter;
  // Carried for the application: nothing checks the text against it.
  SoSFBool isNumeric;

  SoDialogEditText();

  void addAuditor(SoDialogEditTextAuditor* auditor);
  void removeAuditor(SoDialogEditTextAuditor* auditor);

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // Event 1 is the Enter key, event 2 a change of the text.
  void eventNotify(unsigned int event, unsigned long long data) override;
  // Null in the 2D form: the label lives inside the entry's frame.
  QWidget* getLabelWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  // Keys reach the 2D form through Qt: nothing to do here.
  void processEvent(int event);
  void updateLabelWidget();
  // A single line is at least 20 pixels high, however small the font.
  void updateEditTextWidget();
  void applyDlgCptAuditor();

protected:
  ~SoDialogEditText() override;

  virtual void changeEditable();
  // Replaces the entry with one of the other kind, keeping its text, size
  // and label.
  virtual void changeMultiLine();
  virtual void changeWrapLine();
  virtual void changeEditText();
  // The 3D form; empty until the in-scene presentation is built.
  void change3DEditText();

  SoDialogQEditText* editTextWidget = nullptr;
  // The text's pixel size with the entry's margins.
  SbVec2i32 editPixelSize{0, 0};
  SoFieldSensor* editTextSensor = nullptr;
  SoFieldSensor* editableSensor = nullptr;
  SoFieldSensor* multiLineSensor = nullptr;
  SoFieldSensor* wrapLineSensor = nullptr;

private:
  void createLabelWidget();
  // Puts a new entry frame into the component's layout at `index`, -1
  // being the end.
  void placeEditTextWidget(int index);
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void changeLabel() override;
  void changeLabelVisibility() override;
  void changeLabelAlignment() override;
  void create3DDialogEditText();
  void update3DEditText();
  void update3DLabel();
};
