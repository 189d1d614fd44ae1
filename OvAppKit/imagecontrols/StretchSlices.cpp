#include "imagecontrols/StretchSlices.h"

namespace ov {

FramePieces sliceStretchable(const Rect& whole, Scalar leftCap, Scalar topCap) {
  const Scalar left = leftCap > 0 ? leftCap : 0;
  const Scalar top = topCap > 0 ? topCap : 0;
  const Rect& r = whole;
  const Rect inner{r.x + left, r.y + top, r.width - 2 * left, r.height - 2 * top};

  FramePieces pieces;
  pieces.add(FramePart::Center, inner);
  if (left > 0 && top > 0) {
    pieces.add(FramePart::LeftTop, {r.x, r.y, left, top});
    pieces.add(FramePart::Left, {r.x, inner.y, left, inner.height});
    pieces.add(FramePart::LeftBottom, {r.x, inner.maxY(), left, top});
    pieces.add(FramePart::Top, {inner.x, r.y, inner.width, top});
    pieces.add(FramePart::Bottom, {inner.x, inner.maxY(), inner.width, top});
    pieces.add(FramePart::RightTop, {inner.maxX(), r.y, left, top});
    pieces.add(FramePart::Right, {inner.maxX(), inner.y, left, inner.height});
    pieces.add(FramePart::RightBottom, {inner.maxX(), inner.maxY(), left, top});
  } else if (left > 0) {
    pieces.add(FramePart::Left, {r.x, r.y, left, r.height});
    pieces.add(FramePart::Right, {inner.maxX(), r.y, left, r.height});
  } else if (top > 0) {
    pieces.add(FramePart::Top, {r.x, r.y, r.width, top});
    pieces.add(FramePart::Bottom, {r.x, inner.maxY(), r.width, top});
  }
  return pieces;
}

}  // namespace ov
