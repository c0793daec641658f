#pragma once

#include "SoDialogAuditor.h"

class SoDialogGroup;

// A general auditor with no type of its own: the default auditor of a group that stands alone, so that an
// event that no application auditor hears still ends somewhere.
class SoDialogGroupAuditor : public SoDialogAuditor {
protected:
  SoDialogGroupAuditor() = default;

private:
  friend class SoDialogGroup;
};
