#include <SoDialogChoiceAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogChoiceAuditor, SoAuditor::getClassTypeId(), "SoDialogChoiceAuditor")
