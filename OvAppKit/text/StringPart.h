// Parts of a string that have the length asked for, whatever the class of the string.

#pragma once

#import <Foundation/Foundation.h>

namespace ov {

// The units of a range, which must lie within the string. The platform's own message answers
// nil for some classes when the range cuts a surrogate pair. Autoreleased.
NSString *stringPart(NSString *string, NSRange range);

// The first `length` units.
inline NSString *stringHead(NSString *string, NSUInteger length) {
  return stringPart(string, NSMakeRange(0, length));
}

}  // namespace ov
