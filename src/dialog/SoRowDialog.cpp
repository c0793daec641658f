#include <SoRowDialog.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoRowDialog, SoDialogGroup, "RowDialog")

SoRowDialog::SoRowDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoRowDialog);
  SO_FORMWRIGHT_ADD_FIELD(rowSpacing, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoRowDialog::~SoRowDialog() = default;
