#pragma once

#include <QFrame>

class QLabel;
class QRect;
class QResizeEvent;
class SoDialogLabel;

// The Qt side of a SoDialogLabel: a frame that holds the text, placed by
// hand rather than by a layout.
class SoDialogQLabel : public QFrame {
  Q_OBJECT

public:
  SoDialogQLabel(QWidget* parent, SoDialogLabel* node);
  ~SoDialogQLabel() override;

  void setLabelPlace(const QRect& place);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelText(const QString& text);

protected:
  // The frame's size is the node's size: Qt's layout decides it, and the
  // node keeps it and places the text again.
  void resizeEvent(QResizeEvent* event) override;

private:
  SoDialogLabel* m_node;
  QLabel* m_label;
};
