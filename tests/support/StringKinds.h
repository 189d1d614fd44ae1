// The same text in strings of the platform's several classes, and of one that is not the
// platform's: they differ in how they cut, search and answer to bad ranges.

#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace ov::test {

enum class StringKind {
  Immutable,
  Mutable,
  // A part of a longer string.
  Part,
  // Bytes; ASCII only.
  EightBit,
  // What the compiler makes of @"…".
  Literal,
  // Of a class with the two primitive methods only.
  Custom,
};

const std::vector<StringKind>& stringKinds();
const char* nameOf(StringKind kind);

// Autoreleased; nil when a string of that kind cannot hold the units: bytes those beyond
// ASCII, a literal lone halves of surrogate pairs.
NSString* makeString(const std::u16string& units, StringKind kind);

// Literals are never freed by the platform. Call it when no string that was made before is in
// use, its pool drained.
void freeLiterals();

std::u16string unitsOf(NSString* string);

}  // namespace ov::test
