#include <SoMessageDialog.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoMessageDialog, SoFormwright, "MessageDialog")

SoMessageDialog::SoMessageDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMessageDialog);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMessageDialog::~SoMessageDialog() = default;
