#pragma once

#include "SoMenuItem.h"

#include <QPointer>

#include <cstdint>

class QMenu;
class SoChildList;
class SoDialogAuditor;
class SoInput;
class SoRayPickAction;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// A menu that opens from a menu bar or, as a cascade, from another popup.
// Its label is the menu's title; its children are menu items.
class SoMenuPopup : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPopup)
  SO_FORMWRIGHT_SKIN_HEADER(MenuPopup)

public:
  SoMenuPopup();

  // The first widget build makes the Qt menu and builds the children into
  // it; later builds keep the menu as it is.
  void buildMenu(void* menuParent, int is2D, int position) override;
  // A cascade leaves room for its arrow.
  SbVec2i32 getItemInitSize() override;
  // The same measure taken on the label as the scene draws it, z 0; the
  // label's pixel size until the popup stands in the scene.
  virtual void get3DDefaultSize(SbVec3f& size);

  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a menu entry below the menu to the menu's auditors, or passes it
  // up. A menu has no default auditor.
  void applyAuditor(SoFormwright* control) override;
  // Depth first through cascades and menu launchers.
  SoFormwright* searchForAuditorId(SbString id);

  // An item added to a built popup is built at the end of the Qt menu,
  // whatever its index among the nodes. Nothing is ever taken out of a Qt
  // menu.
  virtual void addChild(SoMenuItem* child);
  virtual void insertChild(SoMenuItem* child, int index);
  virtual SoNode* getChild(int index) const;
  virtual int getNumChildren() const;
  virtual int findChild(const SoMenuItem* child) const;
  virtual void removeChild(SoMenuItem* child);
  virtual void removeChild(int index);
  virtual void removeAllChildren();
  virtual void replaceChild(SoMenuItem* oldChild, SoMenuItem* newChild);
  virtual void replaceChild(int index, SoMenuItem* newChild);
  // Only the scene form lays a menu out again after a change.
  virtual void updateAfterSceneGraphChange();

  // The scene form. A popup is open when its items show.
  void show3DChildren(int show);
  int isOpen3D() const { return childrenShown; }
  void update3DChildren();
  // All the items of one popup take the width of the widest.
  void update3DChildrenSize();
  void change3DPosition() override;
  void rayPick(SoRayPickAction* action) override;

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;
  void change3DLabel() override;

protected:
  ~SoMenuPopup() override;

  void changeEnable() override;
  void changeLabel() override;
  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);

  int32_t numChildren = 0;
  // Guarded: the bar or menu that made it may go first.
  QPointer<QMenu> menu;
  int32_t firstBuild = 1;

  void set3DInactive() override;
  void draggerStartCallback3D();

  SoSFNode frameSep;
  SoSFNode frameSwitch;
  SoSFNode released;
  SoSFNode pressed;
  SoSFNode shapeReleased;
  SoSFNode shapePressed;

private:
  void insertMenuItem(int position);
  void create3DPopup(int position);
  void update3DPopup();
  // A cascade hangs in another popup, on a traversable parent.
  bool isCascade() const;
  // The items' origin: the title's own on top of its frame; a cascade's
  // starts at its item's right edge, at its top.
  SbVec3f itemsOrigin();
  void place3DChildren(SbVec3f pos, bool build);
  static void startCB3D(void* data, SoDragger* dragger);

  SoScale* buttonScale = nullptr;
  SoTranslation* buttonTranslation = nullptr;
  SoTransform* buttonTransform = nullptr;
  int32_t childrenShown = 0;
  float depth = -1.0f;
  // Builds a child that joined a built popup.
  void buildNewChild(SoMenuItem* child, int position);

  friend class SoMenuChildren<SoMenuPopup, SoMenuItem>;
  friend class SoFormwrightChildren<SoMenuPopup, SoMenuItem>;
  SoMenuChildren<SoMenuPopup, SoMenuItem> childList() const;
  SoFormwrightChildren<SoMenuPopup, SoMenuItem> fileForm() const;
};
