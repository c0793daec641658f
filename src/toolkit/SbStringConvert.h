#pragma once

#include <Inventor/SbString.h>

// Number conversions of SbString that the toolkit leaves out. All of them use
// the "C" locale, whatever the process locale is, so that dialog files and
// the values shown in widgets read the same everywhere.
namespace SbStringConvert {
// The leading integer of the text; 0 when there is none. `ok`, if given,
// tells whether the whole text (surrounding blanks aside) was a number.
int toInt(const SbString& text, bool* ok = nullptr);
float toFloat(const SbString& text, bool* ok = nullptr);
// printf-style formatting of one number. The format must hold exactly one
// conversion of the value's kind.
SbString toString_l(const char* format, double value);
SbString toString_l(const char* format, int value);
}
