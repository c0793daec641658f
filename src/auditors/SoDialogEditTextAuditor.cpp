#include <SoDialogEditTextAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogEditTextAuditor, SoAuditor::getClassTypeId(), "SoDialogEditTextAuditor")
