// rule, string kind, flags, limit (4 bytes), text

#import <OvAppKit/OvAppKit.h>

#include "FuzzInput.h"

using namespace ov::fuzz;
using namespace ov::test;

namespace {

const char *const kRules[] = {"OvTextValidator", "OvNumberTextValidator", "OvAlphabetTextValidator",
                              "OvPathTextValidator", "OvSjisTextValidator"};

// The run of a scanner at the start.
std::u16string scanned(const std::u16string &text, NSCharacterSet *set) {
  NSString *run = nil;
  NSScanner *scanner = [NSScanner scannerWithString:makeString(text, StringKind::Immutable)];
  return [scanner scanCharactersFromSet:set intoString:&run] ? unitsOf(run) : u"";
}

void checkCharacterRule(OvTextValidator *validator, NSString *string, const std::u16string &text,
                        NSCharacterSet *set) {
  const size_t room = [validator _maxLengthForSubstring];
  const int verdict = [validator validateString:string];
  if (verdict != -1) OV_REQUIRE((verdict != -100) == (text.empty() || scanned(text, set) == text));
  NSString *mended = [validator validStringFromInvalidString:string];
  OV_REQUIRE(unitsOf(mended) == scanned(text.substr(0, room), set));
}

void checkBytes(OvSjisTextValidator *validator, NSString *string, const std::u16string &text) {
  const uint32_t limit = [validator maxLength];
  const int verdict = [validator validateString:string];
  OV_REQUIRE(verdict != -100);
  [validator isLossyString:string];
  NSString *cut = nil;
  NSString *raised = raisedBy([&] { cut = [validator validStringFromInvalidString:string]; });
  // Only what is too long may be cut; without a limit, anything that is not empty.
  if (text.empty() || (limit != 0 && verdict == 0)) {
    OV_REQUIRE([raised isEqual:NSRangeException]);
    return;
  }
  OV_REQUIRE(raised == nil && isBeginning(cut, text));
  if (limit == 0) {
    OV_REQUIRE([cut length] == 0);
    return;
  }
  OV_REQUIRE([validator validateString:cut] >= 0);
  if (verdict == 100) {
    OV_REQUIRE([cut length] == text.size());
    return;
  }
  NSString *oneMore = makeString(text.substr(0, [cut length] + 1), StringKind::Custom);
  OV_REQUIRE([validator validateString:oneMore] == -1);
}

void check(Input input) {
  OvTextValidator *validator = [objc_getClass(kRules[input.byte() % 5]) textValidator];
  const StringKind kind = stringKind(input.byte());
  [validator setCountAsByte:input.flag()];
  [validator setMaxLength:input.number32()];
  const std::u16string text = input.text();
  NSString *string = makeString(text, kind);
  if (string == nil) return;

  const int verdict = [validator validateString:string];
  OV_REQUIRE(verdict == 0 || verdict == 100 || verdict == -1 || verdict == -100);
  OV_REQUIRE([validator validString:string] == (verdict >= 0));
  // The class of the string does not matter.
  OV_REQUIRE([validator validateString:makeString(text, StringKind::Custom)] == verdict);
  if ([validator isKindOfClass:[OvSjisTextValidator class]]) {
    checkBytes((OvSjisTextValidator *)validator, string, text);
  } else {
    NSString *mended = [validator validStringFromInvalidString:string];
    OV_REQUIRE([mended length] <= [validator _maxLengthForSubstring]);
    OV_REQUIRE([validator validateString:mended] >= 0);
    OV_REQUIRE([[validator validStringFromInvalidString:mended] isEqual:mended]);
    OV_REQUIRE(isPicked(unitsOf(mended), text));
    if ([validator class] == [OvTextValidator class]) OV_REQUIRE(isBeginning(mended, text));
    if ([validator isKindOfClass:[OvPathTextValidator class]]) {
      OV_REQUIRE(verdict == -1 || (verdict == -100) == (text.find(u':') != text.npos));
      OV_REQUIRE(unitsOf(mended).find(u':') == std::u16string::npos);
    }
    if ([validator isKindOfClass:[OvNumberTextValidator class]]) {
      checkCharacterRule(validator, string, text, [NSCharacterSet decimalDigitCharacterSet]);
    }
    if ([validator isKindOfClass:[OvAlphabetTextValidator class]]) {
      checkCharacterRule(
          validator, string, text,
          [NSCharacterSet characterSetWithCharactersInString:
                              @"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"]);
    }
  }
  OV_REQUIRE(unitsOf(string) == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  @autoreleasepool {
    check(Input(data, size));
  }
  freeLiterals();
  return 0;
}
