#pragma once

// The child components of a window or group. They stand at the head of the
// kit's own child list, ahead of the kit's parts, and the owner counts them
// in `numChildren`. Windows and groups differ only in the type they accept
// and in the class named by their messages, so both use this one template.
// `Owner` declares it a friend.

#include <SoDialogAuditor.h>
#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogComponent.h>
#include <SoDialogGroup.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoFormMode.h>
#include <SoFormwright.h>
#include <SoMenuBar.h>

#include "SoChildCheck.h"
#include "SoDBImpl.h"
#include "SoNesting.h"

#include <Inventor/SoInput.h>
#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/misc/SoChildList.h>

#include <QWidget>

#include <string>

// Containers of every kind are read inside one another, and reading,
// building and painting all walk the nesting by recursion: 5,000 levels
// still fit the main thread's stack.
constexpr int kDeepestContainerNesting = 5000;
inline int s_containerReadDepth = 0;

template <class Owner, class Child>
class SoFormwrightChildren {
public:
  SoFormwrightChildren(Owner& owner, const char* className) : m_owner(owner), m_className(className) {}

  void insert(Child* child, int index, const char* operation) const
  {
    if (!isChild(child, operation))
      return;
    if (index < 0 || index > m_owner.numChildren) {
      SoDebugError::post(source(operation).c_str(), "Index %d is out of range %d - %d", index, 0,
                         m_owner.numChildren);
      return;
    }
    m_owner.children->insert(child, index);
    ++m_owner.numChildren;
    child->setParent(&m_owner);
    changed();
  }

  SoNode* get(int index) const
  {
    if (index < 0 || index >= m_owner.numChildren) {
      SoDebugError::post(source("getChild").c_str(), "Index %d is out of range %d - %d; Be careful", index, 0,
                         m_owner.numChildren);
      return nullptr;
    }
    return (*m_owner.children)[index];
  }

  int find(const SoNode* child) const { return m_owner.children->find(const_cast<SoNode*>(child)); }

  void remove(int index) const
  {
    if (!inRange(index, "removeChild"))
      return;
    if (auto* child = static_cast<Child*>((*m_owner.children)[index]))
      child->destroyWidget();
    --m_owner.numChildren;
    m_owner.children->remove(index);
    changed();
  }

  // Only the children go; the kit's parts behind them stay.
  void removeAll() const
  {
    for (int i = m_owner.numChildren - 1; i >= 0; --i) {
      static_cast<Child*>((*m_owner.children)[i])->destroyWidget();
      m_owner.children->remove(i);
    }
    m_owner.numChildren = 0;
    changed();
  }

  void replace(int index, Child* child) const
  {
    if (!isChild(child, "replaceChild") || !inRange(index, "replaceChild"))
      return;
    static_cast<Child*>((*m_owner.children)[index])->destroyWidget();
    m_owner.children->set(index, child);
    child->setParent(&m_owner);
    changed();
  }

  // Builds every child inside `parent`, in the toolkit-wide form. A child is
  // never given a dictated size: its negotiated size fields stand.
  void build(QWidget* parent) const
  {
    const int mode = SoFormMode::buildMode();
    for (int i = 0; i < m_owner.numChildren; ++i) {
      SbVec2i32 useSize(0, 0), size(0, 0);
      auto* child = static_cast<Child*>((*m_owner.children)[i]);
      child->buildWidget(parent, useSize, size, mode);
      if (child->isOfType(SoDialogComponent::getClassTypeId()))
        showNewFrame(static_cast<SoDialogComponent*>(child)->getWidget(), parent);
    }
  }

  // Lets the owner's auditors hear of every control below it at once. A
  // control's own auditors are passed by: the event starts at the owner. A
  // launcher is walked instead of heard: its dialogs' auditors hear theirs.
  void applyAuditors() const
  {
    for (int i = 0; i < m_owner.numChildren; ++i) {
      auto* child = static_cast<SoFormwright*>((*m_owner.children)[i]);
      if (child->isOfType(SoDialogGroup::getClassTypeId()))
        static_cast<SoDialogGroup*>(child)->applyAuditors();
      else if (child->isOfType(SoDialogCheckBoxLauncher::getClassTypeId()))
        static_cast<SoDialogCheckBoxLauncher*>(child)->applyAuditors();
      else if (child->isOfType(SoDialogPushButtonLauncher::getClassTypeId()))
        static_cast<SoDialogPushButtonLauncher*>(child)->applyAuditors();
      else
        m_owner.applyAuditor(child);
    }
  }

  // Depth first, the first node below the owner whose auditorID is `id`,
  // through groups, menus and the dialogs of launchers.
  SoFormwright* searchForAuditorId(const SbString& id) const
  {
    for (int i = 0; i < m_owner.numChildren; ++i) {
      auto* child = static_cast<SoFormwright*>((*m_owner.children)[i]);
      if (child->auditorID.getValue() == id)
        return child;
      SoFormwright* found = nullptr;
      if (child->isOfType(SoDialogGroup::getClassTypeId()))
        found = static_cast<SoDialogGroup*>(child)->searchForAuditorId(id);
      else if (child->isOfType(SoMenuBar::getClassTypeId()))
        found = static_cast<SoMenuBar*>(child)->searchForAuditorId(id);
      else if (child->isOfType(SoDialogCheckBoxLauncher::getClassTypeId()))
        found = static_cast<SoDialogCheckBoxLauncher*>(child)->searchForAuditorId(id);
      else if (child->isOfType(SoDialogPushButtonLauncher::getClassTypeId()))
        found = static_cast<SoDialogPushButtonLauncher*>(child)->searchForAuditorId(id);
      if (found)
        return found;
    }
    return nullptr;
  }

  // Reads the owner's fields and then its children. Notification stays off
  // when the fields cannot be read.
  int readInstance(SoInput* in, unsigned short flags) const
  {
    const SoNesting nesting(s_containerReadDepth, kDeepestContainerNesting);
    if (nesting.tooDeep()) {
      SoReadError::post(in, "Dialog containers are nested more than %d deep", kDeepestContainerNesting);
      return FALSE;
    }
    const SbBool notifyWasEnabled = m_owner.enableNotify(FALSE);
    if (!m_owner.readFields(in, FALSE))
      return FALSE;
    int ok = TRUE;
    if (!in->isBinary() || (flags & 2))
      ok = m_owner.readChildren(in);
    m_owner.enableNotify(notifyWasEnabled);
    return ok;
  }

  // A child of another type fails the read, and with it the file.
  int readChildren(SoInput* in) const
  {
    const SoType childType = Child::getClassTypeId();
    if (!in->isBinary()) {
      for (;;) {
        // After a failed read the toolkit has already released what it read.
        SoBase* child = nullptr;
        if (!SoBase::read(in, child, childType))
          return FALSE;
        if (!child)
          return TRUE;
        m_owner.addChild(static_cast<Child*>(child));
      }
    }
    int count = 0;
    if (!in->read(count))
      return FALSE;
    int ok = TRUE;
    for (int i = 0; i < count; ++i) {
      SoBase* child = nullptr;
      if (!SoBase::read(in, child, childType) || !child) {
        ok = FALSE;
        break;
      }
      m_owner.addChild(static_cast<Child*>(child));
    }
    if (ok && in->getIVVersion() == 1.0f) {
      int unused = -1;
      if (!in->read(unused) || unused < -1)
        ok = FALSE;
    }
    return ok;
  }

  // The toolkit counts what a write will hold through this call alone, never
  // through write. The kit counts the owner and decides which of its parts
  // are worth writing; the owner then counts its children, the first time it
  // is met, as a group does. An uncounted child is not written at all.
  void addWriteReference(SoOutput* out, SbBool isFromField) const
  {
    m_owner.SoBaseKit::addWriteReference(out, isFromField);
    if (isFromField || m_owner.hasMultipleWriteRefs())
      return;
    for (int i = 0; i < m_owner.numChildren; ++i)
      (*m_owner.children)[i]->addWriteReference(out, FALSE);
  }

  // Writes the owner's fields and its child components, never its kit parts.
  // `clampPathIndex` keeps a path's index inside the children;
  // `skipChildrenInCluster` leaves the children out when a cluster or a
  // render-farm worker is writing.
  void write(SoWriteAction* action, bool clampPathIndex, bool skipChildrenInCluster) const
  {
    SoOutput* out = action->getOutput();
    const int count = m_owner.numChildren;
    if (out->getStage() == SoOutput::COUNT_REFS) {
      m_owner.addWriteReference(out, FALSE);
      return;
    }
    if (m_owner.writeHeader(out, TRUE, FALSE))
      return;
    m_owner.getFieldData()->write(out, &m_owner);

    int last = count - 1;
    int numIndices = 0;
    const int* indices = nullptr;
    if (action->getPathCode(numIndices, indices) == SoAction::IN_PATH) {
      last = indices[numIndices - 1];
      if (clampPathIndex && last > count - 1)
        last = count - 1;
    }
    int written = 0;
    for (int i = 0; i <= last; ++i)
      if ((*m_owner.children)[i]->shouldWrite())
        ++written;

    if (skipChildrenInCluster && (SoDBImpl::isRunningCluster() || SoDBImpl::isRunningART())) {
      if (out->isBinary())
        out->write(0);
    } else {
      if (out->isBinary())
        out->write(written);
      for (int i = 0; i <= last; ++i)
        if ((*m_owner.children)[i]->shouldWrite())
          m_owner.children->traverse(action, i);
    }
    m_owner.writeFooter(out);
  }

private:
  // A change of a built tree is negotiated and built again from the window.
  void changed() const
  {
    if (!m_owner.firstBuild)
      m_owner.updateAfterSceneGraphChange();
  }

  // Qt leaves a widget made inside a parent already on screen hidden until it
  // is shown; a frame that someone hid on purpose stays hidden.
  static void showNewFrame(QWidget* frame, QWidget* parent)
  {
    if (frame && frame != parent && frame->isHidden() && !frame->testAttribute(Qt::WA_WState_ExplicitShowHide))
      frame->show();
  }

  std::string source(const char* operation) const { return std::string(m_className) + "::" + operation; }

  bool isChild(const Child* child, const char* operation) const
  {
    return SoChildCheck::accepts(child, &m_owner, source(operation));
  }

  bool inRange(int index, const char* operation) const
  {
    if (index < 0 || index >= m_owner.numChildren) {
      SoDebugError::post(source(operation).c_str(), "Index %d is out of range %d - %d", index, 0,
                         m_owner.numChildren);
      return false;
    }
    return true;
  }

  Owner& m_owner;
  const char* m_className;
};

// The child and auditor operations of a window or group, each handed to the
// one template above. `K` is the container class, `Child` the type its
// children must have.
#define SO_FORMWRIGHT_CHILD_OPERATIONS(K, Child)                                                   \
  SoFormwrightChildren<K, Child> K::childList() const { return {const_cast<K&>(*this), #K}; }     \
  void K::addChild(Child* child) { childList().insert(child, numChildren, "addChild"); }           \
  void K::insertChild(Child* child, int index) { childList().insert(child, index, "insertChild"); } \
  SoNode* K::getChild(int index) const { return childList().get(index); }                          \
  int K::getNumChildren() const { return numChildren; }                                            \
  int K::findChild(const Child* child) const { return childList().find(child); }                   \
  void K::removeChild(Child* child) { removeChild(findChild(child)); }                             \
  void K::removeChild(int index) { childList().remove(index); }                                    \
  void K::removeAllChildren() { childList().removeAll(); }                                         \
  void K::replaceChild(Child* oldChild, Child* newChild) { replaceChild(findChild(oldChild), newChild); } \
  void K::replaceChild(int index, Child* newChild) { childList().replace(index, newChild); }       \
  SoChildList* K::getChildren() const { return children; }                                         \
  SbBool K::readInstance(SoInput* in, unsigned short flags) { return childList().readInstance(in, flags); } \
  int K::readChildren(SoInput* in) { return childList().readChildren(in); }                        \
  void K::applyAuditors() { childList().applyAuditors(); }                                         \
  SoFormwright* K::searchForAuditorId(SbString id) { return childList().searchForAuditorId(id); }  \
  void K::addAuditor(SoDialogAuditor* auditor) { SoFormwright::addAuditor(auditor); }              \
  void K::removeAuditor(SoDialogAuditor* auditor) { SoFormwright::removeAuditor(auditor); }
