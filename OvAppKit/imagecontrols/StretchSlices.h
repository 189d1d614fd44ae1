// Cutting a stretchable picture into the pieces of a frame.

#pragma once

#include "imagecontrols/NinePieceLayout.h"

namespace ov {

// The right cap is as wide as the left one, the bottom cap as tall as the top one; a cap that is
// negative, or no number, is none. Without caps the whole is the center. Caps that leave nothing
// for the center are not checked: its rectangle has a negative side then.
FramePieces sliceStretchable(const Rect& whole, Scalar leftCap, Scalar topCap);

}  // namespace ov
