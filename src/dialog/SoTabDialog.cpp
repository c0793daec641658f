#include <SoTabDialog.h>

#include <SoTabDialogAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoTabDialog, SoDialogGroup, "TabDialog")

SoTabDialog::SoTabDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTabDialog);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoTabDialog::~SoTabDialog() = default;

void SoTabDialog::addAuditor(SoTabDialogAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoTabDialog::removeAuditor(SoTabDialogAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
