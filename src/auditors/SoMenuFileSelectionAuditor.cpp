#include <SoMenuFileSelectionAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoMenuFileSelectionAuditor, SoAuditor::getClassTypeId(), "SoMenuFileSelectionAuditor")
