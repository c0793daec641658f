#pragma once

// The printf formats of the sliders' value zones come from dialog files. Each
// is checked before it is used, so that no format reads past the one value
// it is given; one that fails gives way to the class's own format.

#include "SbStringConvert.h"

#include <Inventor/SbString.h>
#include <Inventor/errors/SoDebugError.h>

#include <cstring>
#include <set>
#include <string>
#include <utility>

namespace SoSliderFormat {

const char* const kIntegerDefault = "%d";
const char* const kRealDefault = "%.3f";

// Whether `format` holds exactly one conversion, whose character is among
// `conversions`, with flags, a width and a precision in digits only and at
// most one length modifier among `lengths`. "%%" is no conversion.
inline bool isSingleConversion(const char* format, const char* conversions, const char* lengths)
{
  int found = 0;
  for (const char* p = format; *p != '\0'; ++p) {
    if (*p != '%')
      continue;
    ++p;
    if (*p == '%')
      continue;
    while (*p != '\0' && std::strchr("-+ #0'", *p))
      ++p;
    while (*p >= '0' && *p <= '9')
      ++p;
    if (*p == '.') {
      ++p;
      while (*p >= '0' && *p <= '9')
        ++p;
    }
    if (*p != '\0' && std::strchr(lengths, *p))
      ++p;
    if (*p == '\0' || !std::strchr(conversions, *p))
      return false;
    ++found;
  }
  return found == 1;
}

inline const char* usable(const SbString& format, const char* conversions, const char* lengths,
                          const char* fallback, const char* source)
{
  if (isSingleConversion(format.getString(), conversions, lengths))
    return format.getString();
  // A slider formats its value for several purposes: one line for each
  // field's bad format is enough. `format` is the field's own string.
  static std::set<std::pair<const SbString*, std::string>> reported;
  if (!reported.insert({&format, format.getString()}).second)
    return fallback;
  SoDebugError::post(source, "The format \"%s\" is not a single numeric conversion of the value; \"%s\" is used",
                     format.getString(), fallback);
  return fallback;
}

// The value as `format` writes it in the "C" locale; `source` names the
// operation for the message on a format that gives way.
inline SbString formatInteger(const SbString& format, int value, const char* source)
{
  return SbStringConvert::toString_l(usable(format, "diouxX", "", kIntegerDefault, source), value);
}

inline SbString formatReal(const SbString& format, double value, const char* source)
{
  return SbStringConvert::toString_l(usable(format, "fFeEgGaA", "l", kRealDefault, source), value);
}

}
