// The order in which a person lists names: "Item 2" before "item 10".

#ifndef OV_NATURAL_ORDER_H
#define OV_NATURAL_ORDER_H

#include <compare>
#include <string_view>

namespace ov {

/// The value of a decimal digit of any script (0 to 9), or -1.
int decimalDigitValue(char16_t unit);

/// A total order of strings. Runs of decimal digits count as one number of any
/// length and sort by value, where the digits of other characters would; all else
/// sorts by the unit that `fold` answers for it (its lower case, say). Strings that
/// agree so far ("A01", "a1") are put in the order of their units, so that only
/// identical strings are equal.
std::strong_ordering naturalOrder(std::u16string_view a, std::u16string_view b,
                                  char16_t (*fold)(char16_t));

}  // namespace ov

#endif
