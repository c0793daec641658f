#pragma once

#include "SoAuditor.h"

class SoDialogCheckBox;
class SoDialogComboBox;
class SoDialogEditText;
class SoDialogIntegerSlider;
class SoDialogPushButton;
class SoDialogRadioButtons;
class SoDialogRealSlider;
class SoMenuCheckBox;
class SoMenuFileSelection;
class SoMenuPushButton;
class SoMenuRadioButtons;
class SoTabDialog;

// A general auditor for groups, menus and windows: it hears of every kind of
// control below the node it is attached to, sorted by class. An application
// overrides the operations it cares about; the others do nothing.
class SoDialogAuditor : public SoAuditor {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoDialogAuditor)

public:
  virtual void dialogPushButton(SoDialogPushButton* node);
  virtual void dialogCheckBox(SoDialogCheckBox* node);
  virtual void dialogComboBox(SoDialogComboBox* node);
  virtual void dialogEditText(SoDialogEditText* node);
  virtual void dialogIntegerSlider(SoDialogIntegerSlider* node);
  virtual void dialogRadioButtons(SoDialogRadioButtons* node);
  virtual void dialogRealSlider(SoDialogRealSlider* node);
  virtual void tabDialog(SoTabDialog* node);
  virtual void menuPushButton(SoMenuPushButton* node);
  virtual void menuCheckBox(SoMenuCheckBox* node);
  virtual void menuFileSelection(SoMenuFileSelection* node);
  virtual void menuRadioButtons(SoMenuRadioButtons* node);

protected:
  SoDialogAuditor() = default;
};
