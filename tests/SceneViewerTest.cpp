// The scene viewer's input, worked without a window or an OpenGL context:
// Qt events are built by hand and handed to the translator, or sent to a
// viewer that is never shown.

#include "TestSupport.h"

#include "Qt/SoQtEventTranslator.h"
#include "SoQtSceneViewer.h"
#include "SoTopLevelDialog.h"

#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoEventCallback.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTranslation.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

using Formwright::SoQtEventTranslator;
using Formwright::SoQtSceneViewer;

namespace {

QMouseEvent mouse(QEvent::Type type, QPointF at, Qt::MouseButton button,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
  return QMouseEvent(type, at, at, button, held, modifiers);
}

TEST(SceneViewerInput, positionsCountFromTheLowerLeftInDevicePixels)
{
  // 300 pixels high: Qt's top row is the toolkit's row 299.
  EXPECT_EQ(SoQtEventTranslator::positionOf(QPointF(0, 0), 300, 1.0), SbVec2s(0, 299));
  EXPECT_EQ(SoQtEventTranslator::positionOf(QPointF(7, 299), 300, 1.0), SbVec2s(7, 0));
  // At two device pixels a unit, (10.5, 20.25) is pixel (21, 40) from the top
  // of a 600-pixel area: row 600 - 1 - 40 from the bottom.
  EXPECT_EQ(SoQtEventTranslator::positionOf(QPointF(10.5, 20.25), 600, 2.0), SbVec2s(21, 559));
}

TEST(SceneViewerInput, buttonsAndKeysTakeTheToolkitsCodes)
{
  EXPECT_EQ(SoQtEventTranslator::buttonOf(Qt::LeftButton), SoMouseButtonEvent::BUTTON1);
  EXPECT_EQ(SoQtEventTranslator::buttonOf(Qt::MiddleButton), SoMouseButtonEvent::BUTTON2);
  EXPECT_EQ(SoQtEventTranslator::buttonOf(Qt::RightButton), SoMouseButtonEvent::BUTTON3);
  EXPECT_EQ(SoQtEventTranslator::buttonOf(Qt::BackButton), SoMouseButtonEvent::ANY);

  struct Case {
    int qtKey;
    Qt::KeyboardModifiers modifiers;
    int key;
  };
  const Case cases[] = {
    {Qt::Key_Z, Qt::ShiftModifier, 0x7a},     {Qt::Key_5, Qt::NoModifier, 0x35},
    {Qt::Key_5, Qt::KeypadModifier, 0xff9d},  {Qt::Key_Enter, Qt::KeypadModifier, 0xff8d},
    {Qt::Key_F12, Qt::NoModifier, 0xffc9},    {Qt::Key_PageDown, Qt::NoModifier, 0xff56},
    {Qt::Key_Backtab, Qt::ShiftModifier, 0xff09}, {Qt::Key_Delete, Qt::NoModifier, 0xffff},
    {Qt::Key_Control, Qt::ControlModifier, 0xffe3}, {Qt::Key_QuoteLeft, Qt::NoModifier, 0x60},
    // The pad with the number lock off: its keys keep the pad's codes.
    {Qt::Key_Home, Qt::KeypadModifier, 0xff95}, {Qt::Key_Clear, Qt::KeypadModifier, 0xff9d},
    {Qt::Key_Delete, Qt::KeypadModifier, 0xff9f}, {Qt::Key_Home, Qt::NoModifier, 0xff50},
    // No code of its own: a shifted character, and a key off the table.
    {Qt::Key_Exclam, Qt::ShiftModifier, SoKeyboardEvent::UNDEFINED},
    {Qt::Key_VolumeUp, Qt::NoModifier, SoKeyboardEvent::UNDEFINED},
  };
  for (const Case& c : cases)
    EXPECT_EQ(SoQtEventTranslator::keyOf(c.qtKey, c.modifiers), c.key) << "Qt key 0x" << std::hex << c.qtKey;
}

TEST(SceneViewerInput, aDragAndTypingBecomeToolkitEventsWithStateAndModifiers)
{
  SoQtEventTranslator translator;
  const auto translated = [&](QInputEvent&& event) { return translator.translate(&event, 100, 1.0); };
  const auto typed = [&](int qtKey, const QString& text, QEvent::Type type = QEvent::KeyPress) {
    return static_cast<const SoKeyboardEvent*>(translated(QKeyEvent(type, qtKey, Qt::NoModifier, text)));
  };
  const SoEvent* event = translated(mouse(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::ShiftModifier));
  ASSERT_NE(event, nullptr);
  EXPECT_TRUE(SoMouseButtonEvent::isButtonPressEvent(event, SoMouseButtonEvent::BUTTON1));
  EXPECT_EQ(event->getPosition(), SbVec2s(5, 94));
  EXPECT_TRUE(event->wasShiftDown() && !event->wasCtrlDown());

  event = translated(mouse(QEvent::MouseMove, QPointF(30, 40), Qt::NoButton, Qt::ControlModifier));
  ASSERT_TRUE(event && event->isOfType(SoLocation2Event::getClassTypeId()));
  EXPECT_EQ(event->getPosition(), SbVec2s(30, 59));
  EXPECT_TRUE(event->wasCtrlDown() && !event->wasShiftDown());
  event = translated(mouse(QEvent::MouseButtonRelease, QPointF(30, 40), Qt::LeftButton));
  EXPECT_TRUE(SoMouseButtonEvent::isButtonReleaseEvent(event, SoMouseButtonEvent::BUTTON1));
  // The second press of a double click is a press like the first.
  event = translated(mouse(QEvent::MouseButtonDblClick, QPointF(30, 40), Qt::RightButton));
  EXPECT_TRUE(SoMouseButtonEvent::isButtonPressEvent(event, SoMouseButtonEvent::BUTTON3));
  EXPECT_EQ(translated(mouse(QEvent::MouseButtonPress, QPointF(30, 40), Qt::BackButton)), nullptr);

  // A key is typed where the pointer was last.
  const SoKeyboardEvent* key = static_cast<const SoKeyboardEvent*>(
    translated(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, "A")));
  EXPECT_TRUE(SoKeyboardEvent::isKeyPressEvent(key, SoKeyboardEvent::A));
  EXPECT_EQ(key->getPrintableCharacter(), 'A');
  EXPECT_EQ(key->getPosition(), SbVec2s(30, 59));
  EXPECT_TRUE(key->wasShiftDown());
  key = typed(Qt::Key_Eacute, QString(QChar(0xe9)), QEvent::KeyRelease);
  EXPECT_TRUE(SoKeyboardEvent::isKeyReleaseEvent(key, SoKeyboardEvent::UNDEFINED));
  EXPECT_EQ(key->getPrintableCharacter(), '\xe9');
  EXPECT_TRUE(SoKeyboardEvent::isKeyPressEvent(typed(Qt::Key_Up, ""), SoKeyboardEvent::UP_ARROW));
  // Outside Latin-1 the toolkit's one character has nothing to hold; control
  // characters, as Qt gives them for Ctrl+C or Escape, and arrows type nothing.
  for (const QString& nothing : {QString(QChar(0x20ac)), QString("\x03"), QString("\x1b"), QString("\x7f"), QString("\t")})
    EXPECT_EQ(typed(Qt::Key_unknown, nothing)->getPrintableCharacter(), '\0') << nothing.toStdString();
  EXPECT_EQ(typed(Qt::Key_Up, "")->getPrintableCharacter(), '\0');
}

// Records the events that reach it, and takes every later one at a press, as
// a dragger does.
struct Recorder {
  SoEventCallback* node = new SoEventCallback;
  std::vector<SoType> types;
  std::vector<SbVec2s> positions;

  Recorder()
  {
    node->addEventCallback(SoEvent::getClassTypeId(), &Recorder::record, this);
  }
  static void record(void* data, SoEventCallback* node)
  {
    auto* self = static_cast<Recorder*>(data);
    const SoEvent* event = node->getEvent();
    self->types.push_back(event->getTypeId());
    self->positions.push_back(event->getPosition());
    if (SoMouseButtonEvent::isButtonPressEvent(event, SoMouseButtonEvent::BUTTON1)) {
      node->getAction()->setGrabber(node);
      node->setHandled();
    }
    if (SoMouseButtonEvent::isButtonReleaseEvent(event, SoMouseButtonEvent::BUTTON1))
      node->getAction()->releaseGrabber();
  }
};

TEST(SceneViewer, aDragReachesTheNodeThatGrabbedItEvenWhenTheSceneNoLongerLeadsToIt)
{
  SoQtSceneViewer viewer;
  viewer.resize(200, 100);
  Recorder recorder;
  auto* hiding = new SoSwitch;
  hiding->whichChild = SO_SWITCH_ALL;
  hiding->addChild(recorder.node);
  hiding->addChild(new SoCube);
  viewer.setSceneGraph(hiding);

  QMouseEvent press = mouse(QEvent::MouseButtonPress, QPointF(20, 10), Qt::LeftButton);
  QApplication::sendEvent(&viewer, &press);
  EXPECT_TRUE(press.isAccepted());
  // From here on only the grab leads the events to the recorder.
  hiding->whichChild = SO_SWITCH_NONE;
  // Moves come to a viewer that does not track the pointer while a button
  // is held.
  QMouseEvent move(QEvent::MouseMove, QPointF(60, 30), QPointF(60, 30), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&viewer, &move);
  QMouseEvent release = mouse(QEvent::MouseButtonRelease, QPointF(60, 30), Qt::LeftButton);
  QApplication::sendEvent(&viewer, &release);
  QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
  QApplication::sendEvent(&viewer, &key);

  ASSERT_EQ(recorder.types.size(), 3u);
  EXPECT_EQ(recorder.types[0], SoMouseButtonEvent::getClassTypeId());
  EXPECT_EQ(recorder.types[1], SoLocation2Event::getClassTypeId());
  EXPECT_EQ(recorder.types[2], SoMouseButtonEvent::getClassTypeId());
  EXPECT_EQ(recorder.positions[0], SbVec2s(20, 89));
  EXPECT_EQ(recorder.positions[1], SbVec2s(60, 69));
  // Nothing in the scene took the key: it goes on to the widget's parents.
  EXPECT_FALSE(key.isAccepted());
}

TEST(SceneViewer, viewAllCentresTheCameraOnTheScene)
{
  SoQtSceneViewer viewer;
  viewer.resize(300, 300);
  auto* scene = new SoSeparator;
  auto* offset = new SoTranslation;
  offset->translation.setValue(100.0f, -40.0f, 0.0f);
  scene->addChild(offset);
  scene->addChild(new SoCube);
  viewer.setSceneGraph(scene);
  EXPECT_EQ(viewer.getSceneGraph(), scene);

  // The camera keeps looking down the z axis, from in front of the cube.
  const SbVec3f position = viewer.getCamera()->position.getValue();
  EXPECT_NEAR(position[0], 100.0f, 0.001f);
  EXPECT_NEAR(position[1], -40.0f, 0.001f);
  EXPECT_GT(position[2], 1.0f);

  offset->translation.setValue(-10.0f, 5.0f, 0.0f);
  viewer.viewAll();
  EXPECT_NEAR(viewer.getCamera()->position.getValue()[0], -10.0f, 0.001f);
  EXPECT_NEAR(viewer.getCamera()->position.getValue()[1], 5.0f, 0.001f);
}

TEST(SceneViewer, tabGoesToTheSceneBeforeItMovesTheFocus)
{
  QWidget window;
  auto* viewer = new SoQtSceneViewer(&window);
  new QLineEdit(&window); // where Tab would move the focus to
  std::vector<int> taken;
  auto* keys = new SoEventCallback;
  keys->addEventCallback(SoKeyboardEvent::getClassTypeId(), [](void* data, SoEventCallback* node) {
    static_cast<std::vector<int>*>(data)->push_back(static_cast<const SoKeyboardEvent*>(node->getEvent())->getKey());
    node->setHandled();
  }, &taken);
  viewer->setSceneGraph(keys);
  window.show();
  viewer->setFocus();

  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, "\t");
  QApplication::sendEvent(viewer, &tab);
  EXPECT_EQ(taken, std::vector<int>{SoKeyboardEvent::TAB});
  EXPECT_EQ(window.focusWidget(), viewer);
}

TEST(SceneViewer, whatIsAddedToTheShownSceneIsBuiltAndKeptBetweenTheClippingPlanes)
{
  DebugMessages quiet; // of the skin files, which the tests do without
  SoQtSceneViewer viewer;
  viewer.resize(300, 300);
  auto* scene = new SoSeparator;
  scene->addChild(new SoCube);
  viewer.setSceneGraph(scene);
  const SoCamera* camera = viewer.getCamera();
  const float eye = camera->position.getValue()[2];
  const float oldNear = camera->nearDistance.getValue();
  const float oldFar = camera->farDistance.getValue();

  // A dialog that nobody built, a cube of side 2 twice as far away as the
  // far plane and one halfway between the eye and the near plane.
  auto* dialog = new SoTopLevelDialog;
  scene->addChild(dialog);
  for (float centre : {eye - 2.0f * oldFar, eye - 0.5f * oldNear}) {
    auto* placed = new SoSeparator;
    auto* offset = new SoTranslation;
    offset->translation.setValue(0.0f, 0.0f, centre);
    placed->addChild(offset);
    placed->addChild(new SoCube);
    scene->addChild(placed);
  }
  QApplication::processEvents();

  EXPECT_TRUE(dialog->isBuilt3D());
  // Seen down the z axis, the far cube's back face is 2 far distances + 1
  // away, the near cube's front face half a near distance - 1.
  EXPECT_GE(camera->farDistance.getValue(), 2.0f * oldFar + 1.0f);
  EXPECT_LE(camera->nearDistance.getValue(), 0.5f * oldNear - 1.0f);
  EXPECT_GT(camera->nearDistance.getValue(), 0.0f);
}

}
