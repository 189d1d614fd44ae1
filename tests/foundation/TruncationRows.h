// What holds for truncation whatever measures the text; the width is asked of `measure`.

#ifndef OV_TRUNCATION_ROWS_H
#define OV_TRUNCATION_ROWS_H

#import <OvFoundation/OvFoundation.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

namespace truncation {

constexpr int atTheEnd = 0;
constexpr int inTheMiddle = 16384;

inline NSString *truncated(NSString *string, float width, int code, NSUInteger size = 0) {
  return [string truncateControlStringWithDrawingWidth:width truncCode:code controlSize:size];
}

using Measure = std::function<double(NSString *string, NSUInteger controlSize)>;

// The longest answer, found by trying every number of kept characters.
inline NSString *slowAnswer(NSString *string, float width, int code, NSUInteger size,
                            const Measure &measure) {
  if (measure(string, size) <= width) return string;
  NSMutableArray *characters = [NSMutableArray array];
  for (NSUInteger i = 0; i < [string length];) {
    const NSRange range = [string rangeOfComposedCharacterSequenceAtIndex:i];
    [characters addObject:[string substringWithRange:range]];
    i = NSMaxRange(range);
  }
  const NSUInteger count = [characters count];
  for (NSUInteger kept = count - 1; kept > 0; --kept) {
    const NSUInteger tail = code == inTheMiddle ? kept / 2 : 0, head = kept - tail;
    NSString *answer =
        [NSString stringWithFormat:@"%@\u2026%@",
                                   [[characters subarrayWithRange:NSMakeRange(0, head)]
                                       componentsJoinedByString:@""],
                                   [[characters subarrayWithRange:NSMakeRange(count - tail, tail)]
                                       componentsJoinedByString:@""]];
    if (measure(answer, size) <= width) return answer;
  }
  return @"\u2026";
}

inline void checkAgainstTheSlowAnswer(const Measure &measure) {
  for (NSString *string : {@"a", @"ab", @"Untitled document 17.txt", @"WWWWiiii",
                           @"\u65E5\u672C\u8A9E\u306E\u540D\u524D"}) {
    for (NSUInteger size = 0; size < 4; ++size) {
      for (int code : {atTheEnd, inTheMiddle, 1, -5}) {
        for (float width = 1; width < 200; width += 3.5) {
          @autoreleasepool {
            NSString *answer = truncated(string, width, code, size);
            NSString *slow = slowAnswer(string, width, code, size, measure);
            ASSERT_TRUE([answer isEqual:slow])
                << [string UTF8String] << " " << width << " " << code << ": " << [answer UTF8String]
                << " and not " << [slow UTF8String];
          }
        }
      }
    }
  }
}

inline void checkOddWidths() {
  NSString *text = @"some text";
  for (int code : {atTheEnd, inTheMiddle}) {
    EXPECT_TRUE(truncated(text, INFINITY, code) == text);
    EXPECT_TRUE(truncated(text, 1e30f, code) == text);
    EXPECT_TRUE([truncated(text, 0, code) isEqual:@""]);
    EXPECT_TRUE([truncated(text, -1, code) isEqual:@""]);
    EXPECT_TRUE([truncated(text, -INFINITY, code) isEqual:@""]);
    EXPECT_TRUE([truncated(text, NAN, code) isEqual:@""]);
    EXPECT_TRUE([truncated(text, 0.001f, code) isEqual:@"\u2026"]);
    for (float width : {0.f, -1.f, 5.f, INFINITY, NAN}) {
      EXPECT_TRUE([truncated(@"", width, code) isEqual:@""]);
    }
  }
  NSMutableString *mutableText = [NSMutableString stringWithString:@"x"];
  EXPECT_TRUE(truncated(mutableText, 100, atTheEnd) == mutableText);
}

// Every answer for these must be cut between these pieces.
inline void checkNothingIsCutInTwo() {
  const std::vector<NSString *> pieces = {@"a",
                                          @"e\u0301\u0302",
                                          @"\U0001F600",
                                          @"\U0001F468\u200D\U0001F469\u200D\U0001F467",
                                          @"\U0001F44D\U0001F3FD",
                                          @"\U0001F600\u0301",
                                          @"\u2764\uFE0F",
                                          @"z"};
  NSMutableString *text = [NSMutableString string];
  for (NSString *piece : pieces) [text appendString:piece];
  for (int code : {atTheEnd, inTheMiddle}) {
    for (float width = 0.5; width < 250; width += 0.5) {
      @autoreleasepool {
        NSString *answer = truncated(text, width, code);
        if (answer == text) continue;
        NSRange ellipsis = [answer rangeOfString:@"\u2026" options:NSLiteralSearch];
        ASSERT_EQ(1u, ellipsis.length);
        const NSUInteger head = ellipsis.location, tail = [answer length] - NSMaxRange(ellipsis);
        bool headEnds = head == 0, tailStarts = tail == 0;
        NSUInteger place = 0;
        for (NSString *piece : pieces) {
          tailStarts |= place == [text length] - tail;
          place += [piece length];
          headEnds |= place == head;
        }
        ASSERT_TRUE(headEnds && tailStarts) << width << " " << [answer UTF8String];
        ASSERT_TRUE([[answer substringToIndex:head] isEqual:[text substringToIndex:head]]);
        ASSERT_TRUE([[answer substringFromIndex:head + 1]
            isEqual:[text substringFromIndex:[text length] - tail]]);
      }
    }
  }
}

inline void checkStrangeStrings() {
  const unichar zero[] = {'a', 0, 'b', 0, 'c', 'd', 'e', 'f'};
  NSString *withNul = [NSString stringWithCharacters:zero length:8];
  EXPECT_EQ(NSMakeRange(0, 1).length,
            [truncated(withNul, 25, atTheEnd) rangeOfString:@"\u2026"].length);
  NSMutableString *halves =
      [NSMutableString stringWithString:@"\U0001F600\U0001F600\U0001F600 and more"];
  for (NSUInteger i = 0; i < 3; ++i) [halves deleteCharactersInRange:NSMakeRange(i, 1)];
  for (int code : {atTheEnd, inTheMiddle}) {
    for (float width = 1; width < 120; width += 1) {
      NSString *answer = truncated(halves, width, code);
      ASSERT_TRUE(answer != nil);
      ASSERT_TRUE(answer == halves || [answer rangeOfString:@"\u2026"].length == 1);
    }
  }
}

inline void checkLongStrings() {
  const NSUInteger length = 10'000'000;
  NSString *plain = [@"" stringByPaddingToLength:length
                                      withString:@"some words "
                                 startingAtIndex:0];
  NSString *pairs = [@"" stringByPaddingToLength:length withString:@"\U0001F600" startingAtIndex:0];
  NSMutableString *marks = [NSMutableString stringWithString:@"e"];
  [marks appendString:[@"" stringByPaddingToLength:100'000 withString:@"\u0301" startingAtIndex:0]];
  [marks appendString:plain];
  for (int code : {atTheEnd, inTheMiddle}) {
    EXPECT_LT([truncated(plain, 100, code) length], 100u);
    EXPECT_LT([truncated(pairs, 100, code) length], 100u);
    EXPECT_LT([truncated(marks, 100, code) length], 200'000u);
  }
}

}  // namespace truncation

#endif
