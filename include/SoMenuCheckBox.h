#pragma once

#include "SoMenuItem.h"

class SoMenuCheckBoxAuditor;

// A menu entry with a check mark.
class SoMenuCheckBox : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBox)
  SO_FORMWRIGHT_SKIN_HEADER(MenuCheckBox)

public:
  SoMenuCheckBox();

  void addAuditor(SoMenuCheckBoxAuditor* auditor);
  void removeAuditor(SoMenuCheckBoxAuditor* auditor);

protected:
  ~SoMenuCheckBox() override;
};
