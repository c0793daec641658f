// Opens a dialog file, shows the dialog and prints one line for every action
// of the user. With no file it opens a built-in dialog that shows every
// control. Without a display it renders the dialog to a PNG file and exits.
// A message box of a dialog file is shown, or rendered, on its own.
// With --3d the dialog is built as geometry and stands in a 3D scene, where
// --click works it before the scene is shown or drawn.
//
//   formwright-preview [FILE] [--id AUDITOR_ID] [--3d] [--click X,Y]... [--screenshot PNG] [--list]

#include "PreviewAuditor.h"
#include "PreviewTabAuditor.h"
#include "ShowcaseDialog.h"

#include <SoDialogComponent.h>
#include <SoDialogGroup.h>
#include <SoFormwright.h>
#include <SoMessageDialog.h>
#include <SoTabDialog.h>
#include <SoTopLevelDialog.h>

#include <SoFormMode.h>
#include <SoQtSceneViewer.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char* const kDefaultScreenshot = "formwright-preview.png";
// Room around a dialog in the scene, in scene units on each side, and the
// pixels given to a scene unit: the dialog's own sizes count a unit for a
// pixel, and its small type reads better enlarged.
const int kSceneMargin = 10;
const int kSceneScale = 2;
const int kLargestScreenshot = 4096;

bool hasDisplay()
{
  return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
}

// Whether Qt draws to no screen at all, so that a shown dialog would be seen
// by no one.
bool drawsOffScreen()
{
  return QApplication::platformName() == "offscreen" || QApplication::platformName() == "minimal";
}

// Off screen, Qt notes each window feature that it cannot offer, and the
// missing runtime folder of a session that has none: nothing a user of the
// preview can act on; nor that the scene's widget cannot draw, as it is
// then only clicked.
void quietOffScreenNotices(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
  if (type == QtWarningMsg && (message.startsWith("This plugin does not support") ||
                               message.startsWith("QOpenGLWidget is not supported") ||
                               message.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")))
    return;
  std::fprintf(stderr, "%s\n", qFormatLogMessage(type, context, message).toLocal8Bit().constData());
}

// Without a skin directory of the user's own, the preview takes the default
// skin installed beside it, or the one in the source tree it was built from,
// rather than warn that it falls back on the built-in look.
void findSkins()
{
  if (!qEnvironmentVariableIsEmpty("SCENICHOME") || !qEnvironmentVariableIsEmpty("FORMWRIGHT_SKINS_DIR"))
    return;
  const QStringList candidates{QCoreApplication::applicationDirPath() + "/../data/Formwright/skins",
                               FORMWRIGHT_SOURCE_SKINS};
  for (const QString& candidate : candidates) {
    if (QFileInfo(candidate + "/default").isDir()) {
      SoFormwright::setSkinsDirectories(SbString(QFileInfo(candidate).canonicalFilePath().toLocal8Bit().constData()));
      return;
    }
  }
}

int fail(const QString& message)
{
  std::fprintf(stderr, "formwright-preview: %s\n", message.toLocal8Bit().constData());
  return 1;
}

// The interface node at the top of the built-in dialog, found as a dialog
// file's would be.
SoFormwright* loadShowcase(const SbString& auditorId)
{
  SoInput input;
  input.setBuffer(kShowcaseDialog, std::strlen(kShowcaseDialog));
  SoSeparator* root = SoDB::readAll(&input);
  if (!root)
    return nullptr;
  root->ref(); // kept for the life of the program
  for (int i = 0; i < root->getNumChildren(); ++i) {
    SoNode* child = root->getChild(i);
    if (child->isOfType(SoFormwright::getClassTypeId()) &&
        (auditorId.getLength() == 0 || static_cast<SoFormwright*>(child)->auditorID.getValue() == auditorId))
      return static_cast<SoFormwright*>(child);
  }
  return nullptr;
}

// The children of a window or group, for walking the tree.
int childCount(SoFormwright* node)
{
  if (node->isOfType(SoTopLevelDialog::getClassTypeId()))
    return static_cast<SoTopLevelDialog*>(node)->getNumChildren();
  if (node->isOfType(SoDialogGroup::getClassTypeId()))
    return static_cast<SoDialogGroup*>(node)->getNumChildren();
  return 0;
}

SoFormwright* childAt(SoFormwright* node, int index)
{
  SoNode* child = node->isOfType(SoTopLevelDialog::getClassTypeId())
                    ? static_cast<SoTopLevelDialog*>(node)->getChild(index)
                    : static_cast<SoDialogGroup*>(node)->getChild(index);
  return static_cast<SoFormwright*>(child);
}

void printTree(SoFormwright* node, int depth)
{
  std::printf("%*s%s \"%s\"\n", depth * 2, "", node->getTypeId().getName().getString(),
              node->auditorID.getValue().getString());
  for (int i = 0; i < childCount(node); ++i)
    printTree(childAt(node, i), depth + 1);
}

// Page changes reach only a tab dialog's own auditors; and a tab dialog
// with auditors of its own no longer hands the actions in its pages on to
// the window's, so it gets the general one as well.
void listenToPages(SoFormwright* node, PreviewTabAuditor* pages, PreviewAuditor* actions)
{
  if (node->isOfType(SoTabDialog::getClassTypeId())) {
    static_cast<SoTabDialog*>(node)->addAuditor(pages);
    static_cast<SoTabDialog*>(node)->addAuditor(actions);
  }
  for (int i = 0; i < childCount(node); ++i)
    listenToPages(childAt(node, i), pages, actions);
}

// The box blocks until it is closed. To render it, it is grabbed as soon as
// it opens, and closed.
int showMessage(SoMessageDialog* message, const QString& screenshot)
{
  if (screenshot.isEmpty()) {
    message->show();
    return 0;
  }
  bool opened = false;
  bool saved = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
      return;
    watch.stop();
    opened = true;
    saved = box->grab().save(screenshot, "PNG");
    box->done(0);
  });
  watch.start(10);
  message->show();
  watch.stop();
  if (!opened)
    return fail("the message dialog shows no box");
  if (!saved)
    return fail(QString("cannot write %1").arg(screenshot));
  std::printf("wrote %s\n", screenshot.toLocal8Bit().constData());
  return 0;
}

// Sizes the viewer to the plate with its margin, at the preview's scale or,
// if that would not fit into the largest size, at the scale that fits, and
// sets the camera straight above the plate at that scale.
void showPlate(Formwright::SoQtSceneViewer* viewer, SoTopLevelDialog* dialog, const QSize& largest)
{
  // The plate's top face is the top of its frame, below the faces of the
  // controls on it; its sides come from the plate's size, as a title too
  // long for it reaches past them.
  SoSearchAction search;
  search.setNode(dialog->getPart("frame", FALSE));
  search.setSearchingAll(TRUE);
  const SbBool searchedKits = SoBaseKit::isSearchingChildren();
  SoBaseKit::setSearchingChildren(TRUE);
  search.apply(viewer->getSceneGraph());
  SoBaseKit::setSearchingChildren(searchedKits);
  float top = 0.0f;
  if (search.getPath()) {
    SoGetBoundingBoxAction measure(viewer->getViewportRegion());
    measure.apply(search.getPath());
    if (!measure.getBoundingBox().isEmpty())
      top = measure.getBoundingBox().getMax()[2];
  }
  const SbVec3f plate = dialog->getTopLevelSize();
  const SbVec3f corner = dialog->position3D.getValue();
  const float sceneWidth = plate[0] + 2 * kSceneMargin;
  const float sceneHeight = plate[1] + 2 * kSceneMargin;
  const float scale = std::min({static_cast<float>(kSceneScale), largest.width() / sceneWidth,
                                largest.height() / sceneHeight});
  viewer->resize(std::max(1, qRound(scale * sceneWidth)), std::max(1, qRound(scale * sceneHeight)));
  viewer->viewFromAbove(SbVec3f(corner[0] + plate[0] / 2, -corner[1] - plate[1] / 2, top), scale);
}

// A click of the left button at a widget pixel, as the user would make it.
void clickAt(Formwright::SoQtSceneViewer* viewer, const QPoint& pixel)
{
  const QPointF global = viewer->mapToGlobal(QPointF(pixel));
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(pixel), global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  viewer->processEvent(&press);
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(pixel), global, Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  viewer->processEvent(&release);
}

int run(const QCommandLineParser& options)
{
  const QStringList files = options.positionalArguments();
  const SbString auditorId(options.value("id").toUtf8().constData());
  SoFormwright* node = nullptr;
  QString source = "the built-in dialog";
  if (files.isEmpty()) {
    node = loadShowcase(auditorId);
  } else {
    source = files.first();
    if (!QFileInfo(source).isReadable())
      return fail(QString("cannot read %1").arg(source));
    node = SoFormwright::loadFromFile(SbString(source.toLocal8Bit().constData()), auditorId);
  }
  if (!node) {
    if (auditorId.getLength() > 0)
      return fail(QString("no dialog with auditorID \"%1\" in %2").arg(options.value("id"), source));
    return fail(QString("no dialog could be read from %1").arg(source));
  }

  if (options.isSet("list")) {
    printTree(node, 0);
    return 0;
  }

  QList<QPoint> clicks;
  for (const QString& text : options.values("click")) {
    const QStringList xy = text.split(',');
    bool xRead = false;
    bool yRead = false;
    if (xy.size() == 2)
      clicks.append(QPoint(xy[0].trimmed().toInt(&xRead), xy[1].trimmed().toInt(&yRead)));
    if (!xRead || !yRead)
      return fail(QString("--click takes X,Y in pixels, not \"%1\"").arg(text));
  }
  // The environment preference may have chosen the scene form already.
  const bool inScene = options.isSet("3d") || SoFormMode::isSceneForm();
  if (!clicks.isEmpty() && (!inScene || node->isOfType(SoMessageDialog::getClassTypeId())))
    return fail("--click works on a dialog in the 3D form only, with --3d");
  QString screenshot = options.value("screenshot");
  // Off screen the clicks alone, for the lines they print, are worth a run
  // that draws nothing: no OpenGL context is needed for them.
  const bool clicksOnly = !clicks.isEmpty() && screenshot.isEmpty() && drawsOffScreen();
  if (screenshot.isEmpty() && drawsOffScreen() && !clicksOnly)
    screenshot = kDefaultScreenshot;
  if (node->isOfType(SoMessageDialog::getClassTypeId()))
    return showMessage(static_cast<SoMessageDialog*>(node), screenshot);

  SoTopLevelDialog* dialog = nullptr;
  if (node->isOfType(SoTopLevelDialog::getClassTypeId())) {
    dialog = static_cast<SoTopLevelDialog*>(node);
  } else if (node->isOfType(SoDialogComponent::getClassTypeId())) {
    // A component on its own is shown in a window made for it.
    dialog = new SoTopLevelDialog;
    dialog->ref();
    dialog->label = node->auditorID.getValue();
    dialog->addChild(static_cast<SoDialogComponent*>(node));
  } else {
    return fail(QString("the node found in %1 is not a dialog, a component or a message").arg(source));
  }

  PreviewAuditor auditor(stdout);
  PreviewTabAuditor pages(stdout);
  dialog->addAuditor(&auditor);
  listenToPages(dialog, &pages, &auditor);
  if (inScene)
    SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);

  if (inScene) {
    auto* scene = new SoSeparator;
    scene->ref(); // kept for the life of the program
    scene->addChild(dialog);
    auto* viewer = new Formwright::SoQtSceneViewer;
    viewer->setWindowTitle(QString("%1 - formwright-preview").arg(dialog->label.getValue().getString()));
    viewer->setSceneGraph(scene);
    // A window is kept within the screen, an image within what a file holds.
    const QScreen* screen = QGuiApplication::primaryScreen();
    const bool live = screenshot.isEmpty() && !clicksOnly;
    const QSize largest = live && screen ? screen->availableSize() : QSize(kLargestScreenshot, kLargestScreenshot);
    showPlate(viewer, dialog, largest);
    for (const QPoint& click : clicks)
      clickAt(viewer, click);
    if (clicksOnly)
      return 0;
    if (live) {
      // The keys typed into the window go to the controls in the scene.
      viewer->setFocus();
      viewer->show();
      return QApplication::exec();
    }
    const QImage image = viewer->renderToImage();
    if (image.isNull())
      return fail("no OpenGL context for rendering the scene; without a display, run under xvfb-run");
    if (!image.save(screenshot, "PNG"))
      return fail(QString("cannot write %1").arg(screenshot));
    std::printf("wrote %s\n", screenshot.toLocal8Bit().constData());
    return 0;
  }

  QWidget* window = dialog->getBaseWidget();
  const QSize largest(kLargestScreenshot, kLargestScreenshot);
  // Off screen, a shown window is painted whole into memory: one that a file
  // made larger than any screen is rendered without being shown, and only
  // its top left corner, as the whole would fit in no image.
  if (screenshot.isEmpty() || window->size().boundedTo(largest) == window->size())
    dialog->show();

  if (screenshot.isEmpty())
    return QApplication::exec();

  QApplication::processEvents();
  const QRect shown(QPoint(0, 0), window->size().boundedTo(largest));
  QPixmap picture = window->grab(shown);
  if (picture.isNull()) {
    // A window with nothing in it has no area of its own to grab.
    picture = QPixmap(shown.size().expandedTo(QSize(1, 1)));
    picture.fill(window->palette().color(QPalette::Window));
  }
  if (!picture.save(screenshot, "PNG"))
    return fail(QString("cannot write %1").arg(screenshot));
  std::printf("wrote %s\n", screenshot.toLocal8Bit().constData());
  return 0;
}

}

int main(int argc, char** argv)
{
  // Without a display the dialog can still be rendered, off screen.
  if (!hasDisplay() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(quietOffScreenNotices);
  QApplication application(argc, argv);
  QApplication::setApplicationName("formwright-preview");

  QCommandLineParser options;
  options.setApplicationDescription("Shows a dialog file and prints what the user does with it.");
  options.addHelpOption();
  options.addPositionalArgument("file", "Dialog file to open; the built-in dialog if none.", "[FILE]");
  options.addOption({"id", "Open the node with this auditorID.", "AUDITOR_ID"});
  options.addOption({"3d", "Build the dialog as geometry and show it standing in a 3D scene."});
  options.addOption({"screenshot", "Render the dialog to this PNG file and exit.", "PNG"});
  options.addOption({"list", "Print the tree of auditor identifiers and exit."});
  options.addOption({"click",
                     "With --3d: click the left button at pixel X,Y of the scene, counted from its top left, before "
                     "the scene is shown or drawn; may be repeated, the clicks are made in order. Without a display "
                     "and without --screenshot, only the clicks are made and nothing is drawn.",
                     "X,Y"});
  options.process(application);

  SoFormwright::init();
  findSkins();
  const int status = run(options);
  std::fflush(stdout);
  // The process ends here; the dialog's widgets go with it.
  std::_Exit(status);
}
