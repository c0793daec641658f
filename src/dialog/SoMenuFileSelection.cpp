#include <SoMenuFileSelection.h>

#include <SoMenuFileSelectionAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuFileSelection, SoMenuPushButton, "MenuFileSelection")

SoMenuFileSelection::SoMenuFileSelection()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuFileSelection);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuFileSelection::~SoMenuFileSelection() = default;

void SoMenuFileSelection::addAuditor(SoMenuFileSelectionAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuFileSelection::removeAuditor(SoMenuFileSelectionAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
