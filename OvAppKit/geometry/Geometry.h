// Plain values for the rules: points, sizes, rectangles and ranges that know nothing
// of the platform. y grows downward, as in a flipped view, wherever a rule speaks of
// rows, tops or bottoms.

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace ov {

// As wide as the platform's geometry scalar: single precision on 32 bits.
using Scalar = std::conditional_t<sizeof(void*) == 4, float, double>;

// As wide as the platform's unsigned integer; the largest signed one means "none".
using Index = std::uintptr_t;
inline constexpr Index kNoIndex = static_cast<Index>(INTPTR_MAX);

struct Point {
  Scalar x = 0;
  Scalar y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  Scalar width = 0;
  Scalar height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  Scalar x = 0;
  Scalar y = 0;
  Scalar width = 0;
  Scalar height = 0;

  Scalar maxX() const { return x + width; }
  Scalar maxY() const { return y + height; }
  // Written so that a size that is not a number is empty too.
  bool isEmpty() const { return !(width > 0 && height > 0); }

  friend bool operator==(const Rect&, const Rect&) = default;
};

// The smallest rectangle around two; an empty one does not count.
Rect unite(const Rect& a, const Rect& b);
// Moves each edge outward by margin.
Rect grow(const Rect& r, Scalar margin);
// Whether the two share an area.
bool overlap(const Rect& a, const Rect& b);

struct IndexRange {
  Index location = 0;
  Index length = 0;

  Index end() const { return location + length; }
  bool isEmpty() const { return length == 0; }

  friend bool operator==(const IndexRange&, const IndexRange&) = default;
};

}  // namespace ov
