#pragma once

#include "SoPreferences.h"

#include <cstring>

// The toolkit-wide choice of the form in which dialogs are built: widgets in
// a window (the default), or geometry in the scene. Until the application
// chooses, the preference FORMWRIGHT_3D does: any value but "0" or an empty
// one asks for the scene.
class SoFormMode {
public:
  static bool isSceneForm()
  {
    if (s_chosen)
      return s_sceneForm;
    const char* preference = SoPreferences::getValue("FORMWRIGHT_3D");
    return preference && *preference && std::strcmp(preference, "0") != 0;
  }
  static void setSceneForm(bool sceneForm)
  {
    s_sceneForm = sceneForm;
    s_chosen = true;
  }
  // The `mode` argument that builds in the chosen form: 1 for widgets, 0 for
  // the scene.
  static int buildMode() { return isSceneForm() ? 0 : 1; }

private:
  static inline bool s_sceneForm = false;
  static inline bool s_chosen = false;
};
