#pragma once

#include "SoFormwright.h"

#include <Inventor/SbString.h>
#include <Inventor/SbVec2i32.h>

#include <cstdint>

class SoGetBoundingBoxAction;
class SoMenuBar;
class SoScale;
class SoText3;
class SoTransform;
class SoTranslation;

// The base of every node below a menu bar: popups, entries, launchers and
// file selection. An item is no labelled component: it is built into the
// Qt menu that holds it by buildMenu, not into a widget by buildWidget.
class SoMenuItem : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoMenuItem)
  SO_FORMWRIGHT_SKIN_HEADER(MenuItem)

public:
  SoMenuItem();

  // Makes or refreshes the item inside `menuParent`, the QMenuBar or QMenu
  // that holds it, when `is2D` is not 0; in the scene form otherwise.
  // `position` is the item's index among its siblings, or -1 for the end:
  // Qt items always go at the end of their holder.
  virtual void buildMenu(void* menuParent, int is2D, int position);
  // The user chose the item; `id` is the number of the action chosen.
  virtual void menuEvent(void* data, int id);
  // The Qt objects of a menu outlive its nodes: nothing is taken off a menu.
  virtual void destroyNoDeleteMenuItem();
  // The item's own size in the scene form: its label with a margin.
  virtual SbVec2i32 getItemInitSize();
  // Stores the width of `size` at the first call, or at any call with
  // `force`; an item is always 18 high.
  virtual void setItemSize(SbVec2i32 size, int force);

  // The nearest menu bar above the item, or null.
  SoMenuBar* getMenuBar();
  int getId() const { return id; }
  SbVec2i32 getItemSize() const { return itemSize; }

  // The first traversal builds an item that no one has built.
  void getBoundingBox(SoGetBoundingBoxAction* action) override;
  void change3DLabel() override;

protected:
  ~SoMenuItem() override;

  // The scene form: an item's origin is its left edge, at mid height.
  void create3DItem(int position);
  void update3DItem();
  // The box of the label as drawn, measured once per text.
  void get3DLabelCachedBBox(SbVec3f& min, SbVec3f& max);
  // Whether the item lies in a bar that draws the strip for it: such an
  // item has no frame of its own.
  bool standsOnTraversableBar() const;
  // Whether the item hangs in a popup (or a launcher), not on a bar nor alone.
  bool hangsInMenu() const;
  // Later layers must be drawn over the earlier ones: the label goes last.
  void moveLabelToEnd();
  // The text the label shows; a check entry shows its on-string when on.
  virtual SbString shown3DLabel() const;

  // The text that Qt reads as a key sequence, from an accelerator as dialog
  // files write it: modifier words ("Ctrl", "shift", "ALT", "Meta", ...) and
  // "+" signs in any order around the key. Modifier words count by weight
  // (Ctrl 1, Shift 2, Meta 4, Alt 8) and come back in the order Alt, Meta,
  // Shift, Ctrl. `item` and `flags` are not used.
  static SbString getKeyCombination(const SbString& text, SoMenuItem* item, unsigned int flags);
  // What follows the first tab of `text`, or "".
  static SbString getAccelerator(const SbString& text);
  // `title` up to its first tab, without the "&" marks; returns the
  // character that the last mark stood before, or 0.
  static char buildTitleForMotifMenu(const SbString& title, SbString& result);

  // Stores the size as setItemSize says, with `height` for the height.
  void storeItemSize(const SbVec2i32& size, int force, int32_t height);

  // The number of the next Qt action of any menu. Never reset, so that ids
  // stay unique for the life of the process.
  static int32_t nextMenuId;

  int32_t id = 0;
  // Guarded: the application may delete the window, and the menu with it,
  // while the node lives on.
  QPointer<QWidget> menuParent;
  SbVec2i32 itemSize{0, 0};

  SoSFNode itemFrameSep;
  SoSFNode frame;
  SoSFNode labelSep;
  SoSFNode labelProp;

  SoScale* frameScale = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoTransform* frameTransform = nullptr;
  SoTranslation* labelTranslation = nullptr;
  SoText3* labelText = nullptr;
};
