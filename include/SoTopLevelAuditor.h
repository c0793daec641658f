#pragma once

#include "SoDialogAuditor.h"

class SoTopLevelDialog;

// A general auditor with no type of its own: the default auditor of a window, so that an
// event that no application auditor hears still ends somewhere.
class SoTopLevelAuditor : public SoDialogAuditor {
protected:
  SoTopLevelAuditor() = default;

private:
  friend class SoTopLevelDialog;
};
