#pragma once

#include "SoDialogQFrame.h"

#include <QStringList>

class QButtonGroup;
class QGroupBox;
class QRadioButton;
class QRect;
class QSize;
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
  // The smallest frame in which a box of this title gives every button of
  // these choices its size hint.
  static QSize frameSizeFor(const QString& title, const QStringList& choices);

public Q_SLOTS:
  void eventNotify(int id);

protected:
  void placePieces() override;

private:
  static QVBoxLayout* makeButtonLayout(QGroupBox* box);

  SoDialogRadioButtons* m_node;
  QButtonGroup* m_buttonGroup;
  QGroupBox* m_groupBox;
  QVBoxLayout* m_layout;
};
