#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoSFInt32.h>

class SoChildList;
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

protected:
  ~SoDialogGroup() override;

  virtual int readChildren(SoInput* in);
  SbBool readInstance(SoInput* in, unsigned short flags) override;

  int32_t numChildren = 0;

private:
  friend class SoFormwrightChildren<SoDialogGroup, SoDialogComponent>;
  SoFormwrightChildren<SoDialogGroup, SoDialogComponent> childList() const;
};
