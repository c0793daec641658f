// Opens a dialog file, shows the dialog and prints one line for every action
// of the user. With no file it opens a built-in dialog that shows every
// control. Without a display it renders the dialog to a PNG file and exits.
// A message box of a dialog file is shown, or rendered, on its own.
// With --3d the dialog is built as geometry and stands in a 3D scene, where
// --click works it before the scene is shown or drawn.
//
// With --watch it reads the file again at each save and shows the new dialog
// in place of the old.
//
//   formwright-preview [FILE] [--id AUDITOR_ID] [--3d] [--click X,Y]... [--screenshot PNG] [--list] [--watch]

#include "PreviewAuditor.h"
#include "PreviewTabAuditor.h"
#include "PreviewWatcher.h"
#include "ShowcaseDialog.h"

#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogComponent.h>
#include <SoDialogGroup.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoFormwright.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButtonLauncher.h>
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
#include <functional>
#include <memory>
#include <vector>

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

// Run from where it was built, with no skin directory of the user's own,
// the preview takes the skins of the source tree it was built from, as
// nothing is installed yet. Installed, it leaves the search to the library,
// which finds the skins installed with it.
void findSkins()
{
  if (!qEnvironmentVariableIsEmpty("SCENICHOME") || !qEnvironmentVariableIsEmpty("FORMWRIGHT_SKINS_DIR"))
    return;
  if (QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath() ==
      QFileInfo(FORMWRIGHT_BUILD_DIRECTORY).canonicalFilePath())
    SoFormwright::setSkinsDirectories(FORMWRIGHT_SOURCE_SKINS);
}

int fail(const QString& message)
{
  std::fprintf(stderr, "formwright-preview: %s\n", message.toLocal8Bit().constData());
  return 1;
}

// The tree of a dialog file, or of the built-in dialog, read afresh at each
// call: the library's own loader reads a file once for the life of the
// process, which would never show an edit. Null if nothing could be read.
SoSeparator* readDialogs(const QString& file)
{
  SoInput input;
  if (file.isEmpty())
    input.setBuffer(kShowcaseDialog, std::strlen(kShowcaseDialog));
  else if (!input.openFile(file.toLocal8Bit().constData()))
    return nullptr;
  SoSeparator* root = SoDB::readAll(&input);
  if (root)
    root->ref();
  return root;
}

// The interface node at the top of a file's tree with the given auditorID,
// or the first one if none is given.
SoFormwright* topNode(SoSeparator* root, const SbString& auditorId)
{
  for (int i = 0; i < root->getNumChildren(); ++i) {
    SoNode* child = root->getChild(i);
    if (child->isOfType(SoFormwright::getClassTypeId()) &&
        (auditorId.getLength() == 0 || static_cast<SoFormwright*>(child)->auditorID.getValue() == auditorId))
      return static_cast<SoFormwright*>(child);
  }
  return nullptr;
}

template <class Container>
bool collectChildren(SoFormwright* node, std::vector<SoFormwright*>& children)
{
  if (!node->isOfType(Container::getClassTypeId()))
    return false;
  const auto* container = static_cast<Container*>(node);
  for (int i = 0; i < container->getNumChildren(); ++i)
    children.push_back(static_cast<SoFormwright*>(container->getChild(i)));
  return true;
}

// The interface nodes directly below a node, as the file nests them: the
// components and menu bar of a window, the components of a group, the menus
// of a bar, the entries of a menu and the dialogs that a launcher opens.
std::vector<SoFormwright*> childrenOf(SoFormwright* node)
{
  std::vector<SoFormwright*> children;
  collectChildren<SoTopLevelDialog>(node, children) || collectChildren<SoDialogGroup>(node, children) ||
    collectChildren<SoMenuBar>(node, children) || collectChildren<SoMenuPopup>(node, children) ||
    collectChildren<SoDialogPushButtonLauncher>(node, children) ||
    collectChildren<SoDialogCheckBoxLauncher>(node, children) ||
    collectChildren<SoMenuPushButtonLauncher>(node, children) ||
    collectChildren<SoMenuCheckBoxLauncher>(node, children);
  return children;
}

void printTree(SoFormwright* node, int depth)
{
  std::printf("%*s%s \"%s\"\n", depth * 2, "", node->getTypeId().getName().getString(),
              node->auditorID.getValue().getString());
  for (SoFormwright* child : childrenOf(node))
    printTree(child, depth + 1);
}

// Page changes reach only a tab dialog's own auditors; and a tab dialog
// with auditors of its own no longer hands the actions in its pages on to
// the window's, so it gets the general one as well. The dialogs that
// launchers open are left alone, as their controls are not printed.
void listenToPages(SoFormwright* node, PreviewTabAuditor* pages, PreviewAuditor* actions, bool inScene)
{
  if (node->isOfType(SoTabDialog::getClassTypeId())) {
    static_cast<SoTabDialog*>(node)->addAuditor(pages);
    static_cast<SoTabDialog*>(node)->addAuditor(actions);
    if (inScene)
      pages->followInScene(static_cast<SoTabDialog*>(node));
  }
  if (node->isOfType(SoTopLevelDialog::getClassTypeId()) || node->isOfType(SoDialogGroup::getClassTypeId()))
    for (SoFormwright* child : childrenOf(node))
      listenToPages(child, pages, actions, inScene);
}

// The window that shows a node, referenced: the node's own if it is a
// dialog, one made for it if it is a component on its own; null for a node
// that no window can show.
SoTopLevelDialog* windowFor(SoFormwright* node)
{
  SoTopLevelDialog* dialog = nullptr;
  if (node->isOfType(SoTopLevelDialog::getClassTypeId())) {
    dialog = static_cast<SoTopLevelDialog*>(node);
  } else if (node->isOfType(SoDialogComponent::getClassTypeId())) {
    dialog = new SoTopLevelDialog;
    dialog->label = node->auditorID.getValue();
    dialog->addChild(static_cast<SoDialogComponent*>(node));
  } else {
    return nullptr;
  }
  dialog->ref();
  return dialog;
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

// A dialog as read from its file, with what keeps it alive.
struct ReadDialog {
  SoSeparator* root = nullptr;
  SoTopLevelDialog* dialog = nullptr;

  void release()
  {
    dialog->unref();
    root->unref();
  }
};

// Reads the file again and builds its dialog, heard by the same auditors;
// a file that does not read, or no longer holds the dialog, leaves nothing
// built and says why.
bool rereadDialog(const QString& file, const SbString& auditorId, const std::function<void(SoTopLevelDialog*)>& build,
                  ReadDialog& fresh)
{
  const QString stays = "; the dialog shown stays as it was";
  fresh.root = readDialogs(file);
  if (!fresh.root) {
    fail(QString("no dialog could be read from %1%2").arg(file, stays));
    return false;
  }
  SoFormwright* node = topNode(fresh.root, auditorId);
  fresh.dialog = node ? windowFor(node) : nullptr;
  if (!fresh.dialog) {
    fresh.root->unref();
    fail(QString("%1 holds no dialog to show any more%2").arg(file, stays));
    return false;
  }
  build(fresh.dialog);
  return true;
}

void reportReload(const QString& file)
{
  std::printf("reloaded %s\n", file.toLocal8Bit().constData());
  std::fflush(stdout);
}

int run(const QCommandLineParser& options)
{
  const QStringList files = options.positionalArguments();
  const QString file = files.isEmpty() ? QString() : files.first();
  const QString source = file.isEmpty() ? QString("the built-in dialog") : file;
  const SbString auditorId(options.value("id").toUtf8().constData());
  const bool watch = options.isSet("watch");
  if (watch && file.isEmpty())
    return fail("--watch needs a dialog file");
  if (watch && options.isSet("screenshot"))
    return fail("--watch shows the dialog and keeps it up to date; it does not go with --screenshot");
  if (!file.isEmpty() && !QFileInfo(file).isReadable())
    return fail(QString("cannot read %1").arg(file));
  // Kept for the life of the program, or until a reload replaces it.
  ReadDialog shown;
  shown.root = readDialogs(file);
  SoFormwright* node = shown.root ? topNode(shown.root, auditorId) : nullptr;
  if (!node) {
    if (auditorId.getLength() > 0)
      return fail(QString("no dialog with auditorID \"%1\" in %2").arg(options.value("id"), source));
    return fail(QString("no dialog could be read from %1").arg(source));
  }

  if (options.isSet("list")) {
    // Without an identifier, every dialog and message of the file.
    for (int i = 0; i < shown.root->getNumChildren(); ++i) {
      SoNode* child = shown.root->getChild(i);
      if (child->isOfType(SoFormwright::getClassTypeId()) && (auditorId.getLength() == 0 || child == node))
        printTree(static_cast<SoFormwright*>(child), 0);
    }
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
  // that draws nothing: no OpenGL context is needed for them. A watched file
  // is shown off screen too, for the lines of its reloads.
  const bool clicksOnly = !clicks.isEmpty() && screenshot.isEmpty() && drawsOffScreen() && !watch;
  if (screenshot.isEmpty() && drawsOffScreen() && !clicksOnly && !watch)
    screenshot = kDefaultScreenshot;
  if (node->isOfType(SoMessageDialog::getClassTypeId())) {
    if (watch)
      return fail("--watch shows dialogs, not message boxes");
    return showMessage(static_cast<SoMessageDialog*>(node), screenshot);
  }

  shown.dialog = windowFor(node);
  if (!shown.dialog)
    return fail(QString("the node found in %1 is not a dialog, a component or a message").arg(source));
  PreviewAuditor auditor(stdout);
  PreviewTabAuditor pages(stdout);
  if (inScene)
    SoFormMode::setSceneForm(true);
  const auto build = [&](SoTopLevelDialog* dialog) {
    dialog->addAuditor(&auditor);
    listenToPages(dialog, &pages, &auditor, inScene);
    dialog->buildDialog(nullptr, 0);
  };
  build(shown.dialog);
  SoTopLevelDialog* dialog = shown.dialog;
  std::unique_ptr<PreviewWatcher> watcher;

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
      if (watch)
        // The viewer stays where it is; only the plate in it changes.
        watcher = std::make_unique<PreviewWatcher>(file, [&] {
          ReadDialog fresh;
          if (!rereadDialog(file, auditorId, build, fresh))
            return;
          scene->replaceChild(shown.dialog, fresh.dialog);
          showPlate(viewer, fresh.dialog, largest);
          shown.release();
          shown = fresh;
          reportReload(file);
        });
      // The keys typed into the window go to the controls in the scene. Off
      // screen, where Qt cannot hand an OpenGL widget's picture on and no
      // one would see it, a watched scene is only rebuilt.
      viewer->setFocus();
      if (!drawsOffScreen())
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

  if (screenshot.isEmpty()) {
    if (watch)
      // The new window opens where the user left the old one.
      watcher = std::make_unique<PreviewWatcher>(file, [&] {
        ReadDialog fresh;
        if (!rereadDialog(file, auditorId, build, fresh))
          return;
        fresh.dialog->getBaseWidget()->move(shown.dialog->getBaseWidget()->pos());
        shown.dialog->hide();
        fresh.dialog->show();
        shown.release();
        shown = fresh;
        reportReload(file);
      });
    return QApplication::exec();
  }

  QApplication::processEvents();
  const QRect shownPart(QPoint(0, 0), window->size().boundedTo(largest));
  QPixmap picture = window->grab(shownPart);
  if (picture.isNull()) {
    // A window with nothing in it has no area of its own to grab.
    picture = QPixmap(shownPart.size().expandedTo(QSize(1, 1)));
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
  options.addOption({"list", "Print the tree of auditor identifiers, menu entries and the dialogs of launchers "
                             "included, and exit; without --id, of every dialog of the file."});
  options.addOption({"watch", "Show the dialog and, each time its file is saved, read it again and show it anew."});
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
