#pragma once

#include "SoDialogQFrame.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRect;
class SoDialogCustomSlider;
class SoDialogSlider;

// The Qt side of a SoDialogSlider: a frame that holds the value zone, the
// bar, the label and the toggle of continuous triggering, placed by hand.
// The toggle and the Return key in the value zone go on to the node; the bar
// speaks to the node through its own callbacks.
class SoDialogQSlider : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQSlider(QWidget* parent, SoDialogSlider* node);
  ~SoDialogQSlider() override;

  void setEditPlace(const QRect& place);
  void setLabelPlace(const QRect& place);
  void setSliderPlace(const QRect& place);
  void setTogglePlace(const QRect& place);
  void setLabelAlignment(Qt::Alignment alignment);
  void setToggleChecked(bool checked);
  bool isToggleChecked() const;
  void setEditVisible(bool visible);
  void setLabelVisible(bool visible);
  void setToggleVisible(bool visible);
  void setLabelText(const QString& text);
  void setEditText(const QString& text);
  QString getEditText() const;
  SoDialogCustomSlider* getCustomSlider() const { return m_customSlider; }

public Q_SLOTS:
  void eventNotify(int state);
  void eventNotifyPressed();

protected:
  void placePieces() override;

private:
  SoDialogSlider* m_node;
  QLineEdit* m_lineEdit;
  SoDialogCustomSlider* m_customSlider;
  QWidget* m_sliderWidget;
  QLabel* m_label;
  QCheckBox* m_toggle;
};
