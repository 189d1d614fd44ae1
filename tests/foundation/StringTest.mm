#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <vector>

#include "RandomSeed.h"

namespace {

// A string of any units, lone halves among them, which the platform does not make directly.
NSString *unitsString(const std::u16string &units) {
  NSMutableString *string = [NSMutableString string];
  for (char16_t unit : units)
    [string appendString:[NSString stringWithFormat:@"%C", unichar(unit)]];
  return string;
}

std::u16string unitsOf(NSString *string) {
  std::u16string units;
  for (NSUInteger i = 0; i < [string length]; ++i) units += char16_t([string characterAtIndex:i]);
  return units;
}

NSCharacterSet *only(NSString *characters) {
  return [NSCharacterSet characterSetWithCharactersInString:characters];
}
NSCharacterSet *range(NSUInteger first, NSUInteger count) {
  return [NSCharacterSet characterSetWithRange:NSMakeRange(first, count)];
}

class Strings : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~Strings() override { [pool release]; }
};

struct Deletion {
  const char *name;
  std::u16string text;
  NSCharacterSet *(*set)();
  std::u16string rest;
};

void PrintTo(const Deletion &row, std::ostream *out) { *out << row.name; }

class Deletions : public testing::TestWithParam<Deletion> {};

TEST_P(Deletions, LeaveTheRest) {
  @autoreleasepool {
    const Deletion &row = GetParam();
    NSString *text = unitsString(row.text);
    NSCharacterSet *set = row.set();
    EXPECT_EQ(row.text != row.rest, [text containsCharacterInSet:set]);
    NSString *rest = [text stringByDeletingAllOccurrencesOfCharactersInSet:set];
    EXPECT_TRUE(row.rest == unitsOf(rest));
    EXPECT_TRUE(row.text == unitsOf(text));
    EXPECT_FALSE([rest containsCharacterInSet:set]);
  }
}

const std::u16string nul(1, u'\0'), high(1, 0xD83D), low(1, 0xDE00), accent(1, 0x0301);

INSTANTIATE_TEST_SUITE_P(
    , Deletions,
    testing::Values(
        Deletion{"Empty", u"", [] { return only(@"a"); }, u""},
        Deletion{"None", u"bcd", [] { return only(@"a"); }, u"bcd"},
        Deletion{"Some", u"abacad", [] { return only(@"a"); }, u"bcd"},
        Deletion{"All", u"aaa", [] { return only(@"a"); }, u""},
        Deletion{"EmptySet", u"abc", [] { return only(@""); }, u"abc"},
        Deletion{"AllButDigits", u"1a2b3", [] { return [only(@"0123456789") invertedSet]; },
                 u"123"},
        Deletion{"AllButDigitsWithPairs", u"1\U0001F6002",
                 [] { return [only(@"0123456789") invertedSet]; }, u"12"},
        Deletion{"AllButDigitsWithHalves", u"1" + high + u"2" + low,
                 [] { return [only(@"0123456789") invertedSet]; }, u"12"},
        Deletion{"ColonBeforeAMark", u"a:" + accent + u"b", [] { return only(@":"); },
                 u"a" + accent + u"b"},
        Deletion{"LetterBeforeAMark", u"e" + accent, [] { return only(@"e"); }, accent},
        Deletion{"MarkAfterALetter", u"e" + accent, [] { return range(0x301, 1); }, u"e"},
        Deletion{"Nul", u"a" + nul + u"b", [] { return range(0, 1); }, u"ab"},
        Deletion{"AroundNul", u"a" + nul + u"b", [] { return only(@"ab"); }, nul},
        Deletion{"PairWhole", u"a\U0001F600b\U0001F601", [] { return range(0x1F600, 1); },
                 u"ab\U0001F601"},
        Deletion{"PairIsNotItsHalves", u"a\U0001F600", [] { return range(0xD800, 0x800); },
                 u"a\U0001F600"},
        Deletion{"LoneHalves", u"a" + high + u"b" + low + u"\U0001F600",
                 [] { return range(0xD800, 0x800); }, u"ab\U0001F600"},
        Deletion{"LoneHalvesStay", u"a" + high + u"b" + low, [] { return only(@"b"); },
                 u"a" + high + low},
        Deletion{"LoneHalvesApartStay", high + u"ab" + low + u"x", [] { return only(@"b"); },
                 high + u"a" + low + u"x"},
        Deletion{"OrderMarkAtTheStart", u"\uFEFFab", [] { return only(@"a"); }, u"\uFEFFb"},
        Deletion{"SwappedOrderMarkAtTheStart", u"\uFFFEab", [] { return only(@"a"); }, u"\uFFFEb"},
        Deletion{"OrderMarkComesToTheStart", u"a\uFEFF\uFEFF" + high, [] { return only(@"a"); },
                 u"\uFEFF\uFEFF" + high},
        Deletion{"HalvesInReverse", low + high + u"a", [] { return only(@"a"); }, low + high}),
    [](const auto &info) { return info.param.name; });

TEST_F(Strings, NoSetHoldsNothing) {
  EXPECT_FALSE([@"abc" containsCharacterInSet:nil]);
  EXPECT_TRUE([[@"abc" stringByDeletingAllOccurrencesOfCharactersInSet:nil] isEqual:@"abc"]);
}

TEST_F(Strings, DeletionFromAMutableStringIsAStringOfItsOwn) {
  NSMutableString *text = [NSMutableString stringWithString:@"abc"];
  NSString *same = [text stringByDeletingAllOccurrencesOfCharactersInSet:only(@"x")];
  NSString *less = [text stringByDeletingAllOccurrencesOfCharactersInSet:only(@"a")];
  [text setString:@"changed"];
  EXPECT_TRUE([same isEqual:@"abc"]);
  EXPECT_TRUE([less isEqual:@"bc"]);
}

TEST_F(Strings, DeletionEqualsTheSlowDefinition) {
  const unsigned seed = testSeed();
  SCOPED_TRACE(testing::Message() << "OV_TEST_SEED=" << seed);
  std::mt19937 random(seed);
  const std::u16string alphabet = u"ab\u0301\u00E9\xD83D\xDE00\xDE01\xFFFD\xFEFF\xFFFE";
  NSMutableCharacterSet *set = [[only(@"a\u0301") mutableCopy] autorelease];
  [set addCharactersInRange:NSMakeRange(0x1F600, 1)];
  for (int round = 0; round < 3000; ++round) {
    @autoreleasepool {
      std::u16string text, rest;
      for (auto length = random() % 12; length > 0; --length)
        text += alphabet[random() % alphabet.size()];
      for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == u"\U0001F600") {
          ++i;
        } else if (text.substr(i, 2) == u"\U0001F601") {
          rest += text.substr(i++, 2);
        } else if (text[i] != u'a' && text[i] != u'\u0301') {
          rest += text[i];
        }
      }
      NSString *result = [unitsString(text) stringByDeletingAllOccurrencesOfCharactersInSet:set];
      ASSERT_TRUE(rest == unitsOf(result));
    }
  }
}

TEST_F(Strings, TenMillionUnitsAreNoTrouble) {
  const NSUInteger length = 10'000'000;
  NSString *text = [@"" stringByPaddingToLength:length
                                     withString:@"ab\U0001F600c"
                                startingAtIndex:0];
  EXPECT_TRUE([text containsCharacterInSet:only(@"c")]);
  EXPECT_FALSE([text containsCharacterInSet:only(@"d")]);
  EXPECT_EQ(length / 5 * 4,
            [[text stringByDeletingAllOccurrencesOfCharactersInSet:only(@"c")] length]);
  EXPECT_EQ(
      0u, [[text stringByDeletingAllOccurrencesOfCharactersInSet:[only(@"1") invertedSet]] length]);
  EXPECT_EQ(NSOrderedAscending, [text naturalCompare:[text stringByAppendingString:@"a"]]);
}

TEST_F(Strings, ManyLoneHalvesAreNoTrouble) {
  // Made from pairs whose second half goes.
  std::vector<unichar> units;
  for (int i = 0; i < 100'000; ++i) units.insert(units.end(), {0xD83D, 0xDE00, 'x'});
  NSMutableString *text = [NSMutableString stringWithCharacters:units.data() length:units.size()];
  NSString *half = unitsString(low);
  for (NSUInteger i = 0; i < 100'000; ++i)
    [text replaceCharactersInRange:NSMakeRange(3 * i, 1) withString:half];
  NSString *rest = [text stringByDeletingAllOccurrencesOfCharactersInSet:only(@"x")];
  ASSERT_EQ(200'000u, [rest length]);
  EXPECT_EQ(0xDE00, [rest characterAtIndex:0]);
  EXPECT_EQ(0xDE00, [rest characterAtIndex:199'999]);
}

TEST_F(Strings, NaturalCompare) {
  NSArray *sorted = @[
    @"", @"1", @"2", @"10", @"alpha", @"Beep 1", @"beep 2", @"BEEP 10", @"Beep 010", @"\u00C9cho",
    @"\u00E9cho", @"\u00C9cho 2"
  ];
  NSArray *shuffled = [[sorted reverseObjectEnumerator] allObjects];
  NSArray *result = [shuffled sortedArrayUsingSelector:@selector(naturalCompare:)];
  NSArray *expected = @[
    @"", @"1", @"2", @"10", @"alpha", @"Beep 1", @"beep 2", @"BEEP 10", @"Beep 010", @"\u00C9cho",
    @"\u00E9cho", @"\u00C9cho 2"
  ];
  // "BEEP 10" and "Beep 010" agree but for case and zeros: "B" and "E" come before "e".
  EXPECT_TRUE([result isEqual:expected]) << [[result description] UTF8String];
}

TEST_F(Strings, NaturalCompareFoldsBeyondASCII) {
  EXPECT_EQ(NSOrderedAscending, [@"\u00C9 2" naturalCompare:@"\u00E9 10"]);
  EXPECT_EQ(NSOrderedAscending, [@"\u0416 2" naturalCompare:@"\u0436 10"]);
  EXPECT_EQ(NSOrderedAscending, [@"\u03A9 2" naturalCompare:@"\u03C9 10"]);
}

TEST_F(Strings, OnlyIdenticalStringsCompareSame) {
  EXPECT_EQ(NSOrderedSame, [@"a1" naturalCompare:[NSMutableString stringWithString:@"a1"]]);
  EXPECT_NE(NSOrderedSame, [@"a" naturalCompare:@"A"]);
  EXPECT_NE(NSOrderedSame, [@"\u00E9" naturalCompare:@"e\u0301"]);
  EXPECT_EQ(NSOrderedSame, [unitsString(high) naturalCompare:unitsString(high)]);
  EXPECT_NE(NSOrderedSame, [unitsString(high) naturalCompare:unitsString(low)]);
}

TEST_F(Strings, NothingComesBeforeEveryString) {
  EXPECT_EQ(NSOrderedDescending, [@"" naturalCompare:nil]);
  EXPECT_EQ(NSOrderedDescending, [@"a" naturalCompare:(NSString *)@1]);
}

}  // namespace
