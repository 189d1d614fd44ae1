// What the first bytes of a picture say about it, read before the platform reads the picture.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ov {

// A longer side is more than the platform can draw; more pixels are half a gigabyte.
inline constexpr std::uint64_t kLongestImageSide = 32767;
inline constexpr std::uint64_t kMostImagePixels = std::uint64_t{1} << 27;

// Whether the bytes begin as TIFF, PNG, GIF or JPEG, which the platform reads itself.
bool isKnownImage(std::span<const std::uint8_t> bytes);

// Whether the platform can be trusted with the bytes of a picture. Formats other than the known
// ones are not looked at and count as safe; of those, a header that is damaged, or that
// tells of no pixels, too many, or a layout that the platform's reader has no room for, is not.
bool isSafeImage(std::span<const std::uint8_t> bytes);

}  // namespace ov
