// Bytes in the default multibyte encoding. In the tests' process that is Shift-JIS: its own
// encoding is UTF-8.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"
#import "StringKinds.h"

using namespace ov::test;

namespace {

OvSjisTextValidator *make(uint32_t limit) {
  OvSjisTextValidator *validator = [OvSjisTextValidator textValidator];
  [validator setMaxLength:limit];
  return validator;
}

struct ByteRow {
  std::u16string text;
  uint32_t limit;
  int verdict;
  // What is kept of a text that is too long.
  std::u16string kept;
};

void PrintTo(const ByteRow &row, std::ostream *out) {
  *out << ::testing::PrintToString(row.text) << ", limit " << row.limit;
}

class ByteRule : public LiveTest, public ::testing::WithParamInterface<ByteRow> {};

TEST_P(ByteRule, JudgesAndCutsTheSameWay) {
  const ByteRow &row = GetParam();
  OvSjisTextValidator *validator = make(row.limit);
  for (StringKind kind : stringKinds()) {
    NSString *string = makeString(row.text, kind);
    if (string == nil) continue;
    SCOPED_TRACE(nameOf(kind));
    EXPECT_EQ([validator validateString:string], row.verdict);
    EXPECT_EQ([validator validString:string], row.verdict >= 0);
    if (row.verdict == -1) {
      NSString *cut = [validator validStringFromInvalidString:string];
      EXPECT_EQ(unitsOf(cut), row.kept);
      EXPECT_GE([validator validateString:cut], 0);
    }
  }
}

const ByteRow kByteRows[] = {
    {u"", 0, 0, u""},
    {u"aあいう", 0, 0, u""},
    {u"", 4, 0, u""},
    {u"あ", 2, 100, u""},
    {u"ab", 2, 100, u""},
    {u"aあ", 2, -1, u"a"},
    {u"aあ", 3, 100, u""},
    {u"aあ", 4, 0, u""},
    {u"aあいう", 4, -1, u"aあ"},
    {u"aあいう", 5, -1, u"aあい"},
    {u"aあいう", 7, 100, u""},
    {u"あ", 1, -1, u""},
    {u"ｱｲｳ", 3, 100, u""},
    {u"①", 2, 100, u""},
    {u"～－㈱", 6, 100, u""},
    {u"〜−", 4, 100, u""},
    {u"¥\u203E", 2, 100, u""},
    // Not in the encoding: the one byte of a substitute for each unit.
    {u"é가€", 3, 100, u""},
    {u"😀", 2, 100, u""},
    {u"😀😀😀", 2, -1, u"😀"},
    {u"😀😀😀", 3, -1, u"😀\xD83D"},
    {u"e\u0301", 2, 100, u""},
    {u"か\u3099", 3, 100, u""},
    {u"\xFEFF", 1, 100, u""},
    {u"\xD83D", 1, 100, u""},
    {u"\xDE00\xD83D", 1, -1, u"\xDE00"},
    {std::u16string(u"\0\0", 2), 1, -1, std::u16string(1, u'\0')},
    {u"abc", UINT32_MAX, 0, u""},
};

INSTANTIATE_TEST_SUITE_P(Table, ByteRule, ::testing::ValuesIn(kByteRows));

class ByteValidator : public LiveTest {};

TEST_F(ByteValidator, JudgesAndCutsEveryUnitThereIs) {
  OvSjisTextValidator *validator = make(0);
  NSUInteger twoBytes = 0;
  for (unsigned u = 0; u <= 0xFFFF; ++u) {
    @autoreleasepool {
      const char16_t unit = static_cast<char16_t>(u);
      [validator setMaxLength:1];
      NSString *one = makeString({unit}, StringKind::Custom);
      const int verdict = [validator validateString:one];
      ASSERT_TRUE(verdict == 100 || verdict == -1) << u;
      const unsigned bytes = verdict == 100 ? 1 : 2;
      twoBytes += bytes == 2;
      if (bytes == 2) {
        ASSERT_EQ([[validator validStringFromInvalidString:one] length], 0U) << u;
        [validator setMaxLength:2];
        ASSERT_EQ([validator validateString:one], 100) << u;
      }
      // The whole is the sum of its parts, and a cut fits.
      NSString *three = makeString({u'a', unit, unit}, StringKind::Custom);
      const unsigned whole = 1 + 2 * bytes;
      for (unsigned limit = 1; limit <= whole + 1; ++limit) {
        [validator setMaxLength:limit];
        const int expected = whole > limit ? -1 : whole == limit ? 100 : 0;
        ASSERT_EQ([validator validateString:three], expected) << u;
        if (expected != -1) continue;
        NSString *cut = [validator validStringFromInvalidString:three];
        ASSERT_EQ([cut length], 1 + (limit - 1) / bytes) << u;
        ASSERT_EQ([validator validateString:cut], (limit - 1) % bytes == 0 ? 100 : 0) << u;
      }
    }
  }
  EXPECT_GT(twoBytes, 7000U);
}

TEST_F(ByteValidator, DoesNotLookAtCountAsByte) {
  OvSjisTextValidator *validator = make(4);
  [validator setCountAsByte:YES];
  EXPECT_EQ([validator validateString:@"abc"], 0);
  EXPECT_EQ([validator validateString:@"abcd"], 100);
  EXPECT_TRUE([[validator validStringFromInvalidString:@"abcde"] isEqual:@"abcd"]);
}

TEST_F(ByteValidator, NoStringHasNoBytes) {
  EXPECT_EQ([make(0) validateString:nil], 0);
  EXPECT_EQ([make(3) validateString:nil], -100);
  EXPECT_FALSE([make(3) validString:nil]);
  EXPECT_EQ([make(3) validStringFromInvalidString:nil], nil);
}

TEST_F(ByteValidator, WithoutALimitEverythingIsCutAway) {
  EXPECT_TRUE([[make(0) validStringFromInvalidString:@"abc"] isEqual:@""]);
}

// Only what is too long may be cut.
TEST_F(ByteValidator, RefusesToCutWhatDoesNotReachTheLimit) {
  for (StringKind kind : stringKinds()) {
    for (const std::u16string &units : {std::u16string(u""), std::u16string(u"abc")}) {
      NSString *string = makeString(units, kind);
      SCOPED_TRACE(nameOf(kind));
      NSString *raised = nil;
      @try {
        [make(4) validStringFromInvalidString:string];
      } @catch (NSException *exception) {
        raised = [exception name];
      }
      EXPECT_TRUE([raised isEqual:NSRangeException]) << units.size();
    }
  }
  NSString *raised = nil;
  @try {
    [make(0) validStringFromInvalidString:@""];
  } @catch (NSException *exception) {
    raised = [exception name];
  }
  EXPECT_TRUE([raised isEqual:NSRangeException]) << "empty, without a limit";
  EXPECT_TRUE([[make(3) validStringFromInvalidString:@"abc"] isEqual:@"abc"]) << "exactly full";
}

TEST_F(ByteValidator, SaysThatAStringIsLossyWhenItIsNot) {
  OvSjisTextValidator *validator = make(0);
  EXPECT_FALSE([validator isLossyString:nil]);
  EXPECT_TRUE([validator isLossyString:@""]);
  EXPECT_TRUE([validator isLossyString:@"plain ASCII\n"]);
  EXPECT_TRUE([validator isLossyString:@"あ漢ｱ①～－㈱〜−"]);
  EXPECT_FALSE([validator isLossyString:@"é"]);
  EXPECT_FALSE([validator isLossyString:@"あ😀"]);
  EXPECT_FALSE([validator isLossyString:@"か\u3099"]);
  EXPECT_FALSE([validator isLossyString:makeString(u"a\xD83D", StringKind::Mutable)]);
}

// The platform has the strict table only; nothing in it is lost in ours.
TEST_F(ByteValidator, HasEverythingThatThePlatformCanConvert) {
  OvSjisTextValidator *validator = make(2);
  for (unsigned u = 0; u <= 0xFFFF; ++u) {
    @autoreleasepool {
      if (u >= 0xD800 && u <= 0xDFFF) continue;
      const unichar unit = static_cast<unichar>(u);
      NSString *string = [NSString stringWithCharacters:&unit length:1];
      NSData *bytes = [string dataUsingEncoding:NSShiftJISStringEncoding allowLossyConversion:NO];
      if ([bytes length] == 0) continue;
      ASSERT_TRUE([validator isLossyString:string]) << u;
      ASSERT_EQ([validator validateString:string], [bytes length] == 2 ? 100 : 0) << u;
    }
  }
}

TEST_F(ByteValidator, JudgesAndCutsATextOfTenMegabytes) {
  const size_t length = 5 << 20;
  NSString *string = makeString(std::u16string(length, u'あ'), StringKind::Mutable);
  EXPECT_EQ([make(2 * length) validateString:string], 100);
  EXPECT_EQ([make(2 * length - 1) validateString:string], -1);
  EXPECT_EQ([[make(2 * length - 1) validStringFromInvalidString:string] length], length - 1);
}

}  // namespace
