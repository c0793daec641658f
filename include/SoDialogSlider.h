#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoMFColor.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFString.h>

class SbLineProjector;
class SoDialogCustomSlider;
class SoDialogQSlider;
class SoEventCallback;
class SoKeyboardEvent;
class SoScale;
class SoText3;
class SoTransform;
class SoTranslation;

// The base of the sliders: a row of the label, a toggle of continuous
// triggering, a bar with a colour ramp and a zone that shows and takes the
// value. The bar's position is kept normalised, 0 at the lower limit and 1
// at the upper one; each value class turns it into its value.
class SoDialogSlider : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogSlider)
  SO_FORMWRIGHT_SKIN_HEADER(DialogSlider)

public:
  // The value zone is shown.
  SoSFBool valueVisible;
  // The printf format of the value zone: one numeric conversion of the
  // value's kind. Any other format gives way to the class's own.
  SoSFString format;
  // The value field and the auditors follow a drag of the bar, not only its
  // end.
  SoSFBool continuousTrigger;
  // The toggle of `continuousTrigger` is shown.
  SoSFBool toggleVisible;
  // A value typed beyond a limit is held at the limit; otherwise the limit
  // moves to the value.
  SoSFBool fixedLimits;
  SoMFColor colors;
  // Several colours blend into each other; otherwise they are flat bands.
  SoSFBool shadedColors;

  SoDialogSlider();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // Event 1 is a change of the toggle; no auditor hears of it.
  void eventNotify(unsigned int event, unsigned long long data) override;
  // Null in the 2D form: the label lives inside the slider's frame.
  QWidget* getLabelWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  // The bar's normalised position.
  float getValue();
  // The bar's callbacks, with the node as data: one while the user drags,
  // one where the drag ends.
  static void finishCallback(void* data, float value);
  static void valueChangeCallback(void* data, float value);
  void changeValueFromSlider(float value);
  void changeValueAfterFinish(float value);
  // The value zone's text, taken on Return.
  void changeSliderFromEdit();
  void updateEditWidget();
  void updateSliderWidget();
  void updateLabelWidget();
  void updateToggleWidget();
  virtual void applyDlgCptAuditor();
  // The 3D cursor at the position.
  void change3DSliderValue();
  void change3DCursor();
  // Hands a key to the 3D value box while it takes keys; `data` is the
  // slider.
  static void processKeyEvents(void* data, SoEventCallback* callback);
  void change3DEnable() override;

protected:
  ~SoDialogSlider() override;

  // The value classes give these their meaning.
  virtual void setValueFromEdit(int mode);
  virtual void setValueFromSlider(float value);
  virtual void changeSliderValue();
  virtual void setValue();
  virtual void changeEditValue();
  virtual int computeEditZoneWidth();
  virtual void changeValueVisible();
  virtual void changeToggleVisible();
  virtual void changeContinuousTrigger();
  // A new format shows at the next change of the value.
  virtual void changeFormat();
  // The 3D form; empty until the in-scene presentation is built.
  virtual void change3DEditValue();
  virtual void computeNewSliderEditValue(SoKeyboardEvent* event);
  virtual void finish3DEditing();

  void changeLabel() override;
  void changeLabelVisibility() override;
  void changeLabelAlignment() override;
  void changeEnable() override;

  // The value zone's text, as typed.
  SbString getValueFromEdit();
  // Measures the value zone again and places the pieces anew, after a limit
  // changed.
  void updateWidget();
  // The text that the 3D form's value zone holds.
  SbString get3DValueFromEdit();
  // Leaves the 3D value box; what was typed stays in it, not taken.
  void set3DInactive() override;
  // What a key press does in the 3D value box.
  enum class ValueKey {
    // Return: the text is to be taken.
    Commit,
    // A character for the value class to judge, 0 for none.
    Typed,
    // The key did its work already: Backspace shortened the text.
    Taken
  };
  ValueKey read3DKey(const SoKeyboardEvent* event, char& typed);
  void store3DEditText(const SbString& text);

  QPointer<SoDialogQSlider> sliderWidget;
  SoDialogCustomSlider* customSlider = nullptr;
  // Cleared once the frame owns the bar.
  char ownsCustomSlider = 1;
  int32_t sliderWidth = 0;
  int32_t editZoneWidth = 0;
  // The position: 0 at `min`, 1 at `max`, beyond them for a value set
  // outside the limits.
  float normalizedValue = 0.0f;
  SoFieldSensor* colorsSensor = nullptr;
  SoFieldSensor* shadedColorsSensor = nullptr;
  SoFieldSensor* valueVisibleSensor = nullptr;
  SoFieldSensor* continuousTriggerSensor = nullptr;
  SoFieldSensor* toggleVisibleSensor = nullptr;
  SoFieldSensor* fixedLimitsSensor = nullptr;
  SoFieldSensor* formatSensor = nullptr;

  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode checkSep;
  SoSFNode checkSwtch;
  SoSFNode checkStateOff;
  SoSFNode checkStateOn;
  SoSFNode sliderSep;
  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode cursorSep;
  SoSFNode cursor;
  SoSFNode edtSwtch;
  SoSFNode edtFrmSep;
  SoSFNode edtFrmSwtch;
  SoSFNode valueFrame;
  SoSFNode editValueFrame;
  SoSFNode editTextSep;
  SoSFNode editTextProp;

  // The shown number of the 3D value box.
  SoText3* editText3 = nullptr;
  // 1 while the 3D value box takes keys.
  int editing3D = 0;

private:
  void createLabelWidget();
  void changeColors();
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void change3DValueVisible();
  void change3DToggleVisible();
  void change3DContinuousTrigger();
  void create3DDialogSlider();
  void update3DSlider();
  void update3DBody() override;
  // The toggle's switch: hidden, or showing the state of `continuousTrigger`.
  int toggleSwitchValue() const;
  // Moves the 3D cursor and shows the value taken from it in both forms;
  // `trigger` also sets the value field.
  void takeSliderPosition(float position, bool trigger);
  // Brings the other forms to the value just taken from the 3D form.
  void showTakenValue();
  static void startCB3D(void* data, SoDragger* dragger);
  static void motionCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);
  void draggerStartCallback3D();
  void draggerMotionCallback3D();
  void draggerFinishCallback3D();
  // A press on the bar puts the cursor's centre at the press point.
  void jump3DCursor();

  SoTranslation* checkTranslation = nullptr;
  SoTranslation* sliderTranslation = nullptr;
  SoScale* frameScale = nullptr;
  SoTransform* frameTransform = nullptr;
  SoTranslation* cursorBase = nullptr;
  SoTranslation* cursorOffset = nullptr;
  SoTranslation* editTranslation = nullptr;
  SoScale* editScale = nullptr;
  SoTransform* editTransform = nullptr;
  SoTranslation* editTextTranslation = nullptr;
  // The measure of the shown number; empty until measured.
  SbBox3f editBBox;
  SbLineProjector* projector = nullptr;
  SoEventCallback* keyCallback = nullptr;
  // The cursor's offset at the press.
  SbVec3f startCursor{0.0f, 0.0f, 0.0f};
  // Where the pointer last met the cursor's line, kept for a ray that misses
  // it.
  SbVec3f lastProjected{0.0f, 0.0f, 0.0f};
  // The bar's length.
  int frameWidth = 0;
};
