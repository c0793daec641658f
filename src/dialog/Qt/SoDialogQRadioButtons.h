#pragma once

#include "SoDialogQFrame.h"

class QButtonGroup;
class QGroupBox;
class QRadioButton;
class QRect;
class QVBoxLayout;
class SoDialogRadioButtons;

// The Qt side of a SoDialogRadioButtons: a frame that holds a titled group
// box with one button per choice, stacked by a layout, and passes the user's
// clicks on to the node. A button's id in the group is its index.
class SoDialogQRadioButtons : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQRadioButtons(QWidget* parent, SoDialogRadioButtons* node);
  ~SoDialogQRadioButtons() override;

  // Makes the button of choice `index`, in its place among the others.
  QRadioButton* createButton(int index);
  // Checks the button of `id`, if there is one; the user's clicks alone are
  // events.
  void checkButton(int id);
  void setTitle(const QString& title);
  void setTitleAlignment(Qt::Alignment alignment);
  void setGroupBoxPlace(const QRect& place);

public Q_SLOTS:
  void eventNotify(int id);

protected:
  void placePieces() override;

private:
  SoDialogRadioButtons* m_node;
  QButtonGroup* m_buttonGroup;
  QGroupBox* m_groupBox;
  QVBoxLayout* m_layout;
};
