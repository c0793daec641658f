#include <SoDialogAuditor.h>

#include "SoAuditorSource.h"

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogAuditor, SoAuditor::getClassTypeId(), "SoDialogAuditor")

void SoDialogAuditor::dialogPushButton(SoDialogPushButton*) {}
void SoDialogAuditor::dialogCheckBox(SoDialogCheckBox*) {}
void SoDialogAuditor::dialogComboBox(SoDialogComboBox*) {}
void SoDialogAuditor::dialogEditText(SoDialogEditText*) {}
void SoDialogAuditor::dialogIntegerSlider(SoDialogIntegerSlider*) {}
void SoDialogAuditor::dialogRadioButtons(SoDialogRadioButtons*) {}
void SoDialogAuditor::dialogRealSlider(SoDialogRealSlider*) {}
void SoDialogAuditor::tabDialog(SoTabDialog*) {}
void SoDialogAuditor::menuPushButton(SoMenuPushButton*) {}
void SoDialogAuditor::menuCheckBox(SoMenuCheckBox*) {}
void SoDialogAuditor::menuFileSelection(SoMenuFileSelection*) {}
void SoDialogAuditor::menuRadioButtons(SoMenuRadioButtons*) {}
