#pragma once

#include <Inventor/SbVec2i32.h>

#include <cstdint>

// The size triples that a container's children last reported, and the place
// of the round robin that hands spare pixels out to them.
class SoChildSizeTable {
public:
  SoChildSizeTable() = default;
  SoChildSizeTable(const SoChildSizeTable&) = delete;
  SoChildSizeTable& operator=(const SoChildSizeTable&) = delete;
  ~SoChildSizeTable() { clear(); }

  // Makes room for `count` children; the slots are kept while the count
  // stays the same.
  void resize(int32_t count);
  // Frees the slots and starts the round robin again.
  void clear();
  void set(int index, const SbVec2i32& size, const SbVec2i32& min, const SbVec2i32& max);

  // Hands `delta` pixels along `axis` to the children one at a time, each
  // staying within its minimum and maximum, until all have refused in turn.
  // Stored sizes change; the round robin goes on from where it stopped at the
  // next call. Returns the pixels that no child took.
  int32_t distribute(int axis, int32_t delta);

  int32_t sizeTableLength = 0;
  SbVec2i32* childSizes = nullptr;
  SbVec2i32* childMinSizes = nullptr;
  SbVec2i32* childMaxSizes = nullptr;
  int32_t nextChildToResize = 0;
};
