#include "SoDialogQLabel.h"

#include <SoDialogLabel.h>

#include <QLabel>
#include <QRect>

SoDialogQLabel::SoDialogQLabel(QWidget* parent, SoDialogLabel* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQLabelFrame");
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQLabelLabelWidget");
  SoFormwright::setWidgetFont(m_label);
}

SoDialogQLabel::~SoDialogQLabel()
{
  delete m_label;
}

void SoDialogQLabel::setLabelPlace(const QRect& place)
{
  m_label->resize(place.width(), place.height());
  m_label->move(place.x(), place.y());
}

void SoDialogQLabel::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQLabel::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQLabel::placePieces()
{
  m_node->updateLabelWidget();
}
