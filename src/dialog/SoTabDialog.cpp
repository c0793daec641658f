#include <SoTabDialog.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoTabDialog, SoDialogGroup, "TabDialog")

SoTabDialog::SoTabDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTabDialog);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoTabDialog::~SoTabDialog() = default;
