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
  report(node, "pressed");
}

void PreviewAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  report(node, node->state.getValue() ? "TRUE" : "FALSE");
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
  report(node, value);
}

void PreviewAuditor::dialogIntegerSlider(SoDialogIntegerSlider* node)
{
  SbString value;
  value.addIntString(node->value.getValue());
  report(node, value);
}

// Full precision: the slider's own format may round the value away.
void PreviewAuditor::dialogRealSlider(SoDialogRealSlider* node)
{
  report(node, QString::number(node->value.getValue()).toLatin1().constData());
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
  report(node, value);
}

void PreviewAuditor::report(SoFormwright* node, const SbString& value)
{
  std::fprintf(m_out, "%s \"%s\": %s\n", node->getTypeId().getName().getString(),
               node->auditorID.getValue().getString(), value.getString());
  std::fflush(m_out);
}
