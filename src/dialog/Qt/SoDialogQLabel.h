#pragma once

#include "SoDialogQFrame.h"

class QLabel;
class QRect;
class SoDialogLabel;

// The Qt side of a SoDialogLabel: a frame that holds the text, placed by
// hand rather than by a layout.
class SoDialogQLabel : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQLabel(QWidget* parent, SoDialogLabel* node);
  ~SoDialogQLabel() override;

  void setLabelPlace(const QRect& place);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelText(const QString& text);

protected:
  void placePieces() override;

private:
  SoDialogLabel* m_node;
  QLabel* m_label;
};
