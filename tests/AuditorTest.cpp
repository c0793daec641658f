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

#include "SoFormwrightClassList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

  ASSERT_EQ(messages.count(), 11u) << "tab dialogs have auditors of their own";
  const std::string intro = "WARNING ! The DialogAuditor does not define the ";
  const auto report = [&](const char* method, const std::string& rest) {
    return "Coin info in SoDialogAuditor::" + std::string(method) + "(): " + intro + rest;
  };
  EXPECT_EQ(messages.all()[0],
            report("dialogPushButton", "SoDialogPushButton component :\n\t\t -> label \"Name:\""
                                       "\n\t\t -> buttonLabel \"Apply\""));
  EXPECT_EQ(messages.all()[1], report("dialogCheckBox", "SoDialogCheckBox component :\n\t\t -> label \"Sound\""
                                                        "\n\t\t -> onString \"Loud\"\n\t\t -> offString \"\""));
  EXPECT_EQ(messages.all()[2], report("menuPushButton", "SoMenuPushButton component :\n\t\t -> label \"Open...\""));
  EXPECT_EQ(messages.all()[3], report("dialogComboBox", "SoDialogComboBox component :\n\t\t -> label \"Units\""
                                                        "\n\t\t -> selectedItem 1 : in"));
  EXPECT_EQ(messages.all()[4], report("dialogRadioButtons", "SoDialogRadioButtons component :"
                                                            "\n\t\t -> label \"Quality\"\n\t\t -> selectedItem 4 : "))
    << "an index that names no entry shows no text";
  EXPECT_EQ(messages.all()[5], report("dialogIntegerSlider", "SoDialogIntegerSlider component :"
                                                             "\n\t\t -> label \"Copies\"7"));
  EXPECT_EQ(messages.all()[6], report("dialogRealSlider", "SoDialogRealSlider component :"
                                                          "\n\t\t -> label \"Scale\"\n\t\t -> value \"0.25\""));
  EXPECT_EQ(messages.all()[7], report("dialogEditText", "SoDialogEditText component :"
                                                        "\n\t\t -> label \"Name:\"\n\t\t -> editText \"Ada\""));
  EXPECT_NE(messages.all()[8].find(report("menuCheckBox", "SoMenuCheckBox component :"
                                                          "\n\t\t -> label \"Off\"\n\t\t -> onString \"On\"")),
            std::string::npos)
    << messages.all()[8];
  EXPECT_NE(messages.all()[9].find(report("menuRadioButtons", "SoMenuRadioButtons component :"
                                                              "\n\t\t -> label \"\"\n\t\t -> selectedItem 1 : Medium")),
            std::string::npos)
    << messages.all()[9];
  EXPECT_NE(messages.all()[10].find(report("menuFileSelection", "SoMenuFileSelection component :"
                                                                "\n\t\t -> title \"Open a scene\""
                                                                "\n\t\t -> filename \"\"")),
            std::string::npos)
    << messages.all()[10];
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

TEST(AuditorTypes, endingTheLibraryRemovesTheNodeClassesInReverseOrder)
{
  // A class whose type is already gone says so when the end of the library
  // removes it, which shows the order of removal.
#define FORMWRIGHT_EXIT(K) K::exitClass();
  SO_FORMWRIGHT_FOR_EACH_CLASS(FORMWRIGHT_EXIT)
#undef FORMWRIGHT_EXIT
  DebugMessages messages;
  SoFormwright::finish();
  SoFormwright::init();
  std::vector<std::string> order;
#define FORMWRIGHT_NAME(K) order.insert(order.begin(), #K);
  SO_FORMWRIGHT_FOR_EACH_CLASS(FORMWRIGHT_NAME)
#undef FORMWRIGHT_NAME
  ASSERT_EQ(messages.count(), order.size());
  for (size_t i = 0; i < order.size(); ++i)
    EXPECT_NE(messages.all()[i].find(order[i] + "::exitClass"), std::string::npos) << messages.all()[i];
  EXPECT_FALSE(SoFormwright::getClassTypeId().isBad()) << "and a new start registers them all again";
  EXPECT_FALSE(SoMessageDialog::getClassTypeId().isBad());
}

}
