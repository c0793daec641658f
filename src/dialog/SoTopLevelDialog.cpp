#include <SoTopLevelDialog.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoTopLevelDialog, SoFormwright, "TopLevelDialog")

SoTopLevelDialog::SoTopLevelDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTopLevelDialog);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoTopLevelDialog::~SoTopLevelDialog() = default;
