#include "imagecontrols/NinePieceLayout.h"

namespace ov {

FramePieces placeFrame(const FramePartSizes& sizes, const Rect& destination) {
  const auto& d = destination;
  const auto sizeOf = [&sizes](FramePart part) { return sizes[static_cast<unsigned>(part)]; };
  const auto leftTop = sizeOf(FramePart::LeftTop);
  const auto rightTop = sizeOf(FramePart::RightTop);
  const auto leftBottom = sizeOf(FramePart::LeftBottom);
  const auto rightBottom = sizeOf(FramePart::RightBottom);

  FramePieces pieces;
  if (!sizeOf(FramePart::Center)) return pieces;
  Rect center = d;
  Size last;
  const auto place = [&pieces, &last](FramePart part, const Rect& rect) {
    pieces.add(part, rect);
    last = {rect.width, rect.height};
  };
  // The stretch of a side that its two corners leave.
  const auto placeUpright = [&](FramePart part, Scalar x, Scalar width, const auto& top,
                                const auto& bottom) {
    Rect edge{x, d.y, width, d.height};
    if (top) {
      edge.y += top->height;
      edge.height -= top->height;
    }
    if (bottom) edge.height -= bottom->height;
    place(part, edge);
  };
  const auto placeLevel = [&](FramePart part, Scalar y, Scalar height, const auto& left,
                              const auto& right) {
    Rect edge{d.x, y, d.width, height};
    if (left) {
      edge.x += left->width;
      edge.width -= left->width;
    }
    if (right) edge.width -= right->width;
    place(part, edge);
  };

  if (const auto left = sizeOf(FramePart::Left)) {
    placeUpright(FramePart::Left, d.x, left->width, leftTop, leftBottom);
    center.x = d.x + left->width;
    center.width = d.width - left->width;
  }
  if (const auto right = sizeOf(FramePart::Right)) {
    placeUpright(FramePart::Right, d.x + d.width - right->width, right->width, rightTop,
                 rightBottom);
    center.width -= right->width;
  }
  if (const auto top = sizeOf(FramePart::Top)) {
    placeLevel(FramePart::Top, d.y, top->height, leftTop, rightTop);
    center.y = d.y + top->height;
    center.height = d.height - top->height;
  }
  if (const auto bottom = sizeOf(FramePart::Bottom)) {
    placeLevel(FramePart::Bottom, d.y + d.height - bottom->height, bottom->height, leftBottom,
               rightBottom);
    center.height -= bottom->height;
  }
  if (leftTop) place(FramePart::LeftTop, {d.x, d.y, leftTop->width, leftTop->height});
  if (rightTop) {
    place(FramePart::RightTop,
          {d.x + d.width - rightTop->width, d.y, rightTop->width, rightTop->height});
  }
  if (leftBottom) {
    place(FramePart::LeftBottom,
          {d.x, d.y + d.height - leftBottom->height, leftBottom->width, leftBottom->height});
  }
  if (rightBottom) {
    pieces.add(FramePart::RightBottom,
               {d.x + d.width - rightBottom->width, d.y + d.height - rightBottom->height,
                last.width, last.height});
  }
  pieces.add(FramePart::Center, center);
  return pieces;
}

}  // namespace ov
