#include "TestSupport.h"

#include <SoDialogAuditor.h>
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

  SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1");
  DebugMessages messages;
  auditor.dialogPushButton(button);
  SoDialogCheckBox* box = makeNode<SoDialogCheckBox>();
  box->label = "Sound";
  box->onString = "Loud";
  auditor.dialogCheckBox(box);
  SoMenuPushButton* entry = makeNode<SoMenuPushButton>();
  entry->label = "Open...";
  auditor.menuPushButton(entry);
  auditor.tabDialog(nullptr);
  SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS");

  ASSERT_EQ(messages.count(), 3u) << "tab dialogs have auditors of their own";
  const std::string intro = "WARNING ! The DialogAuditor does not define the ";
  EXPECT_NE(messages.all()[0].find("SoDialogAuditor::dialogPushButton"), std::string::npos);
  EXPECT_NE(messages.all()[0].find(intro + "SoDialogPushButton component :\n\t\t -> label \"Name:\""
                                           "\n\t\t -> buttonLabel \"Apply\""),
            std::string::npos)
    << messages.all()[0];
  EXPECT_NE(messages.all()[1].find(intro + "SoDialogCheckBox component :\n\t\t -> label \"Sound\""
                                           "\n\t\t -> onString \"Loud\"\n\t\t -> offString \"\""),
            std::string::npos)
    << messages.all()[1];
  EXPECT_NE(messages.all()[2].find("SoDialogAuditor::menuPushButton"), std::string::npos);
  EXPECT_NE(messages.all()[2].find(intro + "SoMenuPushButton component :\n\t\t -> label \"Open...\""),
            std::string::npos)
    << messages.all()[2];
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
  const char* const order[] = {
    "SoMessageDialog", "SoTopLevelDialog", "SoMenuBar", "SoDialogRealSlider", "SoDialogIntegerSlider",
    "SoDialogSlider", "SoDialogSeparator", "SoDialogPushButtonLauncher", "SoDialogPushButton", "SoDialogLabel",
    "SoTabDialog", "SoRowDialog", "SoColumnDialog", "SoDialogGroup", "SoDialogEditText", "SoDialogCustom",
    "SoDialogRadioButtons", "SoDialogComboBox", "SoDialogChoice", "SoDialogCheckBoxLauncher", "SoDialogCheckBox",
    "SoDialogComponent", "SoTopComponent", "SoMenuSeparator", "SoMenuRadioButtons", "SoMenuPushButtonLauncher",
    "SoMenuFileSelection", "SoMenuPushButton", "SoMenuPopup", "SoMenuCheckBoxLauncher", "SoMenuCheckBox",
    "SoMenuItem", "SoFormwright"};
  ASSERT_EQ(messages.count(), std::size(order));
  for (size_t i = 0; i < std::size(order); ++i)
    EXPECT_NE(messages.all()[i].find(std::string(order[i]) + "::exitClass"), std::string::npos) << messages.all()[i];
  EXPECT_FALSE(SoFormwright::getClassTypeId().isBad()) << "and a new start registers them all again";
  EXPECT_FALSE(SoMessageDialog::getClassTypeId().isBad());
}

}
