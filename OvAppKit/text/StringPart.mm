#import "text/StringPart.h"

#include <vector>

#import "StringUnits.h"

namespace ov {

NSString *stringPart(NSString *string, NSRange range) {
  NSString *part = [string substringWithRange:range];
  if ([part length] == range.length) return part;
  std::vector<unichar> units(range.length);
  [string getCharacters:units.data() range:range];
  return StringWithUnits(units);
}

}  // namespace ov
