#include "split/StoredLayout.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace ov {
namespace {

std::string textOf(Scalar number) {
  if (!std::isfinite(number)) number = 0;
  std::array<char, 64> buffer;
  // Plain digits as far as they stay short.
  const Scalar size = std::abs(number);
  const bool plain = size == 0 || (size >= Scalar(1e-5) && size < Scalar(1e15));
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                    plain ? std::chars_format::fixed : std::chars_format::scientific);
  return {buffer.data(), written.ptr};
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string textOfRect(const Rect& rect) {
  return "{{" + textOf(rect.x) + ", " + textOf(rect.y) + "}, {" + textOf(rect.width) + ", " +
         textOf(rect.height) + "}}";
}

std::optional<Rect> rectFromText(std::string_view text) {
  std::array<Scalar, 4> numbers = {};
  std::size_t found = 0;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end && found < numbers.size();) {
    const auto left = static_cast<std::size_t>(end - at);
    const auto digitAt = [&](std::size_t i) { return i < left && isDigit(at[i]); };
    // Past a sign and a point.
    std::size_t first = *at == '-' ? 1 : 0;
    if (first < left && at[first] == '.') ++first;
    if (digitAt(first)) {
      const auto read = std::from_chars(at, end, numbers[found]);
      if (read.ec != std::errc()) return std::nullopt;
      ++found;
      at = read.ptr;
      continue;
    }
    // Words are passed over as wholes, except those for numbers that are none.
    const char* word = at;
    while (at != end && std::isalpha(static_cast<unsigned char>(*at)) != 0) ++at;
    const std::string_view letters(word, static_cast<std::size_t>(at - word));
    if (letters.starts_with("inf") || letters.starts_with("nan") || letters.starts_with("Inf") ||
        letters.starts_with("NaN")) {
      return std::nullopt;
    }
    if (at == word) ++at;
  }
  if (found < numbers.size()) return std::nullopt;
  return Rect{numbers[0], numbers[1], numbers[2], numbers[3]};
}

}  // namespace ov
