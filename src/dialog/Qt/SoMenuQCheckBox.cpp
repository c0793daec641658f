#include "SoMenuQCheckBox.h"

#include <QAction>

SoMenuQCheckBox::SoMenuQCheckBox(QWidget* parent, int position, int id, SoMenuItem* node)
  : SoMenuQPushButton(parent, position, id, node)
{
  setObjectName("FWTSoMenuQCheckBoxFrame");
  m_action->setObjectName("FWTSoMenuQCheckBoxActionWidget");
  m_action->setCheckable(true);
}

void SoMenuQCheckBox::changeState(bool checked)
{
  m_action->setChecked(checked);
}
