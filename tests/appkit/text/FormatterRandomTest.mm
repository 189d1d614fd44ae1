// Random edits against the steps written down one by one.

#import <OvAppKit/OvAppKit.h>

#import "LiveTest.h"
#import "StringKinds.h"

using namespace ov::test;

namespace {

struct Edit {
  bool accepted;
  std::u16string text;
  NSUInteger caret;
  bool announced;
};

// Half of a pair is looked at by itself only when it stands alone.
bool isForbidden(char32_t c, bool digitsOnly) {
  return digitsOnly ? c < U'0' || c > U'9' : c == U':';
}

Edit expected(const std::u16string &proposed, bool digitsOnly, double limit, NSUInteger caret) {
  Edit result = {true, u"", 0, false};
  for (char16_t unit : proposed) {
    if (isForbidden(unit, digitsOnly)) {
      result.accepted = false;
    } else {
      result.text += unit;
    }
  }
  if (limit > 0) {
    const double length = static_cast<double>(result.text.size());
    result.announced = length == limit;
    if (length > limit) {
      result.text.resize(static_cast<size_t>(limit));
      result.accepted = false;
    }
  }
  result.caret = std::min<NSUInteger>(caret, result.text.size());
  return result;
}

class FormatterRandom : public LiveTest {};

TEST_F(FormatterRandom, EditsFollowTheSteps) {
  Random random;
  SCOPED_TRACE(random.describe());
  const std::u16string units = u"0123459abz::. \n\u0663１é\u0301\xFEFF\xD83D\xDE00";
  for (int round = 0; round < 20000; ++round) {
    @autoreleasepool {
      const bool digitsOnly = random.oneIn(2), asBytes = random.oneIn(2);
      OvVPFormatter *formatter = digitsOnly ? [[[OvVPNumberFormatter alloc] init] autorelease]
                                            : [[[OvVPPathFormatter alloc] init] autorelease];
      const int maximum = static_cast<int>(random.integer(-1, 12));
      if (!random.oneIn(5)) {
        [formatter
            setMaximum:[NSDecimalNumber decimalNumberWithDecimal:[[NSNumber numberWithInt:maximum]
                                                                     decimalValue]]];
      }
      [formatter setCountAsByte:asBytes];
      std::u16string text;
      for (int64_t n = random.integer(0, 10); n > 0; --n) {
        const size_t last = units.size() - 1;
        text += random.oneIn(3)
                    ? units[static_cast<size_t>(random.integer(0, static_cast<int64_t>(last)))]
                    : units[static_cast<size_t>(random.integer(0, 6))];
      }
      NSString *string = makeString(text, random.pick(stringKinds()));
      if (string == nil) continue;
      const NSUInteger caret = static_cast<NSUInteger>(random.integer(0, 12));
      const double limit = [[formatter maximum] doubleValue] * (asBytes ? 0.5 : 1);
      const Edit edit = expected(text, digitsOnly, limit, caret);

      NotificationCount full(OvVPFormatterBufferIsFull, formatter);
      const int beeps = beepCount();
      NSRange selection = NSMakeRange(99, 9);
      NSString *proposed = string;
      ASSERT_EQ([formatter isPartialStringValid:&proposed
                          proposedSelectedRange:&selection
                                 originalString:@""
                          originalSelectedRange:NSMakeRange(caret, 2)
                               errorDescription:nullptr],
                edit.accepted);
      ASSERT_EQ(unitsOf(proposed), edit.text);
      ASSERT_EQ(selection, edit.accepted ? NSMakeRange(99, 9) : NSMakeRange(edit.caret, 0));
      ASSERT_EQ(full.count(), edit.announced ? 1 : 0);
      ASSERT_EQ(beepCount() - beeps, edit.accepted ? 0 : 1);
    }
    freeLiterals();
  }
}

}  // namespace
