// Takes arbitrary bytes as a dialog file followed by a sequence of actions,
// and plays the actions on the built dialog as an application and its user
// would: field writes, clicks and keys on the widgets and in the scene, tree
// edits, rebuilds, auditors that act while they are called, deleted hosts,
// skin swaps and restarts of the library. A crash, a sanitizer report or a
// hang here is a sequence that would take an application down with it.

#include "ActionTape.h"
#include "DialogSession.h"
#include "FreedNode.h"

#include <SoFormwright.h>

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>

#include <QApplication>
#include <QThread>
#include <QTimer>

#include <cstddef>
#include <cstdint>

namespace {

void dropError(const SoError*, void*) {}
void dropQtMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(dropQtMessage);
  new QApplication(*argc, *argv);
  // A file dialog, a message box or a context menu waits for a user in a
  // loop of its own; the user closes it at once. Popups opened by the run
  // itself, outside such a loop, stay for its next actions.
  auto* dismisser = new QTimer;
  QObject::connect(dismisser, &QTimer::timeout, [] {
    if (QWidget* modal = QApplication::activeModalWidget())
      modal->close();
    else if (QWidget* popup = QApplication::activePopupWidget(); popup && QThread::currentThread()->loopLevel() > 0)
      popup->close();
  });
  dismisser->start(0);
  SoFormwright::init();
  // The skin files of the source tree, rather than the built-in texts.
  SoFormwright::setSkin(FORMWRIGHT_SOURCE_DIR "/skins/default");
  freeInterfaceNodesOnLastUnref();
  s_keepingDroppedNodes = true;
  SoDebugError::setHandlerCallback(dropError, nullptr);
  SoReadError::setHandlerCallback(dropError, nullptr);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
  {
    ActionTape tape(data, size);
    DialogSession session(tape);
    session.playAll();
  }
  freeDroppedNodes();
  return 0;
}
