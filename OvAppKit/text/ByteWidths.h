// How many bytes each UTF-16 unit takes in one multibyte encoding.
//
// Every unit counts for itself, so that a whole is always the sum of its parts and what is
// cut at a limit is within it.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace ov {

class ByteWidths {
 public:
  // The widest of the encodings that are counted, EUC-JP, takes three.
  static constexpr unsigned kWidest = 3;

  // By the C library's converter of that name. None when the library has none, and for an
  // encoding whose bytes depend on what stands before, ISO-2022-JP for example.
  static std::optional<ByteWidths> ofEncoding(const char* name);

  // By a function that answers the bytes of a unit, 0 for one that the encoding does not have.
  // None when ASCII letters are not one byte each, or anything is wider than the widest.
  template <typename Encoder>
  static std::optional<ByteWidths> by(Encoder bytesOf) {
    ByteWidths widths;
    for (unsigned unit = 0; unit < kUnits; ++unit) {
      const unsigned bytes = bytesOf(static_cast<char16_t>(unit));
      if (bytes > kWidest) return std::nullopt;
      widths.packed_[unit / kPerByte] |= static_cast<uint8_t>(bytes << shift(unit));
    }
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
      if (widths.stored(letter) != 1) return std::nullopt;
    }
    return widths;
  }

  // Whether the encoding has the unit; never half a surrogate pair.
  bool has(char16_t unit) const { return stored(unit) != 0; }

  // The bytes of a unit: one, those of a substitute, for what the encoding does not have.
  unsigned operator[](char16_t unit) const {
    const unsigned bytes = stored(unit);
    return bytes != 0 ? bytes : 1;
  }

 private:
  static constexpr unsigned kUnits = 0x10000, kBits = 2, kPerByte = 8 / kBits;

  static constexpr unsigned shift(unsigned unit) { return unit % kPerByte * kBits; }
  unsigned stored(char16_t unit) const {
    return packed_[unit / kPerByte] >> shift(unit) & ((1U << kBits) - 1);
  }

  std::array<uint8_t, kUnits / kPerByte> packed_{};
};

// The longest beginning of a text that is within a limit.
struct ByteFit {
  size_t units = 0;
  uint64_t bytes = 0;

  bool operator==(const ByteFit&) const = default;
};

// The bytes that are within a limit of any size, with a fraction, negative, or no number.
constexpr uint64_t wholeBytes(double limit) {
  constexpr double kMost = 0x1p62;
  if (!(limit > 0)) return 0;
  return static_cast<uint64_t>(limit < kMost ? limit : kMost);
}

// `units` is anything that answers a unit for an index and is `length` long. Nothing beyond
// the first unit that does not fit is looked at.
template <typename Units>
ByteFit fitBytes(const ByteWidths& widths, const Units& units, size_t length, double limit) {
  const uint64_t most = wholeBytes(limit);
  ByteFit fit;
  for (; fit.units < length; ++fit.units) {
    const uint64_t bytes = fit.bytes + widths[units[fit.units]];
    if (bytes > most) break;
    fit.bytes = bytes;
  }
  return fit;
}

}  // namespace ov
