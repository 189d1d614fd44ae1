// UTF-16 as it comes: pairs are read as one character, lone halves as themselves.

#ifndef OV_UTF16_H
#define OV_UTF16_H

#include <cstddef>

namespace ov {

constexpr bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }
constexpr bool isSurrogate(char16_t unit) { return (unit & 0xF800) == 0xD800; }

constexpr char32_t joinedSurrogates(char16_t high, char16_t low) {
  return 0x10000 + ((char32_t(high) - 0xD800) << 10) + (char32_t(low) - 0xDC00);
}

/// The character that starts at `index` (a lone half is its own character), and
/// the number of units that it takes.
struct Character {
  char32_t value;
  std::size_t units;
};

/// `units` is anything that answers a unit for an index and is `length` long.
template <class Units>
constexpr Character characterAt(const Units &units, std::size_t index, std::size_t length) {
  const char16_t first = units[index];
  if (isHighSurrogate(first) && index + 1 < length) {
    const char16_t second = units[index + 1];
    if (isLowSurrogate(second)) return {joinedSurrogates(first, second), 2};
  }
  return {first, 1};
}

}  // namespace ov

#endif
