#include "SoSFFilePathString.h"

#include "SbFileHelper.h"

SO_SFIELD_DERIVED_SOURCE(SoSFFilePathString, SbString, const SbString&)

void SoSFFilePathString::initClass()
{
  if (classTypeId.isBad())
    SO_SFIELD_INIT_CLASS(SoSFFilePathString, SoSFString);
}

SbBool SoSFFilePathString::readValue(SoInput* in)
{
  SbString path;
  if (!in->read(path))
    return FALSE;
  setValue(SbFileHelper::toUnixPath(path));
  return TRUE;
}

void SoSFFilePathString::writeValue(SoOutput* out) const
{
  out->write(getValue());
}
