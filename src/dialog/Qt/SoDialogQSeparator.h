#pragma once

#include "SoDialogQFrame.h"

class QRect;
class SoDialogSeparator;

// The Qt side of a SoDialogSeparator: a frame that holds the line, placed by
// hand.
class SoDialogQSeparator : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQSeparator(QWidget* parent, SoDialogSeparator* node);

  void setLineShape(QFrame::Shape shape);
  void setLinePlace(const QRect& place);

protected:
  void placePieces() override;

private:
  SoDialogSeparator* m_node;
  QFrame* m_line;
};
