#import "StringKinds.h"

#include <deque>

#import "StringUnits.h"
#include "Utf16.h"

@interface OvTestPlainString : NSString {
 @public
  std::u16string *units;
}
@end

@implementation OvTestPlainString

- (void)dealloc {
  delete units;
  [super dealloc];
}

- (NSUInteger)length {
  return units->size();
}

- (unichar)characterAtIndex:(NSUInteger)index {
  if (index >= units->size()) {
    [NSException raise:NSRangeException format:@"index %lu", static_cast<unsigned long>(index)];
  }
  return (*units)[index];
}

@end

namespace ov::test {

namespace {

// As the compiler lays a literal out.
struct Literal {
  Class isa;
  const char *bytes;
  unsigned length;
  std::string utf8;
};

std::deque<Literal> &literals() {
  static std::deque<Literal> all;
  return all;
}

void append(std::string &utf8, char32_t c) {
  const auto tail = [&](int bits) { utf8 += static_cast<char>(0x80 | (c >> bits & 0x3F)); };
  if (c < 0x80) {
    utf8 += static_cast<char>(c);
  } else if (c < 0x800) {
    utf8 += static_cast<char>(0xC0 | c >> 6);
    tail(0);
  } else if (c < 0x10000) {
    utf8 += static_cast<char>(0xE0 | c >> 12);
    tail(6);
    tail(0);
  } else {
    utf8 += static_cast<char>(0xF0 | c >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

NSString *makeLiteral(const std::u16string &units) {
  std::string utf8;
  for (size_t i = 0; i < units.size();) {
    const Character character = characterAt(units, i, units.size());
    if (character.units == 1 && isSurrogate(units[i])) return nil;
    append(utf8, character.value);
    i += character.units;
  }
  Literal &literal =
      literals().emplace_back(Literal{[NSString constantStringClass], nullptr, 0, std::move(utf8)});
  literal.bytes = literal.utf8.c_str();
  literal.length = static_cast<unsigned>(literal.utf8.size());
  return reinterpret_cast<NSString *>(&literal);
}

}  // namespace

const std::vector<StringKind> &stringKinds() {
  static const std::vector<StringKind> kinds = {StringKind::Immutable, StringKind::Mutable,
                                                StringKind::Part,      StringKind::EightBit,
                                                StringKind::Literal,   StringKind::Custom};
  return kinds;
}

const char *nameOf(StringKind kind) {
  switch (kind) {
    case StringKind::Immutable:
      return "immutable";
    case StringKind::Mutable:
      return "mutable";
    case StringKind::Part:
      return "part";
    case StringKind::EightBit:
      return "8-bit";
    case StringKind::Literal:
      return "literal";
    case StringKind::Custom:
      return "custom";
  }
  return "";
}

NSString *makeString(const std::u16string &units, StringKind kind) {
  switch (kind) {
    case StringKind::Immutable:
      return StringWithUnits({units.begin(), units.end()});
    case StringKind::Mutable: {
      // A mutable copy would lose a byte order mark at the start.
      NSMutableString *string = [NSMutableString stringWithString:@"x"];
      [string replaceCharactersInRange:NSMakeRange(0, 1)
                            withString:makeString(units, StringKind::Immutable)];
      return string;
    }
    case StringKind::Part: {
      const NSRange middle = NSMakeRange(2, units.size());
      return [makeString(u"<<" + units + u"あ>", StringKind::Immutable) substringWithRange:middle];
    }
    case StringKind::EightBit:
      for (char16_t unit : units) {
        if (unit >= 0x80) return nil;
      }
      return [[[NSString alloc] initWithBytes:std::string(units.begin(), units.end()).data()
                                       length:units.size()
                                     encoding:NSASCIIStringEncoding] autorelease];
    case StringKind::Literal:
      return makeLiteral(units);
    case StringKind::Custom: {
      OvTestPlainString *string = [[[OvTestPlainString alloc] init] autorelease];
      string->units = new std::u16string(units);
      return string;
    }
  }
  return nil;
}

void freeLiterals() { literals().clear(); }

std::u16string unitsOf(NSString *string) {
  std::u16string units([string length], u'\0');
  for (size_t i = 0; i < units.size(); ++i) units[i] = [string characterAtIndex:i];
  return units;
}

}  // namespace ov::test
