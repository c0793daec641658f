#pragma once

#include <Inventor/SbVec2s.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoLocation2Event.h>
#include <Inventor/events/SoMouseButtonEvent.h>

#include <Qt>

class QEvent;
class QPointF;

namespace Formwright {

// Turns Qt's input events into the scene-graph toolkit's, so that a scene
// shown in a Qt widget is worked by the same events as in any other viewer.
// The toolkit counts pixels from the lower left corner of the drawing area,
// Qt from the upper left one, in device-independent units.
class SoQtEventTranslator {
public:
  // The toolkit event that stands for `event` in a drawing area
  // `heightInPixels` device pixels high, or null for an event that the scene
  // has no use for. The result lives until the next call.
  const SoEvent* translate(const QEvent* event, int heightInPixels, qreal pixelRatio);

  static SbVec2s positionOf(const QPointF& point, int heightInPixels, qreal pixelRatio);
  // ANY for a button that the toolkit has no name for.
  static SoMouseButtonEvent::Button buttonOf(Qt::MouseButton button);
  // UNDEFINED for a key that the toolkit has no code for; the event's
  // printable character still carries what it types.
  static SoKeyboardEvent::Key keyOf(int qtKey, Qt::KeyboardModifiers modifiers);

private:
  void stamp(SoEvent& event, Qt::KeyboardModifiers modifiers, const SbVec2s& position);

  SoMouseButtonEvent m_buttonEvent;
  SoLocation2Event m_locationEvent;
  SoKeyboardEvent m_keyboardEvent;
  // Key events carry no position: they take the pointer's last one.
  SbVec2s m_lastPosition{0, 0};
};

}
