#pragma once

#include <QPointer>
#include <QWidget>

class QAction;
class SoMenuItem;

// The Qt side of a menu entry: an invisible widget, held by its node, that
// owns the entry's QAction in the menu that shows it and passes a trigger on
// to the node. The check box and radio entries build on it.
class SoMenuQPushButton : public QWidget {
  Q_OBJECT

public:
  // `position` is the entry's index for the scene form; a Qt action always
  // goes at the end of `parent`. `id` goes back to the node with each
  // trigger.
  SoMenuQPushButton(QWidget* parent, int position, int id, SoMenuItem* node);
  // Takes the action out of its menu.
  ~SoMenuQPushButton() override;

  void changeLabel(const char* text);
  void changeEnable(bool enabled);
  // `text` as getKeyCombination gives it; a text Qt cannot read leaves the
  // action without a shortcut.
  void changeAccelerator(const char* text);
  // The node is going: the action stays in its menu and does nothing more,
  // and the entry goes with the menu, at once if the menu has gone already.
  // The entry may be deleted when this returns.
  void forgetNode();
  // Whether the action stands in `menu`: not so once the menu it was put in
  // has gone, and a menu built anew needs an entry of its own.
  bool standsIn(const void* menu) const { return m_parentMenu.data() == menu; }

public Q_SLOTS:
  void menuEvent();

protected:
  QAction* m_action;

private:
  SoMenuItem* m_node;
  // Guarded: the menu may go with its window before the entry does.
  QPointer<QWidget> m_parentMenu;
  int m_id;
};
