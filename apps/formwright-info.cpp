// Starts the library, reads a small dialog from memory and prints every
// interface type that a dialog file can name, with its parent type.

#include <SoDialogLabel.h>
#include <SoFormwright.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoSeparator.h>

#include <cstdio>
#include <cstring>

namespace {
const char kDialog[] = "#Inventor V2.1 ascii\n"
                       "Separator {\n"
                       "  DialogLabel { label \"Hello\" auditorID \"greeting\" }\n"
                       "}\n";

void printTypeTree(SoType type, int depth)
{
  std::printf("%*s%s\n", depth * 2, "", type.getName().getString());
  SoTypeList derived;
  SoType::getAllDerivedFrom(type, derived);
  for (int i = 0; i < derived.getLength(); ++i)
    if (derived[i].getParent() == type)
      printTypeTree(derived[i], depth + 1);
}


bool readBuiltInDialog()
{
  SoInput input;
  input.setBuffer(kDialog, std::strlen(kDialog));
  SoSeparator* root = SoDB::readAll(&input);
  if (!root)
    return false;
  root->ref();
  const auto* label = static_cast<SoDialogLabel*>(root->getChild(0));
  std::printf("read a %s labelled \"%s\"\n\n", label->getTypeId().getName().getString(),
              label->label.getValue().getString());
  root->unref();
  return true;
}
}

int main()
{
  SoFormwright::init();
  std::printf("%s %s\n", SoFormwright::getProductName(), SoFormwright::getVersion());
  const bool read = readBuiltInDialog();
  if (read)
    printTypeTree(SoFormwright::getClassTypeId(), 0);
  else
    std::fprintf(stderr, "formwright-info: the built-in dialog could not be read\n");
  SoFormwright::finish();
  return read ? 0 : 1;
}
