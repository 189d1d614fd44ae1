// formatter, string kind, flags, kind of maximum, maximum (4 bytes), caret (2 bytes), text

#import <OvAppKit/OvAppKit.h>

#include "FuzzInput.h"

using namespace ov::fuzz;
using namespace ov::test;

@interface OvFuzzCounter : NSObject {
 @public
  int count;
}
@end

@implementation OvFuzzCounter
- (void)count:(NSNotification *)notification {
  (void)notification;
  ++count;
}
@end

namespace {

const char *const kFormatters[] = {"OvVPFormatter", "OvVPNumberFormatter", "OvVPAlphabetFormatter",
                                   "OvVPPathFormatter", "OvVPSjisFormatter"};

NSDecimalNumber *maximum(Input &input) {
  const uint8_t kind = input.byte();
  const uint32_t value = input.number32();
  switch (kind % 6) {
    case 0:
      return nil;
    case 1:
      return [NSDecimalNumber notANumber];
    default:
      // Large ones, small ones, ones with fractions.
      return [NSDecimalNumber decimalNumberWithMantissa:kind % 6 == 2 ? value : value % 64
                                               exponent:kind % 6 == 5   ? 30
                                                        : kind % 6 == 4 ? -1
                                                                        : 0
                                             isNegative:kind >= 0xF0];
  }
}

struct Outcome {
  bool accepted;
  std::u16string text;
};

Outcome edit(OvVPFormatter *formatter, NSString *string, NSUInteger caret) {
  const std::u16string before = unitsOf(string);
  NSString *const untouched = @"untouched";
  NSString *proposed = string, *error = untouched;
  NSRange selection = NSMakeRange(71, 7);
  const bool accepted = [formatter isPartialStringValid:&proposed
                                  proposedSelectedRange:&selection
                                         originalString:@""
                                  originalSelectedRange:NSMakeRange(caret, 1)
                                       errorDescription:&error];
  OV_REQUIRE(error == untouched);
  OV_REQUIRE(unitsOf(string) == before);
  if (accepted) {
    OV_REQUIRE(proposed == string && NSEqualRanges(selection, NSMakeRange(71, 7)));
  } else {
    OV_REQUIRE(proposed != nil && [proposed length] < before.size());
    OV_REQUIRE(selection.length == 0 && selection.location <= [proposed length]);
    OV_REQUIRE(selection.location <= caret);
  }
  return {accepted, unitsOf(proposed)};
}

void check(Input input) {
  OvVPFormatter *formatter =
      [[[objc_getClass(kFormatters[input.byte() % 5]) alloc] init] autorelease];
  const StringKind kind = stringKind(input.byte());
  const uint8_t flags = input.byte();
  [formatter setCountAsByte:flags & 1];
  const bool path = [formatter isKindOfClass:[OvVPPathFormatter class]];
  if (path) [(OvVPPathFormatter *)formatter setAllowPeriodAtTheHead:flags >> 1 & 1];
  [formatter setMaximum:maximum(input)];
  const NSUInteger caret = input.number16();
  const std::u16string text = input.text();
  NSString *string = makeString(text, kind);
  if (string == nil) return;

  OvFuzzCounter *counter = [[[OvFuzzCounter alloc] init] autorelease];
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center addObserver:counter
             selector:@selector(count:)
                 name:OvVPFormatterBufferIsFull
               object:formatter];
  const Outcome outcome = edit(formatter, string, caret);
  [center removeObserver:counter];

  const bool sjis = [formatter isKindOfClass:[OvVPSjisFormatter class]];
  const double value = [[formatter maximum] doubleValue];
  const double limit = sjis || !(flags & 1) ? value : value * 0.5;
  OV_REQUIRE(counter->count == 0 || (counter->count == 1 && !sjis && limit > 0));
  OV_REQUIRE(isPicked(outcome.text, text));
  if (sjis && !outcome.accepted) OV_REQUIRE(text.starts_with(outcome.text));
  const bool headDropped = path && !(flags & 2) && !text.empty() && text[0] == u'.';
  if (headDropped) {
    OV_REQUIRE(!outcome.accepted && outcome.text == text.substr(1) && counter->count == 0);
  } else {
    if (limit > 0) OV_REQUIRE(static_cast<double>(outcome.text.size()) <= limit);
    const NSUInteger forbidden = sjis || ![formatter invalidCharacterSet]
                                     ? NSNotFound
                                     : [makeString(outcome.text, StringKind::Immutable)
                                           rangeOfCharacterFromSet:[formatter invalidCharacterSet]]
                                           .location;
    OV_REQUIRE(forbidden == NSNotFound);
  }

  // Mended often enough a text is accepted: at once, or when its leading periods are gone.
  std::u16string mended = outcome.text;
  for (size_t left = text.size() + 1;; --left) {
    OV_REQUIRE(left > 0);
    const Outcome again = edit(formatter, makeString(mended, StringKind::Custom), caret);
    if (again.accepted) break;
    OV_REQUIRE(path && !(flags & 2));
    mended = again.text;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  @autoreleasepool {
    check(Input(data, size));
  }
  freeLiterals();
  return 0;
}
