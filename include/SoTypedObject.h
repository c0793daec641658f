#pragma once

#include <Inventor/SbName.h>
#include <Inventor/SoType.h>

// Base of the library's typed objects that are not scene-graph nodes (the
// auditors), and home of the registration check that every node constructor
// makes.
class SoTypedObject {
public:
  virtual ~SoTypedObject() = default;
  virtual SoType getTypeId() const = 0;
  bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

  // Posts an error when the type that a class reports is not the one its
  // statics hold, or is not registered under the class's type name; a node
  // built that way could not be written and read back.
  static void checkDatabase(const char* className, const void* instance, SoType classType,
                            SoType storedType);
};
