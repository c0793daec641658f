// A program of another project, built against an installed Formwright
// alone: it reads a dialog file, builds its first dialog as widgets and once
// more as geometry in a scene, prints both sizes and fails on any error that
// the library reports, such as a skin that it cannot find.
//
//   formwright-external DIALOG_FILE

#include <SoFormMode.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QWidget>

#include <cstdio>

namespace {

int errors = 0;

void countError(const SoError* error, void*)
{
  std::fprintf(stderr, "%s\n", error->getDebugString().getString());
  ++errors;
}

SoTopLevelDialog* asDialog(SoNode* node)
{
  return node && node->isOfType(SoTopLevelDialog::getClassTypeId()) ? static_cast<SoTopLevelDialog*>(node) : nullptr;
}

}

int main(int argc, char** argv)
{
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: formwright-external DIALOG_FILE\n");
    return 2;
  }
  SoFormwright::init();
  SoDebugError::setHandlerCallback(countError, nullptr);

  SoTopLevelDialog* window = asDialog(SoFormwright::loadFromFile(argv[1], ""));
  if (!window) {
    std::fprintf(stderr, "formwright-external: no dialog in %s\n", argv[1]);
    return 1;
  }
  window->buildDialog(nullptr, 0);
  const QSize widgets = window->getBaseWidget()->size();

  // The library reads a file once: the scene's copy is read here.
  SoInput input;
  SoSeparator* scene = input.openFile(argv[1]) ? SoDB::readAll(&input) : nullptr;
  SoTopLevelDialog* plate = scene && scene->getNumChildren() > 0 ? asDialog(scene->getChild(0)) : nullptr;
  if (!plate) {
    std::fprintf(stderr, "formwright-external: %s reads no second time\n", argv[1]);
    return 1;
  }
  scene->ref();
  SoFormMode::setSceneForm(true);
  plate->buildDialog(nullptr, 0);
  const SbVec3f size = plate->getTopLevelSize();
  std::printf("widgets %d x %d, scene %g x %g\n", widgets.width(), widgets.height(), size[0], size[1]);
  scene->unref();
  SoFormwright::finish();
  return errors == 0 && size[0] > 0 ? 0 : 1;
}
