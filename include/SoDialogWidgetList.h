#pragma once

#include <Inventor/lists/SbPList.h>

class QWidget;

// A list of widget pointers for nodes that keep several widgets. It owns
// none of them.
class SoDialogWidgetList : public SbPList {
public:
  SoDialogWidgetList() = default;
  explicit SoDialogWidgetList(int initialSize) : SbPList(initialSize) {}
  SoDialogWidgetList(const SoDialogWidgetList& other) : SbPList(other) {}
  ~SoDialogWidgetList() { truncate(0); }

  void append(QWidget* widget) { SbPList::append(widget); }
  void insert(QWidget* widget, int index) { SbPList::insert(widget, index); }
  int find(const QWidget* widget) const { return SbPList::find(const_cast<QWidget*>(widget)); }
  SoDialogWidgetList& operator=(const SoDialogWidgetList& other)
  {
    SbPList::operator=(other);
    return *this;
  }
  QWidget*& operator[](int index) const
  {
    return reinterpret_cast<QWidget*&>(SbPList::operator[](index));
  }
};
