#include "PreviewAuditor.h"

#include <SoDialogCheckBox.h>
#include <SoDialogPushButton.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>

#include <string>

void PreviewAuditor::dialogPushButton(SoDialogPushButton* node)
{
  report(node, "pressed");
}

void PreviewAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  report(node, node->state.getValue() ? "TRUE" : "FALSE");
}

void PreviewAuditor::menuPushButton(SoMenuPushButton* node)
{
  report(node, "chosen");
}

void PreviewAuditor::menuCheckBox(SoMenuCheckBox* node)
{
  report(node, node->state.getValue() ? "TRUE" : "FALSE");
}

// The index chosen and its item.
void PreviewAuditor::menuRadioButtons(SoMenuRadioButtons* node)
{
  const int index = node->selectedItem.getValue();
  std::string value = std::to_string(index);
  if (index >= 0 && index < node->items.getNum())
    value += std::string(" \"") + node->items[index].getString() + "\"";
  report(node, value.c_str());
}

// The file chosen, or "" when the dialog was cancelled.
void PreviewAuditor::menuFileSelection(SoMenuFileSelection* node)
{
  std::string path;
  if (node->filename.getValue().getLength() > 0)
    path = std::string(node->fileDirectory.getValue().getString()) + "/" + node->filename.getValue().getString();
  report(node, ("\"" + path + "\"").c_str());
}

void PreviewAuditor::report(SoFormwright* node, const char* value)
{
  std::fprintf(m_out, "%s \"%s\": %s\n", node->getTypeId().getName().getString(),
               node->auditorID.getValue().getString(), value);
  std::fflush(m_out);
}
