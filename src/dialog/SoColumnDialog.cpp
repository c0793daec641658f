#include <SoColumnDialog.h>

#include "SoFormwrightSubNodeSource.h"

SO_FORMWRIGHT_SOURCE(SoColumnDialog, SoDialogGroup, "ColumnDialog")

SoColumnDialog::SoColumnDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoColumnDialog);
  SO_FORMWRIGHT_ADD_FIELD(columnSpacing, 0);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoColumnDialog::~SoColumnDialog() = default;
