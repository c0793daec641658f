#pragma once

#include "SoFormwright.h"

#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFVec2i32.h>
#include <Inventor/fields/SoSFVec3f.h>

class SoChildList;
class SoInput;
class SoTopComponent;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;

// A window: the top of a dialog. Its children are components and at most one
// menu bar, in the order they appear in the window.
class SoTopLevelDialog : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoTopLevelDialog)

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

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;

protected:
  ~SoTopLevelDialog() override;

  virtual int readChildren(SoInput* in);
  SbBool readInstance(SoInput* in, unsigned short flags) override;

  int32_t numChildren = 0;

  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode labelSep;
  SoSFNode labelProp;
  SoSFNode minSep;
  SoSFNode minSwtch;
  SoSFNode minReleased;
  SoSFNode minPressed;

private:
  friend class SoFormwrightChildren<SoTopLevelDialog, SoTopComponent>;
  SoFormwrightChildren<SoTopLevelDialog, SoTopComponent> childList() const;
};
