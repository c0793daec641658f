#pragma once

// How a general auditor on a container sorts a control by its class. Each
// test stands on its own, so that a class derived from a control (such as a
// launcher) reaches the operation of its base.

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>

namespace SoAuditorDispatch {

template <class Control>
bool isA(SoFormwright* node)
{
  return node->isOfType(Control::getClassTypeId());
}

inline void applyDialogTests(SoDialogAuditor* auditor, SoFormwright* node)
{
  if (isA<SoDialogPushButton>(node))
    auditor->dialogPushButton(static_cast<SoDialogPushButton*>(node));
  if (isA<SoDialogCheckBox>(node))
    auditor->dialogCheckBox(static_cast<SoDialogCheckBox*>(node));
  if (isA<SoDialogComboBox>(node))
    auditor->dialogComboBox(static_cast<SoDialogComboBox*>(node));
  if (isA<SoDialogEditText>(node))
    auditor->dialogEditText(static_cast<SoDialogEditText*>(node));
  if (isA<SoDialogRadioButtons>(node))
    auditor->dialogRadioButtons(static_cast<SoDialogRadioButtons*>(node));
  if (isA<SoDialogIntegerSlider>(node))
    auditor->dialogIntegerSlider(static_cast<SoDialogIntegerSlider*>(node));
  if (isA<SoDialogRealSlider>(node))
    auditor->dialogRealSlider(static_cast<SoDialogRealSlider*>(node));
}

// A file selection is a push button too, but hears only as itself.
inline void applyMenuTests(SoDialogAuditor* auditor, SoFormwright* node)
{
  if (isA<SoMenuCheckBox>(node))
    auditor->menuCheckBox(static_cast<SoMenuCheckBox*>(node));
  if (isA<SoMenuRadioButtons>(node))
    auditor->menuRadioButtons(static_cast<SoMenuRadioButtons*>(node));
  if (isA<SoMenuFileSelection>(node))
    auditor->menuFileSelection(static_cast<SoMenuFileSelection*>(node));
  else if (isA<SoMenuPushButton>(node))
    auditor->menuPushButton(static_cast<SoMenuPushButton*>(node));
}

}
