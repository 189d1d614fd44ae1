#import <OvFoundation/NSString+OvFoundation.h>

#include <vector>

#include "NaturalOrder.h"
#import "StringUnits.h"
#include "Utf16.h"

namespace {

bool isMember(NSCharacterSet *set, ov::Character character) {
  return character.units == 2 ? [set longCharacterIsMember:character.value]
                              : [set characterIsMember:unichar(character.value)];
}

}  // namespace

@implementation NSString (OvCharacterSets)

- (BOOL)containsCharacterInSet:(NSCharacterSet *)set {
  if (!set) return NO;
  const StringUnits units(self);
  for (size_t i = 0; i < units.length();) {
    const ov::Character character = ov::characterAt(units, i, units.length());
    if (isMember(set, character)) return YES;
    i += character.units;
  }
  return NO;
}

- (NSString *)stringByDeletingAllOccurrencesOfCharactersInSet:(NSCharacterSet *)set {
  if (![self containsCharacterInSet:set]) {
    NSString *copy = [[self copy] autorelease];
    // Of a string that is not the platform's own, the copy may lack what no string is made with.
    if ([copy length] == [self length]) return copy;
  }
  const StringUnits units(self);
  std::vector<unichar> kept;
  kept.reserve(units.length());
  for (size_t i = 0; i < units.length();) {
    const ov::Character character = ov::characterAt(units, i, units.length());
    const size_t end = i + character.units;
    if (isMember(set, character)) {
      i = end;
    } else {
      while (i < end) kept.push_back(units[i++]);
    }
  }
  return StringWithUnits(kept);
}

@end

namespace {

// The lower case of every unit, by the platform's tables. A character that has no
// lower case of one unit stands for itself.
const std::vector<char16_t> &lowerCaseTable() {
  static const std::vector<char16_t> table = [] {
    std::vector<char16_t> lower(0x10000);
    for (size_t i = 0; i < lower.size(); ++i) {
      lower[i] = char16_t(i);
      if (ov::isSurrogate(char16_t(i))) continue;
      @autoreleasepool {
        const unichar unit = unichar(i);
        NSString *string = [[NSString stringWithCharacters:&unit length:1] lowercaseString];
        if ([string length] == 1) lower[i] = [string characterAtIndex:0];
      }
    }
    return lower;
  }();
  return table;
}

char16_t lowerCase(char16_t unit) {
  if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit;
  return lowerCaseTable()[unit];
}

std::vector<unichar> unitsOf(NSString *string) {
  std::vector<unichar> units([string length]);
  [string getCharacters:units.data() range:NSMakeRange(0, units.size())];
  return units;
}

std::u16string_view viewOf(const std::vector<unichar> &units) {
  return {reinterpret_cast<const char16_t *>(units.data()), units.size()};
}

}  // namespace

@implementation NSString (OvNaturalOrder)

- (NSComparisonResult)naturalCompare:(NSString *)other {
  if (![other isKindOfClass:[NSString class]]) return NSOrderedDescending;
  const std::vector<unichar> mine = unitsOf(self), theirs = unitsOf(other);
  const auto order = ov::naturalOrder(viewOf(mine), viewOf(theirs), lowerCase);
  if (order == 0) return NSOrderedSame;
  return order < 0 ? NSOrderedAscending : NSOrderedDescending;
}

@end
