#pragma once

#include "SoDialogQFrame.h"

class QLabel;
class QPushButton;
class QRect;
class SoDialogPushButton;

// The Qt side of a SoDialogPushButton: a frame that holds the button and the
// label beside it, placed by hand, and passes the press on to the node.
class SoDialogQPushButton : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQPushButton(QWidget* parent, SoDialogPushButton* node);
  ~SoDialogQPushButton() override;

  void setButtonPlace(const QRect& place);
  void setLabelPlace(const QRect& place);
  void setButtonText(const QString& text);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelText(const QString& text);
  void setLabelVisible(bool visible);

public Q_SLOTS:
  void eventNotify();

protected:
  void placePieces() override;

private:
  SoDialogPushButton* m_node;
  QPushButton* m_button;
  QLabel* m_label;
};
