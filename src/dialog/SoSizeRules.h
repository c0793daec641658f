#pragma once

// The arithmetic of the size negotiation: size triples (current, minimum,
// maximum) in pixels, where 32767 means unlimited and sums towards it
// saturate.

#include <Inventor/SbVec2i32.h>
#include <Inventor/fields/SoSFInt32.h>

#include <algorithm>
#include <cstdint>

namespace SoSizeRules {

constexpr int32_t kUnlimited = 32767;
// The largest widget size that Qt accepts.
constexpr int32_t kQtMaximum = 16777215;

// A size as Qt can take it: a field may hold any value, a widget limit not.
inline int toQtSize(int32_t value)
{
  return std::clamp(value, 0, kQtMaximum);
}

// A size, margin or spacing field as the negotiation and the widgets take
// it: within 0 and `largest`. Files may hold anything; a value outside is
// posted once for its node, and a margin or spacing field keeps what was
// read (sizes are written back by the negotiation).
int32_t usable(const SoSFInt32& field, int32_t largest = kUnlimited);

// The six size fields, read in this order, within what Qt accepts.
inline void usableSizes(const SoSFInt32& width, const SoSFInt32& height, const SoSFInt32& minWidth,
                        const SoSFInt32& minHeight, const SoSFInt32& maxWidth, const SoSFInt32& maxHeight,
                        SbVec2i32& size, SbVec2i32& min, SbVec2i32& max)
{
  const int32_t w = usable(width, kQtMaximum);
  const int32_t h = usable(height, kQtMaximum);
  const int32_t minW = usable(minWidth, kQtMaximum);
  const int32_t minH = usable(minHeight, kQtMaximum);
  const int32_t maxW = usable(maxWidth, kQtMaximum);
  const int32_t maxH = usable(maxHeight, kQtMaximum);
  size.setValue(w, h);
  min.setValue(minW, minH);
  max.setValue(maxW, maxH);
}

// `value + add`, or unlimited where the sum would pass it.
inline int32_t saturatingAdd(int32_t value, int32_t add)
{
  return value <= kUnlimited - add ? value + add : kUnlimited;
}

inline bool hasZero(const SbVec2i32& size, const SbVec2i32& min, const SbVec2i32& max)
{
  return size[0] == 0 || size[1] == 0 || min[0] == 0 || min[1] == 0 || max[0] == 0 || max[1] == 0;
}

// Zeros, which mean "computed", take the computed values.
inline void takeDefaults(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max, const SbVec2i32& defaultSize,
                         const SbVec2i32& defaultMin, const SbVec2i32& defaultMax)
{
  for (int axis = 0; axis < 2; ++axis) {
    if (size[axis] == 0)
      size[axis] = defaultSize[axis];
    if (min[axis] == 0)
      min[axis] = defaultMin[axis];
    if (max[axis] == 0)
      max[axis] = defaultMax[axis];
  }
}

// Raises the size to the minimum, then lowers it to the maximum: where the
// two disagree, the maximum wins.
inline void clamp(SbVec2i32& size, const SbVec2i32& min, const SbVec2i32& max)
{
  for (int axis = 0; axis < 2; ++axis)
    size[axis] = std::min(std::max(size[axis], min[axis]), max[axis]);
}

// The size fields of a window or component.
struct SizeFields {
  SoSFInt32& width;
  SoSFInt32& height;
  SoSFInt32& minWidth;
  SoSFInt32& minHeight;
  SoSFInt32& maxWidth;
  SoSFInt32& maxHeight;
};

// Computed sizes are not the application's and must not be written back to
// a file: each field whose value the application left to be computed (0 in
// its own record, or an unlimited maximum) is marked as default, and so are
// the limits of an axis pinned to the current size.
inline void markComputedSizes(const SizeFields& fields, const SbVec2i32& ownSize, const SbVec2i32& ownMin,
                              const SbVec2i32& ownMax, bool pinnedWidth, bool pinnedHeight)
{
  if (ownSize[0] == 0)
    fields.width.setDefault(TRUE);
  if (ownSize[1] == 0)
    fields.height.setDefault(TRUE);
  if (ownMin[0] == 0 || pinnedWidth)
    fields.minWidth.setDefault(TRUE);
  if (ownMin[1] == 0 || pinnedHeight)
    fields.minHeight.setDefault(TRUE);
  if (ownMax[0] == 0 || fields.maxWidth.getValue() == kUnlimited || pinnedWidth)
    fields.maxWidth.setDefault(TRUE);
  if (ownMax[1] == 0 || fields.maxHeight.getValue() == kUnlimited || pinnedHeight)
    fields.maxHeight.setDefault(TRUE);
}

// The triple of children stacked along `axis` (1: one above the other, 0:
// side by side): sums along the axis, largest values across it.
class StackedSizes {
public:
  explicit StackedSizes(int axis) : m_along(axis), m_across(1 - axis) {}

  void add(const SbVec2i32& size, const SbVec2i32& min, const SbVec2i32& max)
  {
    m_size[m_across] = std::max(m_size[m_across], size[m_across]);
    m_min[m_across] = std::max(m_min[m_across], min[m_across]);
    m_max[m_across] = std::max(m_max[m_across], max[m_across]);
    // Sizes come within Qt's range, and so do their sums.
    m_size[m_along] = std::min(m_size[m_along] + size[m_along], kQtMaximum);
    m_min[m_along] = std::min(m_min[m_along] + min[m_along], kQtMaximum);
    if (max[m_along] == kUnlimited)
      m_max[m_along] = kUnlimited;
    if (m_max[m_along] <= kUnlimited - max[m_along])
      m_max[m_along] += max[m_along];
  }

  // A container with no children stretches without limit.
  void setUnlimitedMaximum() { m_max.setValue(kUnlimited, kUnlimited); }

  // Adds the `border` on both axes and the `gap` between children along the
  // stacking axis; the maxima saturate.
  void result(int32_t border, int32_t gap, SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) const
  {
    size = m_size;
    min = m_min;
    size[m_across] += border;
    min[m_across] += border;
    size[m_along] += border + gap;
    min[m_along] += border + gap;
    max[m_across] = saturatingAdd(m_max[m_across], border);
    max[m_along] = saturatingAdd(m_max[m_along], border + gap);
  }

private:
  int m_along;
  int m_across;
  SbVec2i32 m_size{0, 0};
  SbVec2i32 m_min{0, 0};
  SbVec2i32 m_max{0, 0};
};

}
