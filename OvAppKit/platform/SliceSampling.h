// How a slice of an image is drawn so that no pixel beside it is seen, and that it looks the same
// wherever it is.
//
// The platform draws the whole image through a clip that is the destination, and takes for each
// device pixel what its middle meets.
// - Where a destination ends within a pixel, that middle may lie outside: the slice is stretched to
//   the whole pixel then, and clipped.
// - The display server steps through the image in units of 1/65536 pixel, rounded, from a place far
//   off: the error grows with the distance and with the length, until it shows the neighbours, or
//   decides where a middle meets the boundary of two pixels (every third one, at a scale of 1.5).
//   So the slice is taken narrower by less than a unit for each step, in whole units.

#pragma once

#include "extensions/PixelAlignment.h"

namespace ov {

struct SliceSampling {
  Rect destination;  // what the source is stretched over
  Rect source;
  bool clips = false;  // whether only the destination that was asked for may be touched
  friend bool operator==(const SliceSampling&, const SliceSampling&) = default;
};

struct ImageExtent {
  Size points;
  Size pixels;
};

// Destination and source in points. Everything stays as it is where the plane is turned; so does
// the destination where the slice has no neighbours.
SliceSampling sampleSlice(const Rect& destination, const Rect& source, const ImageExtent& image,
                          const Affine& toDevice);

}  // namespace ov
