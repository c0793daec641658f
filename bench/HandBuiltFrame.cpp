#include "HandBuiltFrame.h"

#include <QResizeEvent>

HandBuiltFrame::HandBuiltFrame(QWidget* parent, QSize preferred, int labelColumn)
  : QFrame(parent), m_preferred(preferred), m_labelColumn(labelColumn)
{
}

void HandBuiltFrame::addPiece(QWidget* piece, int width)
{
  m_pieces.emplace_back(piece, width);
}

void HandBuiltFrame::resizeEvent(QResizeEvent* event)
{
  const QSize size = event->size();
  if (m_label)
    m_label->setGeometry(3, 3, m_labelColumn, size.height() - 6);
  int x = m_label ? m_labelColumn + 4 : 2;
  for (const auto& [piece, width] : m_pieces) {
    const int w = width > 0 ? width : std::max(1, size.width() - 3 - x);
    piece->setGeometry(x, 3, w, size.height() - 6);
    x += w;
  }
}
