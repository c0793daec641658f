#pragma once

#include <Inventor/SbString.h>

// Configuration keys, looked up first among values set for this process and
// then in the environment. Values set here never reach the environment.
class SoPreferences {
public:
  // The value of a key, or null when it is set nowhere. The pointer stays
  // valid until the key is set again.
  static const char* getValue(const char* key);
  static SbString getString(const char* key, const SbString& defaultValue);
  static SbString getStringValue(const char* key) { return getString(key, SbString()); }
  static void setString(const char* key, const SbString& value);
  // Forgets a value set for this process, so the environment speaks again.
  static void unsetString(const char* key);
};
