#include <SoMenuRadioButtonsAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoMenuRadioButtonsAuditor, SoAuditor::getClassTypeId(), "SoMenuRadioButtonsAuditor")
