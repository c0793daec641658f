#pragma once

#include "SoDialogQFrame.h"

class QComboBox;
class QLabel;
class QRect;
class SoDialogComboBox;

// The Qt side of a SoDialogComboBox: a frame that holds the drop-down list
// and the label beside it, placed by hand, and passes the user's choices on
// to the node.
class SoDialogQComboBox : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQComboBox(QWidget* parent, SoDialogComboBox* node);
  ~SoDialogQComboBox() override;

  // Appends with an index below 0, inserts at `index` otherwise.
  void addItem(const QString& text, int index);
  void clear();
  int count() const;
  void setCurrentIndex(int index);
  void setComboBoxPlace(const QRect& place);
  void setLabelPlace(const QRect& place);
  void setLabelText(const QString& text);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelVisible(bool visible);

public Q_SLOTS:
  void eventNotify(int index);

protected:
  void placePieces() override;

private:
  SoDialogComboBox* m_node;
  QComboBox* m_comboBox;
  QLabel* m_label;
};
