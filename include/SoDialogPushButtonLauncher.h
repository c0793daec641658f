#pragma once

#include "SoDialogPushButton.h"

#include <cstdint>

class SoChildList;
class SoInput;
class SoTopLevelDialog;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// A push button that opens dialogs: its children, read from the dialog file
// after its fields. A press tells the auditors first and then shows the
// dialogs, built at the first press and kept built.
class SoDialogPushButtonLauncher : public SoDialogPushButton {
  SO_FORMWRIGHT_HEADER(SoDialogPushButtonLauncher)

public:
  SoDialogPushButtonLauncher();

  // Builds the dialogs too, unshown, so that they stand ready.
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
  // Builds the dialogs where needed and shows them.
  void showDialogs();

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;

protected:
  ~SoDialogPushButtonLauncher() override;

  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);
  // In the scene the button opens its dialogs at the release that fires it.
  void draggerFinishCallback3D() override;

  int32_t numChildren = 0;

private:
  friend class SoMenuChildren<SoDialogPushButtonLauncher, SoTopLevelDialog>;
  friend class SoFormwrightChildren<SoDialogPushButtonLauncher, SoTopLevelDialog>;
  SoMenuChildren<SoDialogPushButtonLauncher, SoTopLevelDialog> childList() const;
  SoFormwrightChildren<SoDialogPushButtonLauncher, SoTopLevelDialog> fileForm() const;
};
