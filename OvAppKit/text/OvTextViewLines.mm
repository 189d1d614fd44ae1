#import <OvAppKit/OvTextViewLines.h>

#include <algorithm>

#include "text/StringText.h"

uint32_t OvTextViewGetLineCount(NSString *string) {
  return static_cast<uint32_t>(ov::lineCount(ov::StringText(string)));
}

uint32_t OvTextViewGetLineIndexFromLocation(NSString *string, uint32_t location) {
  return static_cast<uint32_t>(ov::lineBreaksBefore(ov::StringText(string), location));
}

NSString *OvTextViewGetIndexedLineString(NSString *string, uint32_t index) {
  return ov::lineString(string, ov::lineAtIndex(ov::StringText(string), index));
}

NSString *OvTextViewGetLineStringFromReturnCode(NSString *string, uint32_t location) {
  const ov::StringText text(string);
  const size_t end = std::min<size_t>(location, text.length());
  return ov::lineString(string, ov::lineBeforeLocation(text, end));
}
