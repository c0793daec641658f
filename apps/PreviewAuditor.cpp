#include "PreviewAuditor.h"

#include <SoDialogCheckBox.h>
#include <SoDialogPushButton.h>

void PreviewAuditor::dialogPushButton(SoDialogPushButton* node)
{
  report(node, "pressed");
}

void PreviewAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  report(node, node->state.getValue() ? "TRUE" : "FALSE");
}

void PreviewAuditor::report(SoFormwright* node, const char* value)
{
  std::fprintf(m_out, "%s \"%s\": %s\n", node->getTypeId().getName().getString(),
               node->auditorID.getValue().getString(), value);
  std::fflush(m_out);
}
