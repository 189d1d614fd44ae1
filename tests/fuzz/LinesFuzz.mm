// string kind, index or location (4 bytes), text

#import <OvAppKit/OvAppKit.h>

#include <vector>

#include "FuzzInput.h"

using namespace ov::fuzz;
using namespace ov::test;

namespace {

bool isBreak(char16_t unit) { return unit == u'\r' || unit == u'\n'; }

std::vector<std::u16string> linesOf(const std::u16string &text) {
  std::vector<std::u16string> lines(1);
  for (char16_t unit : text) {
    if (isBreak(unit)) {
      lines.emplace_back();
    } else {
      lines.back() += unit;
    }
  }
  return lines;
}

// An empty line is nil, never an empty string.
void requireLine(NSString *line, const std::u16string &expected) {
  OV_REQUIRE((line == nil) == expected.empty());
  OV_REQUIRE(unitsOf(line) == expected);
}

void checkIndex(NSString *string, const std::vector<std::u16string> &lines, uint32_t index) {
  requireLine(OvTextViewGetIndexedLineString(string, index),
              index < lines.size() ? lines[index] : std::u16string());
}

void checkLocation(NSString *string, const std::u16string &text, uint32_t location) {
  const std::vector<std::u16string> lines = linesOf(text.substr(0, location));
  OV_REQUIRE(OvTextViewGetLineIndexFromLocation(string, location) == lines.size() - 1);
  requireLine(OvTextViewGetLineStringFromReturnCode(string, location), lines.back());
}

void check(Input input) {
  const StringKind kind = stringKind(input.byte());
  const uint32_t place = input.number32();
  const std::u16string text = input.text();
  NSString *string = makeString(text, kind);
  if (string == nil) return;

  const std::vector<std::u16string> lines = linesOf(text);
  OV_REQUIRE(OvTextViewGetLineCount(string) == lines.size());
  checkIndex(string, lines, place);
  checkLocation(string, text, place);
  // Somewhere inside, whatever the text's length.
  const uint32_t inside = place % static_cast<uint32_t>(text.size() + 2);
  checkIndex(string, lines, inside % static_cast<uint32_t>(lines.size() + 1));
  checkLocation(string, text, inside);
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
