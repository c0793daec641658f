#include <SoFormMode.h>

#include "SoPreferences.h"

#include <cstring>

bool SoFormMode::s_sceneForm = false;
bool SoFormMode::s_chosen = false;

bool SoFormMode::isSceneForm()
{
  if (s_chosen)
    return s_sceneForm;
  const char* preference = SoPreferences::getValue("FORMWRIGHT_3D");
  return preference && *preference && std::strcmp(preference, "0") != 0;
}

void SoFormMode::setSceneForm(bool sceneForm)
{
  s_sceneForm = sceneForm;
  s_chosen = true;
}
