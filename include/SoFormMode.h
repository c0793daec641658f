#pragma once

// The library-wide choice of the form in which dialogs are built: widgets in
// a window (the default), or geometry in the scene. Until the application
// chooses, the preference or environment variable FORMWRIGHT_3D does: any
// value but "0" or an empty one asks for the scene.
class SoFormMode {
public:
  static bool isSceneForm();
  static void setSceneForm(bool sceneForm);
  // The `mode` argument that builds in the chosen form: 1 for widgets, 0 for
  // the scene.
  static int buildMode() { return isSceneForm() ? 0 : 1; }

private:
  static bool s_sceneForm;
  static bool s_chosen;
};
