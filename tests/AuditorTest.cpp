#include "TestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxAuditor.h>
#include <SoDialogChoice.h>
#include <SoDialogChoiceAuditor.h>
#include <SoDialogEditText.h>
#include <SoDialogEditTextAuditor.h>
#include <SoDialogIntegerSlider.h>
#include <SoDialogIntegerSliderAuditor.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonAuditor.h>
#include <SoDialogRealSlider.h>
#include <SoDialogRealSliderAuditor.h>
#include <SoMenuCheckBox.h>
#include <SoMenuCheckBoxAuditor.h>
#include <SoMenuFileSelection.h>
#include <SoMenuFileSelectionAuditor.h>
#include <SoMenuPushButton.h>
#include <SoMenuPushButtonAuditor.h>
#include <SoMenuRadioButtons.h>
#include <SoMenuRadioButtonsAuditor.h>
#include <SoPreferences.h>
#include <SoTabDialog.h>
#include <SoTabDialogAuditor.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class DefaultAuditor : public SoDialogAuditor {};

// Switches the report on unheard controls on for one test.
class ReportOn {
public:
  ReportOn() { SoPreferences::setString("DEBUG_FORMWRIGHT_AUDITORS", "1"); }
  ~ReportOn() { SoPreferences::unsetString("DEBUG_FORMWRIGHT_AUDITORS"); }
};

TEST(DialogAuditor, defaultBodiesReportOnlyWhenAsked)
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

  ReportOn report;
  DebugMessages messages;
  auditor.dialogPushButton(button);
  ASSERT_EQ(messages.count(), 1u);
  EXPECT_TRUE(messages.contains("SoDialogAuditor::dialogPushButton")) << messages.all()[0];
  EXPECT_TRUE(messages.contains("WARNING ! The DialogAuditor does not define the SoDialogPushButton component :"
                                "\n\t\t -> label \"Name:\""
                                "\n\t\t -> buttonLabel \"Apply\""))
    << messages.all()[0];

  SoDialogPushButton* plain = makeNode<SoDialogPushButton>();
  auditor.dialogPushButton(plain);
  ASSERT_EQ(messages.count(), 2u);
  EXPECT_NE(messages.all()[1].find("component :\n\t\t -> label \"\"\n\t\t -> buttonLabel \"\""), std::string::npos)
    << "empty fields are shown as empty";
}

TEST(DialogAuditor, reportNamesTheControlsClassAndFields)
{
  DefaultAuditor auditor;
  ReportOn report;
  DebugMessages messages;

  SoDialogCheckBox* box = makeNode<SoDialogCheckBox>();
  box->label = "Sound";
  box->onString = "Loud";
  box->offString = "Quiet";
  auditor.dialogCheckBox(box);
  ASSERT_EQ(messages.count(), 1u);
  EXPECT_TRUE(messages.contains("SoDialogAuditor::dialogCheckBox"));
  EXPECT_TRUE(messages.contains("WARNING ! The DialogAuditor does not define the SoDialogCheckBox component :"
                                "\n\t\t -> label \"Sound\""
                                "\n\t\t -> onString \"Loud\""
                                "\n\t\t -> offString \"Quiet\""))
    << messages.all()[0];

  SoMenuPushButton* entry = makeNode<SoMenuPushButton>();
  entry->label = "Open...";
  auditor.menuPushButton(entry);
  ASSERT_EQ(messages.count(), 2u);
  EXPECT_NE(messages.all()[1].find("SoDialogAuditor::menuPushButton"), std::string::npos);
  EXPECT_NE(messages.all()[1].find("WARNING ! The DialogAuditor does not define the SoMenuPushButton component :"
                                   "\n\t\t -> label \"Open...\""),
            std::string::npos)
    << messages.all()[1];

  auditor.tabDialog(nullptr);
  EXPECT_EQ(messages.count(), 2u) << "tab dialogs have auditors of their own";
}

TEST(DialogAuditor, reportIsAnInfoNotAnError)
{
  DefaultAuditor auditor;
  ReportOn report;
  SoDialogCheckBox* box = makeNode<SoDialogCheckBox>();
  struct Severity {
    static void collect(const SoError* error, void* data)
    {
      *static_cast<int*>(data) = static_cast<const SoDebugError*>(error)->getSeverity();
    }
  };
  int severity = -1;
  SoErrorCB* previous = SoDebugError::getHandlerCallback();
  void* previousData = SoDebugError::getHandlerData();
  SoDebugError::setHandlerCallback(&Severity::collect, &severity);
  auditor.dialogCheckBox(box);
  SoDebugError::setHandlerCallback(previous, previousData);
  EXPECT_EQ(severity, SoDebugError::INFO);
}

// Each control takes auditors of its own class only; adding one twice keeps
// one, and removing it leaves none.
template <class Node, class Auditor>
void checkTypedAuditorList()
{
  class Exposed : public Node {
  public:
    using Node::getAuditorListLength;
  };
  auto* node = new Exposed;
  node->ref();
  Auditor auditor, other;
  node->removeAuditor(&auditor);
  node->addAuditor(&auditor);
  node->addAuditor(&auditor);
  EXPECT_EQ(node->getAuditorListLength(), 1) << Node::getClassTypeId().getName().getString();
  node->addAuditor(&other);
  node->removeAuditor(&auditor);
  EXPECT_EQ(node->getAuditorListLength(), 1) << Node::getClassTypeId().getName().getString();
  node->removeAuditor(&other);
  EXPECT_EQ(node->getAuditorListLength(), 0) << Node::getClassTypeId().getName().getString();
}

class PushButtonAuditor : public SoDialogPushButtonAuditor {
  void dialogPushButton(SoDialogPushButton*) override {}
};
class CheckBoxAuditor : public SoDialogCheckBoxAuditor {
  void dialogCheckBox(SoDialogCheckBox*) override {}
};
class ChoiceAuditor : public SoDialogChoiceAuditor {
  void dialogChoice(SoDialogChoice*) override {}
};
class EditTextAuditor : public SoDialogEditTextAuditor {
  void dialogEditText(SoDialogEditText*) override {}
};
class IntegerSliderAuditor : public SoDialogIntegerSliderAuditor {
  void dialogIntegerSlider(SoDialogIntegerSlider*) override {}
};
class RealSliderAuditor : public SoDialogRealSliderAuditor {
  void dialogRealSlider(SoDialogRealSlider*) override {}
};
class TabAuditor : public SoTabDialogAuditor {
  void tabDialog(SoTabDialog*) override {}
};
class MenuCheckBoxAuditor : public SoMenuCheckBoxAuditor {
  void menuCheckBox(SoMenuCheckBox*) override {}
};
class MenuPushButtonAuditor : public SoMenuPushButtonAuditor {
  void menuPushButton(SoMenuPushButton*) override {}
};
class MenuFileSelectionAuditor : public SoMenuFileSelectionAuditor {
  void menuFileSelection(SoMenuFileSelection*) override {}
};
class MenuRadioButtonsAuditor : public SoMenuRadioButtonsAuditor {
  void menuRadioButtons(SoMenuRadioButtons*) override {}
};

TEST(ControlAuditors, eachControlKeepsAListOfItsOwnAuditorClass)
{
  checkTypedAuditorList<SoDialogPushButton, PushButtonAuditor>();
  checkTypedAuditorList<SoDialogCheckBox, CheckBoxAuditor>();
  checkTypedAuditorList<SoDialogChoice, ChoiceAuditor>();
  checkTypedAuditorList<SoDialogEditText, EditTextAuditor>();
  checkTypedAuditorList<SoDialogIntegerSlider, IntegerSliderAuditor>();
  checkTypedAuditorList<SoDialogRealSlider, RealSliderAuditor>();
  checkTypedAuditorList<SoTabDialog, TabAuditor>();
  checkTypedAuditorList<SoMenuCheckBox, MenuCheckBoxAuditor>();
  checkTypedAuditorList<SoMenuPushButton, MenuPushButtonAuditor>();
  checkTypedAuditorList<SoMenuFileSelection, MenuFileSelectionAuditor>();
  checkTypedAuditorList<SoMenuRadioButtons, MenuRadioButtonsAuditor>();
}

}
