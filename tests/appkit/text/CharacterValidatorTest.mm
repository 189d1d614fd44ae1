// Digits, letters and colons.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"
#import "StringKinds.h"

using namespace ov::test;

namespace {

OvTextValidator *make(Class rule, uint32_t limit, bool asBytes = false) {
  OvTextValidator *validator = [rule textValidator];
  [validator setMaxLength:limit];
  [validator setCountAsByte:asBytes];
  return validator;
}

struct RuleRow {
  NSString *rule;
  uint32_t limit;
  std::u16string text;
  int verdict;
  std::u16string mended;
};

void PrintTo(const RuleRow &row, std::ostream *out) {
  *out << [row.rule UTF8String] << ", limit " << row.limit << ", "
       << ::testing::PrintToString(row.text);
}

class CharacterRule : public LiveTest, public ::testing::WithParamInterface<RuleRow> {};

TEST_P(CharacterRule, JudgesAndMends) {
  const RuleRow &row = GetParam();
  OvTextValidator *validator = make(NSClassFromString(row.rule), row.limit);
  for (StringKind kind : stringKinds()) {
    NSString *string = makeString(row.text, kind);
    if (string == nil) continue;
    SCOPED_TRACE(nameOf(kind));
    EXPECT_EQ([validator validateString:string], row.verdict);
    EXPECT_EQ([validator validString:string], row.verdict >= 0);
    EXPECT_EQ(unitsOf([validator validStringFromInvalidString:string]), row.mended);
  }
}

NSString *const kNumber = @"OvNumberTextValidator";
NSString *const kAlphabet = @"OvAlphabetTextValidator";
NSString *const kPath = @"OvPathTextValidator";

const RuleRow kRuleRows[] = {
    {kNumber, 9, u"", 0, u""},
    {kNumber, 9, u"123", 0, u"123"},
    {kNumber, 3, u"123", 100, u"123"},
    {kNumber, 3, u"1234", -1, u"123"},
    {kNumber, 9, u"12a34", -100, u"12"},
    {kNumber, 9, u"a12", -100, u""},
    {kNumber, 9, u" 12x", -100, u"12"},
    {kNumber, 9, u" 12", -100, u"12"},
    {kNumber, 9, u"\n\u3000 12", -100, u"12"},
    {kNumber, 9, u"12 ", -100, u"12"},
    {kNumber, 9, u"   ", -100, u""},
    {kNumber, 3, u"a1", -100, u""},
    // Full, but wrong.
    {kNumber, 3, u"12a", -100, u"12"},
    // Too long comes first; what is cut is then looked at.
    {kNumber, 3, u"12a4", -1, u"12"},
    {kNumber, 3, u"  123", -1, u"1"},
    {kNumber, 9, u"-1", -100, u""},
    {kNumber, 9, u"1.5", -100, u"1"},
    {kNumber, 9, u"1 000", -100, u"1"},
    // Digits of every script.
    {kNumber, 9, u"\u06634", 0, u"\u06634"},
    {kNumber, 9, u"１２", 0, u"１２"},
    {kNumber, 9, u"①", -100, u""},
    // A digit outside the basic plane is two units, neither of them one.
    {kNumber, 9, u"1\xD835\xDFCE", -100, u"1"},
    {kNumber, 2, u"1😀", -1, u"1"},
    {kNumber, 9, u"1\xD83D", -100, u"1"},
    {kNumber, 9, std::u16string(u"1\0002", 3), -100, u"1"},
    // Without a limit nothing fits.
    {kNumber, 0, u"123", 0, u""},
    {kNumber, 0, u"12a", -100, u""},
    {kNumber, 0, u"", 0, u""},

    {kAlphabet, 60, u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 0,
     u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"},
    {kAlphabet, 2, u"ab", 100, u"ab"},
    {kAlphabet, 2, u"abc", -1, u"ab"},
    {kAlphabet, 9, u"ab1cd", -100, u"ab"},
    {kAlphabet, 9, u"1ab", -100, u""},
    {kAlphabet, 9, u" ab1", -100, u"ab"},
    {kAlphabet, 9, u"é", -100, u""},
    {kAlphabet, 9, u"ａ", -100, u""},
    {kAlphabet, 9, u"a\u0301", -100, u"a"},
    {kAlphabet, 9, u"@[`{", -100, u""},
    {kAlphabet, 0, u"ab", 0, u""},
    {kAlphabet, 0, u"a1", -100, u""},
    {kAlphabet, 5, u"", 0, u""},

    {kPath, 9, u"", 0, u""},
    {kPath, 9, u"a/b", 0, u"a/b"},
    {kPath, 9, u"a:b::c", -100, u"abc"},
    {kPath, 9, u"::", -100, u""},
    {kPath, 3, u"abc", 100, u"abc"},
    {kPath, 3, u"a:b", -100, u"ab"},
    {kPath, 3, u"a:bc", -1, u"ab"},
    {kPath, 3, u"abc:", -1, u"abc"},
    {kPath, 9, u"：", 0, u"："},
    // The platform's search would not see this one.
    {kPath, 9, u"a:\u0301b", -100, u"a\u0301b"},
    {kPath, 9, u":\xD83D:\xDE00:", -100, u"\xD83D\xDE00"},
    {kPath, 9, u":\xDE00:\xD83D", -100, u"\xDE00\xD83D"},
    {kPath, 9, std::u16string(u"a\0:", 3), -100, std::u16string(u"a\0", 2)},
    {kPath, 0, u"ab", 0, u""},
    {kPath, 0, u"a:b", -100, u""},
};

INSTANTIATE_TEST_SUITE_P(Table, CharacterRule, ::testing::ValuesIn(kRuleRows));

class CharacterValidator : public LiveTest {};

TEST_F(CharacterValidator, NoStringBecomesAnEmptyOne) {
  for (NSString *name in @[ kNumber, kAlphabet, kPath ]) {
    for (uint32_t limit : {0U, 3U}) {
      OvTextValidator *validator = make(NSClassFromString(name), limit);
      EXPECT_EQ([validator validateString:nil], 0);
      EXPECT_TRUE([[validator validStringFromInvalidString:nil] isEqual:@""]);
    }
  }
}

TEST_F(CharacterValidator, CountsAsBytesLikeItsBase) {
  for (NSString *name in @[ kNumber, kAlphabet, kPath ]) {
    OvTextValidator *validator = make(NSClassFromString(name), 10, true);
    NSString *text = name == kNumber ? @"123456" : @"abcdef";
    EXPECT_EQ([validator validateString:[text substringToIndex:4]], 0);
    EXPECT_EQ([validator validateString:[text substringToIndex:5]], 100);
    EXPECT_EQ([validator validateString:text], -1);
    EXPECT_EQ([[validator validStringFromInvalidString:text] length], 5U);
  }
}

TEST_F(CharacterValidator, AcceptsEachUnitOfItsSetAndNoOther) {
  OvTextValidator *number = make([OvNumberTextValidator class], 9);
  OvTextValidator *alphabet = make([OvAlphabetTextValidator class], 9);
  OvTextValidator *path = make([OvPathTextValidator class], 9);
  NSCharacterSet *digits = [NSCharacterSet decimalDigitCharacterSet];
  for (unsigned u = 0; u <= 0xFFFF; ++u) {
    @autoreleasepool {
      const unichar unit = static_cast<unichar>(u);
      NSString *string = makeString({static_cast<char16_t>(u)}, StringKind::Custom);
      const bool letter = (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z');
      ASSERT_EQ([number validString:string], [digits characterIsMember:unit]) << u;
      ASSERT_EQ([alphabet validString:string], letter) << u;
      ASSERT_EQ([path validString:string], u != ':') << u;
    }
  }
}

// The rule as it is defined, with the platform's scanner.
struct Scanned {
  int verdict;
  std::u16string mended;
};

Scanned scan(NSString *string, NSCharacterSet *set, uint32_t limit) {
  OvTextValidator *base = make([OvTextValidator class], limit);
  Scanned result = {[base validateString:string], u""};
  const auto run = [&](NSString *scanned) {
    NSString *found = nil;
    NSScanner *scanner = [NSScanner scannerWithString:scanned];
    return [scanner scanCharactersFromSet:set intoString:&found] ? found : nil;
  };
  if (result.verdict >= 0 && [string length] > 0 && [run(string) length] != [string length]) {
    result.verdict = -100;
  }
  NSString *cut = [base validStringFromInvalidString:string];
  if ([cut length] > 0) result.mended = unitsOf(run(cut));
  return result;
}

TEST_F(CharacterValidator, AnswersAsAScannerDoesForRandomTexts) {
  Random random;
  SCOPED_TRACE(random.describe());
  const std::u16string likely = std::u16string(u"\0", 1) +
                                u"0129abzAZ \t\n\v\f\r\u0085\u00A0\u2028\u3000\u200B\uFEFF"
                                u":-+.\u0663１①é\u0301\xD835\xDFCE\xD83D\xDE00\xDC00";
  NSCharacterSet *letters = [NSCharacterSet
      characterSetWithCharactersInString:@"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"];
  for (int round = 0; round < 20000; ++round) {
    @autoreleasepool {
      std::u16string units;
      const bool wild = random.oneIn(2);
      for (int64_t n = random.integer(0, 9); n > 0; --n) {
        if (wild) {
          units += likely[static_cast<size_t>(
              random.integer(0, static_cast<int64_t>(likely.size()) - 1))];
        } else {
          units += random.oneIn(8) ? static_cast<char16_t>(random.integer(0, 0xFFFF))
                                   : likely[static_cast<size_t>(random.integer(1, 11))];
        }
      }
      const StringKind kind = random.pick(stringKinds());
      NSString *string = makeString(units, kind);
      if (string == nil) continue;
      const uint32_t limit = static_cast<uint32_t>(random.integer(0, 10));
      for (Class rule : {[OvNumberTextValidator class], [OvAlphabetTextValidator class]}) {
        NSCharacterSet *set = rule == [OvNumberTextValidator class]
                                  ? [NSCharacterSet decimalDigitCharacterSet]
                                  : letters;
        const Scanned expected = scan(string, set, limit);
        OvTextValidator *validator = make(rule, limit);
        ASSERT_EQ([validator validateString:string], expected.verdict)
            << nameOf(kind) << ::testing::PrintToString(units) << limit;
        ASSERT_EQ(unitsOf([validator validStringFromInvalidString:string]), expected.mended)
            << nameOf(kind) << ::testing::PrintToString(units) << limit;
      }
    }
    freeLiterals();
  }
}

TEST_F(CharacterValidator, JudgesATextOfTenMegabytes) {
  const size_t length = 5 << 20;
  std::u16string units(length, u'7');
  OvTextValidator *number = make([OvNumberTextValidator class], UINT32_MAX);
  OvTextValidator *path = make([OvPathTextValidator class], UINT32_MAX);
  EXPECT_EQ([number validateString:makeString(units, StringKind::Mutable)], 0);
  units.back() = u':';
  NSString *string = makeString(units, StringKind::Mutable);
  EXPECT_EQ([number validateString:string], -100);
  EXPECT_EQ([path validateString:string], -100);
  EXPECT_EQ([[number validStringFromInvalidString:string] length], length - 1);
  EXPECT_EQ([[path validStringFromInvalidString:string] length], length - 1);
  NSString *colons = makeString(std::u16string(length, u':'), StringKind::Mutable);
  EXPECT_EQ([[path validStringFromInvalidString:colons] length], 0U);
}

}  // namespace
