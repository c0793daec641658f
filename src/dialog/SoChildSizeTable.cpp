#include <SoChildSizeTable.h>

void SoChildSizeTable::resize(int32_t count)
{
  if (sizeTableLength == count)
    return;
  delete[] childSizes;
  delete[] childMinSizes;
  delete[] childMaxSizes;
  childSizes = new SbVec2i32[count];
  childMinSizes = new SbVec2i32[count];
  childMaxSizes = new SbVec2i32[count];
  for (int32_t i = 0; i < count; ++i)
    set(i, SbVec2i32(0, 0), SbVec2i32(0, 0), SbVec2i32(0, 0));
  sizeTableLength = count;
  // The round robin goes on where it was, if that place still exists.
  if (nextChildToResize >= count)
    nextChildToResize = 0;
}

void SoChildSizeTable::clear()
{
  delete[] childSizes;
  delete[] childMinSizes;
  delete[] childMaxSizes;
  childSizes = childMinSizes = childMaxSizes = nullptr;
  sizeTableLength = 0;
  nextChildToResize = 0;
}

void SoChildSizeTable::set(int index, const SbVec2i32& size, const SbVec2i32& min, const SbVec2i32& max)
{
  childSizes[index] = size;
  childMinSizes[index] = min;
  childMaxSizes[index] = max;
}

int32_t SoChildSizeTable::distribute(int axis, int32_t delta)
{
  const int32_t step = delta < 0 ? -1 : 1;
  int32_t tries = 0;
  while (delta != 0 && tries < sizeTableLength) {
    ++tries;
    const int32_t candidate = childSizes[nextChildToResize][axis] + step;
    if (candidate >= childMinSizes[nextChildToResize][axis] && candidate <= childMaxSizes[nextChildToResize][axis]) {
      childSizes[nextChildToResize][axis] = candidate;
      delta -= step;
      tries = 0;
    }
    if (++nextChildToResize == sizeTableLength)
      nextChildToResize = 0;
  }
  return delta;
}
