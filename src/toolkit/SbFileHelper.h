#pragma once

#include <Inventor/SbString.h>

// Path helpers for skin and dialog file lookup.
class SbFileHelper {
public:
  // True when the path names something that can be read.
  static bool isAccessible(const SbString& path);
  // Backslashes become slashes, so that paths from any platform compare alike.
  static SbString toUnixPath(const SbString& path);
  // Replaces $NAME and ${NAME} by the value of the preference or environment
  // variable NAME; an unknown variable expands to nothing.
  static SbString expandString(const SbString& path);
};
