#include "SoSizeRules.h"

#include <SoFormwright.h>

#include <Inventor/SbName.h>
#include <Inventor/errors/SoDebugError.h>

#include <unordered_set>

namespace SoSizeRules {

int32_t usable(const SoSFInt32& field, int32_t largest)
{
  const int32_t value = field.getValue();
  const int32_t mended = std::clamp(value, 0, largest);
  if (mended == value)
    return value;
  // Once for each node: the negotiation reads its fields many times, and a
  // file's mistake is worth one line.
  static std::unordered_set<const SoFieldContainer*> reported;
  SoFieldContainer* node = field.getContainer();
  if (!node || !reported.insert(node).second)
    return mended;
  SbName name;
  node->getFieldName(&field, name);
  const SbString type = node->getTypeId().getName().getString();
  const SbString source = SbString("So") + type + "::getSize";
  const SbString id = node->isOfType(SoFormwright::getClassTypeId())
                        ? static_cast<SoFormwright*>(node)->auditorID.getValue()
                        : SbString();
  SoDebugError::post(source.getString(),
                     "%s \"%s\": %s %d is outside 0 - %d; %d is used, and the field keeps its value",
                     type.getString(), id.getString(), name.getString(), value, largest, mended);
  return mended;
}

}
