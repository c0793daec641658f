#include <SoMenuCheckBoxAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoMenuCheckBoxAuditor, SoAuditor::getClassTypeId(), "SoMenuCheckBoxAuditor")
