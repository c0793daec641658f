#include <SoTabDialogAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoTabDialogAuditor, SoAuditor::getClassTypeId(), "SoTabDialogAuditor")
