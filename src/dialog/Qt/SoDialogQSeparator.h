#pragma once

#include <QFrame>

class QRect;
class QResizeEvent;
class SoDialogSeparator;

// The Qt side of a SoDialogSeparator: a frame that holds the line, placed by
// hand.
class SoDialogQSeparator : public QFrame {
  Q_OBJECT

public:
  SoDialogQSeparator(QWidget* parent, SoDialogSeparator* node);

  void setLineShape(QFrame::Shape shape);
  void setLinePlace(const QRect& place);

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  SoDialogSeparator* m_node;
  QFrame* m_line;
};
