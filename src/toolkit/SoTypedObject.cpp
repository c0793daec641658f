#include <SoTypedObject.h>

#include <Inventor/errors/SoDebugError.h>

void SoTypedObject::checkDatabase(const char* className, const void* instance, SoType classType,
                                  SoType storedType)
{
  if (classType.isBad() || classType != storedType || SoType::fromName(classType.getName()) != classType)
    SoDebugError::post("SoTypedObject::checkDatabase",
                       "Instance %p of %s does not match the registered type database.", instance,
                       className);
}
