#pragma once

#include <SoTabDialogAuditor.h>

#include <cstdio>
#include <map>

class SoDragger;

// Prints the page that the user chose in a tab dialog, in the line format of
// PreviewAuditor: a tab dialog's page changes reach only auditors of this
// kind. A page chosen in the scene reaches no auditor at all; the tab
// dialog's press tells of it there.
class PreviewTabAuditor : public SoTabDialogAuditor {
public:
  explicit PreviewTabAuditor(std::FILE* out) : m_out(out) {}

  void tabDialog(SoTabDialog* node) override;
  // Called before the tab dialog's 3D form is built, so that the press is
  // seen before and after the page changes.
  void followInScene(SoTabDialog* node);

private:
  static void pressStarted(void* data, SoDragger* dragger);
  static void pressFinished(void* data, SoDragger* dragger);

  std::FILE* m_out;
  std::map<SoDragger*, int> m_pageAtPress;
};
