#include <SoMenuBar.h>

#include "SoAuditorDispatch.h"
#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuBar, SoTopComponent, "MenuBar")

SoMenuBar::SoMenuBar()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuBar);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuBar::~SoMenuBar() = default;

void SoMenuBar::addAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuBar::removeAuditor(SoDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuBar::applyAuditor(SoFormwright* control)
{
  applyContainerAuditors(control, &SoAuditorDispatch::applyMenuTests, nullptr);
}
