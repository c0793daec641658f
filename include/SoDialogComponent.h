#pragma once

#include "SoTopComponent.h"

#include <QBoxLayout>
#include <QPointer>

#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFInt32.h>

class QSpacerItem;
class SoScale;
class SoText3;
class SoTransform;

// The labelled, sizeable frame of every control and container: a label part
// of `labelSize` at the left, a component part of `componentSize` beside it.
// Sizes are in pixels; 0 in a size field means "compute it", 32767 in a
// maximum means unlimited.
class SoDialogComponent : public SoTopComponent {
  SO_FORMWRIGHT_HEADER(SoDialogComponent)
  SO_FORMWRIGHT_SKIN_HEADER(DialogComponent)

public:
  enum EdgeStyle { NONE = 0, SHADOW_IN = 1, SHADOW_OUT = 2 };

  SoSFInt32 width;
  SoSFInt32 height;
  SoSFBool fixedWidth;
  SoSFBool fixedHeight;
  SoSFInt32 minWidth;
  SoSFInt32 minHeight;
  SoSFInt32 maxWidth;
  SoSFInt32 maxHeight;
  SoSFBool labelVisibility;
  SoSFEnum edgeStyle;

  SoDialogComponent();

  // Negotiates the component's own size, writes the result into the size
  // fields and makes or refreshes the form. A component with no parent node
  // measures its label and component parts itself.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  bool hasLostWidgets() const override { return componentWidget.isNull(); }
  void updateFromSensor(SoSensor* sensor) override;
  // Forgets every measure, so that the next build starts afresh.
  void resetSize() override;
  void getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;

  virtual QWidget* getLabelWidget();
  virtual void eventNotify(unsigned int event, unsigned long long value);
  virtual void setLabelSize(SbVec2i32& size);
  virtual void setComponentSize(SbVec2i32& size);
  // The control's natural size; -1 in `componentInitSize` means not measured.
  virtual SbVec2i32 getComponentInitSize();
  virtual SbVec2i32 getLabelInitSize();
  virtual void setFocus();
  virtual void changeWidgetEnable(int enabled);
  // A component put into a scene unbuilt builds its 3D form on the first
  // measure of the scene.
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  void change3DLabel() override;
  void change3DLabelAlignment() override;

protected:
  virtual void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);
  virtual void changeLabelVisibility();
  virtual void changeEdgeStyle();
  virtual void updateComponentWidget();
  // Size fields changed by the application only update the record of its own
  // values; they take effect at the next rebuild.
  virtual void changeWidth();
  virtual void changeHeight();
  virtual void changeMinMaxSize();
  virtual void change3DLabelVisibility();
  virtual void change3DEdgeStyle();

  void changeEnable() override;
  void changeLabelAlignment() override;

public:
  QWidget* getWidget() { return componentWidget; }
  void* getLayout() { return componentLayout; }
  // Size and place of a control's inner widget inside its frame.
  void get2DComponentSize(SbVec2i32& size, SbVec2i32& position);
  // The application's own size values, as they stood at the first build.
  void getDefaultState(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);

protected:
  ~SoDialogComponent() override;

  // Whether a size field still says "compute it".
  bool needsDefaultSize() const;
  // The size triple of the size fields, zeros taking the `defaults` triple,
  // clamped, with fixed axes pinned to the current size.
  void getSizeFromFields(const SbVec2i32 defaults[3], SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) const;

  void create3DDialogComponent();
  void update3DDialogComponent();
  // The area that a control's body may fill in the 3D form, in pixels: its
  // size and its centre's offset from the control's centre. A visible label
  // takes the left part.
  void get3DComponentSize(SbVec2i32& size, SbVec2i32& offset);
  // The label left of a control's body in the scene, for the controls with a
  // label column: its translation goes first in `placeGroup`, its text last
  // in `textGroup`, drawn with `props`; `visibility` is the switch that shows
  // it. From then on the frame follows the label fields for the control. It
  // is placed in the column by the alignment, the free room halved as
  // integers with `integerHalf`, otherwise in double.
  void create3DSideLabel(SoGroup* placeGroup, SoGroup* textGroup, SoGroup* props, SoNode* visibility,
                         bool integerHalf);
  void update3DSideLabel();
  // Lays the control's body out again when the label column shows or hides.
  virtual void update3DBody();

  // The 3D form's frame: the control's centre, the size of its edge block,
  // and the lift onto the block's top.
  SoTranslation* cptTranslation = nullptr;
  SoScale* cptScale = nullptr;
  SoTransform* cptTransform = nullptr;
  float cptDepth = -1.0f;
  // The label beside the body, where the control has one in the scene.
  SoText3* sideLabelText = nullptr;
  SoTranslation* sideLabelTranslation = nullptr;
  SoGroup* sideLabelProps = nullptr;
  SoNode* sideLabelSwitch = nullptr;
  bool sideLabelIntegerHalf = false;
  // Where the last 3D build placed the control, in pixels inside its parent.
  SbVec2i32 pixelPosition{0, 0};

  // The parent widget until the control makes its frame, then that frame.
  QPointer<QWidget> componentWidget;
  QPointer<QBoxLayout> componentLayout;
  QSpacerItem* layoutSpacer = nullptr;
  // A control's label widget, where it has one apart from its frame; a
  // control whose label widget is its frame owns it no more.
  QPointer<QWidget> labelWidget;
  char ownsLabelWidget = 1;
  SbVec2i32 componentSize{0, 0};
  SbVec2i32 labelSize{0, 0};
  SbVec2i32 componentInitSize{-1, -1};
  SbVec2i32 labelInitSize{0, 0};
  SbVec2i32 requestedSize{0, 0};
  SbVec2i32 defaultSize{0, 0};
  SbVec2i32 defaultMinSize{0, 0};
  SbVec2i32 defaultMaxSize{0, 0};
  int32_t firstBuild = 1;
  SoFieldSensor* edgeStyleSensor = nullptr;
  SoFieldSensor* labelVisibilitySensor = nullptr;
  SoFieldSensor* widthSensor = nullptr;
  SoFieldSensor* heightSensor = nullptr;
  SoFieldSensor* minWidthSensor = nullptr;
  SoFieldSensor* minHeightSensor = nullptr;
  SoFieldSensor* maxWidthSensor = nullptr;
  SoFieldSensor* maxHeightSensor = nullptr;

  SoSFNode mainCptSeparator;
  SoSFNode edgeStyleSwitch;
  SoSFNode edgeStyleNone;
  SoSFNode edgeStyleShadowIn;
  SoSFNode edgeStyleShadowOut;

private:
  void createComponentWidget(QWidget* parent);
  // Where this component's layout goes in its parent's layout: before the
  // layout of the next sibling already built, or at the end (-1).
  int indexAmongBuiltSiblings(QBoxLayout* parentLayout) const;
  void setSize(int w, int h, int minW, int minH, int maxW, int maxH);
  void setDefaultState();
  // Until a control has made its frame, `componentWidget` holds the parent
  // widget, which the component must neither delete nor restyle.
  bool hasOwnFrame() const;

  // The layout that places this component in its parent's layout, with the
  // frame and the spacer in it. It goes when the frame goes, so that the
  // parent keeps no room for a removed component.
  QPointer<QBoxLayout> placedLayout;
};
