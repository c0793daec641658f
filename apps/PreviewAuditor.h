#pragma once

#include <SoDialogAuditor.h>

#include <cstdio>

class SoDialogChoice;
class SoFormwright;

// Prints one line for every action of the user: the control's type, its
// auditorID and its new value.
class PreviewAuditor : public SoDialogAuditor {
public:
  explicit PreviewAuditor(std::FILE* out) : m_out(out) {}

  void dialogPushButton(SoDialogPushButton* node) override;
  void dialogCheckBox(SoDialogCheckBox* node) override;
  void dialogComboBox(SoDialogComboBox* node) override;
  void dialogRadioButtons(SoDialogRadioButtons* node) override;
  void dialogEditText(SoDialogEditText* node) override;
  void dialogIntegerSlider(SoDialogIntegerSlider* node) override;
  void dialogRealSlider(SoDialogRealSlider* node) override;

private:
  void reportChoice(SoDialogChoice* node);

  std::FILE* m_out;
};

// One line of the preview's output, as above.
void reportAction(std::FILE* out, SoFormwright* node, const char* value);
