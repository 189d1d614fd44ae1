// Rectangles as text, as saved layouts hold them.

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "geometry/Geometry.h"

namespace ov {

// "{{x, y}, {width, height}}" with as few digits as read back to the same numbers. What is
// no finite number is written as 0.
std::string textOfRect(const Rect& rect);

// Reads that form and the platform's other one, "{x = 1; y = 2; width = 3; height = 4}": the
// first four numbers, in this order. Nothing if there are fewer, or one is not finite.
std::optional<Rect> rectFromText(std::string_view text);

}  // namespace ov
