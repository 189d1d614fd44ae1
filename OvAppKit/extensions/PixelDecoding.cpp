#include "extensions/PixelDecoding.h"

namespace ov {

namespace {

bool hasPadding(std::uintptr_t format, std::intptr_t samplesPerPixel) {
  return samplesPerPixel != 3 && (format & kAlphaFirst) != 0;
}

Scalar fraction(std::uint8_t sample) { return static_cast<Scalar>(sample / 255.0); }

}  // namespace

Unreadable unreadable(std::uintptr_t format, std::intptr_t bitsPerSample) {
  if ((format & kAlphaNotPremultiplied) != 0) return Unreadable::notPremultiplied;
  if ((format & kFloatingSamples) != 0) return Unreadable::floating;
  if (bitsPerSample != 8) return Unreadable::notEightBits;
  return Unreadable::no;
}

std::intptr_t pixelOffset(std::intptr_t x, std::intptr_t y, std::intptr_t bytesPerRow,
                          std::intptr_t bitsPerPixel) {
  return y * bytesPerRow + x * (bitsPerPixel / 8);
}

std::size_t bytesOfRGB(bool hasAlpha, std::uintptr_t format, std::intptr_t samplesPerPixel) {
  return hasAlpha || hasPadding(format, samplesPerPixel) ? 4 : 3;
}

Components decodeRGB(const std::uint8_t* p, bool hasAlpha, std::uintptr_t format,
                     std::intptr_t samplesPerPixel) {
  const bool alphaFirst = hasAlpha && (format & kAlphaFirst) != 0;
  const bool padding = !hasAlpha && hasPadding(format, samplesPerPixel);
  const std::uint8_t* color = alphaFirst || padding ? p + 1 : p;
  Components result{fraction(color[0]), fraction(color[1]), fraction(color[2]), 1};
  if (hasAlpha) result.alpha = fraction(alphaFirst ? p[0] : p[3]);
  return result;
}

}  // namespace ov
