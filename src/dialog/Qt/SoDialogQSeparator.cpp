#include "SoDialogQSeparator.h"

#include <SoDialogSeparator.h>

#include <QRect>

SoDialogQSeparator::SoDialogQSeparator(QWidget* parent, SoDialogSeparator* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQSeparatorFrame");
  m_line = new QFrame(this);
  m_line->setObjectName("FWTSoDialogQSeparatorFrameWidget");
  m_line->setFrameShadow(QFrame::Sunken);
}

void SoDialogQSeparator::setLineShape(QFrame::Shape shape)
{
  m_line->setFrameShape(shape);
}

void SoDialogQSeparator::setLinePlace(const QRect& place)
{
  m_line->resize(place.width(), place.height());
  m_line->move(place.x(), place.y());
}

void SoDialogQSeparator::placePieces()
{
  m_node->updateSeparatorWidget();
}
