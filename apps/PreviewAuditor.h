#pragma once

#include <SoDialogAuditor.h>

#include <cstdio>

class SoFormwright;

// Prints one line for every action of the user: the control's type, its
// auditorID and its new value.
class PreviewAuditor : public SoDialogAuditor {
public:
  explicit PreviewAuditor(std::FILE* out) : m_out(out) {}

  void dialogPushButton(SoDialogPushButton* node) override;
  void dialogCheckBox(SoDialogCheckBox* node) override;
  void menuPushButton(SoMenuPushButton* node) override;
  void menuCheckBox(SoMenuCheckBox* node) override;
  void menuRadioButtons(SoMenuRadioButtons* node) override;
  void menuFileSelection(SoMenuFileSelection* node) override;

private:
  void report(SoFormwright* node, const char* value);

  std::FILE* m_out;
};
