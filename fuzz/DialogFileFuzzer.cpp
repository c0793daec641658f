// Takes arbitrary bytes as a dialog file: reads them, finds the first
// interface node at the top, builds it in the window form and in the scene
// form, changes a few fields of the built tree, and lets it all go. A crash,
// a sanitizer report or a hang here is a file that would take an application
// down with it.

#include <SoDialogComponent.h>
#include <SoDialogGroup.h>
#include <SoFormwright.h>
#include <SoMessageDialog.h>
#include <SoTopLevelDialog.h>

#include <SoFormMode.h>
#include "FreedNode.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>

#include <cstddef>
#include <cstdint>

namespace {

// Bad files make the reader and the library talk a lot; the fuzzer needs
// none of it.
void dropError(const SoError*, void*) {}
void dropQtMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

SoFormwright* firstInterfaceNode(SoSeparator* root)
{
  for (int i = 0; i < root->getNumChildren(); ++i)
    if (root->getChild(i)->isOfType(SoFormwright::getClassTypeId()))
      return static_cast<SoFormwright*>(root->getChild(i));
  return nullptr;
}

// The same changes an application makes to a built dialog: every one goes
// through the sensors into the widgets or the geometry.
void changeFields(SoTopLevelDialog* dialog)
{
  dialog->label = "Changed";
  dialog->width = dialog->width.getValue() + 13;
  for (int i = 0; i < dialog->getNumChildren(); ++i) {
    SoNode* child = dialog->getChild(i);
    if (!child || !child->isOfType(SoDialogComponent::getClassTypeId()))
      continue;
    auto* component = static_cast<SoDialogComponent*>(child);
    component->label = "Other";
    component->enable = !component->enable.getValue();
    component->labelVisibility = !component->labelVisibility.getValue();
    component->height = component->height.getValue() + 7;
  }
  dialog->searchForAuditorId("no such identifier");
}

void exercise(SoTopLevelDialog* dialog)
{
  SoFormMode::setSceneForm(false);
  dialog->buildDialog(nullptr, 0);
  changeFields(dialog);
  dialog->destroyWidget();

  SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);
  SoGetBoundingBoxAction box{SbViewportRegion(400, 400)};
  box.apply(dialog);
  changeFields(dialog);
  SoFormMode::setSceneForm(false);
}

}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(dropQtMessage);
  // Lives for the process, as an application's would.
  new QApplication(*argc, *argv);
  SoFormwright::init();
  freeInterfaceNodesOnLastUnref();
  SoDebugError::setHandlerCallback(dropError, nullptr);
  SoReadError::setHandlerCallback(dropError, nullptr);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  SoSeparator* root = readDialogScene(data, size);
  if (!root)
    return 0;
  root->ref();
  SoFormwright* node = firstInterfaceNode(root);
  // A message box waits for a user; it is read, but not shown.
  if (node && !node->isOfType(SoMessageDialog::getClassTypeId())) {
    if (node->isOfType(SoTopLevelDialog::getClassTypeId())) {
      exercise(static_cast<SoTopLevelDialog*>(node));
    } else if (node->isOfType(SoDialogComponent::getClassTypeId())) {
      // A component on its own gets a window made for it, as in the preview.
      auto* dialog = static_cast<SoTopLevelDialog*>(SoTopLevelDialog::getClassTypeId().createInstance());
      dialog->ref();
      dialog->addChild(static_cast<SoDialogComponent*>(node));
      exercise(dialog);
      dialog->destroyWidget();
      dialog->unref();
    }
  }
  if (node && node->isOfType(SoTopLevelDialog::getClassTypeId()))
    static_cast<SoTopLevelDialog*>(node)->destroyWidget();
  root->unref();
  return 0;
}
