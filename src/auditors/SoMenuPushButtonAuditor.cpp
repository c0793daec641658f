#include <SoMenuPushButtonAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoMenuPushButtonAuditor, SoAuditor::getClassTypeId(), "SoMenuPushButtonAuditor")
