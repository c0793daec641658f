#include "DialogSession.h"

#include "FreedNode.h"
#include "InterfaceTree.h"

#include <SoFormMode.h>
#include <SoFormwright.h>

#include <Inventor/SoType.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoLocation2Event.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoSFPath.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <iterator>

namespace {

// Values an application might write, sensible and absurd; each field takes
// those its type reads and drops the others.
const char* const kFieldValues[] = {
  "0", "1", "-1", "TRUE", "FALSE", "7", "2147483647", "-2147483648", "1e30", "-1e30", "nan", "inf", "0.5",
  "\"\"", "\"Label\"", "\"two\\nlines\"", "\"%d %f %s\"", "[\"a\", \"b\", \"c\"]", "[]", "[\"\"]", "1 2", "-5 -5",
  "100000 100000", "32767 32767", "3 3 3", "0 0 0", "SHADOW_IN", "LEFT", "RIGHT", "CENTER", "TOP", "BOTTOM",
  "\"0123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123456789\"",
};

struct QtKey {
  int key;
  const char* text;
};
const QtKey kQtKeys[] = {
  {Qt::Key_A, "a"}, {Qt::Key_1, "1"}, {Qt::Key_Space, " "}, {Qt::Key_Backspace, "\b"}, {Qt::Key_Delete, ""},
  {Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"}, {Qt::Key_Escape, ""}, {Qt::Key_Tab, "\t"}, {Qt::Key_Left, ""},
  {Qt::Key_Right, ""}, {Qt::Key_Up, ""}, {Qt::Key_Down, ""}, {Qt::Key_Home, ""}, {Qt::Key_End, ""},
  {Qt::Key_PageUp, ""}, {Qt::Key_PageDown, ""}, {Qt::Key_Minus, "-"}, {Qt::Key_Period, "."},
};
const Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

const SoKeyboardEvent::Key kSceneKeys[] = {
  SoKeyboardEvent::A, SoKeyboardEvent::NUMBER_1, SoKeyboardEvent::SPACE, SoKeyboardEvent::BACKSPACE,
  SoKeyboardEvent::DELETE, SoKeyboardEvent::RETURN, SoKeyboardEvent::ENTER, SoKeyboardEvent::ESCAPE,
  SoKeyboardEvent::TAB, SoKeyboardEvent::LEFT_ARROW, SoKeyboardEvent::RIGHT_ARROW, SoKeyboardEvent::UP_ARROW,
  SoKeyboardEvent::DOWN_ARROW, SoKeyboardEvent::HOME, SoKeyboardEvent::END, SoKeyboardEvent::PAGE_UP,
  SoKeyboardEvent::PAGE_DOWN, SoKeyboardEvent::MINUS, SoKeyboardEvent::PERIOD,
};

const char* const kNewNodeTypes[] = {
  "DialogLabel", "DialogEditText", "DialogPushButton", "DialogCheckBox", "DialogIntegerSlider", "DialogRealSlider",
  "DialogComboBox", "DialogRadioButtons", "DialogSeparator", "RowDialog", "ColumnDialog", "TabDialog",
  "MenuBar", "MenuPopup", "MenuPushButton", "MenuCheckBox", "MenuRadioButtons", "MenuSeparator",
};

const char* const kSourceSkin = FORMWRIGHT_SOURCE_DIR "/skins/default";
const char* const kSkins[] = {"default", "no such skin", kSourceSkin, ""};

const int kViewport = 512;
const int kMaxPainted = 4096;
// Reactions inside reactions stop here; an application's would too.
const int kMaxReactionDepth = 3;
// A file may share one node thousands of times through DEF and USE.
const size_t kMaxNodes = 512;

// The library keeps every skin it reads for the rest of the process, so
// that their DEF names live on, and a restart reads the skins again: both
// grow the process by design, a few hundred kilobytes each time. Past these
// many, one process of the fuzzer does neither, and its memory stays bounded.
int s_skinReadsLeft = 1500;

template <class Table>
const auto& pick(const Table& table, unsigned index)
{
  return table[index % std::size(table)];
}

enum TreeEdit { Insert, Remove, Replace, Move, RemoveAll };

}

DialogSession::DialogSession(ActionTape& tape)
  : m_tape(tape), m_viewport(kViewport, kViewport), m_sceneAction(m_viewport)
{
  load();
  if (m_dialog)
    build(tape.firstForm());
}

DialogSession::~DialogSession()
{
  release();
  // The next run starts from the skin the fuzzer started with.
  if (m_skinSwapped)
    SoFormwright::setSkin(kSourceSkin);
}

void DialogSession::load()
{
  m_fileRoot = readDialogScene(reinterpret_cast<const uint8_t*>(m_tape.file().data()), m_tape.file().size());
  if (!m_fileRoot)
    return;
  m_fileRoot->ref();
  for (int i = 0; i < m_fileRoot->getNumChildren() && !m_dialog; ++i) {
    SoNode* node = m_fileRoot->getChild(i);
    if (node->isOfType(SoTopLevelDialog::getClassTypeId())) {
      m_dialog = static_cast<SoTopLevelDialog*>(node);
    } else if (node->isOfType(SoTopComponent::getClassTypeId())) {
      // A component on its own gets a window made for it, as in the preview.
      m_dialog = static_cast<SoTopLevelDialog*>(SoTopLevelDialog::getClassTypeId().createInstance());
      m_dialog->addChild(static_cast<SoTopComponent*>(node));
    }
  }
  if (m_dialog)
    m_dialog->ref();

  m_scene = new SoSeparator;
  m_scene->ref();
  // Seen from above: the viewport's pixel (x, y) looks at the scene point
  // (x, y - 512), where the dialog's upper left corner is the origin.
  auto* camera = new SoOrthographicCamera;
  camera->position.setValue(kViewport / 2.0f, -kViewport / 2.0f, 100.0f);
  camera->height = static_cast<float>(kViewport);
  camera->nearDistance = 1.0f;
  camera->farDistance = 200.0f;
  m_scene->addChild(camera);
}

void DialogSession::release()
{
  for (auto& auditor : m_auditors)
    if (auditor->attached)
      detachAuditor(auditor.get());
  if (m_dialog)
    m_dialog->destroyWidget();
  if (m_scene)
    m_scene->unref();
  if (m_dialog)
    m_dialog->unref();
  if (m_fileRoot)
    m_fileRoot->unref();
  m_auditors.clear();
  delete m_host;
  // Nothing of this run may stay open into the next, which would then not
  // replay alone.
  for (int open = 0; open < 8 && QApplication::activePopupWidget(); ++open)
    QApplication::activePopupWidget()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  m_scene = nullptr;
  m_dialog = nullptr;
  m_fileRoot = nullptr;
}

void DialogSession::playAll()
{
  while (m_dialog && !m_tape.atEnd())
    play(m_tape.next());
}

void DialogSession::play(const Action& action)
{
  switch (action.kind) {
  case ActionKind::WriteField: writeField(action); break;
  case ActionKind::QtMouse: sendMouse(action); break;
  case ActionKind::QtKey: sendKey(action); break;
  case ActionKind::CloseWindow: closeWindow(action); break;
  case ActionKind::ScenePointer: pointInScene(action); break;
  case ActionKind::SceneKey: keyInScene(action); break;
  case ActionKind::InsertChild:
  case ActionKind::RemoveChild:
  case ActionKind::ReplaceChild:
  case ActionKind::MoveChild:
  case ActionKind::RemoveAllChildren: editTree(action); break;
  case ActionKind::Build: build(action.a); break;
  case ActionKind::ShowHideClose: showHideClose(action.a); break;
  case ActionKind::SwapSkin:
    if (s_skinReadsLeft > 0) {
      --s_skinReadsLeft;
      m_skinSwapped = true;
      SoFormwright::setSkin(pick(kSkins, action.a));
    }
    break;
  case ActionKind::AttachAuditor: attachAuditor(action); break;
  case ActionKind::DetachAuditor:
    if (!m_auditors.empty())
      detachAuditor(m_auditors[action.a % m_auditors.size()].get());
    break;
  case ActionKind::DeleteHost: deleteHost(); break;
  case ActionKind::ProcessEvents:
    hideHugeWindows();
    QApplication::processEvents();
    break;
  case ActionKind::Restart: restart(); break;
  case ActionKind::Count: break;
  }
}

std::vector<SoFormwright*> DialogSession::nodes() const
{
  std::vector<SoFormwright*> all = InterfaceTree::nodesOf(m_dialog);
  if (all.size() > kMaxNodes)
    all.resize(kMaxNodes);
  return all;
}

void DialogSession::writeField(const Action& action)
{
  const std::vector<SoFormwright*> all = nodes();
  SoFormwright* node = all[action.a % all.size()];
  const SoFieldData* fields = node->getFieldData();
  if (!fields || fields->getNumFields() == 0)
    return;
  SoField* field = fields->getField(node, action.b % fields->getNumFields());
  // Kit parts are the toolkit's catalog, set through setPart, not values.
  for (SoType part : {SoSFNode::getClassTypeId(), SoMFNode::getClassTypeId(), SoSFPath::getClassTypeId()})
    if (field->isOfType(part))
      return;
  node->ref();
  field->set(pick(kFieldValues, action.c));
  node->unref();
}

QWidget* DialogSession::widget(uint8_t pick) const
{
  std::vector<QWidget*> widgets;
  if (m_host)
    widgets.push_back(m_host);
  if (QWidget* base = m_dialog->getBaseWidget()) {
    widgets.push_back(base);
    for (QWidget* child : base->findChildren<QWidget*>())
      widgets.push_back(child);
  }
  // The menus the user opened.
  if (QWidget* popup = QApplication::activePopupWidget())
    widgets.push_back(popup);
  return widgets.empty() ? nullptr : widgets[pick % widgets.size()];
}

void DialogSession::hideHugeWindows()
{
  // The offscreen platform paints a window whole into memory, where a
  // screen would show a part: a window that absurd sizes made millions of
  // pixels wide would take gigabytes. Such a window is not painted here.
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && (window->width() > kMaxPainted || window->height() > kMaxPainted))
      window->hide();
}

QWidget* DialogSession::shownWidget(uint8_t pick) const
{
  QWidget* target = widget(pick);
  if (!target)
    return nullptr;
  // A user reaches only what is on screen: the window opens first, and a
  // piece that the library keeps hidden stays out of reach. Qt itself
  // fails on some input to a widget that was never shown.
  QWidget* window = target->window();
  if (!window->isVisible() && window->width() <= kMaxPainted && window->height() <= kMaxPainted)
    window->show();
  return target->isVisible() ? target : nullptr;
}

void DialogSession::sendMouse(const Action& action)
{
  QPointer<QWidget> target = shownWidget(action.a);
  if (!target)
    return;
  static const QEvent::Type kTypes[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove,
                                        QEvent::MouseButtonDblClick};
  const QPointF at((action.c & 15) * target->width() / 15.0, (action.c >> 4) * target->height() / 15.0);
  const Qt::MouseButton button = (action.b & 0x40) ? Qt::RightButton : Qt::LeftButton;
  const QEvent::Type type = pick(kTypes, action.b & 0x3f);
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
  const QPointF global = target->mapToGlobal(at);
  if (action.b & 0x80)
    QCoreApplication::postEvent(target, new QMouseEvent(type, at, global, button, held, Qt::NoModifier));
  else {
    QMouseEvent event(type, at, global, button, held, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
  }
}

void DialogSession::sendKey(const Action& action)
{
  QPointer<QWidget> target = shownWidget(action.a);
  const QtKey& key = pick(kQtKeys, action.b);
  const Qt::KeyboardModifiers modifiers = pick(kModifiers, action.c);
  for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (!target)
      return;
    if (action.c & 0x80)
      QCoreApplication::postEvent(target, new QKeyEvent(type, key.key, modifiers, key.text));
    else {
      QKeyEvent event(type, key.key, modifiers, key.text);
      QApplication::sendEvent(target, &event);
    }
  }
}

void DialogSession::closeWindow(const Action& action)
{
  if (QWidget* target = widget(action.a))
    target->window()->close();
}

void DialogSession::applyInScene(SoEvent& event)
{
  event.setTime(SbTime::getTimeOfDay());
  m_sceneAction.setEvent(&event);
  m_sceneAction.apply(m_scene);
}

void DialogSession::pointInScene(const Action& action)
{
  const SbVec2s at(static_cast<short>(action.b * 2), static_cast<short>(action.c * 2));
  if (action.a % 3 == 2) {
    SoLocation2Event event;
    event.setPosition(at);
    applyInScene(event);
    return;
  }
  SoMouseButtonEvent event;
  event.setButton(SoMouseButtonEvent::BUTTON1);
  event.setState(action.a % 3 == 0 ? SoButtonEvent::DOWN : SoButtonEvent::UP);
  event.setPosition(at);
  applyInScene(event);
}

void DialogSession::keyInScene(const Action& action)
{
  for (SoButtonEvent::State state : {SoButtonEvent::DOWN, SoButtonEvent::UP}) {
    SoKeyboardEvent event;
    event.setKey(pick(kSceneKeys, action.a));
    event.setState(state);
    event.setShiftDown(action.b & 1);
    event.setPosition(SbVec2s(static_cast<short>(action.c * 2), 0));
    applyInScene(event);
  }
}

SoNode* DialogSession::newOrExistingNode(uint8_t pick)
{
  if (pick >= 128) {
    const std::vector<SoFormwright*> all = nodes();
    return all[pick % all.size()];
  }
  SoType type = SoType::fromName(::pick(kNewNodeTypes, pick));
  return static_cast<SoNode*>(type.createInstance());
}

void DialogSession::editTree(const Action& action)
{
  std::vector<SoFormwright*> containers;
  for (SoFormwright* node : nodes())
    if (InterfaceTree::isContainer(node))
      containers.push_back(node);
  SoFormwright* container = containers[action.a % containers.size()];
  const int count = InterfaceTree::numChildren(container);
  const auto edit = static_cast<TreeEdit>(static_cast<int>(action.kind) - static_cast<int>(ActionKind::InsertChild));
  container->ref();
  if (edit == Insert || edit == Replace) {
    SoNode* child = newOrExistingNode(action.c);
    child->ref();
    if (edit == Insert)
      InterfaceTree::insert(container, child, action.b % (count + 2) - 1);
    else
      InterfaceTree::replace(container, action.b % (count + 1), child);
    child->unref();
  } else if (edit == Remove) {
    InterfaceTree::remove(container, action.b % (count + 1));
  } else if (edit == Move && count > 0) {
    // As an application moves a child: inserted at its new place, then
    // removed from its old one.
    const int from = action.b % count;
    const int to = action.c % (count + 1);
    SoNode* child = InterfaceTree::child(container, from);
    child->ref();
    InterfaceTree::insert(container, child, to);
    InterfaceTree::remove(container, to <= from ? from + 1 : from);
    child->unref();
  } else if (edit == RemoveAll) {
    InterfaceTree::removeAll(container);
  }
  container->unref();
}

void DialogSession::build(uint8_t form)
{
  enum Form { Window, Scene, Both, InHost };
  const auto chosen = static_cast<Form>(form % 4);
  if (chosen == Scene || chosen == Both) {
    SoFormMode::setSceneForm(true);
    m_dialog->buildDialog(nullptr, 0);
    SoFormMode::setSceneForm(false);
    if (m_scene->findChild(m_dialog) < 0)
      m_scene->addChild(m_dialog);
  }
  if (chosen == Window || chosen == Both)
    m_dialog->buildDialog(nullptr, 0);
  if (chosen == InHost) {
    if (!m_host)
      m_host = new QWidget;
    m_dialog->buildDialog(m_host, 1);
  }
}

void DialogSession::showHideClose(uint8_t which)
{
  switch (which % 4) {
  case 0:
    m_dialog->show();
    hideHugeWindows();
    break;
  case 1: m_dialog->hide(); break;
  case 2:
    // Closing gives away a reference; this application holds another.
    m_dialog->ref();
    m_dialog->close();
    break;
  case 3: m_dialog->destroyWidget(); break;
  }
}

void DialogSession::attachAuditor(const Action& action)
{
  std::vector<SoFormwright*> containers;
  for (SoFormwright* node : nodes())
    if (InterfaceTree::isContainer(node))
      containers.push_back(node);
  SoFormwright* target = containers[action.a % containers.size()];
  std::vector<Action> reactions;
  for (int i = 0; i < action.b % 4 + 1 && !m_tape.atEnd(); ++i)
    reactions.push_back(m_tape.next());
  auto react = [this](ReactingAuditor& auditor, const Action& reaction) {
    if (m_reactionDepth >= kMaxReactionDepth || !m_dialog)
      return;
    ++m_reactionDepth;
    if (reaction.kind == ActionKind::DetachAuditor)
      detachAuditor(&auditor);
    else if (reaction.kind == ActionKind::DeleteHost) {
      // Deleting the widget whose signal is running is the application's
      // own fault in Qt; it is deleted once the event is done.
      if (m_host)
        m_host->deleteLater();
    } else if (reaction.kind != ActionKind::Restart && reaction.kind != ActionKind::AttachAuditor)
      // The library ends only when nothing of it runs, and an auditor that
      // adds auditors would take the rest of the tape.
      play(reaction);
    --m_reactionDepth;
  };
  m_auditors.push_back(std::make_unique<ReactingAuditor>(target, std::move(reactions), react));
  InterfaceTree::addAuditor(target, m_auditors.back().get());
}

void DialogSession::detachAuditor(ReactingAuditor* auditor)
{
  if (!auditor->attached)
    return;
  InterfaceTree::removeAuditor(auditor->listenedTo(), auditor);
  auditor->attached = false;
}

void DialogSession::deleteHost()
{
  if (m_host)
    delete m_host;
  else if (m_dialog->getBaseWidget())
    delete m_dialog->getBaseWidget();
}

void DialogSession::restart()
{
  if (s_skinReadsLeft <= 0)
    return;
  --s_skinReadsLeft;
  release();
  // The library's types go with the last finish: their nodes go first.
  freeDroppedNodes();
  SoFormwright::finish();
  SoFormwright::init();
  freeInterfaceNodesOnLastUnref();
  SoFormwright::setSkin(kSourceSkin);
  m_skinSwapped = false;
  load();
  if (m_dialog)
    build(0);
}
