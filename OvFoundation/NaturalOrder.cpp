#include "NaturalOrder.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace ov {
namespace {

// The zeros of the scripts in the Basic Multilingual Plane; nine more digits follow each.
constexpr char16_t zeros[] = {0x0030, 0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6,
                              0x0B66, 0x0BE6, 0x0C66, 0x0CE6, 0x0D66, 0x0DE6, 0x0E50, 0x0ED0,
                              0x0F20, 0x1040, 0x1090, 0x17E0, 0x1810, 0x1946, 0x19D0, 0x1A80,
                              0x1A90, 0x1B50, 0x1BB0, 0x1C40, 0x1C50, 0xA620, 0xA8D0, 0xA900,
                              0xA9D0, 0xA9F0, 0xAA50, 0xABF0, 0xFF10};

std::size_t endOfDigits(std::u16string_view text, std::size_t from) {
  while (from < text.size() && decimalDigitValue(text[from]) >= 0) ++from;
  return from;
}

std::size_t endOfZeros(std::u16string_view text, std::size_t from, std::size_t end) {
  while (from < end && decimalDigitValue(text[from]) == 0) ++from;
  return from;
}

}  // namespace

int decimalDigitValue(char16_t unit) {
  if (unit < 0x0660) return unit >= u'0' && unit <= u'9' ? unit - u'0' : -1;
  const auto next = std::upper_bound(std::begin(zeros), std::end(zeros), unit);
  const int value = unit - *std::prev(next);
  return value < 10 ? value : -1;
}

std::strong_ordering naturalOrder(std::u16string_view a, std::u16string_view b,
                                  char16_t (*fold)(char16_t)) {
  std::size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    const bool digitInA = decimalDigitValue(a[i]) >= 0;
    const bool digitInB = decimalDigitValue(b[j]) >= 0;
    if (digitInA && digitInB) {
      const std::size_t endA = endOfDigits(a, i), endB = endOfDigits(b, j);
      i = endOfZeros(a, i, endA);
      j = endOfZeros(b, j, endB);
      if (const auto longer = endA - i <=> endB - j; longer != 0) return longer;
      for (; i < endA; ++i, ++j) {
        const auto digit = decimalDigitValue(a[i]) <=> decimalDigitValue(b[j]);
        if (digit != 0) return digit;
      }
      continue;
    }
    // A number has one place among the other characters, whatever its script and value;
    // otherwise the order would not be transitive.
    const char16_t placeA = digitInA ? u'0' : fold(a[i]);
    const char16_t placeB = digitInB ? u'0' : fold(b[j]);
    if (placeA != placeB) return placeA <=> placeB;
    ++i;
    ++j;
  }
  if (i < a.size()) return std::strong_ordering::greater;
  if (j < b.size()) return std::strong_ordering::less;
  return a <=> b;
}

}  // namespace ov
