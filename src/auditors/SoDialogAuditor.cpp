#include <SoDialogAuditor.h>

#include <SoDialogCheckBox.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogPushButton.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>
#include <SoMenuPushButton.h>
#include <SoPreferences.h>

#include "SoAuditorSource.h"
#include "SoSliderFormat.h"

#include <Inventor/errors/SoDebugError.h>

SO_FORMWRIGHT_AUDITOR_SOURCE(SoDialogAuditor, SoAuditor::getClassTypeId(), "SoDialogAuditor")

namespace {
// Read at every event, so that the report can be switched on while running.
bool reportsUnheardControls()
{
  return SoPreferences::getValue("DEBUG_FORMWRIGHT_AUDITORS") != nullptr;
}

// The head of the report on a control that the application left unheard.
SbString unheardControl(const char* className)
{
  SbString text("WARNING ! The DialogAuditor does not define the ");
  text += className;
  text += " component :";
  return text;
}

void addStringField(SbString& text, const char* name, const SoSFString& field)
{
  text += "\n\t\t -> ";
  text += name;
  text += " \"";
  text += field.getValue();
  text += "\"";
}

// The chosen entry's index and text; an index that names no entry shows no
// text.
void addSelection(SbString& text, const SoDialogChoice* node)
{
  const int32_t index = node->selectedItem.getValue();
  text += "\n\t\t -> selectedItem ";
  text.addIntString(index);
  text += " : ";
  if (index >= 0 && index < node->items.getNum())
    text += node->items[index];
}

void postUnheard(const char* source, const SbString& text)
{
  SoDebugError::postInfo(source, "%s", text.getString());
}
}

void SoDialogAuditor::dialogPushButton(SoDialogPushButton* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogPushButton");
  addStringField(text, "label", node->label);
  addStringField(text, "buttonLabel", node->buttonLabel);
  postUnheard("SoDialogAuditor::dialogPushButton", text);
}

void SoDialogAuditor::dialogCheckBox(SoDialogCheckBox* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogCheckBox");
  addStringField(text, "label", node->label);
  addStringField(text, "onString", node->onString);
  addStringField(text, "offString", node->offString);
  postUnheard("SoDialogAuditor::dialogCheckBox", text);
}

void SoDialogAuditor::dialogComboBox(SoDialogComboBox* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogComboBox");
  addStringField(text, "label", node->label);
  addSelection(text, node);
  postUnheard("SoDialogAuditor::dialogComboBox", text);
}

void SoDialogAuditor::dialogEditText(SoDialogEditText* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogEditText");
  addStringField(text, "label", node->label);
  addStringField(text, "editText", node->editText);
  postUnheard("SoDialogAuditor::dialogEditText", text);
}

// The value follows the label's closing quote with nothing between them.
void SoDialogAuditor::dialogIntegerSlider(SoDialogIntegerSlider* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogIntegerSlider");
  addStringField(text, "label", node->label);
  text.addIntString(node->value.getValue());
  postUnheard("SoDialogAuditor::dialogIntegerSlider", text);
}

void SoDialogAuditor::dialogRadioButtons(SoDialogRadioButtons* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogRadioButtons");
  addStringField(text, "label", node->label);
  addSelection(text, node);
  postUnheard("SoDialogAuditor::dialogRadioButtons", text);
}

void SoDialogAuditor::dialogRealSlider(SoDialogRealSlider* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoDialogRealSlider");
  addStringField(text, "label", node->label);
  text += "\n\t\t -> value \"";
  text += SoSliderFormat::formatReal(node->format.getValue(), node->value.getValue(),
                                     "SoDialogAuditor::dialogRealSlider");
  text += "\"";
  postUnheard("SoDialogAuditor::dialogRealSlider", text);
}

// No node hands a tab dialog to a general auditor: tab dialogs have auditors
// of their own.
void SoDialogAuditor::tabDialog(SoTabDialog*) {}

void SoDialogAuditor::menuPushButton(SoMenuPushButton* node)
{
  if (!reportsUnheardControls())
    return;
  SbString text = unheardControl("SoMenuPushButton");
  addStringField(text, "label", node->label);
  postUnheard("SoDialogAuditor::menuPushButton", text);
}

void SoDialogAuditor::menuCheckBox(SoMenuCheckBox*) {}
void SoDialogAuditor::menuFileSelection(SoMenuFileSelection*) {}
void SoDialogAuditor::menuRadioButtons(SoMenuRadioButtons*) {}
