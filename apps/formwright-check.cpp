// Checks dialog files without showing them: reads each file as the library
// does and prints one line per fault on standard output, as FILE:LINE:
// message. Exits with 1 when any file has an error; warnings leave the
// status as it is.
//
//   formwright-check FILE...

#include "DialogFileCheck.h"

#include <SoFormwright.h>

#include <Inventor/SoDB.h>

#include <cstdio>
#include <cstring>

namespace {

const char* const kUsage =
  "Usage: formwright-check FILE...\n"
  "Reads each dialog file without showing it and prints one line per fault\n"
  "on standard output, as FILE:LINE: message. Errors: what the reader\n"
  "refuses (syntax, unknown node or field names, children that a container\n"
  "does not take, unknown enumeration values; reading stops at the first)\n"
  "and an auditorID used twice in one dialog. Warnings, marked \"warning:\":\n"
  "controls without an auditorID. Prints nothing for a clean file.\n"
  "Exit status: 0 when no file has an error, 1 when one has, 2 on bad use.\n";

}

int main(int argc, char** argv)
{
  if (argc < 2) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::fputs(kUsage, stdout);
      return 0;
    }
  }
  SoFormwright::init();
  bool anyError = false;
  for (int i = 1; i < argc; ++i) {
    for (const DialogFileCheck::Fault& fault : DialogFileCheck(argv[i]).run()) {
      anyError = anyError || fault.isError;
      if (fault.line > 0)
        std::printf("%s:%d: %s\n", fault.file.c_str(), fault.line, fault.message.c_str());
      else
        std::printf("%s: %s\n", fault.file.c_str(), fault.message.c_str());
    }
  }
  SoFormwright::finish();
  // The library leaves the toolkit running: its user ends it.
  SoDB::finish();
  return anyError ? 1 : 0;
}
