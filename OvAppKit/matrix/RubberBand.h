// The rectangle of a rubber band, and what must be redrawn when it changes.

#pragma once

#include <array>

#include "geometry/Geometry.h"

namespace ov {

// The point of a rectangle that is nearest to p: p itself when it lies inside.
Point clampInto(Point p, const Rect& r);

// The rectangle between two opposite corners, whichever they are.
Rect rectBetween(Point a, Point b);

// Up to four rectangles; those beyond count are not to be marked.
struct DirtyStrips {
  std::array<Rect, 4> rects;
  int count = 0;

  void add(const Rect& r) { rects[static_cast<std::size_t>(count++)] = r; }
};

// What to redraw when a band becomes another one. Nothing for two empty ones; the whole
// band that appears or disappears; otherwise one strip for each edge that moved, from its
// old place to its new one over the extent of both bands, a point larger on every side:
//
//   +-------+ - - +        old band: left, new band: left and right
//   |       |/////|
//   |       |/////|        the strip of the right edge: ////
//   +-------+ - - +
DirtyStrips stripsBetween(const Rect& oldBand, const Rect& newBand);

}  // namespace ov
