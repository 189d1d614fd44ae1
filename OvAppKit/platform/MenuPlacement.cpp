#include "platform/MenuPlacement.h"

#include <algorithm>

namespace ov {

Rect menuFrame(Point topLeft, Size size, const Rect& screen) {
  const Scalar x = std::max(std::min(topLeft.x, screen.maxX() - size.width), screen.x);
  const Scalar top = std::min(std::max(topLeft.y, screen.y + size.height), screen.maxY());
  return {x, top - size.height, size.width, size.height};
}

Rect submenuFrame(const Rect& proposed, const Rect& parent, const Rect& screen) {
  Scalar x = proposed.x;
  if (proposed.maxX() > screen.maxX()) {
    // By as much as it would have lain over the right side.
    const Scalar left = parent.x - proposed.width + (parent.maxX() - proposed.x);
    if (left >= screen.x) x = left;
  }
  return menuFrame({x, proposed.maxY()}, {proposed.width, proposed.height}, screen);
}

}  // namespace ov
