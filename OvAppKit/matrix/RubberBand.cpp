#include "matrix/RubberBand.h"

#include <algorithm>
#include <cmath>

namespace ov {

Point clampInto(Point p, const Rect& r) {
  return {std::max(r.x, std::min(p.x, r.maxX())), std::max(r.y, std::min(p.y, r.maxY()))};
}

Rect rectBetween(Point a, Point b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::fabs(a.x - b.x), std::fabs(a.y - b.y)};
}

DirtyStrips stripsBetween(const Rect& oldBand, const Rect& newBand) {
  DirtyStrips strips;
  if (oldBand == newBand || (oldBand.isEmpty() && newBand.isEmpty())) return strips;
  if (oldBand.isEmpty() || newBand.isEmpty()) {
    strips.add(oldBand.isEmpty() ? newBand : oldBand);
    return strips;
  }
  const Scalar left = std::min(oldBand.x, newBand.x);
  const Scalar right = std::max(oldBand.maxX(), newBand.maxX());
  const Scalar top = std::min(oldBand.y, newBand.y);
  const Scalar bottom = std::max(oldBand.maxY(), newBand.maxY());
  const auto addVertical = [&](Scalar from, Scalar to) {
    if (from == to) return;
    strips.add(grow({std::min(from, to), top, std::fabs(from - to), bottom - top}, 1));
  };
  const auto addHorizontal = [&](Scalar from, Scalar to) {
    if (from == to) return;
    strips.add(grow({left, std::min(from, to), right - left, std::fabs(from - to)}, 1));
  };
  addVertical(oldBand.x, newBand.x);
  addVertical(oldBand.maxX(), newBand.maxX());
  addHorizontal(oldBand.y, newBand.y);
  addHorizontal(oldBand.maxY(), newBand.maxY());
  return strips;
}

}  // namespace ov
