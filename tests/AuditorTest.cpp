#include "TestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogRadioButtons.h>
#include <SoDialogRealSlider.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuRadioButtons.h>
#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxAuditor.h>
#include <SoDialogChoiceAuditor.h>
#include <SoDialogEditTextAuditor.h>
#include <SoDialogIntegerSliderAuditor.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoDialogRealSliderAuditor.h>
#include <SoMenuCheckBoxAuditor.h>
#include <SoMenuFileSelectionAuditor.h>
#include <SoMenuPushButton.h>
#include <SoMenuPushButtonAuditor.h>
#include <SoMenuRadioButtonsAuditor.h>
#include <SoPreferences.h>
#include <SoTabDialogAuditor.h>

#include <cctype>

namespace {

class DefaultAuditor : public SoDialogAuditor {};

// Each default body reports the control it was handed, with the fields that
// tell it apart, as one message of its own.
TEST(DialogAuditor, defaultBodiesReportUnheardControlsOnlyWhenAsked)
{
  DefaultAuditor auditor;
  SoDialogPushButton* button = makeNode<SoDialogPushButton>();
  button->label = "Name:";
  button->buttonLabel = "Apply";
  {
    DebugMessages messages;
    auditor.dialogPushButton(button);
    EXPECT_EQ(messages.count(), 0u) << "silent unless the preference is set";
  }

  SoDialogCheckBox* box = makeNode<SoDialogCheckBox>();
  box->label = "Sound";
  box->onString = "Loud";
  SoMenuPushButton* entry = makeNode<SoMenuPushButton>();
  entry->label = "Open...";
  SoDialogComboBox* combo = makeNode<SoDialogComboBox>();
  combo->label = "Units";
  combo->items.setValues(0, 2, std::vector<const char*>{"mm", "in"}.data());
  combo->selectedItem = 1;
  SoDialogRadioButtons* radio = makeNode<SoDialogRadioButtons>();
  radio->label = "Quality";
  radio->items.setValues(0, 2, std::vector<const char*>{"Draft", "Best"}.data());
  radio->selectedItem = 4;
  SoDialogIntegerSlider* copies = makeNode<SoDialogIntegerSlider>();
  copies->label = "Copies";
  copies->max = 10;
  copies->value = 7;
  SoDialogRealSlider* scale = makeNode<SoDialogRealSlider>();
  scale->label = "Scale";
  scale->value = 0.25f;
  scale->format = "%.2f";
  SoDialogEditText* edit = makeNode<SoDialogEditText>();
  edit->label = "Name:";
  edit->editText = "Ada";
  SoMenuCheckBox* check = makeNode<SoMenuCheckBox>();
  check->label = "Off";
  check->onString = "On";
  SoMenuRadioButtons* zoom = makeNode<SoMenuRadioButtons>();
  zoom->items.setValues(0, 2, std::vector<const char*>{"Small", "Medium"}.data());
  zoom->selectedItem = 1;
  SoMenuFileSelection* file = makeNode<SoMenuFileSelection>();
  file->title = "Open a scene";

  SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1");
  DebugMessages messages;
  auditor.dialogPushButton(button);
  auditor.dialogCheckBox(box);
  auditor.menuPushButton(entry);
  auditor.tabDialog(nullptr);
  auditor.dialogComboBox(combo);
  auditor.dialogRadioButtons(radio);
  auditor.dialogIntegerSlider(copies);
  auditor.dialogRealSlider(scale);
  auditor.dialogEditText(edit);
  auditor.menuCheckBox(check);
  auditor.menuRadioButtons(zoom);
  auditor.menuFileSelection(file);
  SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS");

  // The menu entries' reports may carry more lines after the fields shown.
  const struct {
    const char* method;
    std::string fields;
  } reports[] = {
    {"dialogPushButton", "label \"Name:\"\n\t\t -> buttonLabel \"Apply\""},
    {"dialogCheckBox", "label \"Sound\"\n\t\t -> onString \"Loud\"\n\t\t -> offString \"\""},
    {"menuPushButton", "label \"Open...\""},
    {"dialogComboBox", "label \"Units\"\n\t\t -> selectedItem 1 : in"},
    {"dialogRadioButtons", "label \"Quality\"\n\t\t -> selectedItem 4 : "}, // no entry, no text
    {"dialogIntegerSlider", "label \"Copies\"7"},
    {"dialogRealSlider", "label \"Scale\"\n\t\t -> value \"0.25\""},
    {"dialogEditText", "label \"Name:\"\n\t\t -> editText \"Ada\""},
    {"menuCheckBox", "label \"Off\"\n\t\t -> onString \"On\""},
    {"menuRadioButtons", "label \"\"\n\t\t -> selectedItem 1 : Medium"},
    {"menuFileSelection", "title \"Open a scene\"\n\t\t -> filename \"\""},
  };
  ASSERT_EQ(messages.count(), 11u) << "tab dialogs have auditors of their own";
  for (size_t i = 0; i < 11; ++i) {
    std::string className = std::string("So") + reports[i].method;
    className[2] = static_cast<char>(std::toupper(className[2]));
    const std::string expected = "Coin info in SoDialogAuditor::" + std::string(reports[i].method) +
                                 "(): WARNING ! The DialogAuditor does not define the " + className +
                                 " component :\n\t\t -> " + reports[i].fields;
    if (i < 8)
      EXPECT_EQ(messages.all()[i], expected);
    else
      EXPECT_EQ(messages.all()[i].rfind(expected, 0), 0u) << messages.all()[i];
  }
  EXPECT_EQ(messages.severities()[0], SoDebugError::INFO) << "a report, not an error";
}

TEST(AuditorTypes, registeredUnderTheirNamesButTheTabDialogsStaysBad)
{
  const struct {
    SoType type;
    const char* name;
    const char* parent;
  } auditors[] = {
    {SoAuditor::getClassTypeId(), "Auditor", "BadType"},
    {SoDialogAuditor::getClassTypeId(), "SoDialogAuditor", "Auditor"},
    {SoDialogPushButtonAuditor::getClassTypeId(), "SoDialogPushButtonAuditor", "Auditor"},
    {SoDialogCheckBoxAuditor::getClassTypeId(), "SoDialogCheckBoxAuditor", "Auditor"},
    {SoDialogChoiceAuditor::getClassTypeId(), "SoDialogChoiceAuditor", "Auditor"},
    {SoDialogEditTextAuditor::getClassTypeId(), "SoDialogEditTextAuditor", "Auditor"},
    {SoDialogIntegerSliderAuditor::getClassTypeId(), "SoDialogIntegerSliderAuditor", "Auditor"},
    {SoDialogRealSliderAuditor::getClassTypeId(), "SoDialogRealSliderAuditor", "Auditor"},
    {SoMenuCheckBoxAuditor::getClassTypeId(), "SoMenuCheckBoxAuditor", "Auditor"},
    {SoMenuFileSelectionAuditor::getClassTypeId(), "SoMenuFileSelectionAuditor", "Auditor"},
    {SoMenuPushButtonAuditor::getClassTypeId(), "SoMenuPushButtonAuditor", "Auditor"},
    {SoMenuRadioButtonsAuditor::getClassTypeId(), "SoMenuRadioButtonsAuditor", "Auditor"},
  };
  for (const auto& auditor : auditors) {
    EXPECT_EQ(SoType::fromName(auditor.name), auditor.type) << auditor.name;
    EXPECT_STREQ(auditor.type.getParent().getName().getString(), auditor.parent) << auditor.name;
  }
  EXPECT_TRUE(SoTabDialogAuditor::getClassTypeId().isBad());
  EXPECT_TRUE(SoType::fromName("SoTabDialogAuditor").isBad());
  EXPECT_EQ(DefaultAuditor().getTypeId(), SoDialogAuditor::getClassTypeId()) << "a derived auditor has no type of its own";
}

}
