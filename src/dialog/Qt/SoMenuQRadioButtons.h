#pragma once

#include "SoMenuQCheckBox.h"

// The Qt side of one entry of a radio group: a checkable action of its own.
// No QActionGroup joins the entries: the node keeps one of them checked.
class SoMenuQRadioButtons : public SoMenuQCheckBox {
  Q_OBJECT

public:
  SoMenuQRadioButtons(QWidget* parent, int position, int id, SoMenuItem* node);

  // Where a rebuilt group goes in its menu: Qt appends, so always 0.
  int getPosition() const { return 0; }
};
