#pragma once

#include <Inventor/fields/SoSFString.h>
#include <Inventor/fields/SoSubField.h>

// A string field that holds a file path. Paths read from a file are stored
// with forward slashes, so that dialog files written on any platform work.
class SoSFFilePathString : public SoSFString {
  SO_SFIELD_DERIVED_HEADER(SoSFFilePathString, SbString, const SbString&);

public:
  // Registers the field type; harmless when it is already registered.
  static void initClass();
};
