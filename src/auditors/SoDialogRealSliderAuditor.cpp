#include <SoDialogRealSliderAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogRealSliderAuditor, SoAuditor::getClassTypeId(), "SoDialogRealSliderAuditor")
