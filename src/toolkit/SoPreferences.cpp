#include "SoPreferences.h"

#include <cstdlib>
#include <map>
#include <string>

namespace {
std::map<std::string, std::string>& processValues()
{
  static std::map<std::string, std::string> values;
  return values;
}
}

const char* SoPreferences::getValue(const char* key)
{
  if (!key)
    return nullptr;
  auto found = processValues().find(key);
  if (found != processValues().end())
    return found->second.c_str();
  return std::getenv(key);
}

SbString SoPreferences::getString(const char* key, const SbString& defaultValue)
{
  const char* value = getValue(key);
  return value ? SbString(value) : defaultValue;
}

void SoPreferences::setString(const char* key, const SbString& value)
{
  if (key)
    processValues()[key] = value.getString();
}

void SoPreferences::unsetString(const char* key)
{
  if (key)
    processValues().erase(key);
}
