#import <OvAppKit/OvNumberTextValidator.h>

#import "text/AllowedCharacters.h"

static const ov::AllowedCharacters &digits() {
  static const ov::AllowedCharacters allowed([NSCharacterSet decimalDigitCharacterSet]);
  return allowed;
}

@implementation OvNumberTextValidator

- (int32_t)validateString:(NSString *)string {
  const int32_t verdict = [super validateString:string];
  return verdict < 0 || digits().makeUp(string) ? verdict : OvTextIsForbidden;
}

- (NSString *)validStringFromInvalidString:(NSString *)string {
  return digits().runAtStart([super validStringFromInvalidString:string]);
}

@end
