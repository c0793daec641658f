#include <SoDialogPushButtonAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogPushButtonAuditor, SoAuditor::getClassTypeId(), "SoDialogPushButtonAuditor")
