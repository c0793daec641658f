#pragma once

// The toolkit-wide choice of the form in which dialogs are built: widgets in
// a window (the default), or geometry in the scene.
class SoFormMode {
public:
  static bool isSceneForm() { return s_sceneForm; }
  static void setSceneForm(bool sceneForm) { s_sceneForm = sceneForm; }
  // The `mode` argument that builds in the chosen form: 1 for widgets, 0 for
  // the scene.
  static int buildMode() { return s_sceneForm ? 0 : 1; }

private:
  static inline bool s_sceneForm = false;
};
