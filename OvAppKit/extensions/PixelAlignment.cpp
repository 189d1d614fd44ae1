#include "extensions/PixelAlignment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov {

namespace {

template <typename... Values>
bool allFinite(Values... values) {
  return (std::isfinite(values) && ...);
}

// A few units in the last place of the terms that were added up.
Scalar tolerance(Scalar magnitude) {
  return std::max<Scalar>(magnitude, 1) * 16 * std::numeric_limits<Scalar>::epsilon();
}

Scalar floorNear(Scalar value, Scalar magnitude) {
  const Scalar nearest = std::round(value);
  return std::abs(value - nearest) <= tolerance(magnitude) ? nearest : std::floor(value);
}

Scalar shortenNear(Scalar value, Scalar magnitude) {
  return std::copysign(floorNear(std::abs(value), magnitude), value);
}

Point apply(const Affine& m, Point p) {
  return {m.a * p.x + m.c * p.y + m.tx, m.b * p.x + m.d * p.y + m.ty};
}

Size apply(const Affine& m, Size s) {
  return {m.a * s.width + m.c * s.height, m.b * s.width + m.d * s.height};
}

// How large the terms of a transformed place are, whatever they add up to.
Size magnitude(const Affine& m, Point p) {
  return {std::abs(m.a * p.x) + std::abs(m.c * p.y) + std::abs(m.tx),
          std::abs(m.b * p.x) + std::abs(m.d * p.y) + std::abs(m.ty)};
}

struct Box {
  Rect rect;
  Size magnitude;
};

Box boxAround(const Affine& m, const Rect& r) {
  const Point corners[] = {{r.x, r.y}, {r.maxX(), r.y}, {r.x, r.maxY()}, {r.maxX(), r.maxY()}};
  Point low = apply(m, corners[0]);
  Point high = low;
  Size largest;
  for (const Point corner : corners) {
    const Point p = apply(m, corner);
    const Size terms = magnitude(m, corner);
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    largest = {std::max(largest.width, terms.width), std::max(largest.height, terms.height)};
  }
  return {{low.x, low.y, high.x - low.x, high.y - low.y}, largest};
}

}  // namespace

std::optional<Affine> inverse(const Affine& m) {
  const Scalar determinant = m.a * m.d - m.b * m.c;
  if (determinant == 0) return std::nullopt;
  Affine i;
  i.a = m.d / determinant;
  i.b = -m.b / determinant;
  i.c = -m.c / determinant;
  i.d = m.a / determinant;
  i.tx = -(i.a * m.tx + i.c * m.ty);
  i.ty = -(i.b * m.tx + i.d * m.ty);
  if (!allFinite(i.a, i.b, i.c, i.d, i.tx, i.ty)) return std::nullopt;
  return i;
}

Point alignPoint(Point p, const Affine& toDevice) {
  const std::optional<Affine> back = inverse(toDevice);
  if (!back) return p;
  const Point d = apply(toDevice, p);
  const Size m = magnitude(toDevice, p);
  const Point result = apply(*back, Point{floorNear(d.x, m.width), floorNear(d.y, m.height)});
  return allFinite(result.x, result.y) ? result : p;
}

Size alignSize(Size s, const Affine& toDevice) {
  const std::optional<Affine> back = inverse(toDevice);
  if (!back) return s;
  const Size d = apply(toDevice, s);
  const Size m = magnitude(toDevice, {s.width, s.height});
  const Size result =
      apply(*back, Size{shortenNear(d.width, m.width), shortenNear(d.height, m.height)});
  return allFinite(result.width, result.height) ? result : s;
}

Rect alignRect(const Rect& r, const Affine& toDevice) {
  const std::optional<Affine> back = inverse(toDevice);
  // Asked here, since the comparisons of a box pass over what is not a number.
  if (!back || !allFinite(r.x, r.y, r.width, r.height)) return r;
  const Box d = boxAround(toDevice, r);
  const Rect aligned{
      floorNear(d.rect.x, d.magnitude.width), floorNear(d.rect.y, d.magnitude.height),
      floorNear(d.rect.width, d.magnitude.width), floorNear(d.rect.height, d.magnitude.height)};
  const Rect result = boxAround(*back, aligned).rect;
  return allFinite(result.x, result.y, result.width, result.height) ? result : r;
}

}  // namespace ov
