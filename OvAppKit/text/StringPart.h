// Parts of a string that have the length asked for, whatever the class of the string.

#pragma once

#import <Foundation/Foundation.h>

namespace ov {

// The units of a range, which must lie within the string. For a literal the platform's own
// message answers nil when the range cuts a surrogate pair, and less than the range when it
// begins with a byte order mark. Autoreleased.
NSString *stringPart(NSString *string, NSRange range);

// The first `length` units.
inline NSString *stringHead(NSString *string, NSUInteger length) {
  return stringPart(string, NSMakeRange(0, length));
}

}  // namespace ov
