#include "SbFileHelper.h"

#include "SoPreferences.h"

#include <cctype>
#include <string>
#include <unistd.h>

bool SbFileHelper::isAccessible(const SbString& path)
{
  return path.getLength() > 0 && access(path.getString(), R_OK) == 0;
}

SbString SbFileHelper::toUnixPath(const SbString& path)
{
  std::string text = path.getString();
  for (char& c : text)
    if (c == '\\')
      c = '/';
  return SbString(text.c_str());
}

SbString SbFileHelper::expandString(const SbString& path)
{
  const std::string text = path.getString();
  std::string result;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '$') {
      result += text[i];
      continue;
    }
    const bool braced = i + 1 < text.size() && text[i + 1] == '{';
    size_t start = i + (braced ? 2 : 1);
    size_t end = start;
    while (end < text.size() && (std::isalnum(static_cast<unsigned char>(text[end])) || text[end] == '_'))
      ++end;
    if (braced && (end >= text.size() || text[end] != '}')) {
      result += text[i]; // not a variable: keep the dollar as typed
      continue;
    }
    if (end == start) {
      result += text[i];
      continue;
    }
    const char* value = SoPreferences::getValue(text.substr(start, end - start).c_str());
    if (value)
      result += value;
    i = braced ? end : end - 1;
  }
  return SbString(result.c_str());
}
