// How deeply a property list written as text is nested, without parsing it.

#ifndef OV_TEXT_NESTING_H
#define OV_TEXT_NESTING_H

#include <cstddef>
#include <string_view>

namespace ov {

/// The deepest nesting of arrays and dictionaries in a property list written in
/// XML or in the old style with braces; an estimate that is never too low for a
/// well-formed list of either kind, and exact for those without comments. A parser
/// that calls itself for each level can be spared what would overflow its stack.
std::size_t textNesting(std::string_view text);

}  // namespace ov

#endif
