#include "SoQtEventTranslator.h"

#include <Inventor/SbTime.h>

#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>

namespace Formwright {

namespace {

using Key = SoKeyboardEvent::Key;

struct KeyPair {
  int qtKey;
  Key key;
};

// Keys whose Qt and toolkit codes differ in more than an offset.
const KeyPair kNamedKeys[] = {
  {Qt::Key_Shift, SoKeyboardEvent::LEFT_SHIFT},     {Qt::Key_Control, SoKeyboardEvent::LEFT_CONTROL},
  {Qt::Key_Alt, SoKeyboardEvent::LEFT_ALT},         {Qt::Key_Home, SoKeyboardEvent::HOME},
  {Qt::Key_Left, SoKeyboardEvent::LEFT_ARROW},      {Qt::Key_Up, SoKeyboardEvent::UP_ARROW},
  {Qt::Key_Right, SoKeyboardEvent::RIGHT_ARROW},    {Qt::Key_Down, SoKeyboardEvent::DOWN_ARROW},
  {Qt::Key_PageUp, SoKeyboardEvent::PAGE_UP},       {Qt::Key_PageDown, SoKeyboardEvent::PAGE_DOWN},
  {Qt::Key_End, SoKeyboardEvent::END},              {Qt::Key_Backspace, SoKeyboardEvent::BACKSPACE},
  {Qt::Key_Tab, SoKeyboardEvent::TAB},              {Qt::Key_Backtab, SoKeyboardEvent::TAB},
  {Qt::Key_Return, SoKeyboardEvent::RETURN},        {Qt::Key_Enter, SoKeyboardEvent::PAD_ENTER},
  {Qt::Key_Pause, SoKeyboardEvent::PAUSE},          {Qt::Key_ScrollLock, SoKeyboardEvent::SCROLL_LOCK},
  {Qt::Key_Escape, SoKeyboardEvent::ESCAPE},        {Qt::Key_Delete, SoKeyboardEvent::DELETE},
  {Qt::Key_Print, SoKeyboardEvent::PRINT},          {Qt::Key_Insert, SoKeyboardEvent::INSERT},
  {Qt::Key_NumLock, SoKeyboardEvent::NUM_LOCK},     {Qt::Key_CapsLock, SoKeyboardEvent::CAPS_LOCK},
  {Qt::Key_Space, SoKeyboardEvent::SPACE},          {Qt::Key_Apostrophe, SoKeyboardEvent::APOSTROPHE},
  {Qt::Key_Comma, SoKeyboardEvent::COMMA},          {Qt::Key_Minus, SoKeyboardEvent::MINUS},
  {Qt::Key_Period, SoKeyboardEvent::PERIOD},        {Qt::Key_Slash, SoKeyboardEvent::SLASH},
  {Qt::Key_Semicolon, SoKeyboardEvent::SEMICOLON},  {Qt::Key_Equal, SoKeyboardEvent::EQUAL},
  {Qt::Key_BracketLeft, SoKeyboardEvent::BRACKETLEFT}, {Qt::Key_Backslash, SoKeyboardEvent::BACKSLASH},
  {Qt::Key_BracketRight, SoKeyboardEvent::BRACKETRIGHT}, {Qt::Key_QuoteLeft, SoKeyboardEvent::GRAVE},
};

// The number pad's keys, which Qt tells from the others by a modifier. With
// the number lock off the pad's keys move instead of typing digits: Qt names
// them as the cursor keys, the toolkit keeps the pad's own codes.
const KeyPair kPadKeys[] = {
  {Qt::Key_Insert, SoKeyboardEvent::PAD_INSERT}, {Qt::Key_End, SoKeyboardEvent::PAD_1},
  {Qt::Key_Down, SoKeyboardEvent::PAD_2},       {Qt::Key_PageDown, SoKeyboardEvent::PAD_3},
  {Qt::Key_Left, SoKeyboardEvent::PAD_4},       {Qt::Key_Clear, SoKeyboardEvent::PAD_5},
  {Qt::Key_Right, SoKeyboardEvent::PAD_6},      {Qt::Key_Home, SoKeyboardEvent::PAD_7},
  {Qt::Key_Up, SoKeyboardEvent::PAD_8},         {Qt::Key_PageUp, SoKeyboardEvent::PAD_9},
  {Qt::Key_Delete, SoKeyboardEvent::PAD_DELETE},
  {Qt::Key_0, SoKeyboardEvent::PAD_0},          {Qt::Key_1, SoKeyboardEvent::PAD_1},
  {Qt::Key_2, SoKeyboardEvent::PAD_2},          {Qt::Key_3, SoKeyboardEvent::PAD_3},
  {Qt::Key_4, SoKeyboardEvent::PAD_4},          {Qt::Key_5, SoKeyboardEvent::PAD_5},
  {Qt::Key_6, SoKeyboardEvent::PAD_6},          {Qt::Key_7, SoKeyboardEvent::PAD_7},
  {Qt::Key_8, SoKeyboardEvent::PAD_8},          {Qt::Key_9, SoKeyboardEvent::PAD_9},
  {Qt::Key_Plus, SoKeyboardEvent::PAD_ADD},     {Qt::Key_Minus, SoKeyboardEvent::PAD_SUBTRACT},
  {Qt::Key_Asterisk, SoKeyboardEvent::PAD_MULTIPLY}, {Qt::Key_Slash, SoKeyboardEvent::PAD_DIVIDE},
  {Qt::Key_Period, SoKeyboardEvent::PAD_PERIOD}, {Qt::Key_Enter, SoKeyboardEvent::PAD_ENTER},
};

}

SbVec2s SoQtEventTranslator::positionOf(const QPointF& point, int heightInPixels, qreal pixelRatio)
{
  const int x = static_cast<int>(std::floor(point.x() * pixelRatio));
  const int y = heightInPixels - 1 - static_cast<int>(std::floor(point.y() * pixelRatio));
  return SbVec2s(static_cast<short>(x), static_cast<short>(y));
}

SoMouseButtonEvent::Button SoQtEventTranslator::buttonOf(Qt::MouseButton button)
{
  switch (button) {
  case Qt::LeftButton:
    return SoMouseButtonEvent::BUTTON1;
  case Qt::MiddleButton:
    return SoMouseButtonEvent::BUTTON2;
  case Qt::RightButton:
    return SoMouseButtonEvent::BUTTON3;
  default:
    return SoMouseButtonEvent::ANY;
  }
}

Key SoQtEventTranslator::keyOf(int qtKey, Qt::KeyboardModifiers modifiers)
{
  if (modifiers & Qt::KeypadModifier)
    for (const KeyPair& pair : kPadKeys)
      if (pair.qtKey == qtKey)
        return pair.key;
  // Qt names letters by their capitals, the toolkit by their small letters.
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z)
    return static_cast<Key>(SoKeyboardEvent::A + (qtKey - Qt::Key_A));
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
    return static_cast<Key>(SoKeyboardEvent::NUMBER_0 + (qtKey - Qt::Key_0));
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12)
    return static_cast<Key>(SoKeyboardEvent::F1 + (qtKey - Qt::Key_F1));
  for (const KeyPair& pair : kNamedKeys)
    if (pair.qtKey == qtKey)
      return pair.key;
  return SoKeyboardEvent::UNDEFINED;
}

void SoQtEventTranslator::stamp(SoEvent& event, Qt::KeyboardModifiers modifiers, const SbVec2s& position)
{
  event.setTime(SbTime::getTimeOfDay());
  event.setPosition(position);
  event.setShiftDown(modifiers.testFlag(Qt::ShiftModifier));
  event.setCtrlDown(modifiers.testFlag(Qt::ControlModifier));
  event.setAltDown(modifiers.testFlag(Qt::AltModifier));
}

const SoEvent* SoQtEventTranslator::translate(const QEvent* event, int heightInPixels, qreal pixelRatio)
{
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseButtonRelease: {
    const auto* mouse = static_cast<const QMouseEvent*>(event);
    const SoMouseButtonEvent::Button button = buttonOf(mouse->button());
    if (button == SoMouseButtonEvent::ANY)
      return nullptr;
    m_lastPosition = positionOf(mouse->position(), heightInPixels, pixelRatio);
    stamp(m_buttonEvent, mouse->modifiers(), m_lastPosition);
    m_buttonEvent.setButton(button);
    // A double click is the second press of two.
    m_buttonEvent.setState(event->type() == QEvent::MouseButtonRelease ? SoButtonEvent::UP : SoButtonEvent::DOWN);
    return &m_buttonEvent;
  }
  case QEvent::MouseMove: {
    const auto* mouse = static_cast<const QMouseEvent*>(event);
    m_lastPosition = positionOf(mouse->position(), heightInPixels, pixelRatio);
    stamp(m_locationEvent, mouse->modifiers(), m_lastPosition);
    return &m_locationEvent;
  }
  case QEvent::KeyPress:
  case QEvent::KeyRelease: {
    const auto* key = static_cast<const QKeyEvent*>(event);
    stamp(m_keyboardEvent, key->modifiers(), m_lastPosition);
    m_keyboardEvent.setKey(keyOf(key->key(), key->modifiers()));
    m_keyboardEvent.setState(event->type() == QEvent::KeyPress ? SoButtonEvent::DOWN : SoButtonEvent::UP);
    // The character typed, as the keyboard layout gives it; the toolkit
    // holds one Latin-1 character. Control characters, which Qt gives for
    // Ctrl+letter, Escape or Tab, type nothing.
    const QString text = key->text();
    const char16_t typed = text.size() == 1 ? text.at(0).unicode() : 0;
    const bool printable = (typed >= 0x20 && typed < 0x7f) || (typed >= 0xa0 && typed < 0x100);
    m_keyboardEvent.setPrintableCharacter(printable ? static_cast<char>(typed) : 0);
    return &m_keyboardEvent;
  }
  default:
    return nullptr;
  }
}

}
