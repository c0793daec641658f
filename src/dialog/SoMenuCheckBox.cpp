#include <SoMenuCheckBox.h>

#include <SoMenuCheckBoxAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuCheckBox, SoMenuItem, "MenuCheckBox")

SoMenuCheckBox::SoMenuCheckBox()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuCheckBox);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuCheckBox::~SoMenuCheckBox() = default;

void SoMenuCheckBox::addAuditor(SoMenuCheckBoxAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuCheckBox::removeAuditor(SoMenuCheckBoxAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
