#pragma once

// An application's auditor that acts when it hears of a user's action: it
// plays its reactions in turn, one for each call, through the session that
// made it. A reaction may write fields, edit the tree, rebuild, or detach
// this very auditor while the library is still calling it.

#include "ActionTape.h"

#include <SoDialogAuditor.h>

#include <Inventor/nodes/SoNode.h>

#include <functional>
#include <vector>

class ReactingAuditor : public SoDialogAuditor {
public:
  using Player = std::function<void(ReactingAuditor&, const Action&)>;

  ReactingAuditor(SoNode* listenedTo, std::vector<Action> reactions, Player play)
    : m_listenedTo(listenedTo), m_reactions(std::move(reactions)), m_play(std::move(play))
  {
    m_listenedTo->ref();
  }
  ~ReactingAuditor() override { m_listenedTo->unref(); }
  ReactingAuditor(const ReactingAuditor&) = delete;
  ReactingAuditor& operator=(const ReactingAuditor&) = delete;

  SoNode* listenedTo() const { return m_listenedTo; }
  bool attached = true;

  void dialogPushButton(SoDialogPushButton*) override { react(); }
  void dialogCheckBox(SoDialogCheckBox*) override { react(); }
  void dialogComboBox(SoDialogComboBox*) override { react(); }
  void dialogEditText(SoDialogEditText*) override { react(); }
  void dialogIntegerSlider(SoDialogIntegerSlider*) override { react(); }
  void dialogRadioButtons(SoDialogRadioButtons*) override { react(); }
  void dialogRealSlider(SoDialogRealSlider*) override { react(); }
  void tabDialog(SoTabDialog*) override { react(); }
  void menuPushButton(SoMenuPushButton*) override { react(); }
  void menuCheckBox(SoMenuCheckBox*) override { react(); }
  void menuFileSelection(SoMenuFileSelection*) override { react(); }
  void menuRadioButtons(SoMenuRadioButtons*) override { react(); }

private:
  void react()
  {
    if (m_reactions.empty())
      return;
    const Action action = m_reactions[m_calls++ % m_reactions.size()];
    m_play(*this, action);
  }

  SoNode* m_listenedTo;
  std::vector<Action> m_reactions;
  Player m_play;
  size_t m_calls = 0;
};
