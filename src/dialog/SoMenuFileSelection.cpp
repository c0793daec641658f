#include <SoMenuFileSelection.h>

#include <SoMenuFileSelectionAuditor.h>

#include "SbFileHelper.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <QFileDialog>

SO_FORMWRIGHT_SOURCE(SoMenuFileSelection, SoMenuPushButton, "MenuFileSelection")

SoMenuFileSelection::SoMenuFileSelection()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuFileSelection);
  SO_FORMWRIGHT_ADD_FIELD(title, "");
  SO_FORMWRIGHT_ADD_FIELD(filter, "*.scn");
  SO_FORMWRIGHT_ADD_FIELD(defaultFilter, 0);
  SO_FORMWRIGHT_ADD_FIELD(fileDirectory, ".");
  SO_FORMWRIGHT_ADD_FIELD(filename, "");
  SO_FORMWRIGHT_ADD_FIELD(mode, OPEN);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Mode, OPEN);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Mode, SAVE);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(mode, Mode);
  SO_FORMWRIGHT_INIT_INSTANCE();
  filter.set1Value(1, "Scenic file");
  filter.setDefault(TRUE);
}

SoMenuFileSelection::~SoMenuFileSelection() = default;

void SoMenuFileSelection::addAuditor(SoMenuFileSelectionAuditor* auditor)
{
  SoFormwright::addAuditor(auditor);
}

void SoMenuFileSelection::removeAuditor(SoMenuFileSelectionAuditor* auditor)
{
  SoFormwright::removeAuditor(auditor);
}

void SoMenuFileSelection::applyDlgCptAuditor()
{
  applyControlAuditors(this, &SoMenuFileSelectionAuditor::menuFileSelection);
}

void SoMenuFileSelection::validateFilename()
{
  applyDlgCptAuditor();
}

// The push button's own event is not raised: the auditors hear of the file.
void SoMenuFileSelection::menuEvent(void*, int)
{
  openDialogBox();
}

void SoMenuFileSelection::draggerFinishCallback3D()
{
  openDialogBox();
}

void SoMenuFileSelection::openDialogBox()
{
  QStringList filters;
  for (int i = 0; i < filter.getNum() / 2; ++i) {
    const QString pattern = SoControlWidgets::toWidgetText(filter[2 * i]);
    filters << SoControlWidgets::toWidgetText(filter[2 * i + 1]) + " (" + pattern + ")";
  }
  const QString directory =
    SoControlWidgets::toWidgetText(SbFileHelper::expandString(fileDirectory.getValue()));
  const QString caption = SoControlWidgets::toWidgetText(title.getValue());

  // Separators only between entries: Qt shows an empty filter after a
  // trailing one.
  const QString filterText = filters.join(";;");
  const QString chosen = mode.getValue() == OPEN
                           ? QFileDialog::getOpenFileName(nullptr, caption, directory, filterText, nullptr)
                           : QFileDialog::getSaveFileName(nullptr, caption, directory, filterText, nullptr);
  if (chosen.isEmpty()) {
    // A cancel is an answer too; the directory stays.
    filename = "";
    validateFilename();
    return;
  }
  const QByteArray path = chosen.toLatin1();
  const int slash = path.lastIndexOf('/');
  if (slash >= 0)
    fileDirectory = path.left(slash).constData();
  filename = path.mid(slash + 1).constData();
  validateFilename();
}
