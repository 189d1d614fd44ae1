#import "text/StringText.h"

#import "text/StringPart.h"

namespace ov {

void StringText::copy(std::size_t start, std::span<char16_t> block) const {
  static_assert(sizeof(unichar) == sizeof(char16_t));
  [string_ getCharacters:reinterpret_cast<unichar *>(block.data())
                   range:NSMakeRange(start, block.size())];
}

NSString *lineString(NSString *string, LineExtent extent) {
  if (extent.length() == 0) return nil;
  return stringPart(string, NSMakeRange(extent.start, extent.length()));
}

}  // namespace ov
