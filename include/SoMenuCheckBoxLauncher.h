#pragma once

#include "SoMenuCheckBox.h"

#include <cstdint>

class SoChildList;
class SoInput;
class SoTopLevelDialog;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// A checkable menu entry that shows dialogs when it becomes checked and
// hides them when it becomes unchecked: its children, read from the dialog
// file after its fields. A choice tells the auditors first. The mark follows
// the user's choices only: a dialog closed by its own window leaves it set.
class SoMenuCheckBoxLauncher : public SoMenuCheckBox {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBoxLauncher)

public:
  SoMenuCheckBoxLauncher();

  void menuEvent(void* data, int id) override;
  // Depth first through the dialogs.
  SoFormwright* searchForAuditorId(SbString id);

  virtual void addChild(SoTopLevelDialog* child);
  virtual void insertChild(SoTopLevelDialog* child, int index);
  virtual SoNode* getChild(int index) const;
  virtual int getNumChildren() const;
  virtual int findChild(const SoTopLevelDialog* child) const;
  virtual void removeChild(SoTopLevelDialog* child);
  virtual void removeChild(int index);
  virtual void removeAllChildren();
  virtual void replaceChild(SoTopLevelDialog* oldChild, SoTopLevelDialog* newChild);
  virtual void replaceChild(int index, SoTopLevelDialog* newChild);

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;

protected:
  ~SoMenuCheckBoxLauncher() override;

  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);
  // Chosen in the scene, the entry shows or hides its dialogs as in a menu.
  void draggerFinishCallback3D() override;

  int32_t numChildren = 0;

private:
  friend class SoMenuChildren<SoMenuCheckBoxLauncher, SoTopLevelDialog>;
  friend class SoFormwrightChildren<SoMenuCheckBoxLauncher, SoTopLevelDialog>;
  SoMenuChildren<SoMenuCheckBoxLauncher, SoTopLevelDialog> childList() const;
  SoFormwrightChildren<SoMenuCheckBoxLauncher, SoTopLevelDialog> fileForm() const;
};
