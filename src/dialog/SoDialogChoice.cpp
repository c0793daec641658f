#include <SoDialogChoice.h>

#include <SoDialogChoiceAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogChoice, SoDialogComponent, "DialogChoice")

SoDialogChoice::SoDialogChoice()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogChoice);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogChoice::~SoDialogChoice() = default;

void SoDialogChoice::addAuditor(SoDialogChoiceAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogChoice::removeAuditor(SoDialogChoiceAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
