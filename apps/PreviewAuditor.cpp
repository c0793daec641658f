#include "PreviewAuditor.h"

#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>

#include <QString>

void PreviewAuditor::dialogPushButton(SoDialogPushButton* node)
{
  reportAction(m_out, node, "pressed");
}

void PreviewAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  reportAction(m_out, node, node->state.getValue() ? "TRUE" : "FALSE");
}

void PreviewAuditor::dialogComboBox(SoDialogComboBox* node)
{
  reportChoice(node);
}

void PreviewAuditor::dialogRadioButtons(SoDialogRadioButtons* node)
{
  reportChoice(node);
}

void PreviewAuditor::dialogEditText(SoDialogEditText* node)
{
  SbString value("\"");
  value += node->editText.getValue();
  value += "\"";
  reportAction(m_out, node, value.getString());
}

void PreviewAuditor::dialogIntegerSlider(SoDialogIntegerSlider* node)
{
  SbString value;
  value.addIntString(node->value.getValue());
  reportAction(m_out, node, value.getString());
}

// Full precision: the slider's own format may round the value away.
void PreviewAuditor::dialogRealSlider(SoDialogRealSlider* node)
{
  reportAction(m_out, node, QString::number(node->value.getValue()).toLatin1().constData());
}

// The chosen index and its text, as in: 1 "Inches".
void PreviewAuditor::reportChoice(SoDialogChoice* node)
{
  const int index = node->selectedItem.getValue();
  SbString value;
  value.addIntString(index);
  value += " \"";
  if (index >= 0 && index < node->items.getNum())
    value += node->items[index];
  value += "\"";
  reportAction(m_out, node, value.getString());
}

void reportAction(std::FILE* out, SoFormwright* node, const char* value)
{
  std::fprintf(out, "%s \"%s\": %s\n", node->getTypeId().getName().getString(),
               node->auditorID.getValue().getString(), value);
  std::fflush(out);
}
