#include "SoToolkitStarts.h"

#include "SoSFFilePathString.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/nodekits/SoNodeKit.h>

namespace {
int s_startCount = 0;
// False when the application had started the toolkit before us: then the
// teardown is the application's to make.
bool s_ownsToolkit = false;
}

void SoToolkitStarts::init()
{
  if (s_startCount == 0)
    s_ownsToolkit = !SoDB::isInitialized();
  SoDB::init();
  SoNodeKit::init();
  SoInteraction::init();
  SoSFFilePathString::initClass();
  ++s_startCount;
}

void SoToolkitStarts::finish()
{
  if (s_startCount == 0)
    return;
  if (--s_startCount == 0 && s_ownsToolkit)
    SoDB::finish();
}

int SoToolkitStarts::getStartCount()
{
  return s_startCount;
}
