#import "text/StringText.h"

namespace ov {

void StringText::copy(std::size_t start, std::span<char16_t> block) const {
  static_assert(sizeof(unichar) == sizeof(char16_t));
  [string_ getCharacters:reinterpret_cast<unichar *>(block.data())
                   range:NSMakeRange(start, block.size())];
}

NSString *lineString(NSString *string, LineExtent extent) {
  if (extent.length() == 0) return nil;
  const NSRange range = NSMakeRange(extent.start, extent.length());
  // Asked for half a character at the end, the platform answers nil for some strings, a
  // string that cannot be printed for others.
  NSString *line = [string substringWithRange:range];
  if ([line length] == range.length) return line;
  NSMutableString *whole = [NSMutableString stringWithString:string];
  [whole deleteCharactersInRange:NSMakeRange(extent.end, [whole length] - extent.end)];
  [whole deleteCharactersInRange:NSMakeRange(0, extent.start)];
  return [[whole copy] autorelease];
}

}  // namespace ov
