#pragma once

// A general auditor for the tests of auditors, menus and launchers: it
// writes down each control it hears of as "kind:auditorID:value", and, if a
// dialog is watched, whether that dialog was on screen at that moment.

#include <SoDialogAuditor.h>
#include <SoDialogCheckBox.h>
#include <SoDialogPushButton.h>
#include <SoMenuCheckBox.h>
#include <SoMenuFileSelection.h>
#include <SoMenuPushButton.h>
#include <SoMenuRadioButtons.h>
#include <SoTopLevelDialog.h>

#include <QLayout>
#include <QMenuBar>
#include <QWidget>

#include <string>
#include <vector>

// Whether a dialog's window is on screen.
inline bool isShown(SoTopLevelDialog* dialog)
{
  return dialog->getBaseWidget() && dialog->getBaseWidget()->isVisible();
}

// The Qt menu bar that a built window placed, or null.
inline QMenuBar* menuBarOf(SoTopLevelDialog* window)
{
  return qobject_cast<QMenuBar*>(window->getBaseWidget()->layout()->menuBar());
}

class EventLog : public SoDialogAuditor {
public:
  void dialogPushButton(SoDialogPushButton* node) override { note("button", node, ""); }
  void dialogCheckBox(SoDialogCheckBox* node) override { note("check", node, node->state.getValue() ? "TRUE" : "FALSE"); }
  void menuPushButton(SoMenuPushButton* node) override { note("push", node, ""); }
  void menuCheckBox(SoMenuCheckBox* node) override
  {
    note("menuCheck", node, node->state.getValue() ? "TRUE" : "FALSE");
    if (stateToSet >= 0)
      node->state = stateToSet;
  }
  void menuRadioButtons(SoMenuRadioButtons* node) override
  {
    note("radio", node, std::to_string(node->selectedItem.getValue()));
  }
  void menuFileSelection(SoMenuFileSelection* node) override
  {
    note("file", node, std::string(node->fileDirectory.getValue().getString()) + "|" +
                         node->filename.getValue().getString());
  }

  std::vector<std::string> entries;
  // Where the entries go, so that several auditors can write one log, and
  // the name that each entry then starts with.
  std::vector<std::string>* log = &entries;
  std::string name;
  SoTopLevelDialog* watched = nullptr;
  // A value that menuCheckBox writes back into the entry's state, if set.
  int stateToSet = -1;

private:
  void note(const char* kind, SoFormwright* node, const std::string& value)
  {
    std::string entry = (name.empty() ? "" : name + ":") + kind + ":" + node->auditorID.getValue().getString() + ":" + value;
    if (watched)
      entry += isShown(watched) ? ":shown" : ":hidden";
    log->push_back(entry);
  }
};
