#include <SoDialogIntegerSliderAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogIntegerSliderAuditor, SoAuditor::getClassTypeId(), "SoDialogIntegerSliderAuditor")
