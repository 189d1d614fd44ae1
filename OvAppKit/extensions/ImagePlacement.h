// Where an image is drawn in a rectangle.

#pragma once

#include "geometry/Geometry.h"

namespace ov {

enum class ImagePosition { Stretched, Centered, MaxY };

// Centred horizontally; the width, the height and x are rounded down, and so is y, except at the
// max y edge, which the image touches. Scaled, the image becomes as large as fits, by a factor
// of single precision; a side without length has no say in it. A stretched image gets the
// rectangle. The zero rectangle where a number is not finite, or would not be.
Rect placeImage(Size image, const Rect& rect, ImagePosition position, bool scaled);

}  // namespace ov
