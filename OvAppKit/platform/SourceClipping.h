// The part of a picture that is there, when a rectangle reaches beyond it.

#pragma once

#include <optional>

#include "geometry/Geometry.h"

namespace ov {

struct ClippedDrawing {
  Rect source;
  Rect destination;
  friend bool operator==(const ClippedDrawing&, const ClippedDrawing&) = default;
};

// Drawing a rectangle of a picture of some size into a destination, when nothing is drawn for what
// lies outside of the picture: the destination loses the same share at the same edge. The zero
// rectangle stands for the whole picture. Nothing where nothing is left, or a number is not finite.
std::optional<ClippedDrawing> clipSource(Size picture, const Rect& source, const Rect& destination);

}  // namespace ov
