#pragma once

#include <Inventor/SbString.h>

class SoSeparator;

// One dialog file in the file cache: the name exactly as the application gave
// it, and the root that reading it produced, on which the cache holds one
// reference.
struct SoFormwrightFile {
  SbString fileName;
  SoSeparator* root = nullptr;
};
