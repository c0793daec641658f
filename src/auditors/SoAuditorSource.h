#pragma once

#include <Inventor/SbName.h>

// The type registration that every auditor class with a type of its own
// repeats. Auditors are never made from files, so they have no factory.
#define SO_FORMWRIGHT_AUDITOR_SOURCE(K, parentType, typeName)                                      \
  SoType K::classTypeId;                                                                           \
  void K::initClass() { classTypeId = SoType::createType(parentType, SbName(typeName), nullptr, 0); } \
  void K::exitClass()                                                                              \
  {                                                                                                \
    if (!classTypeId.isBad())                                                                      \
      SoType::removeType(classTypeId.getName());                                                   \
    classTypeId = SoType::badType();                                                               \
  }                                                                                                \
  SoType K::getClassTypeId() { return classTypeId; }                                               \
  SoType K::getTypeId() const { return classTypeId; }
