// Where a menu's window lies on the screen. y grows upward here, as it does on the screen.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

// With its top left corner at a place, moved as little as keeps all of it on the screen. One
// that is larger than the screen keeps its top and its left side there.
Rect menuFrame(Point topLeft, Size size, const Rect& screen);

// A submenu that would leave the screen on the right opens to the left of its parent instead,
// if there is room.
Rect submenuFrame(const Rect& proposed, const Rect& parent, const Rect& screen);

}  // namespace ov
