#include <SoAuditor.h>

#include <SoDialogAuditor.h>
#include <SoDialogCheckBoxAuditor.h>
#include <SoDialogChoiceAuditor.h>
#include <SoDialogEditTextAuditor.h>
#include <SoDialogIntegerSliderAuditor.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoDialogRealSliderAuditor.h>
#include <SoMenuCheckBoxAuditor.h>
#include <SoMenuFileSelectionAuditor.h>
#include <SoMenuPushButtonAuditor.h>
#include <SoMenuRadioButtonsAuditor.h>

#include "SoAuditorSource.h"

#include <iterator>

SO_FORMWRIGHT_AUDITOR_SOURCE(SoAuditor, SoType::badType(), "Auditor")

namespace {
struct AuditorRegistration {
  void (*initClass)();
  void (*exitClass)();
};

// The tab-dialog auditor is deliberately absent: nothing asks for its type,
// so it stays unregistered.
const AuditorRegistration kAuditors[] = {
  {&SoAuditor::initClass, &SoAuditor::exitClass},
  {&SoDialogAuditor::initClass, &SoDialogAuditor::exitClass},
  {&SoDialogPushButtonAuditor::initClass, &SoDialogPushButtonAuditor::exitClass},
  {&SoDialogCheckBoxAuditor::initClass, &SoDialogCheckBoxAuditor::exitClass},
  {&SoDialogChoiceAuditor::initClass, &SoDialogChoiceAuditor::exitClass},
  {&SoDialogEditTextAuditor::initClass, &SoDialogEditTextAuditor::exitClass},
  {&SoDialogIntegerSliderAuditor::initClass, &SoDialogIntegerSliderAuditor::exitClass},
  {&SoDialogRealSliderAuditor::initClass, &SoDialogRealSliderAuditor::exitClass},
  {&SoMenuCheckBoxAuditor::initClass, &SoMenuCheckBoxAuditor::exitClass},
  {&SoMenuFileSelectionAuditor::initClass, &SoMenuFileSelectionAuditor::exitClass},
  {&SoMenuPushButtonAuditor::initClass, &SoMenuPushButtonAuditor::exitClass},
  {&SoMenuRadioButtonsAuditor::initClass, &SoMenuRadioButtonsAuditor::exitClass},
};
}

void SoAuditor::initClasses()
{
  for (const AuditorRegistration& auditor : kAuditors)
    auditor.initClass();
}

void SoAuditor::exitClasses()
{
  for (auto auditor = std::rbegin(kAuditors); auditor != std::rend(kAuditors); ++auditor)
    auditor->exitClass();
}
