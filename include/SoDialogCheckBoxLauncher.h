#pragma once

#include "SoDialogCheckBox.h"

#include <cstdint>

class SoChildList;
class SoInput;
class SoTopLevelDialog;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// A check box that keeps dialogs shown while it is checked and hidden while
// it is not: its children, read from the dialog file after its fields. A
// click tells the auditors first; dialogs are built when first needed and
// stay built when hidden.
class SoDialogCheckBoxLauncher : public SoDialogCheckBox {
  SO_FORMWRIGHT_HEADER(SoDialogCheckBoxLauncher)

public:
  SoDialogCheckBoxLauncher();

  // Builds the dialogs too, shown or hidden as `state` says; no auditor
  // hears of it.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void eventNotify(unsigned int event, unsigned long long value) override;

  // Lets the auditors of each dialog hear of all its controls at once. The
  // launcher itself is no control of its parent here.
  void applyAuditors();
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
  ~SoDialogCheckBoxLauncher() override;

  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);
  // In the scene the dialogs follow the state that the release toggles.
  void draggerFinishCallback3D() override;

  int32_t numChildren = 0;

private:
  // Builds the dialogs where needed and shows them if checked, hides them if
  // not.
  void showDialogsAsChecked();

  friend class SoMenuChildren<SoDialogCheckBoxLauncher, SoTopLevelDialog>;
  friend class SoFormwrightChildren<SoDialogCheckBoxLauncher, SoTopLevelDialog>;
  SoMenuChildren<SoDialogCheckBoxLauncher, SoTopLevelDialog> childList() const;
  SoFormwrightChildren<SoDialogCheckBoxLauncher, SoTopLevelDialog> fileForm() const;
};
