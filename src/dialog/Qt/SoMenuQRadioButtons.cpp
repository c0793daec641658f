#include "SoMenuQRadioButtons.h"

#include <QAction>

SoMenuQRadioButtons::SoMenuQRadioButtons(QWidget* parent, int position, int id, SoMenuItem* node)
  : SoMenuQCheckBox(parent, position, id, node)
{
  setObjectName("FWTSoMenuQRadioButtonsFrame");
  m_action->setObjectName("FWTSoMenuQRadioButtonsActionWidget");
}
