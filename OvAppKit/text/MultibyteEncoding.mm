#import "text/MultibyteEncoding.h"

#import "StringUnits.h"
#include "Utf16.h"

namespace ov {

namespace {

struct Encoding {
  NSStringEncoding identifier;
  // To the C library.
  const char *name;
};

// Those in which a character's bytes do not depend on its neighbours. (ISO-2022-JP is not one
// of them: it switches between character sets with escape sequences.) The first is the one
// that is counted in a process whose own encoding is none of these, as UTF-8 is on this
// platform. Code page 932 is the Shift-JIS that is written in the field; the strict table,
// which is the platform's, lacks circled digits, U+FF5E and U+FF0D.
constexpr Encoding kEncodings[] = {
    {NSShiftJISStringEncoding, "CP932"},   {NSJapaneseEUCStringEncoding, "EUC-JP"},
    {NSGB2312StringEncoding, "EUC-CN"},    {NSBIG5StringEncoding, "BIG5"},
    {NSKoreanEUCStringEncoding, "EUC-KR"},
};

const Encoding &chosenEncoding() {
  const NSStringEncoding own = [NSString defaultCStringEncoding];
  for (const Encoding &encoding : kEncodings) {
    if (encoding.identifier == own) return encoding;
  }
  return kEncodings[0];
}

// By the platform, for a system whose C library comes without the tables.
unsigned platformBytes(unichar unit, NSStringEncoding encoding) {
  if (isSurrogate(unit)) return 0;
  @autoreleasepool {
    NSString *string = [NSString stringWithCharacters:&unit length:1];
    return static_cast<unsigned>([[string dataUsingEncoding:encoding
                                       allowLossyConversion:NO] length]);
  }
}

// Made by the first who asks, on whatever thread; the others wait.
const std::optional<ByteWidths> &byteWidths() {
  static const std::optional<ByteWidths> widths = [] {
    const Encoding &encoding = chosenEncoding();
    if (std::optional<ByteWidths> found = ByteWidths::ofEncoding(encoding.name)) return found;
    return ByteWidths::by([&](char16_t unit) { return platformBytes(unit, encoding.identifier); });
  }();
  return widths;
}

}  // namespace

std::optional<ByteFit> fitBytes(NSString *string, double limit) {
  const std::optional<ByteWidths> &widths = byteWidths();
  if (string == nil || !widths) return std::nullopt;
  const StringUnits units(string);
  return fitBytes(*widths, units, units.length(), limit);
}

bool isEncodable(NSString *string) {
  const std::optional<ByteWidths> &widths = byteWidths();
  if (string == nil || !widths) return false;
  const StringUnits units(string);
  for (size_t i = 0; i < units.length(); ++i) {
    if (!widths->has(units[i])) return false;
  }
  return true;
}

}  // namespace ov
