#include "SoGuardedFile.h"

#include "SoNesting.h"

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
  const SoNesting nesting(s_nesting, kDeepestNesting);
  if (nesting.tooDeep()) {
    SoReadError::post(in, "Files include one another more than %d deep: a file may be including itself",
                      kDeepestNesting);
    return FALSE;
  }
  return SoFile::readInstance(in, flags);
}
