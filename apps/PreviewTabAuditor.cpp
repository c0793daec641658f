#include "PreviewTabAuditor.h"

#include "PreviewAuditor.h"

#include <SoTabDialog.h>

#include <string>

void PreviewTabAuditor::tabDialog(SoTabDialog* node)
{
  reportAction(m_out, node, std::to_string(node->selectedPage.getValue()).c_str());
}
