#include "imagecontrols/FrameAlignment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov {

namespace {

Scalar tolerance(Scalar magnitude) {
  return std::max<Scalar>(std::abs(magnitude), 1) * 16 * std::numeric_limits<Scalar>::epsilon();
}

bool near(Scalar a, Scalar b, Scalar magnitude) { return std::abs(a - b) <= tolerance(magnitude); }

// One axis: device = scale * user + offset.
struct AxisMap {
  Scalar scale = 1;
  Scalar offset = 0;

  Scalar device(Scalar user) const { return scale * user + offset; }
};

struct Span {
  Scalar start = 0;
  Scalar end = 0;
};

// Halves go up, also those that the calculation made a little less.
Scalar nearestPixel(Scalar device, Scalar magnitude) {
  return std::floor(device + Scalar{0.5} + tolerance(magnitude));
}

Scalar alignEdge(Scalar edge, const Span& outer, const AxisMap& map) {
  const Scalar magnitude =
      std::abs(map.scale) * std::max({std::abs(edge), std::abs(outer.start), std::abs(outer.end)}) +
      std::abs(map.offset);
  const Scalar slack = tolerance(magnitude) / std::abs(map.scale);
  if (std::abs(edge - outer.start) <= slack || std::abs(edge - outer.end) <= slack) return edge;
  const Scalar device = map.device(edge);
  const Scalar pixel = nearestPixel(device, magnitude);
  if (near(device, pixel, magnitude)) return edge;
  const Scalar aligned = (pixel - map.offset) / map.scale;
  return std::isfinite(aligned) ? aligned : edge;
}

Span alignSpan(Scalar start, Scalar length, const Span& outer, const AxisMap& map) {
  return {alignEdge(start, outer, map), alignEdge(start + length, outer, map)};
}

}  // namespace

bool isUpright(const Affine& toDevice) {
  return toDevice.b == 0 && toDevice.c == 0 && toDevice.a != 0 && toDevice.d != 0 &&
         std::isfinite(toDevice.a) && std::isfinite(toDevice.d) && std::isfinite(toDevice.tx) &&
         std::isfinite(toDevice.ty);
}

FramePieces alignFrame(const FramePieces& pieces, const Rect& destination, const Affine& toDevice) {
  if (!isUpright(toDevice)) return pieces;
  const AxisMap horizontal{toDevice.a, toDevice.tx};
  const AxisMap vertical{toDevice.d, toDevice.ty};
  const Span width{destination.x, destination.maxX()};
  const Span height{destination.y, destination.maxY()};
  FramePieces aligned;
  for (const FramePiece& piece : pieces) {
    const Rect& r = piece.rect;
    Rect moved = r;
    if (!r.isEmpty()) {
      const Span x = alignSpan(r.x, r.width, width, horizontal);
      const Span y = alignSpan(r.y, r.height, height, vertical);
      // Lengths that did not change stay exactly what they were.
      if (x.start != r.x || x.end != r.maxX())
        moved = {x.start, moved.y, x.end - x.start, moved.height};
      if (y.start != r.y || y.end != r.maxY())
        moved = {moved.x, y.start, moved.width, y.end - y.start};
    }
    aligned.add(piece.part, moved);
  }
  return aligned;
}

Rect pixelsOf(const FramePieces& pieces, const Affine& toDevice) {
  Rect all;
  for (const FramePiece& piece : pieces) {
    const Rect& r = piece.rect;
    if (r.isEmpty()) continue;
    const auto [x0, x1] =
        std::minmax({toDevice.a * r.x + toDevice.tx, toDevice.a * r.maxX() + toDevice.tx});
    const auto [y0, y1] =
        std::minmax({toDevice.d * r.y + toDevice.ty, toDevice.d * r.maxY() + toDevice.ty});
    const Scalar left = std::floor(x0 + tolerance(x0));
    const Scalar bottom = std::floor(y0 + tolerance(y0));
    const Rect box{left, bottom, std::ceil(x1 - tolerance(x1)) - left,
                   std::ceil(y1 - tolerance(y1)) - bottom};
    if (!std::isfinite(box.x) || !std::isfinite(box.y) || !std::isfinite(box.width) ||
        !std::isfinite(box.height)) {
      return {};
    }
    all = unite(all, box);
  }
  return all;
}

}  // namespace ov
