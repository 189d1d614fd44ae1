// Which grid lines are drawn, and from where to where.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

// How far a line's shadow reaches: by offset and blur radius, in the view's
// coordinates (the caller has turned the offset round for a flipped view).
struct GridShadowReach {
  Size offset;
  Scalar blur = 0;
};

// The lines across one axis: vertical lines stand along x and run along y, horizontal
// ones the other way round. Line k (1, 2, ...) lies in the gap after the k-th cell:
//
//      cell 0   |   cell 1   |   cell 2
//               k = 1        k = 2
struct GridLineAxis {
  Scalar pitch = 0;
  Scalar spacing = 0;
  Index count = 0;          // cells along the axis
  bool insideOnly = false;  // no line at or after the end of the grid
};

// Lines first .. last, each at position(k), all running from start to end.
struct GridLineRun {
  Index first = 1;
  Index last = 0;  // below first when no line is drawn
  Scalar pitch = 0;
  Scalar offset = 0;
  Scalar start = 0;
  Scalar end = 0;

  Scalar position(Index k) const { return static_cast<Scalar>(k) * pitch + offset; }
};

// The lines to draw for a dirty area that reaches from alongMin to alongMax in the
// direction in which the lines follow each other, and from acrossMin to acrossMax in the
// direction in which they run. `reach` turns the shadow's offset the same way: its width
// is along, its height across; pass nullptr without a shadow.
//
// Lines that end before the dirty area are left out; they would draw nothing. A pitch
// that is not positive has no lines, one so small that the lines would merge has at most
// kMostGridLines.
GridLineRun gridLinesIn(const GridLineAxis& axis, Scalar lineWidth, const GridShadowReach* reach,
                        Scalar alongMin, Scalar alongMax, Scalar acrossMin, Scalar acrossMax);

inline constexpr Index kMostGridLines = 1 << 16;

}  // namespace ov
