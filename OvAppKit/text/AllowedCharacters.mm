#import "text/AllowedCharacters.h"

#import "StringUnits.h"

namespace ov {

AllowedCharacters::AllowedCharacters(NSCharacterSet *set) : set_(retain(set)) {
  for (size_t unit = 0; unit < members_.size(); ++unit) {
    members_[unit] = [set characterIsMember:static_cast<unichar>(unit)];
  }
}

bool AllowedCharacters::makeUp(NSString *string) const {
  const StringUnits units(string);
  for (size_t i = 0; i < units.length(); ++i) {
    if (!members_[units[i]]) return false;
  }
  return true;
}

NSString *AllowedCharacters::runAtStart(NSString *string) const {
  NSString *run = nil;
  if ([string length] == 0) return string != nil ? string : [NSString string];
  NSScanner *scanner = [NSScanner scannerWithString:string];
  [scanner setScanLocation:0];
  return [scanner scanCharactersFromSet:set_.get() intoString:&run] ? run : [NSString string];
}

}  // namespace ov
