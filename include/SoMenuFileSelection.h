#pragma once

#include "SoMenuPushButton.h"

// A menu entry that asks the user for a file.
class SoMenuFileSelection : public SoMenuPushButton {
  SO_FORMWRIGHT_HEADER(SoMenuFileSelection)

public:
  SoMenuFileSelection();

protected:
  ~SoMenuFileSelection() override;
};
