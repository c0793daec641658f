#pragma once

#include "SoMenuItem.h"

class SoMenuCheckBoxAuditor;

// A menu entry with a check mark.
class SoMenuCheckBox : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBox)

public:
  SoMenuCheckBox();

  void addAuditor(SoMenuCheckBoxAuditor* auditor);
  void removeAuditor(SoMenuCheckBoxAuditor* auditor);

protected:
  ~SoMenuCheckBox() override;
};
