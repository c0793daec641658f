#pragma once

#include "SoTopComponent.h"

#include <QPointer>

#include <cstdint>

class QMenuBar;
class SoChildList;
class SoDialogAuditor;
class SoInput;
class SoMenuPopup;
class SoRayPickAction;
class SoScale;
class SoTransform;
class SoTranslation;
class SoWriteAction;
template <class Owner, class Child>
class SoFormwrightChildren;
template <class Owner, class Child>
class SoMenuChildren;

// The menu bar of a window: a child of a window, but no labelled component.
// Its children are popups. The bar's own label shows nowhere.
class SoMenuBar : public SoTopComponent {
  SO_FORMWRIGHT_HEADER(SoMenuBar)
  SO_FORMWRIGHT_SKIN_HEADER(MenuBar)

public:
  SoMenuBar();

  // Every widget build hands the window a new QMenuBar; the popups keep the
  // Qt menus of their first build, so a bar built again stays empty.
  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // The titles side by side, each with a margin, and one fixed height.
  void getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;

  void addAuditor(SoDialogAuditor* auditor);
  void removeAuditor(SoDialogAuditor* auditor);
  // Sorts a menu entry below the menu to the menu's auditors, or passes it
  // up. A menu has no default auditor.
  void applyAuditor(SoFormwright* control) override;
  SoFormwright* searchForAuditorId(SbString id);

  // The bar's QMenuBar, built into `parent` first if there is none yet.
  void* getMenu(void* parent);
  // Builds each popup into the bar.
  void updateChildren();
  void destroyNoDeleteMenuItems();

  // A popup added to a built bar is built at the end of the Qt bar, whatever
  // its index among the nodes. Nothing is ever taken out of a Qt bar.
  virtual void addChild(SoMenuPopup* child);
  virtual void insertChild(SoMenuPopup* child, int index);
  virtual SoNode* getChild(int index) const;
  virtual int getNumChildren() const;
  virtual int findChild(const SoMenuPopup* child) const;
  virtual void removeChild(SoMenuPopup* child);
  virtual void removeChild(int index);
  virtual void removeAllChildren();
  virtual void replaceChild(SoMenuPopup* oldChild, SoMenuPopup* newChild);
  virtual void replaceChild(int index, SoMenuPopup* newChild);
  // Only the scene form lays a menu out again after a change.
  virtual void updateAfterSceneGraphChange();

  // The scene form: every title takes its own width, side by side.
  void update3DChildrenSize();
  // Opens (1) or closes (0) every popup of the bar.
  void show3DChildren(int show);
  void show3D(int show) override;
  void change3DPosition() override;
  // Picks see the interface nodes below as leaves.
  void rayPick(SoRayPickAction* action) override;

  SoChildList* getChildren() const override;
  void write(SoWriteAction* action) override;
  void addWriteReference(SoOutput* out, SbBool isFromField = FALSE) override;

protected:
  ~SoMenuBar() override;

  void changeEnable() override;
  SbBool readInstance(SoInput* in, unsigned short flags) override;
  virtual int readChildren(SoInput* in);

  int32_t numChildren = 0;
  // Guarded: the window that holds the bar may go first.
  QPointer<QMenuBar> menuBar;
  int32_t firstBuild = 1;

  SoSFNode frameSep;
  SoSFNode frame;

private:
  // An empty bar says nothing in the scene when the window shows its own.
  bool hiddenInScene() const { return numChildren == 0 && buildMode; }
  void createMenuBar(QWidget* parent);
  void create3DBar();
  void update3DBar();
  void update3DChildren();
  // The origin of the titles: the bar's own, on top of its strip.
  SbVec3f titlesOrigin();

  SoScale* barScale = nullptr;
  SoTranslation* barTranslation = nullptr;
  SoTransform* barTransform = nullptr;
  float depth = -1.0f;
  // Builds a child that joined a built bar.
  void buildNewChild(SoMenuPopup* child, int position);

  friend class SoMenuChildren<SoMenuBar, SoMenuPopup>;
  friend class SoFormwrightChildren<SoMenuBar, SoMenuPopup>;
  SoMenuChildren<SoMenuBar, SoMenuPopup> childList() const;
  SoFormwrightChildren<SoMenuBar, SoMenuPopup> fileForm() const;
};
