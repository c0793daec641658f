#pragma once

#include "SoDialogComponent.h"

class SoDialogEditTextAuditor;

// A one-line or multi-line text field.
class SoDialogEditText : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogEditText)
  SO_FORMWRIGHT_SKIN_HEADER(DialogEditText)

public:
  SoDialogEditText();

  void addAuditor(SoDialogEditTextAuditor* auditor);
  void removeAuditor(SoDialogEditTextAuditor* auditor);

protected:
  ~SoDialogEditText() override;
};
