#pragma once

#include "SoMenuPushButton.h"

#include <cstdint>

class SoChildList;
class SoInput;
class SoTopLevelDialog;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// A menu entry that opens dialogs: its children, read from the dialog file
// after its fields. A choice tells the auditors first and then shows the
// dialogs, built at the first choice and kept built.
class SoMenuPushButtonLauncher : public SoMenuPushButton {
  SO_FORMWRIGHT_HEADER(SoMenuPushButtonLauncher)

public:
  SoMenuPushButtonLauncher();

  void menuEvent(void* data, int id) override;
  // The dialogs to launch stay hidden in the scene below their entry.
  void buildMenu(void* menuParent, int is2D, int position) override;
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
  ~SoMenuPushButtonLauncher() override;

  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);
  // Chosen in the scene, the entry opens its dialogs as in a menu.
  void draggerFinishCallback3D() override;

  int32_t numChildren = 0;

private:
  friend class SoMenuChildren<SoMenuPushButtonLauncher, SoTopLevelDialog>;
  friend class SoFormwrightChildren<SoMenuPushButtonLauncher, SoTopLevelDialog>;
  SoMenuChildren<SoMenuPushButtonLauncher, SoTopLevelDialog> childList() const;
  SoFormwrightChildren<SoMenuPushButtonLauncher, SoTopLevelDialog> fileForm() const;
};
