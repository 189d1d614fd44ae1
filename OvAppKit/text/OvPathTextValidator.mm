#import <OvAppKit/OvPathTextValidator.h>
#import <OvFoundation/NSString+OvFoundation.h>

#import "StringUnits.h"

// The platform's search would pass over a colon with a combining mark behind it.
static bool holdsColon(NSString *string) {
  const StringUnits units(string);
  for (size_t i = 0; i < units.length(); ++i) {
    if (units[i] == u':') return true;
  }
  return false;
}

@implementation OvPathTextValidator

- (int32_t)validateString:(NSString *)string {
  const int32_t verdict = [super validateString:string];
  return verdict < 0 || !holdsColon(string) ? verdict : OvTextIsForbidden;
}

- (NSString *)validStringFromInvalidString:(NSString *)string {
  NSString *cut = [super validStringFromInvalidString:string];
  if ([cut length] == 0) return cut != nil ? cut : [NSString string];
  NSCharacterSet *colon = [NSCharacterSet characterSetWithCharactersInString:@":"];
  return [cut stringByDeletingAllOccurrencesOfCharactersInSet:colon];
}

@end
