#pragma once

#include <Inventor/fields/SoFieldContainer.h>

// Held by a node constructor while it sets up its fields: the defaults it
// writes are not changes anyone should hear of.
class SoBaseInitializer {
public:
  explicit SoBaseInitializer(SoFieldContainer* instance)
    : m_instance(instance), m_notifyWasEnabled(instance->enableNotify(FALSE))
  {
  }
  ~SoBaseInitializer() { m_instance->enableNotify(m_notifyWasEnabled); }
  SoBaseInitializer(const SoBaseInitializer&) = delete;
  SoBaseInitializer& operator=(const SoBaseInitializer&) = delete;

private:
  SoFieldContainer* m_instance;
  SbBool m_notifyWasEnabled;
};
