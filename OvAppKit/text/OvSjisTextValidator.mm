#import <OvAppKit/OvSjisTextValidator.h>

#import "text/MultibyteEncoding.h"
#import "text/StringPart.h"

@implementation OvSjisTextValidator

- (int32_t)validateString:(NSString *)string {
  const uint32_t limit = [self maxLength];
  if (limit == 0) return OvTextIsValid;
  const std::optional<ov::ByteFit> fit = ov::fitBytes(string, limit);
  if (!fit) return OvTextIsForbidden;
  if (fit->units < [string length]) return OvTextIsTooLong;
  return fit->bytes == limit ? OvTextIsFull : OvTextIsValid;
}

- (NSString *)validStringFromInvalidString:(NSString *)string {
  const NSUInteger length = [string length];
  const uint32_t limit = [self maxLength];
  const ov::ByteFit fit = ov::fitBytes(string, limit).value_or(ov::ByteFit{});
  // The platform refuses a range of one unit more than there are.
  const bool fallsShort = length == 0 || (fit.units == length && fit.bytes < limit);
  if (fallsShort) return [string substringWithRange:NSMakeRange(0, length + 1)];
  return ov::stringHead(string, fit.units);
}

- (BOOL)isLossyString:(NSString *)string {
  return ov::isEncodable(string);
}

@end
