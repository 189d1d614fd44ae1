// Reading one pixel of a bitmap whose samples are 8-bit integers.

#pragma once

#include <cstddef>
#include <cstdint>

#include "geometry/Geometry.h"

namespace ov {

// The bits of a bitmap's format.
inline constexpr std::uintptr_t kAlphaFirst = 1;
inline constexpr std::uintptr_t kAlphaNotPremultiplied = 2;
inline constexpr std::uintptr_t kFloatingSamples = 4;

enum class Unreadable { no, notPremultiplied, floating, notEightBits };

// The first thing, in this order, that keeps a pixel from being read.
Unreadable unreadable(std::uintptr_t format, std::intptr_t bitsPerSample);

// Where a pixel is, from the first byte of the first row. Bits that fill no byte do not count.
std::intptr_t pixelOffset(std::intptr_t x, std::intptr_t y, std::intptr_t bytesPerRow,
                          std::intptr_t bitsPerPixel);

struct Components {
  Scalar red = 0;
  Scalar green = 0;
  Scalar blue = 0;
  Scalar alpha = 0;
  friend bool operator==(const Components&, const Components&) = default;
};

// How many bytes of a pixel decodeRGB() reads, and its components, 0 to 1 as they are stored:
// red, green and blue stay multiplied by alpha. Without alpha, a leading byte is padding when
// the format has alpha first and the samples are not exactly three; with three samples the
// first byte is red whatever the format.
std::size_t bytesOfRGB(bool hasAlpha, std::uintptr_t format, std::intptr_t samplesPerPixel);
Components decodeRGB(const std::uint8_t* pixel, bool hasAlpha, std::uintptr_t format,
                     std::intptr_t samplesPerPixel);

}  // namespace ov
