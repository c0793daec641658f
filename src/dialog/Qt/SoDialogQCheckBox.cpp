#include "SoDialogQCheckBox.h"

#include "SoWidgetEvent.h"

#include <SoDialogCheckBox.h>

#include <QCheckBox>
#include <QLabel>
#include <QRect>

SoDialogQCheckBox::SoDialogQCheckBox(QWidget* parent, SoDialogCheckBox* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQCheckBoxFrame");
  m_checkBox = new QCheckBox(this);
  m_checkBox->setObjectName("FWTSoDialogQCheckBoxCheckBoxWidget");
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQCheckBoxLabelWidget");
  SoFormwright::setWidgetFont(m_checkBox);
  SoFormwright::setWidgetFont(m_label);
  connect(m_checkBox, SIGNAL(stateChanged(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
}

SoDialogQCheckBox::~SoDialogQCheckBox()
{
  delete m_checkBox;
  delete m_label;
}

void SoDialogQCheckBox::setCheckBoxPlace(const QRect& place)
{
  m_checkBox->resize(place.width(), place.height());
  m_checkBox->move(place.x(), place.y());
}

void SoDialogQCheckBox::setLabelPlace(const QRect& place)
{
  m_label->resize(place.width(), place.height());
  m_label->move(place.x(), place.y());
}

void SoDialogQCheckBox::setCheckBoxText(const QString& text)
{
  m_checkBox->setText(text);
}

void SoDialogQCheckBox::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQCheckBox::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQCheckBox::setLabelVisible(bool visible)
{
  showPiece(m_label, visible);
}

void SoDialogQCheckBox::setState(bool checked)
{
  disconnect(m_checkBox, SIGNAL(stateChanged(int)), this, SLOT(eventNotify(int)));
  m_checkBox->setChecked(checked);
  connect(m_checkBox, SIGNAL(stateChanged(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
}

void SoDialogQCheckBox::eventNotify(int state)
{
  // A partly checked box counts as checked: the field has two states.
  const SoWidgetEvent event;
  m_node->eventNotify(state != 0 ? 1 : 0, 0);
}

void SoDialogQCheckBox::placePieces()
{
  m_node->updateCheckBoxWidget();
  m_node->updateLabelWidget();
}
