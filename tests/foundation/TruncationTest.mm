// Truncation with the fonts of a running application.

#import <AppKit/AppKit.h>

#include <unistd.h>

#include "TruncationRows.h"

namespace {

using namespace truncation;

class Truncation : public testing::Test {
 protected:
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  ~Truncation() override { [pool release]; }
};

double measured(NSString *string, NSUInteger controlSize) {
  static NSMutableArray *attributes = [[NSMutableArray alloc] init];
  for (NSUInteger i = [attributes count]; i <= controlSize; ++i) {
    const CGFloat size = [NSFont systemFontSizeForControlSize:(NSControlSize)i];
    [attributes addObject:@{NSFontAttributeName : [NSFont systemFontOfSize:size]}];
  }
  return [string sizeWithAttributes:[attributes objectAtIndex:controlSize]].width;
}

TEST_F(Truncation, AnswerFits) {
  NSString *text = @"A rather long title of a document";
  for (int code : {atTheEnd, inTheMiddle}) {
    for (NSUInteger size = 0; size < 3; ++size) {
      for (float width = 20; width < 300; width += 1) {
        NSString *answer = truncated(text, width, code, size);
        ASSERT_LE(measured(answer, size), width);
        ASSERT_EQ(measured(text, size) <= width, answer == text);
      }
    }
  }
}

TEST_F(Truncation, EqualsTheSlowDefinition) { checkAgainstTheSlowAnswer(measured); }
TEST_F(Truncation, OddWidths) { checkOddWidths(); }
TEST_F(Truncation, NothingIsCutInTwo) { checkNothingIsCutInTwo(); }
TEST_F(Truncation, StrangeStrings) { checkStrangeStrings(); }
TEST_F(Truncation, LongStrings) { checkLongStrings(); }

void endProgram(NSException *exception) {
  fprintf(stderr, "%s: %s\n", [[exception name] UTF8String], [[exception reason] UTF8String]);
  _exit(3);
}

}  // namespace

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  @autoreleasepool {
    [[NSUserDefaults standardUserDefaults] registerDefaults:@{
      @"GSSuppressAppIcon" : @"YES",
      @"GSBackHandlesWindowDecorations" : @"NO"
    }];
    [NSApplication sharedApplication];
    // The platform would wait for someone to close a panel.
    NSSetUncaughtExceptionHandler(endProgram);
    return RUN_ALL_TESTS();
  }
}
