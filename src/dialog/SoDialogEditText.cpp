#include <SoDialogEditText.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoDialogEditText, SoDialogComponent, "DialogEditText")

SoDialogEditText::SoDialogEditText()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoDialogEditText);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoDialogEditText::~SoDialogEditText() = default;
