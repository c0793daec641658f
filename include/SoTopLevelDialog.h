#pragma once

#include "SoChildSizeTable.h"
#include "SoFormwright.h"

#include <QBoxLayout>
#include <QPointer>
#include <QWidget>

#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFVec2i32.h>
#include <Inventor/fields/SoSFVec3f.h>

class SbPlaneProjector;
class SoChildList;
class SoClipPlane;
class SoDialogAuditor;
class SoInput;
class SoMenuBar;
class SoScale;
class SoText3;
class SoTransform;
class SoTopComponent;
class SoTopLevelAuditor;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;

// A window: the top of a dialog. Its children are components and at most one
// menu bar, stacked in the order they appear in the window. The window works
// out its own size and its children's sizes from what the children report.
class SoTopLevelDialog : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoTopLevelDialog)
  SO_FORMWRIGHT_SKIN_HEADER(TopLevelDialog)

public:
  enum ScrollVisibility { NEVER = 0, ALWAYS = 1, AUTO = 2 };

  SoSFInt32 width;
  SoSFInt32 height;
  SoSFVec2i32 position;
  SoSFVec3f position3D;
  SoSFBool resizable;
  SoSFInt32 minWidth;
  SoSFInt32 minHeight;
  SoSFInt32 maxWidth;
  SoSFInt32 maxHeight;
  SoSFInt32 margin;
  SoSFInt32 rowSpacing;
  SoSFBool modalFrame;
  SoSFBool hideChildren;
  SoSFBool minimized;
  SoSFVec3f minimized3DPosition;
  SoSFBool independentMinimizedPosition;
  SoSFBool windowResizedByChildren;
  SoSFEnum vScrollVisibility;
  SoSFEnum hScrollVisibility;

  SoTopLevelDialog();

  // Negotiates the sizes of the whole tree and builds it, as widgets or in
  // the scene as the toolkit-wide form says. With `buildInsideParent` the
  // dialog fills `parent` instead of opening a window of its own.
  void buildDialog(QWidget* parent, int buildInsideParent);
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void updateFromSensor(SoSensor* sensor) override;
  void resetSize() override;
  // Deletes the widgets of the whole tree and the window, or leaves the
  // widget the dialog was built into empty: an application calls it before
  // it deletes that widget. The fields keep their values for the next build.
  void destroyWidget() override;
  bool hasLostWidgets() const override { return baseWidget.isNull(); }

  virtual void show();
  virtual void hide();
  virtual void addChild(SoTopComponent* child);
  virtual void insertChild(SoTopComponent* child, int index);
  virtual SoNode* getChild(int index) const;
  virtual int getNumChildren() const;
  virtual int findChild(const SoTopComponent* child) const;
  virtual void removeChild(SoTopComponent* child);
  virtual void removeChild(int index);
  virtual void removeAllChildren();
  virtual void replaceChild(SoTopComponent* oldChild, SoTopComponent* newChild);
  virtual void replaceChild(int index, SoTopComponent* newChild);

  // Hides the window and gives up the application's reference.
  void close();
  // Hides the window; a dialog built inside its parent ends the process.
  int destroyDialog();
  // Negotiates and builds again after the tree changed.
  void updateDialogBuild(int mode);
  void updateAfterSceneGraphChange();

  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a control of the dialog to the dialog's auditors, or to its default
  // auditor when it has none. A window looks at no parent.
  void applyAuditor(SoFormwright* control) override;
  void applyAuditors();
  SoFormwright* searchForAuditorId(SbString id);

  void setPosition(SbVec2i32& position);
  void setSize(int w, int h, int minW, int minH, int maxW, int maxH);
  void getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);
  // The children's triples stacked one above the other, with margin and
  // spacing.
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);
  // The application's own size values, as they stood before the first build.
  void getDefaultState(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);
  // A window has no frame allowance.
  void fixSizeWithBorder(SbVec2i32&, int) {}
  // Scrolling is Qt's own business in the window form: nothing to do.
  void setScrollProperties() {}
  void updateTopLevelWidgetScrollPosition() {}
  void updateTopLevelWidget(SbVec2i32&) {}
  // Spreads a height change over the children, one pixel at a time.
  void computeNewChildrenHeight(SbVec2i32& newSize);

  QWidget* getWidget() const { return topLevelWidget; }
  QWidget* getBaseWidget() const { return baseWidget; }
  QVBoxLayout* getLayout() const { return dialogLayout; }
  SoMenuBar* widgetHasMenuBar() const;
  void setCurrentFocusedWidget(QWidget* widget) { currentFocusedWidget = widget; }
  QWidget* getCurrentFocusedWidget() const { return currentFocusedWidget; }
  void setCurrentScrolledWidget(QWidget* widget) { currentScrolledWidget = widget; }
  QWidget* getCurrentScrolledWidget() const { return currentScrolledWidget; }
  // The plate's size in scene units, z 1; zero before the first 3D build.
  SbVec3f getTopLevelSize() const;
  // Shows the plate or its title strip as `minimized` says, and couples the
  // two 3D positions.
  void updateMinimizedState();

  void show3D(int show) override;
  void change3DPosition() override;
  // A dialog put into a scene unbuilt builds its 3D form on the first
  // measure of the scene.
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  // Picks and searches see the interface nodes below as leaves.
  void rayPick(SoRayPickAction* action) override;

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;
  void change3DLabel() override;

protected:
  ~SoTopLevelDialog() override;

  void changeEnable() override;
  void changeLabel() override;
  virtual int readChildren(SoInput* in);
  SbBool readInstance(SoInput* in, unsigned short flags) override;

  QPointer<QWidget> baseWidget;
  int32_t buildInsideParent = 0;
  // Stays null in the widget form: the base widget is the window.
  QWidget* topLevelWidget = nullptr;
  int32_t numChildren = 0;
  int32_t firstBuild = 1;
  // Guarded: the application may hand over a widget that the dialog deletes
  // anyway, such as a control's frame.
  QPointer<QWidget> currentFocusedWidget;
  QPointer<QWidget> currentScrolledWidget;
  QPointer<QVBoxLayout> dialogLayout;
  int32_t captureDefaults = 1;
  // An auditor heard during the build may ask for the widgets to go; they go
  // once the build is over, so the build never works on a deleted layout.
  bool buildingWidgets = false;
  bool destroyAfterBuild = false;
  SbVec2i32 defaultSize{0, 0};
  SbVec2i32 defaultMinSize{0, 0};
  SbVec2i32 defaultMaxSize{0, 0};
  SoTopLevelAuditor* defaultAuditor = nullptr;
  SoChildSizeTable sizeTable;

  SoFieldSensor* minimizedSensor = nullptr;
  SoFieldSensor* marginSensor = nullptr;
  SoFieldSensor* modalFrameSensor = nullptr;
  SoFieldSensor* resizableSensor = nullptr;
  SoFieldSensor* rowSpacingSensor = nullptr;
  SoFieldSensor* positionSensor = nullptr;
  SoFieldSensor* position3DSensor = nullptr;
  SoFieldSensor* minimized3DPositionSensor = nullptr;
  SoFieldSensor* independentMinimizedPositionSensor = nullptr;
  SoFieldSensor* widthSensor = nullptr;
  SoFieldSensor* heightSensor = nullptr;
  SoFieldSensor* minWidthSensor = nullptr;
  SoFieldSensor* minHeightSensor = nullptr;
  SoFieldSensor* maxWidthSensor = nullptr;
  SoFieldSensor* maxHeightSensor = nullptr;

  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode labelSep;
  SoSFNode labelProp;
  SoSFNode minSep;
  SoSFNode minSwtch;
  SoSFNode minReleased;
  SoSFNode minPressed;

private:
  virtual void changeWidth();
  virtual void changeHeight();

  void buildWindow(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode);
  void createBaseWidget(QWidget* parent);
  // The limits a person may resize the window to.
  void setWindowLimits(const SbVec2i32& min, const SbVec2i32& max);
  void changePosition();
  void changeRowSpacing();
  void changeMinMaxSize();
  void setDefaultState();
  void setChildrenLabelSize();
  void setChildrenComponentSize();
  void updateChildrenSizeDB();
  void updateChildren();

  void create3DTopLevelDialog();
  void update3DTopLevelDialog();
  void update3DChildren();
  void update3DChildrenPosition();
  void update3DLabel();
  void minimize3DDialog();
  void restore3DDialog();
  void show3DChildren(int show);
  // The plate's pixel size: the dialog with its border and title.
  SbVec2i32 plateSize() const;
  // Where the children's origin lies: on the frame, below the title.
  SbVec3f childrenOrigin();
  // Makes the field that is shown drive the other one.
  void coupleMinimizedPosition(int minimizedNow);
  void draggerStartCallback3D();
  void draggerMotionCallback3D();
  void draggerFinishCallback3D();
  static void startCB3D(void* data, SoDragger* dragger);
  static void motionCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);

  SoScale* frameScale = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoTransform* frameTransform = nullptr;
  SoTranslation* labelTranslation = nullptr;
  // Cuts a title too long for the plate off before the minimize button.
  SoClipPlane* labelClip = nullptr;
  SoText3* labelText = nullptr;
  SoTranslation* minTranslation = nullptr;
  SbPlaneProjector* projector = nullptr;
  SbVec3f worldStartPoint{0.0f, 0.0f, 0.0f};
  SbVec3f startPosition{0.0f, 0.0f, 0.0f};
  float frameDepth = -1.0f;
  int firstMinimize = 1;

  friend class SoFormwrightChildren<SoTopLevelDialog, SoTopComponent>;
  SoFormwrightChildren<SoTopLevelDialog, SoTopComponent> childList() const;
};
