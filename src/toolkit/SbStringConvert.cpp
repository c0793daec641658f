#include "SbStringConvert.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale.h>

namespace {
locale_t cLocale()
{
  static locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

bool onlyBlanksFrom(const char* p)
{
  while (*p == ' ' || *p == '\t' || *p == '\n' || *p == '\r')
    ++p;
  return *p == '\0';
}
}

namespace SbStringConvert {

int toInt(const SbString& text, bool* ok)
{
  const char* start = text.getString();
  char* end = nullptr;
  const long value = strtol_l(start, &end, 10, cLocale());
  if (ok)
    *ok = end != start && onlyBlanksFrom(end);
  return static_cast<int>(value);
}

float toFloat(const SbString& text, bool* ok)
{
  const char* start = text.getString();
  char* end = nullptr;
  const float value = strtof_l(start, &end, cLocale());
  if (ok)
    *ok = end != start && onlyBlanksFrom(end);
  return value;
}

namespace {
template <class Number>
SbString formatInCLocale(const char* format, Number value)
{
  const locale_t previous = uselocale(cLocale());
  char buffer[128];
  std::snprintf(buffer, sizeof(buffer), format, value);
  uselocale(previous);
  return SbString(buffer);
}
}

SbString toString_l(const char* format, double value)
{
  return formatInCLocale(format, value);
}

SbString toString_l(const char* format, int value)
{
  return formatInCLocale(format, value);
}

}
