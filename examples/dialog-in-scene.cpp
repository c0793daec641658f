// A dialog standing in a 3D scene beside ordinary geometry. The dialog is
// read from a file and put into the scene as it is: the viewer builds it as
// geometry when it first measures the scene, and hands it the mouse and the
// keyboard.
//
//   dialog-in-scene [FILE [AUDITOR_ID]] [--screenshot PNG]
//
// Without a display, run it under xvfb-run with --screenshot.

#include <SoFormwright.h>
#include <SoQtSceneViewer.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTransform.h>

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

int fail(const QString& message)
{
  std::fprintf(stderr, "dialog-in-scene: %s\n", message.toLocal8Bit().constData());
  return 1;
}

// A cone to the left of the dialog, about as tall as a dialog of a few rows.
// One scene unit is one pixel of the dialog, whose top left corner stands at
// the origin.
SoSeparator* makeCone()
{
  auto* cone = new SoSeparator;
  auto* place = new SoTransform;
  place->translation.setValue(-140.0f, -100.0f, 0.0f);
  place->scaleFactor.setValue(70.0f, 90.0f, 70.0f);
  auto* material = new SoMaterial;
  material->diffuseColor.setValue(0.9f, 0.5f, 0.15f);
  cone->addChild(place);
  cone->addChild(material);
  cone->addChild(new SoCone);
  return cone;
}

int run(const QCommandLineParser& options)
{
  const QStringList arguments = options.positionalArguments();
  const QString file = arguments.value(0, FORMWRIGHT_EXAMPLE_DIALOG);
  const QString auditorId = arguments.value(1, "render");
  SoFormwright* node = SoFormwright::loadFromFile(file.toLocal8Bit().constData(), auditorId.toLocal8Bit().constData());
  if (!node || !node->isOfType(SoTopLevelDialog::getClassTypeId()))
    return fail(QString("no dialog \"%1\" in %2").arg(auditorId, file));

  auto* scene = new SoSeparator;
  scene->ref();
  scene->addChild(makeCone());
  scene->addChild(node);

  int status = 0;
  {
    Formwright::SoQtSceneViewer viewer;
    viewer.setWindowTitle("Dialog in a scene");
    viewer.resize(800, 450);
    viewer.setSceneGraph(scene);
    const QString screenshot = options.value("screenshot");
    if (screenshot.isEmpty()) {
      viewer.setFocus();
      viewer.show();
      status = QApplication::exec();
    } else {
      const QImage image = viewer.renderToImage();
      if (image.isNull())
        status = fail("no OpenGL context for rendering; without a display, run under xvfb-run");
      else if (!image.save(screenshot, "PNG"))
        status = fail(QString("cannot write %1").arg(screenshot));
    }
  }
  scene->unref();
  return status;
}

}

int main(int argc, char** argv)
{
  QApplication application(argc, argv);
  QCommandLineParser options;
  options.setApplicationDescription("Shows a dialog standing in a 3D scene beside a cone.");
  options.addHelpOption();
  options.addPositionalArgument("file", "Dialog file to read.", "[FILE [AUDITOR_ID]]");
  options.addOption({"screenshot", "Render the scene to this PNG file and exit.", "PNG"});
  options.process(application);

  SoFormwright::init();
  // An installed library finds its skins below SCENICHOME; this example runs
  // from the build tree, beside the sources' skins.
  if (qEnvironmentVariableIsEmpty("SCENICHOME") && qEnvironmentVariableIsEmpty("FORMWRIGHT_SKINS_DIR"))
    SoFormwright::setSkinsDirectories(FORMWRIGHT_EXAMPLE_SKINS);
  const int status = run(options);
  SoFormwright::finish();
  // The library leaves the toolkit running: the application ends it.
  SoDB::finish();
  return status;
}
