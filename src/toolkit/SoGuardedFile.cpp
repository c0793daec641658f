#include "SoGuardedFile.h"

#include <Inventor/SoType.h>
#include <Inventor/errors/SoReadError.h>

int SoGuardedFile::s_nesting = 0;

void SoGuardedFile::initClass()
{
  SoType::overrideType(SoFile::getClassTypeId(), &SoGuardedFile::createInstance);
}

void* SoGuardedFile::createInstance()
{
  return new SoGuardedFile;
}

SbBool SoGuardedFile::readInstance(SoInput* in, unsigned short flags)
{
  if (s_nesting >= kDeepestNesting) {
    SoReadError::post(in, "Files include one another more than %d deep: a file may be including itself",
                      kDeepestNesting);
    return FALSE;
  }
  ++s_nesting;
  const SbBool ok = SoFile::readInstance(in, flags);
  --s_nesting;
  return ok;
}
