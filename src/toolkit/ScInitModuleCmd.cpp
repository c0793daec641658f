#include "ScInitModuleCmd.h"

namespace {
ScInitModuleCmd s_defaultInstance;
ScInitModuleCmd* s_instance = &s_defaultInstance;
}

ScInitModuleCmd* ScInitModuleCmd::Instance()
{
  return s_instance;
}

void ScInitModuleCmd::setInstance(ScInitModuleCmd* instance)
{
  s_instance = instance ? instance : &s_defaultInstance;
}
