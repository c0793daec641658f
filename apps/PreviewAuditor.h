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

private:
  std::FILE* m_out;
};

// One line of the preview's output, as above.
void reportAction(std::FILE* out, SoFormwright* node, const char* value);
