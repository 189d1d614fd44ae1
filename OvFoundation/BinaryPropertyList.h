// Whether a binary property list can be read without harm.

#ifndef OV_BINARY_PROPERTY_LIST_H
#define OV_BINARY_PROPERTY_LIST_H

#include <cstddef>
#include <string_view>

namespace ov {

/// Whether the bytes are in the binary form, for good or ill.
bool isBinaryPropertyList(std::string_view bytes);

/// Whether every object of a binary property list lies within it and refers only to
/// objects that are there, nothing contains itself or is nested more deeply than
/// `maximumDepth`, and the whole, with what is shared written out each time, is of no
/// more than `maximumCount` objects. A parser that trusts its input may run out of
/// memory or time on others.
bool isSoundBinaryPropertyList(std::string_view bytes, std::size_t maximumDepth,
                               std::size_t maximumCount);

}  // namespace ov

#endif
