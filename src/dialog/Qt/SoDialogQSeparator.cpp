#include "SoDialogQSeparator.h"

#include <SoDialogSeparator.h>

#include <QRect>
#include <QResizeEvent>

SoDialogQSeparator::SoDialogQSeparator(QWidget* parent, SoDialogSeparator* node)
  : QFrame(parent), m_node(node)
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

void SoDialogQSeparator::resizeEvent(QResizeEvent* event)
{
  m_node->width = event->size().width();
  m_node->height = event->size().height();
  m_node->updateSeparatorWidget();
}
