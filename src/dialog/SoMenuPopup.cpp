#include <SoMenuPopup.h>

#include "SoAuditorDispatch.h"
#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuPopup, SoMenuItem, "MenuPopup")

SoMenuPopup::SoMenuPopup()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPopup);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPopup::~SoMenuPopup() = default;

void SoMenuPopup::addAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuPopup::removeAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuPopup::applyAuditor(SoFormwright* control)
{
  applyContainerAuditors(control, &SoAuditorDispatch::applyMenuTests, nullptr);
}
