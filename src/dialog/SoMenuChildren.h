#pragma once

// The children of a menu bar, a popup or a launcher. Like those of windows
// and groups they stand at the head of the kit's own child list and the
// owner counts them in `numChildren`; unlike them, a change of the list sets
// off no new negotiation: menus are joined to their Qt objects at build time
// only, and a launcher's dialogs are windows of their own. What an owner does
// after a change is its own business. `Owner` declares it a friend.

#include <SoFormwright.h>

#include "SoChildCheck.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/misc/SoChildList.h>

#include <string>

template <class Owner, class Child>
class SoMenuChildren {
public:
  SoMenuChildren(Owner& owner, const char* className) : m_owner(owner), m_className(className) {}

  // Whether the child went in.
  bool insert(Child* child, int index, const char* operation) const
  {
    if (!isChild(child, operation))
      return false;
    if (index < 0 || index > m_owner.numChildren) {
      postOutOfRange(operation, index, m_owner.numChildren);
      return false;
    }
    m_owner.children->insert(child, index);
    ++m_owner.numChildren;
    child->setParent(&m_owner);
    return true;
  }

  // Only the upper bound is reported, as callers count on; a negative index
  // finds nothing either, but silently.
  SoNode* get(int index, const char* warning) const
  {
    if (index >= m_owner.numChildren) {
      SoDebugError::post(source("getChild").c_str(), "Index %d is out of range %d - %d%s", index, 0,
                         m_owner.numChildren, warning);
      return nullptr;
    }
    return index < 0 ? nullptr : (*m_owner.children)[index];
  }

  int find(const Child* child) const
  {
    for (int i = 0; i < m_owner.numChildren; ++i)
      if ((*m_owner.children)[i] == child)
        return i;
    return -1;
  }

  // `reportedLast` is the upper bound that the message names.
  void remove(int index, int reportedLast) const
  {
    if (index < 0 || index >= m_owner.numChildren) {
      postOutOfRange("removeChild", index, reportedLast);
      return;
    }
    static_cast<Child*>((*m_owner.children)[index])->destroyWidget();
    --m_owner.numChildren;
    m_owner.children->remove(index);
  }

  // Only the children go; the kit's parts behind them stay.
  void removeAll() const
  {
    for (int i = m_owner.numChildren - 1; i >= 0; --i) {
      static_cast<Child*>((*m_owner.children)[i])->destroyWidget();
      m_owner.children->remove(i);
    }
    m_owner.numChildren = 0;
  }

  // Whether the child took the place.
  bool replace(int index, Child* child, int reportedLast) const
  {
    if (!isChild(child, "replaceChild"))
      return false;
    if (index < 0 || index >= m_owner.numChildren) {
      postOutOfRange("replaceChild", index, reportedLast);
      return false;
    }
    static_cast<Child*>((*m_owner.children)[index])->destroyWidget();
    m_owner.children->set(index, child);
    child->setParent(&m_owner);
    return true;
  }

  Child* at(int index) const { return static_cast<Child*>((*m_owner.children)[index]); }

private:
  std::string source(const char* operation) const { return std::string(m_className) + "::" + operation; }

  bool isChild(const Child* child, const char* operation) const
  {
    return SoChildCheck::accepts(child, &m_owner, source(operation));
  }

  void postOutOfRange(const char* operation, int index, int last) const
  {
    SoDebugError::post(source(operation).c_str(), "Index %d is out of range %d - %d", index, 0, last);
  }

  Owner& m_owner;
  const char* m_className;
};
