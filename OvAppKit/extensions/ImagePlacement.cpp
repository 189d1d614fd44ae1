#include "extensions/ImagePlacement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov {

namespace {

bool isFinite(const Rect& r) {
  return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) &&
         std::isfinite(r.height);
}

float ratio(Scalar available, Scalar length) {
  if (!(length > 0)) return std::numeric_limits<float>::infinity();
  return static_cast<float>(std::max<Scalar>(available, 0) / length);
}

float fittingFactor(Size image, const Rect& rect) {
  const float factor = std::min(ratio(rect.width, image.width), ratio(rect.height, image.height));
  // Neither side has a say.
  return !(image.width > 0) && !(image.height > 0) ? 1 : factor;
}

Rect placed(Size image, const Rect& rect, ImagePosition position, float factor) {
  const Scalar width = std::floor(image.width * factor);
  const Scalar height = std::floor(image.height * factor);
  const Scalar half = 0.5;
  Rect result{0, 0, width, height};
  result.x = std::floor(rect.x + (rect.width - width) * half);
  result.y = position == ImagePosition::MaxY ? rect.y + rect.height - height
                                             : std::floor(rect.y + (rect.height - height) * half);
  return result;
}

}  // namespace

Rect placeImage(Size image, const Rect& rect, ImagePosition position, bool scaled) {
  const Rect result = position == ImagePosition::Stretched
                          ? rect
                          : placed(image, rect, position, scaled ? fittingFactor(image, rect) : 1);
  // Of huge sides, a finite factor may make an infinite one.
  return isFinite(rect) && isFinite(result) ? result : Rect{};
}

}  // namespace ov
