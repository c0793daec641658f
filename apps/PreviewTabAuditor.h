#pragma once

#include <SoTabDialogAuditor.h>

#include <cstdio>

// Prints the page that the user chose in a tab dialog, in the line format of
// PreviewAuditor: a tab dialog's page changes reach only auditors of this
// kind.
class PreviewTabAuditor : public SoTabDialogAuditor {
public:
  explicit PreviewTabAuditor(std::FILE* out) : m_out(out) {}

  void tabDialog(SoTabDialog* node) override;

private:
  std::FILE* m_out;
};
