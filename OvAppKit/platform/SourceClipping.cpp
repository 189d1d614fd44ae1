#include "platform/SourceClipping.h"

#include <algorithm>
#include <cmath>

namespace ov {

namespace {

struct Span {
  Scalar start;
  Scalar length;
};

bool isFinite(const Rect& r) {
  return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.maxX()) &&
         std::isfinite(r.maxY());
}

// Cuts the source to 0 … picture, and the destination alike.
bool clip(Scalar picture, Span& source, Span& destination) {
  const Scalar start = std::max(source.start, Scalar{0});
  const Scalar end = std::min(source.start + source.length, picture);
  if (!(end > start)) return false;
  const Scalar scale = destination.length / source.length;
  // What is not cut keeps its numbers.
  const Scalar before = start - source.start;
  const Scalar after = source.start + source.length - end;
  destination.start += before * scale;
  destination.length -= (before + after) * scale;
  if (before > 0 || after > 0) source = {start, end - start};
  return destination.length > 0;
}

}  // namespace

std::optional<ClippedDrawing> clipSource(Size picture, const Rect& source,
                                         const Rect& destination) {
  if (!isFinite(source) || !isFinite(destination) || destination.isEmpty()) return std::nullopt;
  const Rect from = source == Rect{} ? Rect{0, 0, picture.width, picture.height} : source;
  Span fromX{from.x, from.width};
  Span fromY{from.y, from.height};
  Span toX{destination.x, destination.width};
  Span toY{destination.y, destination.height};
  if (!clip(picture.width, fromX, toX) || !clip(picture.height, fromY, toY)) return std::nullopt;
  return ClippedDrawing{{fromX.start, fromY.start, fromX.length, fromY.length},
                        {toX.start, toY.start, toX.length, toY.length}};
}

}  // namespace ov
