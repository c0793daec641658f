#include "SoMenuQPushButton.h"

#include <SoMenuItem.h>

#include <QAction>
#include <QKeySequence>

SoMenuQPushButton::SoMenuQPushButton(QWidget* parent, int, int id, SoMenuItem* node)
  : QWidget(nullptr), m_node(node), m_parentMenu(parent), m_id(id)
{
  setObjectName("FWTSoMenuQPushButtonFrame");
  m_action = new QAction(this);
  m_action->setObjectName("FWTSoMenuQPushButtonActionWidget");
  if (m_parentMenu)
    m_parentMenu->addAction(m_action);
  connect(m_action, SIGNAL(triggered()), this, SLOT(menuEvent()));
}

SoMenuQPushButton::~SoMenuQPushButton()
{
  if (m_parentMenu)
    m_parentMenu->removeAction(m_action);
  delete m_action;
}

void SoMenuQPushButton::changeLabel(const char* text)
{
  m_action->setText(QString(text));
}

void SoMenuQPushButton::changeEnable(bool enabled)
{
  m_action->setEnabled(enabled);
}

void SoMenuQPushButton::changeAccelerator(const char* text)
{
  QKeySequence keys(tr(text), QKeySequence::NativeText);
  // Qt reads a text it cannot make sense of as an unknown key, which would
  // still stand as a shortcut; such a text gives none.
  for (int i = 0; i < keys.count(); ++i)
    if (keys[i].key() == Qt::Key_unknown)
      keys = QKeySequence();
  m_action->setShortcut(keys);
}

void SoMenuQPushButton::forgetNode()
{
  m_node = nullptr;
  // Nothing holds the entry any more but its menu.
  if (!m_parentMenu) {
    delete this;
    return;
  }
  connect(m_parentMenu, &QObject::destroyed, this, [this] {
    // The menu is on its way out: its guard still points at it.
    m_parentMenu.clear();
    delete this;
  });
}

void SoMenuQPushButton::menuEvent()
{
  if (m_node)
    m_node->menuEvent(nullptr, m_id);
}
