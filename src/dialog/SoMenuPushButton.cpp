#include <SoMenuPushButton.h>

#include <SoMenuPushButtonAuditor.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMenuPushButton, SoMenuItem, "MenuPushButton")

SoMenuPushButton::SoMenuPushButton()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuPushButton);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuPushButton::~SoMenuPushButton() = default;

void SoMenuPushButton::addAuditor(SoMenuPushButtonAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuPushButton::removeAuditor(SoMenuPushButtonAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}
