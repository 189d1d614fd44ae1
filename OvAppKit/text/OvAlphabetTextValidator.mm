#import <OvAppKit/OvAlphabetTextValidator.h>

#import "text/AllowedCharacters.h"

static const ov::AllowedCharacters &letters() {
  static const ov::AllowedCharacters allowed([NSCharacterSet
      characterSetWithCharactersInString:@"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"]);
  return allowed;
}

@implementation OvAlphabetTextValidator

- (int32_t)validateString:(NSString *)string {
  const int32_t verdict = [super validateString:string];
  return verdict < 0 || letters().makeUp(string) ? verdict : OvTextIsForbidden;
}

- (NSString *)validStringFromInvalidString:(NSString *)string {
  return letters().runAtStart([super validStringFromInvalidString:string]);
}

@end
