// Where the pieces of a button that is drawn from images lie.
//
//      +-----------------------------------+  bounds
//      |+------+                   +------+|
//      || icon |  title            | acc. ||   the accessory is as far from the maximum x
//      |+------+                   +------+|   as from top and bottom
//      +-----------------------------------+
//
// "Above" and "below" follow the platform's cells: the icon that is below the title is at the
// title's minimum y, in flipped and unflipped views alike.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

// The numbers are those of NSCellImagePosition.
enum class IconPosition {
  kNone = 0,
  kOnly = 1,
  kLeft = 2,
  kRight = 3,
  kBelow = 4,
  kAbove = 5,
  kOverlaps = 6,
};

// `title` is the rectangle that the platform gives the title. A pressed icon moves by a
// point. Empty at the origin where no icon is to be seen, and for a position that is none of
// the above.
Rect iconRect(IconPosition position, const Rect& bounds, const Rect& title, Size icon,
              bool highlighted);

// The title's rectangle, less the room that an icon beside it takes.
Rect titleRectBesideIcon(IconPosition position, const Rect& title, Size icon);

Rect accessoryRect(const Rect& bounds, Size accessory);

// The numbers are those of NSPopUpArrowPosition.
enum class ArrowPosition { kNone = 0, kAtCenter = 1, kAtBottom = 2 };

// Where a pop-up button's accessory lies; empty at the origin for a position that is none of
// the above. The arrow at the bottom (the maximum y) is as far from the maximum x as from the
// minimum y, and not rounded.
Rect arrowRect(ArrowPosition position, const Rect& bounds, Size accessory);

}  // namespace ov
