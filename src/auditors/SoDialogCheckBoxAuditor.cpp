#include <SoDialogCheckBoxAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogCheckBoxAuditor, SoAuditor::getClassTypeId(), "SoDialogCheckBoxAuditor")
