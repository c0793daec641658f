#include "SoDialogQFrame.h"

#include <SoDialogComponent.h>

#include <QResizeEvent>

SoDialogQFrame::SoDialogQFrame(QWidget* parent, SoDialogComponent* node) : QFrame(parent), m_component(node) {}

QSize SoDialogQFrame::sizeHint() const
{
  return QSize(m_component->width.getValue(), m_component->height.getValue());
}

void SoDialogQFrame::resizeEvent(QResizeEvent* event)
{
  m_component->width = event->size().width();
  m_component->height = event->size().height();
  placePieces();
}

void SoDialogQFrame::showPiece(QWidget* piece, bool visible)
{
  if (!visible)
    piece->hide();
  else if (piece->testAttribute(Qt::WA_WState_ExplicitShowHide) || piece->parentWidget()->isVisible())
    piece->show();
}
