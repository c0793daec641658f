#pragma once

#include <Inventor/SbName.h>

#include "SoKeptType.h"

// The type registration that every auditor class with a type of its own
// repeats. Auditors are never made from files, so they have no factory; their
// types outlive the library's end (see SoKeptType.h).
#define SO_FORMWRIGHT_AUDITOR_SOURCE(K, parentType, typeName)                                      \
  SoType K::classTypeId;                                                                           \
  /* Kept past the library's end, and taken up again by its next start. */                         \
  static SoType soKeptTypeOf##K;                                                                   \
  void K::initClass()                                                                              \
  {                                                                                                \
    classTypeId = SoKeptType::reusable(soKeptTypeOf##K, SbName(typeName), parentType);             \
    if (classTypeId.isBad())                                                                       \
      classTypeId = SoType::createType(parentType, SbName(typeName), nullptr, 0);                  \
  }                                                                                                \
  void K::exitClass()                                                                              \
  {                                                                                                \
    if (!classTypeId.isBad())                                                                      \
      soKeptTypeOf##K = classTypeId;                                                               \
    classTypeId = SoType::badType();                                                               \
  }                                                                                                \
  SoType K::getClassTypeId() { return classTypeId; }                                               \
  SoType K::getTypeId() const { return classTypeId; }
