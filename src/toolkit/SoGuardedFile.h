#pragma once

#include <Inventor/nodes/SoFile.h>

// The toolkit's File node, which reads another file in its place, with a
// bound on how deep files may include one another. Without it a file that
// includes itself, directly or through others, is read until the stack
// overflows. Every File node the toolkit makes from then on is this one; it
// keeps the toolkit's type and name.
class SoGuardedFile : public SoFile {
public:
  // How many File nodes may be read inside one another.
  static constexpr int kDeepestNesting = 32;

  // Makes the toolkit create this class for File nodes; after each start of
  // the toolkit, as its types are made anew.
  static void initClass();

protected:
  SbBool readInstance(SoInput* in, unsigned short flags) override;

private:
  static void* createInstance();
  static int s_nesting;
};
