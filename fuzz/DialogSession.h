#pragma once

// One run of the event-sequence fuzzer: reads the dialog of the tape, plays
// its actions on it as an application and a user would, in the window form,
// the scene form or both, and lets everything go at the end.

#include "ActionTape.h"
#include "ReactingAuditor.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoHandleEventAction.h>

#include <QPointer>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class SoEvent;
class SoFormwright;
class SoSeparator;
class SoTopLevelDialog;

class DialogSession {
public:
  explicit DialogSession(ActionTape& tape);
  ~DialogSession();
  DialogSession(const DialogSession&) = delete;
  DialogSession& operator=(const DialogSession&) = delete;

  void playAll();

private:
  void load();
  void release();
  void play(const Action& action);

  void writeField(const Action& action);
  void sendMouse(const Action& action);
  void sendKey(const Action& action);
  void closeWindow(const Action& action);
  void pointInScene(const Action& action);
  void keyInScene(const Action& action);
  void editTree(const Action& action);
  void build(uint8_t form);
  void showHideClose(uint8_t which);
  void attachAuditor(const Action& action);
  void detachAuditor(ReactingAuditor* auditor);
  void deleteHost();
  void restart();

  std::vector<SoFormwright*> nodes() const;
  SoNode* newOrExistingNode(uint8_t pick);
  QWidget* widget(uint8_t pick) const;
  QWidget* shownWidget(uint8_t pick) const;
  static void hideHugeWindows();
  void applyInScene(SoEvent& event);

  ActionTape& m_tape;
  SoSeparator* m_fileRoot = nullptr;
  SoTopLevelDialog* m_dialog = nullptr;
  SoSeparator* m_scene = nullptr;
  SbViewportRegion m_viewport;
  SoHandleEventAction m_sceneAction;
  QPointer<QWidget> m_host;
  std::vector<std::unique_ptr<ReactingAuditor>> m_auditors;
  // How deep auditors' reactions run inside one another.
  int m_reactionDepth = 0;
  bool m_skinSwapped = false;
};
