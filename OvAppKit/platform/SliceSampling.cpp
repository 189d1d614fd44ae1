#include "platform/SliceSampling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov {

namespace {

struct Span {
  Scalar start = 0;
  Scalar length = 0;
  Scalar end() const { return start + length; }
};

struct Axis {
  Span destination;
  Span source;
  bool clips = false;
};

// Outward to whole pixels, but for what is whole within the error of the calculation.
Span wholePixels(const Span& user, Scalar scale, Scalar offset) {
  const Scalar a = scale * user.start + offset;
  const Scalar b = scale * user.end() + offset;
  const Scalar slack =
      std::max({std::abs(a), std::abs(b), Scalar{1}}) * 64 * std::numeric_limits<Scalar>::epsilon();
  const Scalar low = std::floor(std::min(a, b) + slack);
  const Scalar high = std::ceil(std::max(a, b) - slack);
  if (std::abs(low - std::min(a, b)) <= slack && std::abs(high - std::max(a, b)) <= slack) {
    return user;
  }
  const Scalar start = ((scale > 0 ? low : high) - offset) / scale;
  const Scalar end = ((scale > 0 ? high : low) - offset) / scale;
  return {start, end - start};
}

// The display server's unit, for places in the image's pixels and for the steps between them.
constexpr double kUnits = 65536;

// The longest part in the middle of a span that takes whole units for each of so many steps.
Span inWholeUnits(const Span& source, Scalar pixelsPerPoint, Scalar steps) {
  const double length = double{source.length} * pixelsPerPoint;
  // What the calculation made a little less than a unit is that unit.
  const double step = std::floor(length / steps * kUnits + 1e-5);
  if (!(step >= 1)) return source;
  const double shorter = std::min(step / kUnits * steps, length);
  const double start = double{source.start} * pixelsPerPoint + (length - shorter) / 2;
  const double snapped = std::floor(start * kUnits + 1e-5) / kUnits;
  return {static_cast<Scalar>(snapped / pixelsPerPoint),
          static_cast<Scalar>(shorter / pixelsPerPoint)};
}

Axis sample(const Span& destination, const Span& source, Scalar imageLength, Scalar pixels,
            Scalar scale, Scalar offset) {
  Axis axis{destination, source};
  if (source.start > 0 || source.end() < imageLength) {
    const Span whole = wholePixels(destination, scale, offset);
    axis.clips = whole.start != destination.start || whole.length != destination.length;
    axis.destination = whole;
  }
  axis.source =
      inWholeUnits(source, pixels / imageLength, std::abs(scale) * axis.destination.length);
  return axis;
}

}  // namespace

SliceSampling sampleSlice(const Rect& destination, const Rect& source, const ImageExtent& image,
                          const Affine& toDevice) {
  const Scalar all[] = {
      toDevice.a,    toDevice.d,        toDevice.tx,        toDevice.ty,        destination.x,
      destination.y, destination.width, destination.height, source.x,           source.y,
      source.width,  source.height,     image.points.width, image.points.height};
  const bool finite = std::ranges::all_of(all, [](Scalar v) { return std::isfinite(v); });
  if (!finite || toDevice.b != 0 || toDevice.c != 0 || toDevice.a == 0 || toDevice.d == 0 ||
      destination.isEmpty() || source.isEmpty() || !(image.points.width > 0) ||
      !(image.points.height > 0) || !(image.pixels.width > 0) || !(image.pixels.height > 0)) {
    return {destination, source, false};
  }
  const Axis x = sample({destination.x, destination.width}, {source.x, source.width},
                        image.points.width, image.pixels.width, toDevice.a, toDevice.tx);
  const Axis y = sample({destination.y, destination.height}, {source.y, source.height},
                        image.points.height, image.pixels.height, toDevice.d, toDevice.ty);
  return {{x.destination.start, y.destination.start, x.destination.length, y.destination.length},
          {x.source.start, y.source.start, x.source.length, y.source.length},
          x.clips || y.clips};
}

}  // namespace ov
