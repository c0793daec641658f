#pragma once

#include "SoMenuPushButton.h"
#include "SoSFFilePathString.h"

#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFString.h>

class SoMenuFileSelectionAuditor;

// A menu entry that asks the user for a file with Qt's file dialog and keeps
// the answer in `fileDirectory` and `filename`. Its auditors hear of every
// answer, a cancel included, through menuFileSelection only.
class SoMenuFileSelection : public SoMenuPushButton {
  SO_FORMWRIGHT_HEADER(SoMenuFileSelection)

public:
  enum Mode { OPEN = 1, SAVE = 2 };

  // The dialog's caption.
  SoSFString title;
  // Pairs of pattern and description, such as "*.scn", "Scenic file"; an
  // odd last value is left out.
  SoMFString filter;
  // Kept and written only: the dialog starts on the first filter.
  SoSFInt32 defaultFilter;
  // Where the dialog starts, with preference and environment variables
  // expanded; then the directory of the file chosen.
  SoSFFilePathString fileDirectory;
  // The file chosen, without its directory; "" after a cancel.
  SoSFFilePathString filename;
  SoSFEnum mode;

  SoMenuFileSelection();

  void addAuditor(SoMenuFileSelectionAuditor* auditor);
  void removeAuditor(SoMenuFileSelectionAuditor* auditor);
  void applyDlgCptAuditor();
  // Tells the auditors of the file in the fields, as a choice in the dialog
  // does.
  void validateFilename();
  // The entry was chosen: the file dialog opens.
  void menuEvent(void* data, int id) override;

protected:
  ~SoMenuFileSelection() override;

  // Runs the dialog, modal and tied to no window, and keeps its answer.
  void openDialogBox();
  // Chosen in the scene, the entry opens the file dialog as in a window.
  void draggerFinishCallback3D() override;
};
