#include <SoDialogEditText.h>

#include <SoDialogEditTextAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogEditText, SoDialogComponent, "DialogEditText")

SoDialogEditText::SoDialogEditText()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogEditText);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogEditText::~SoDialogEditText() = default;

void SoDialogEditText::addAuditor(SoDialogEditTextAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoDialogEditText::removeAuditor(SoDialogEditTextAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
