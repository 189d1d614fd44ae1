// Truncation in a program without AppKit.

#include "TruncationRows.h"

namespace {

using namespace truncation;

class TruncationEstimate : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~TruncationEstimate() override { [pool release]; }
};

TEST_F(TruncationEstimate, ThereIsNoAppKitHere) {
  EXPECT_TRUE(NSClassFromString(@"NSFont") == Nil);
}

TEST_F(TruncationEstimate, CountsCharacters) {
  // 7.2 points for each of the first six, 12 for the ellipsis.
  EXPECT_TRUE([truncated(@"abcdefgh", 57.7, atTheEnd) isEqual:@"abcdefgh"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 57.5, atTheEnd) isEqual:@"abcdef\u2026"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 57.5, inTheMiddle) isEqual:@"abc\u2026fgh"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 50, inTheMiddle) isEqual:@"abc\u2026gh"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 20, atTheEnd) isEqual:@"a\u2026"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 19, atTheEnd) isEqual:@"\u2026"]);
}

TEST_F(TruncationEstimate, FontFollowsTheControlSize) {
  EXPECT_TRUE(truncated(@"abcdefgh", 48.5, atTheEnd, 1) != nil);
  EXPECT_TRUE([truncated(@"abcdefgh", 48.5, atTheEnd, 1) isEqual:@"abcdefgh"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 38.5, atTheEnd, 2) isEqual:@"abcdefgh"]);
  EXPECT_TRUE([truncated(@"abcdefgh", 48.5, atTheEnd, 7) isEqual:@"abcde\u2026"]);
}

double estimate(NSString *string, NSUInteger controlSize) {
  const double size = controlSize == 1 ? 10 : controlSize == 2 ? 8 : 12;
  double width = 0;
  for (NSUInteger i = 0; i < [string length]; ++i) {
    width += [string characterAtIndex:i] < 0x1100 ? 0.6 * size : size;
  }
  return width;
}

TEST_F(TruncationEstimate, EqualsTheSlowDefinition) { checkAgainstTheSlowAnswer(estimate); }
TEST_F(TruncationEstimate, OddWidths) { checkOddWidths(); }
TEST_F(TruncationEstimate, NothingIsCutInTwo) { checkNothingIsCutInTwo(); }
TEST_F(TruncationEstimate, StrangeStrings) { checkStrangeStrings(); }
TEST_F(TruncationEstimate, LongStrings) { checkLongStrings(); }

}  // namespace
