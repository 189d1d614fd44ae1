// Geometry that falls on whole device pixels.

#pragma once

#include <optional>

#include "geometry/Geometry.h"

namespace ov {

// From user to device space: x' = a x + c y + tx, y' = b x + d y + ty.
struct Affine {
  Scalar a = 1;
  Scalar b = 0;
  Scalar c = 0;
  Scalar d = 1;
  Scalar tx = 0;
  Scalar ty = 0;
};

// Nothing where the plane is flattened, and where a value is not a finite number.
std::optional<Affine> inverse(const Affine& m);

// Each rounds down in device space and comes back. A value that is not finite, and one whose
// transformation has no inverse, comes back as it is. What is a whole number but for the error
// of the calculation counts as that number, so that an aligned value stays where it is.
Point alignPoint(Point p, const Affine& toDevice);

// The side of a size that points backwards in the device (the height, in a flipped view)
// loses length, too.
Size alignSize(Size s, const Affine& toDevice);

// The box around the rectangle in device space, its origin and size rounded down, and the box
// around that one in user space.
Rect alignRect(const Rect& r, const Affine& toDevice);

}  // namespace ov
