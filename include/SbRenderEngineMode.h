#pragma once

// Per-class declaration of the rendering path a node class is written for.
// Interface nodes declare it at registration and nothing else reads it; the
// value is kept so that classes can be asked for it like any toolkit node.
class SbRenderEngineMode {
public:
  enum RenderMode {
    NOT_DEFINED = 0,
    OPENGL_COMPATIBILITY = 1,
    OPENGL_CORE = 2
  };

  void setRenderMode(int mode) { m_renderMode = mode; }
  int getRenderMode() const { return m_renderMode; }
  void setChildrenInherit(bool inherit) { m_childrenInherit = inherit; }
  bool isChildrenInherit() const { return m_childrenInherit; }

private:
  int m_renderMode = NOT_DEFINED;
  bool m_childrenInherit = false;
};
