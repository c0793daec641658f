#pragma once

// What the four launcher classes share: their children are the dialogs they
// open, read from the dialog file after the launcher's fields. A launcher
// declares the members that SO_FORMWRIGHT_LAUNCHER_OPERATIONS defines and
// befriends SoMenuChildren and SoFormwrightChildren for itself.

#include <SoTopLevelDialog.h>

#include "SoFormwrightChildren.h"
#include "SoMenuChildren.h"
#include "SoQt.h"

#include <SoFormMode.h>

namespace SoLauncherDialogs {

// A dialog is built at each need of its launcher, in the library's form: a
// window of the application's main widget, or a plate in the scene where
// the launcher stands. A window is built again each time, so that it opens
// in the size and place that its fields hold now, keeping its widgets; a
// plate is built once. The launcher is the dialog's parent from then on.
inline void build(SoTopLevelDialog* dialog, SoFormwright* launcher)
{
  if (SoFormMode::isSceneForm() && dialog->isBuilt3D())
    return;
  dialog->buildDialog(Formwright::SoQt::getTopLevelWidget(), 0);
  dialog->setParent(launcher);
}

// Shows or hides a dialog in every form that it has.
inline void show(SoTopLevelDialog* dialog, bool shown)
{
  if (shown)
    dialog->show();
  else
    dialog->hide();
  if (dialog->isBuilt3D())
    dialog->show3D(shown);
}

// Builds each dialog of `launcher` at need and shows or hides it.
template <class Launcher>
void showAll(Launcher& launcher, bool shown)
{
  for (int i = 0; i < launcher.getNumChildren(); ++i) {
    auto* dialog = static_cast<SoTopLevelDialog*>(launcher.getChild(i));
    build(dialog, &launcher);
    show(dialog, shown);
  }
}

}

// The child, file and search operations of launcher class `K`. A removal or
// replacement out of range names `removalLast` as the highest index.
#define SO_FORMWRIGHT_LAUNCHER_OPERATIONS(K, removalLast)                                          \
  SoMenuChildren<K, SoTopLevelDialog> K::childList() const { return {const_cast<K&>(*this), #K}; } \
  SoFormwrightChildren<K, SoTopLevelDialog> K::fileForm() const { return {const_cast<K&>(*this), #K}; } \
  void K::addChild(SoTopLevelDialog* child) { childList().insert(child, numChildren, "addChild"); } \
  void K::insertChild(SoTopLevelDialog* child, int index) { childList().insert(child, index, "insertChild"); } \
  SoNode* K::getChild(int index) const { return childList().get(index, "; Be careful"); }         \
  int K::getNumChildren() const { return numChildren; }                                            \
  int K::findChild(const SoTopLevelDialog* child) const { return childList().find(child); }        \
  void K::removeChild(SoTopLevelDialog* child) { removeChild(findChild(child)); }                  \
  void K::removeChild(int index) { childList().remove(index, removalLast); }                       \
  void K::removeAllChildren() { childList().removeAll(); }                                         \
  void K::replaceChild(SoTopLevelDialog* oldChild, SoTopLevelDialog* newChild)                     \
  {                                                                                                \
    replaceChild(findChild(oldChild), newChild);                                                   \
  }                                                                                                \
  void K::replaceChild(int index, SoTopLevelDialog* newChild) { childList().replace(index, newChild, removalLast); } \
  SoChildList* K::getChildren() const { return children; }                                         \
  SbBool K::readInstance(SoInput* in, unsigned short flags) { return fileForm().readInstance(in, flags); } \
  int K::readChildren(SoInput* in) { return fileForm().readChildren(in); }                         \
  void K::write(SoWriteAction* action) { fileForm().write(action, true, false); }                  \
  void K::addWriteReference(SoOutput* out, SbBool isFromField) { fileForm().addWriteReference(out, isFromField); } \
  SoFormwright* K::searchForAuditorId(SbString id)                                                 \
  {                                                                                                \
    for (int i = 0; i < numChildren; ++i) {                                                        \
      SoTopLevelDialog* child = childList().at(i);                                                 \
      if (child->auditorID.getValue() == id)                                                       \
        return child;                                                                              \
      if (SoFormwright* found = child->searchForAuditorId(id))                                     \
        return found;                                                                              \
    }                                                                                              \
    return nullptr;                                                                                \
  }
