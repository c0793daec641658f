#pragma once

// The character that a key press types in a text of the 3D form.

#include <Inventor/events/SoKeyboardEvent.h>

namespace SoKeyCharacter {

// The character a key types, or 0. Keys of the function range type nothing,
// except the keypad's, whose navigation keys type their digits and whose
// period types ".".
inline char typedBy(const SoKeyboardEvent& event)
{
  const int key = event.getKey();
  if (key == SoKeyboardEvent::PAD_PERIOD)
    return '.';
  if (key <= 0xff00)
    return event.getPrintableCharacter();
  static const char keypad[] = "7486293150";
  if (key >= SoKeyboardEvent::PAD_7 && key <= SoKeyboardEvent::PAD_0)
    return keypad[key - SoKeyboardEvent::PAD_7];
  return 0;
}

} // namespace SoKeyCharacter
