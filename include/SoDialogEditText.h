#pragma once

#include "SoDialogComponent.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFString.h>

class SbLineProjector;
class SoClipPlane;
class SoDialogEditTextAuditor;
class SoDialogQEditText;
class SoEventCallback;
class SoScale;
class SoText3;
class SoTransform;
class SoTranslation;

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

  // The scene form edits at the tail only: a character goes to the end of
  // the text, and the last one is taken away.
  void insertCharTo3DText(char character);
  void removeCharIn3DText();

protected:
  ~SoDialogEditText() override;

  virtual void changeEditable();
  // Replaces the entry with one of the other kind, keeping its text, size
  // and label.
  virtual void changeMultiLine();
  virtual void changeWrapLine();
  virtual void changeEditText();
  // Rebuilds the displayed lines from `editText`.
  void change3DEditText();
  // Leaving the control commits what was typed.
  void set3DInactive() override;

  QPointer<SoDialogQEditText> editTextWidget;
  int32_t entriesMade = 0;
  // Set while the entry's own signal is in the node: the entry must outlive it.
  bool inEntryEvent = false;
  // The text's pixel size with the entry's margins.
  SbVec2i32 editPixelSize{0, 0};
  SoFieldSensor* editTextSensor = nullptr;
  SoFieldSensor* editableSensor = nullptr;
  SoFieldSensor* multiLineSensor = nullptr;
  SoFieldSensor* wrapLineSensor = nullptr;

  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode scrollVSwitch;
  SoSFNode downSep;
  SoSFNode downSwitch;
  SoSFNode downReleased;
  SoSFNode downPressed;
  SoSFNode upSep;
  SoSFNode upSwitch;
  SoSFNode upReleased;
  SoSFNode upPressed;
  SoSFNode scrollVSep;
  SoSFNode scrollVBack;
  SoSFNode scrollVFrame;
  SoSFNode cursorVSep;
  SoSFNode cursorVFrame;
  SoSFNode scrollHSwitch;
  SoSFNode leftSep;
  SoSFNode leftSwitch;
  SoSFNode leftReleased;
  SoSFNode leftPressed;
  SoSFNode rightSep;
  SoSFNode rightSwitch;
  SoSFNode rightReleased;
  SoSFNode rightPressed;
  SoSFNode scrollHSep;
  SoSFNode scrollHBack;
  SoSFNode scrollHFrame;
  SoSFNode cursorHSep;
  SoSFNode cursorHFrame;
  SoSFNode editSep;
  SoSFNode frameSep;
  SoSFNode frameSwitch;
  SoSFNode frame;
  SoSFNode editFrame;
  SoSFNode textSep;
  SoSFNode textProp;

private:
  void sendEntryEvent(unsigned int event);
  void createLabelWidget();
  // Sets a new entry's text; false when the auditors that heard it left the
  // rest of the entry's set-up to no one or to another build.
  bool handTextToNewEntry();
  // Puts a new entry frame into the component's layout at `index`, -1
  // being the end.
  void placeEditTextWidget(int index);
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void changeLabel() override;
  void changeLabelVisibility() override;
  void changeLabelAlignment() override;
  // The entry of the 2D form shows what was typed in the scene.
  void follow3DTyping();

  void create3DDialogEditText();
  void update3DEditText();
  void update3DBody() override;
  void update3DScrollBars();
  void update3DCursors();
  void update3DTextPosition();
  void update3DTextScrollPosition();
  void move3DCursor(float dy);
  // No caret is shown: the editing look is the frame alone.
  void move3DCaret(int line, int column);
  void apply3DEvent(SbString event);
  // Measures the text again after a key, and lays the bars out again only
  // when the number of lines changed since `before`.
  void update3DTextCache(int before);
  SbBox3f measure3DShownText();
  // The toolkit measures a text that ends in an empty line as endless: the
  // display ends in a space instead while the text ends in a line feed.
  void seal3DTail();
  void unseal3DTail();
  void finish3DEditing();
  // The width to which a line of a wrapping box is broken.
  float wrapWidth3D();
  // The body's width: the control less its border and the label's area.
  float innerWidth3D();
  static void processKeyEvents(void* data, SoEventCallback* callback);
  static void startCB3D(void* data, SoDragger* dragger);
  static void motionCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);
  void draggerStartCallback3D();
  void draggerMotionCallback3D();
  void draggerFinishCallback3D();

  SoText3* textNode = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoScale* frameScale = nullptr;
  SoTransform* textTransform = nullptr;
  SoTranslation* textTranslation = nullptr;
  SoTranslation* textScrollTranslation = nullptr;
  SoClipPlane* clipTop = nullptr;
  SoClipPlane* clipBottom = nullptr;
  SoClipPlane* clipRight = nullptr;
  SoClipPlane* clipLeft = nullptr;
  SoScale* buttonScale = nullptr;
  SoTranslation* downTranslation = nullptr;
  SoTranslation* upTranslation = nullptr;
  SoTranslation* leftTranslation = nullptr;
  SoTranslation* rightTranslation = nullptr;
  SoTranslation* scrollVTranslation = nullptr;
  SoTranslation* scrollHTranslation = nullptr;
  SoScale* scrollVScale = nullptr;
  SoScale* scrollHScale = nullptr;
  SoTransform* scrollVTransform = nullptr;
  SoTransform* scrollHTransform = nullptr;
  SoScale* cursorVScale = nullptr;
  SoScale* cursorHScale = nullptr;
  SoTranslation* cursorVCentre = nullptr;
  SoTranslation* cursorHCentre = nullptr;
  SoTranslation* cursorVOffset = nullptr;
  SoTranslation* cursorHOffset = nullptr;
  SbLineProjector* projector = nullptr;
  SoEventCallback* keyCallback = nullptr;
  // 1 while the control takes keys.
  int editing3D = 0;
  SbVec3f startCursorV{0.0f, 0.0f, 0.0f};
  SbVec3f startCursorH{0.0f, 0.0f, 0.0f};
  // Where the pointer last met a thumb's line, kept for a ray that misses it.
  SbVec3f lastProjected{0.0f, 0.0f, 0.0f};
  // The displayed line that takes new text, and its length when the
  // display was last rebuilt.
  int lastLine = 0;
  int lastColumn = 0;
  bool tailSealed = false;
  // The measure of all the text; empty until measured.
  SbBox3f textBBox;
};
