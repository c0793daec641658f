#pragma once

#include <Inventor/SbName.h>
#include <Inventor/SoType.h>

// The toolkit never hands back the slot of a removed type, and it numbers its
// slots in 16 bits: a library that removed its types at each end and made
// them anew at each start would overflow the table after some seven hundred
// starts of one process. So each type is made once for as long as the toolkit
// runs; the library's end only withdraws it (nothing can make an instance of
// it any more, and a file that names it no longer reads), and the next start
// takes it up again.
namespace SoKeptType {

// `kept`, when the toolkit still holds it under `name` and below `parent`;
// the bad type when it was never made, or when the toolkit has been ended and
// started again since, which forgets every type.
inline SoType reusable(SoType kept, const SbName& name, SoType parent)
{
  // The name is looked up first: a slot of an ended toolkit may no longer exist.
  if (kept.isBad() || SoType::fromName(name) != kept || kept.getParent() != parent)
    return SoType::badType();
  return kept;
}

}
