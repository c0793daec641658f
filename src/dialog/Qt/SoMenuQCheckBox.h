#pragma once

#include "SoMenuQPushButton.h"

// The Qt side of a check box entry: a checkable action. Qt toggles the mark
// itself on a trigger; the node sets it again from its field.
class SoMenuQCheckBox : public SoMenuQPushButton {
  Q_OBJECT

public:
  SoMenuQCheckBox(QWidget* parent, int position, int id, SoMenuItem* node);

  void changeState(bool checked);
};
