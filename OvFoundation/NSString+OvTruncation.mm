#import <OvFoundation/NSString+OvFoundation.h>

#include <algorithm>
#include <cmath>

#include "Shortening.h"
#import "StringUnits.h"
#include "Utf16.h"

// What is used of AppKit, which the library does not link. Its classes are asked for
// when they are needed.
@interface NSObject (OvFontsAtRunTime)
+ (CGFloat)systemFontSizeForControlSize:(NSUInteger)controlSize;
+ (id)systemFontOfSize:(CGFloat)size;
@end

@interface NSString (OvDrawingAtRunTime)
- (NSSize)sizeWithAttributes:(NSDictionary *)attributes;
@end

namespace {

constexpr char16_t joiner = 0x200D;
constexpr char16_t ellipsis = 0x2026;

NSCharacterSet *marks() {
  static NSCharacterSet *set = [[NSCharacterSet nonBaseCharacterSet] retain];
  return set;
}

// The attributes of a control's text; nil where fonts cannot be had.
NSDictionary *attributesForControlSize(NSUInteger controlSize) {
  Class fonts = NSClassFromString(@"NSFont");
  if (!fonts || ![NSString instancesRespondToSelector:@selector(sizeWithAttributes:)]) return nil;
  @try {
    id font = [fonts systemFontOfSize:[fonts systemFontSizeForControlSize:controlSize]];
    // The value of NSFontAttributeName, which is AppKit's.
    return font ? [NSDictionary dictionaryWithObject:font forKey:@"NSFont"] : nil;
  } @catch (NSException *) {
    return nil;  // there is no application object yet
  }
}

double estimatedWidth(NSString *string, NSUInteger controlSize) {
  const double size = controlSize == 1 ? 10 : controlSize == 2 ? 8 : 12;
  const StringUnits units(string);
  double width = 0;
  for (size_t i = 0; i < units.length();) {
    const ov::Character character = ov::characterAt(units, i, units.length());
    if (![marks() longCharacterIsMember:character.value] && character.value != joiner) {
      width += character.value < 0x1100 ? 0.6 * size : size;
    }
    i += character.units;
  }
  return width;
}

class Ruler {
 public:
  explicit Ruler(NSUInteger controlSize)
      : controlSize_(controlSize), attributes_(attributesForControlSize(controlSize)) {}

  double widthOf(NSString *string) const {
    return attributes_ ? [string sizeWithAttributes:attributes_].width
                       : estimatedWidth(string, controlSize_);
  }

 private:
  NSUInteger controlSize_;
  NSDictionary *attributes_;
};

bool isJoinedToWhatPrecedes(char32_t character) {
  const bool isSkinColour = character >= 0x1F3FB && character <= 0x1F3FF;
  return character == joiner || isSkinColour || [marks() longCharacterIsMember:character];
}

bool mayCutBefore(const StringUnits &units, size_t index) {
  if (ov::isLowSurrogate(units[index]) && ov::isHighSurrogate(units[index - 1])) return false;
  if (units[index - 1] == joiner) return false;
  return !isJoinedToWhatPrecedes(ov::characterAt(units, index, units.length()).value);
}

NSString *cut(const StringUnits &units, ov::KeptEnds ends) {
  std::vector<unichar> kept;
  kept.reserve(ends.head + ends.tail + 1);
  for (size_t i = 0; i < ends.head; ++i) kept.push_back(units[i]);
  kept.push_back(ellipsis);
  for (size_t i = units.length() - ends.tail; i < units.length(); ++i) kept.push_back(units[i]);
  return StringWithUnits(kept);
}

// Tries growing beginnings first, so that a long string costs no more than what fits.
bool fitsWhole(NSString *string, const StringUnits &units, const Ruler &ruler, double width) {
  for (size_t count = 64; count < units.length(); count *= 2) {
    size_t end = count;
    while (end > 0 && !mayCutBefore(units, end)) --end;
    std::vector<unichar> beginning;
    beginning.reserve(end);
    for (size_t i = 0; i < end; ++i) beginning.push_back(units[i]);
    @autoreleasepool {
      if (ruler.widthOf(StringWithUnits(beginning)) > width) return false;
    }
  }
  return ruler.widthOf(string) <= width;
}

}  // namespace

@implementation NSString (OvTruncation)

- (NSString *)truncateControlStringWithDrawingWidth:(float)width
                                          truncCode:(int)truncCode
                                        controlSize:(NSUInteger)controlSize {
  constexpr int truncateInTheMiddle = 16384;
  if ([self length] == 0 || (std::isinf(width) && width > 0)) return self;
  if (!(width > 0)) return @"";
  const Ruler ruler(controlSize);
  const StringUnits units(self);
  if (fitsWhole(self, units, ruler, width)) return self;

  const ov::ShorteningQuestions ask = {
      .mayCutBefore = [&](size_t index) { return mayCutBefore(units, index); },
      .fits =
          [&](ov::KeptEnds ends) {
            @autoreleasepool {
              return ruler.widthOf(cut(units, ends)) <= width;
            }
          },
  };
  const ov::CutAt where = truncCode == truncateInTheMiddle ? ov::CutAt::middle : ov::CutAt::end;
  return cut(units, ov::longestFitting(units.length(), where, ask));
}

@end
