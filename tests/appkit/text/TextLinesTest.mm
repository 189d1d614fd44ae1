// The lines of strings of every kind.

#import <OvAppKit/OvAppKit.h>

#include "LiveTest.h"

using namespace ov::test;

// Counts how often it is copied, and how much of it is read. Written by hand, as the platform's
// own strings do not tell.
@interface OvTestString : NSString {
 @public
  NSString *text;
  NSUInteger unitsRead;
  NSUInteger singleReads;
}
@end

@implementation OvTestString
- (void)dealloc {
  [text release];
  [super dealloc];
}
- (NSUInteger)length {
  return [text length];
}
- (unichar)characterAtIndex:(NSUInteger)index {
  singleReads++;
  return [text characterAtIndex:index];
}
- (void)getCharacters:(unichar *)buffer range:(NSRange)range {
  unitsRead += range.length;
  [text getCharacters:buffer range:range];
}
@end

namespace {

class TextLines : public LiveTest {};

NSString *repeated(NSString *part, NSUInteger times) {
  return [@"" stringByPaddingToLength:[part length] * times withString:part startingAtIndex:0];
}

void expectString(NSString *actual, NSString *expected) {
  EXPECT_TRUE(actual == expected || [actual isEqual:expected])
      << (actual ? [actual UTF8String] : "nil") << " instead of "
      << (expected ? [expected UTF8String] : "nil");
}

TEST_F(TextLines, AnEmptyStringHasOneLineThatIsAbsent) {
  EXPECT_EQ(OvTextViewGetLineCount(@""), 1u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(@"", 0), 0u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(@"", 5), 0u);
  expectString(OvTextViewGetIndexedLineString(@"", 0), nil);
  expectString(OvTextViewGetLineStringFromReturnCode(@"", 0), nil);
  expectString(OvTextViewGetLineStringFromReturnCode(@"", 3), nil);
}

TEST_F(TextLines, NilIsAnEmptyString) {
  EXPECT_EQ(OvTextViewGetLineCount(nil), 1u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(nil, 7), 0u);
  expectString(OvTextViewGetIndexedLineString(nil, 0), nil);
  expectString(OvTextViewGetLineStringFromReturnCode(nil, 7), nil);
}

TEST_F(TextLines, AReturnAndALineFeedAreTwoBreaks) {
  NSString *text = @"a\r\nb";
  EXPECT_EQ(OvTextViewGetLineCount(text), 3u);
  expectString(OvTextViewGetIndexedLineString(text, 0), @"a");
  expectString(OvTextViewGetIndexedLineString(text, 1), nil);
  expectString(OvTextViewGetIndexedLineString(text, 2), @"b");
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 0), 0u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 1), 0u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 2), 1u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 3), 2u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 4), 2u);
}

TEST_F(TextLines, LinesThatDoNotExistAreAbsent) {
  expectString(OvTextViewGetIndexedLineString(@"a\nb", 2), nil);
  expectString(OvTextViewGetIndexedLineString(@"a\nb\n", 2), nil);
  expectString(OvTextViewGetIndexedLineString(@"a\nb", UINT32_MAX), nil);
}

TEST_F(TextLines, ALocationPastTheEndCountsEveryBreak) {
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(@"a\nb\n", 4), 2u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(@"a\nb\n", UINT32_MAX), 2u);
}

TEST_F(TextLines, TheTextBeforeALocationStartsAfterTheLastBreak) {
  NSString *text = @"ab\ncd";
  expectString(OvTextViewGetLineStringFromReturnCode(text, 5), @"cd");
  expectString(OvTextViewGetLineStringFromReturnCode(text, 4), @"c");
  expectString(OvTextViewGetLineStringFromReturnCode(text, 3), nil);
  expectString(OvTextViewGetLineStringFromReturnCode(text, 2), @"ab");
  expectString(OvTextViewGetLineStringFromReturnCode(text, 0), nil);
  expectString(OvTextViewGetLineStringFromReturnCode(@"ab\rcd", 5), @"cd");
}

TEST_F(TextLines, ALocationPastTheEndIsTakenForTheEnd) {
  expectString(OvTextViewGetLineStringFromReturnCode(@"ab\ncd", 6), @"cd");
  expectString(OvTextViewGetLineStringFromReturnCode(@"ab\ncd", UINT32_MAX), @"cd");
  expectString(OvTextViewGetLineStringFromReturnCode(@"ab\n", UINT32_MAX), nil);
}

TEST_F(TextLines, CountsInUnits) {
  NSString *text = @"😀\nあ";
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 2), 0u);
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(text, 3), 1u);
  expectString(OvTextViewGetIndexedLineString(text, 0), @"😀");
  expectString(OvTextViewGetIndexedLineString(text, 1), @"あ");
}

// Of constant, immutable and mutable strings alike, whose substrings differ.
TEST_F(TextLines, ALocationInsideACharacterKeepsItsFirstHalf) {
  NSString *constant = @"\nx😀y";
  for (NSString *text in @[
         constant, [[constant mutableCopy] autorelease],
         [[[constant mutableCopy] autorelease] stringByAppendingString:@""]
       ]) {
    NSString *line = OvTextViewGetLineStringFromReturnCode(text, 3);
    ASSERT_EQ([line length], 2u);
    EXPECT_EQ([line characterAtIndex:0], 'x');
    EXPECT_EQ([line characterAtIndex:1], 0xD83D);
  }
}

TEST_F(TextLines, KeepsNulAndLoneHalves) {
  NSMutableString *text = [NSMutableString stringWithString:@"a\n"];
  const unichar nul = 0;
  [text appendString:[NSString stringWithCharacters:&nul length:1]];
  [text appendString:@"b\r"];
  [text appendString:[NSString stringWithFormat:@"%C", (unichar)0xDC00]];
  EXPECT_EQ(OvTextViewGetLineCount(text), 3u);
  EXPECT_EQ([OvTextViewGetIndexedLineString(text, 1) length], 2u);
  NSString *half = OvTextViewGetIndexedLineString(text, 2);
  ASSERT_EQ([half length], 1u);
  EXPECT_EQ([half characterAtIndex:0], 0xDC00);
}

TEST_F(TextLines, AnswersOutliveAMutableString) {
  NSMutableString *text = [NSMutableString stringWithString:@"one\ntwo"];
  NSString *line = OvTextViewGetIndexedLineString(text, 1);
  [text setString:@"!"];
  expectString(line, @"two");
}

TEST_F(TextLines, ReadsABigTextOnceAndInBlocks) {
  OvTestString *big = [[[OvTestString alloc] init] autorelease];
  big->text = [repeated(@"0123456789\n", 1000000) retain];
  EXPECT_EQ(OvTextViewGetLineCount(big), 1000001u);
  EXPECT_EQ(big->unitsRead, 11000000u);

  big->unitsRead = 0;
  expectString(OvTextViewGetIndexedLineString(big, 50000), @"0123456789");
  EXPECT_LT(big->unitsRead, 560000u) << "no further than the line";

  big->unitsRead = 0;
  expectString(OvTextViewGetLineStringFromReturnCode(big, 10999994), @"01234");
  EXPECT_LT(big->unitsRead, 10000u) << "backward from the location";

  big->unitsRead = 0;
  EXPECT_EQ(OvTextViewGetLineIndexFromLocation(big, 22), 2u);
  EXPECT_LT(big->unitsRead, 10000u) << "no further than the location";
  EXPECT_LT(big->singleReads, 100u);
}

TEST_F(TextLines, AgreesWithTheDefinition) {
  Random random;
  SCOPED_TRACE(random.describe());
  NSArray *parts = [NSArray arrayWithObjects:@"a", @"\n", @"\r", @"\r\n", @"あい", @"😀", @"", nil];
  for (int round = 0; round < 100; round++) {
    NSMutableString *text = [NSMutableString string];
    for (int64_t i = random.integer(0, 60); i > 0; i--) {
      [text appendString:[parts objectAtIndex:NSUInteger(random.integer(0, 6))]];
    }
    NSString *marked = [text stringByReplacingOccurrencesOfString:@"\r" withString:@"\n"];
    NSArray *lines = [marked componentsSeparatedByString:@"\n"];
    ASSERT_EQ(OvTextViewGetLineCount(text), [lines count]);
    for (NSUInteger i = 0; i < [lines count]; i++) {
      NSString *line = [lines objectAtIndex:i];
      expectString(OvTextViewGetIndexedLineString(text, uint32_t(i)),
                   [line length] > 0 ? line : (NSString *)nil);
    }
    for (NSUInteger location = 0; location <= [text length]; location++) {
      NSUInteger breaks = 0, start = 0;
      for (NSUInteger i = 0; i < location; i++) {
        if ([marked characterAtIndex:i] == '\n') breaks++, start = i + 1;
      }
      ASSERT_EQ(OvTextViewGetLineIndexFromLocation(text, uint32_t(location)), breaks);
      NSString *line = OvTextViewGetLineStringFromReturnCode(text, uint32_t(location));
      ASSERT_EQ([line length], location - start) << "at " << location;
      for (NSUInteger i = start; i < location; i++) {
        ASSERT_EQ([line characterAtIndex:i - start], [text characterAtIndex:i]);
      }
    }
  }
}

}  // namespace
