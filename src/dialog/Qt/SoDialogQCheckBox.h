#pragma once

#include "SoDialogQFrame.h"

class QCheckBox;
class QLabel;
class QRect;
class SoDialogCheckBox;

// The Qt side of a SoDialogCheckBox: a frame that holds the box and the label
// beside it, placed by hand, and passes the user's clicks on to the node.
class SoDialogQCheckBox : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQCheckBox(QWidget* parent, SoDialogCheckBox* node);
  ~SoDialogQCheckBox() override;

  void setCheckBoxPlace(const QRect& place);
  void setLabelPlace(const QRect& place);
  void setCheckBoxText(const QString& text);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelText(const QString& text);
  void setLabelVisible(bool visible);
  // Changes the box without telling the node: only the user's clicks are
  // events.
  void setState(bool checked);

public Q_SLOTS:
  void eventNotify(int state);

protected:
  void placePieces() override;

private:
  SoDialogCheckBox* m_node;
  QCheckBox* m_checkBox;
  QLabel* m_label;
};
