#include "PreviewAuditor.h"

#include <SoDialogCheckBox.h>
#include <SoDialogPushButton.h>

void PreviewAuditor::dialogPushButton(SoDialogPushButton* node)
{
  reportAction(m_out, node, "pressed");
}

void PreviewAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  reportAction(m_out, node, node->state.getValue() ? "TRUE" : "FALSE");
}

void reportAction(std::FILE* out, SoFormwright* node, const char* value)
{
  std::fprintf(out, "%s \"%s\": %s\n", node->getTypeId().getName().getString(),
               node->auditorID.getValue().getString(), value);
  std::fflush(out);
}
