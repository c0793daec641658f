#pragma once

#include "SoChildSizeTable.h"
#include "SoDialogComponent.h"

#include <Inventor/fields/SoSFInt32.h>

class QFrame;
class SoChildList;
class SoDialogAuditor;
class SoDialogGroupAuditor;
class SoInput;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;

// A container of components inside a dialog, with a frame of its own. Rows,
// columns and tabs are its kinds.
class SoDialogGroup : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogGroup)

public:
  enum ScrollVisibility { NEVER = 0, ALWAYS = 1, AUTO = 2 };

  SoSFBool windowResizedByChildren;
  SoSFInt32 margin;
  SoSFEnum vScrollVisibility;
  SoSFEnum hScrollVisibility;

  SoDialogGroup();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // A margin changed after the build shows at once and is counted anew.
  void updateFromSensor(SoSensor* sensor) override;
  void resetSize() override;
  void getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  // Storing a label or component size passes the negotiation on to the
  // group's own children, which align among themselves.
  void setLabelSize(SbVec2i32& size) override;
  void setComponentSize(SbVec2i32& size) override;
  // A plain group takes no part in the alignment of its siblings.
  SbVec2i32 getComponentInitSize() override;
  SbVec2i32 getLabelInitSize() override;
  // Passes the group's enabled state to every child.
  void changeWidgetEnable(int enabled) override;
  // The same in the 3D form: a child disabled by itself stays so when the
  // group comes back.
  void change3DWidgetEnable(int enabled) override;
  void show3D(int show) override;
  // Hands the group's new origin down to its children.
  void change3DPosition() override;
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  void rayPick(SoRayPickAction* action) override;
  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a control below the group to the group's auditors, or passes it up.
  void applyAuditor(SoFormwright* control) override;
  void applyAuditors();
  SoFormwright* searchForAuditorId(SbString id);

  // Forgets the negotiated sizes and climbs to the window, which builds anew.
  void updateAfterSceneGraphChange();

  virtual void addChild(SoDialogComponent* child);
  virtual void insertChild(SoDialogComponent* child, int index);
  virtual SoNode* getChild(int index) const;
  virtual int getNumChildren() const;
  virtual int findChild(const SoDialogComponent* child) const;
  virtual void removeChild(SoDialogComponent* child);
  virtual void removeChild(int index);
  virtual void removeAllChildren();
  virtual void replaceChild(SoDialogComponent* oldChild, SoDialogComponent* newChild);
  virtual void replaceChild(int index, SoDialogComponent* newChild);

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;

protected:
  ~SoDialogGroup() override;

  void changeEnable() override;
  virtual int readChildren(SoInput* in);
  SbBool readInstance(SoInput* in, unsigned short flags) override;
  // The allowance of the group's frame, added to the children's sizes.
  virtual void fixSizeWithBorder(SbVec2i32& size, int sign);
  virtual void setChildrenComponentSize();
  virtual void setChildrenLabelSize();
  void updateChildrenSizeDB();
  // Scrolling is Qt's own business in the window form: nothing to do.
  void setScrollProperties() {}
  void updateGroupWidgetScrollPosition() {}
  // Builds each child inside the group's frame.
  void updateChildren();

  // What rows and columns share, along `axis` (1: stacked one above the
  // other, 0: side by side).
  SbVec2i32 stackedComponentInitSize(int axis, int32_t spacing);
  void stackedDefaultSize(int axis, int32_t spacing, SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);
  void buildStacked(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode, QBoxLayout* (*makeLayout)(QWidget*),
                    const char* layoutName, int32_t spacing);
  // Builds each child's 3D form on the group's frame.
  virtual void update3DChildren();
  // What rows and columns share in the 3D form, along `axis` as above.
  void update3DStackedChildren(int axis, int32_t spacing);
  void addFrameAllowance(SbVec2i32& size, int sign) const;
  void setFrameMargins();
  // Keeps the margin clear around the children in the widgets.
  virtual void changeMargin();
  void computeNewChildrenSize(int axis, SbVec2i32& newSize);
  SoDialogComponent* getComponent(int index) const { return static_cast<SoDialogComponent*>((*children)[index]); }

  int32_t numChildren = 0;
  QPointer<QFrame> groupWidget;
  SoDialogGroupAuditor* defaultAuditor = nullptr;
  SoChildSizeTable sizeTable;
  // False for a kind of group that makes a frame of its own in its place.
  bool usesGroupFrame = true;
  SoFieldSensor* marginSensor = nullptr;

private:
  void createGroupWidget();
  // The frame's Qt limits, from the negotiated sizes.
  void setFrameLimits();
  // The group's default sizes, worked out once in each build of the scene
  // form: every level above asks for them before the group is built.
  void defaultSizeOfPass(SbVec2i32 defaults[3]);

  // While a row or column makes its frame in the scene: its children are
  // not built yet, and each shows itself when it is.
  bool makingSceneFrame = false;
  int defaultSizePass = 0;
  SbVec2i32 passDefaults[3];

  friend class SoFormwrightChildren<SoDialogGroup, SoDialogComponent>;
  SoFormwrightChildren<SoDialogGroup, SoDialogComponent> childList() const;
};
