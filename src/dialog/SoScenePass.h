#pragma once

// A build of the scene form walks the tree from the top, and no size below a
// group changes before that group is built: within one such build the
// default sizes of a group, which every level above it asks for, are worked
// out once. A build of widgets sizes a window after building its children,
// so it suspends any pass that is open.
class SoScenePass {
public:
  // A window's build starts a pass of its own; a group's joins the open one.
  SoScenePass(int mode, bool ownPass) : m_saved(s_current)
  {
    if (mode != 0)
      s_current = 0;
    else if (ownPass || s_current == 0)
      s_current = ++s_last;
  }
  ~SoScenePass() { s_current = m_saved; }
  SoScenePass(const SoScenePass&) = delete;
  SoScenePass& operator=(const SoScenePass&) = delete;

  // 0 while no pass is open.
  static int current() { return s_current; }

private:
  int m_saved;
  static inline int s_current = 0;
  static inline int s_last = 0;
};
