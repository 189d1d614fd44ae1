#include "geometry/Geometry.h"

#include <algorithm>

namespace ov {

Rect unite(const Rect& a, const Rect& b) {
  if (a.isEmpty()) return b.isEmpty() ? Rect{} : b;
  if (b.isEmpty()) return a;
  const Scalar x = std::min(a.x, b.x);
  const Scalar y = std::min(a.y, b.y);
  return {x, y, std::max(a.maxX(), b.maxX()) - x, std::max(a.maxY(), b.maxY()) - y};
}

Rect grow(const Rect& r, Scalar margin) {
  return {r.x - margin, r.y - margin, r.width + 2 * margin, r.height + 2 * margin};
}

bool overlap(const Rect& a, const Rect& b) {
  return !a.isEmpty() && !b.isEmpty() && a.x < b.maxX() && b.x < a.maxX() && a.y < b.maxY() &&
         b.y < a.maxY();
}

}  // namespace ov
