#pragma once

#include "SoTypedObject.h"

// The type statics that each auditor class with a type of its own declares.
#define SO_FORMWRIGHT_AUDITOR_HEADER(K)                                                            \
public:                                                                                            \
  static void initClass();                                                                         \
  static void exitClass();                                                                         \
  static SoType getClassTypeId();                                                                  \
  SoType getTypeId() const override;                                                               \
                                                                                                   \
private:                                                                                           \
  static SoType classTypeId;

// The base of the objects through which an application hears of the user's
// actions. An application derives from one of the auditor classes, overrides
// the operation for the kind of control it cares about, and attaches the
// object to a node. Nodes never own their auditors.
class SoAuditor : public SoTypedObject {
  SO_FORMWRIGHT_AUDITOR_HEADER(SoAuditor)

public:
  ~SoAuditor() override = default;

  // Registration of all auditor types, at the start and end of the library.
  static void initClasses();
  static void exitClasses();

protected:
  SoAuditor() = default;
};
