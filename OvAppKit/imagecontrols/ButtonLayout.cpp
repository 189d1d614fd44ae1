#include "imagecontrols/ButtonLayout.h"

#include <cmath>

namespace ov {
namespace {

// A size that is not a number is no size.
bool hasArea(Size size) { return size.width > 0 && size.height > 0; }

Rect moved(Rect r, Scalar dx, Scalar dy) {
  r.x += dx;
  r.y += dy;
  return r;
}

}  // namespace

Rect iconRect(IconPosition position, const Rect& bounds, const Rect& title, Size icon,
              bool highlighted) {
  if (position == IconPosition::kNone || !hasArea(icon)) return {};

  const Scalar push = highlighted ? 1 : 0;
  const Rect centred{bounds.x + std::floor((bounds.width - icon.width) / 2),
                     bounds.y + std::floor((bounds.height - icon.height) / 2), icon.width,
                     icon.height};
  if (position == IconPosition::kOnly || position == IconPosition::kOverlaps || title.isEmpty())
    return moved(centred, push, push);

  switch (position) {
    case IconPosition::kLeft:
      return moved({title.x, centred.y, icon.width, icon.height}, 0, push);
    case IconPosition::kRight:
      return moved({title.maxX() - icon.width, centred.y, icon.width, icon.height}, 0, push);
    case IconPosition::kBelow:
      return moved({centred.x, title.y, icon.width, icon.height}, push, 0);
    case IconPosition::kAbove:
      return moved({centred.x, title.maxY() - icon.height, icon.width, icon.height}, push, 0);
    default:
      return {};
  }
}

Rect titleRectBesideIcon(IconPosition position, const Rect& title, Size icon) {
  if (!hasArea(icon)) return title;
  switch (position) {
    case IconPosition::kLeft:
      return {title.x + icon.width, title.y, title.width - icon.width, title.height};
    case IconPosition::kRight:
      return {title.x, title.y, title.width - icon.width, title.height};
    case IconPosition::kBelow:
      return {title.x, title.y + icon.height, title.width, title.height - icon.height};
    case IconPosition::kAbove:
      return {title.x, title.y, title.width, title.height - icon.height};
    default:
      return title;
  }
}

Rect accessoryRect(const Rect& bounds, Size accessory) {
  const Scalar margin = std::floor((bounds.height - accessory.height) / 2);
  return {bounds.maxX() - accessory.width - margin, bounds.y + margin, accessory.width,
          accessory.height};
}

Rect arrowRect(ArrowPosition position, const Rect& bounds, Size accessory) {
  switch (position) {
    case ArrowPosition::kAtCenter:
      return accessoryRect(bounds, accessory);
    case ArrowPosition::kAtBottom: {
      const Scalar margin = bounds.height - accessory.height;
      return {bounds.maxX() - accessory.width - margin, bounds.maxY() - accessory.height,
              accessory.width, accessory.height};
    }
    default:
      return {};
  }
}

}  // namespace ov
