// What a fuzz target reads its case from, and how it says that something does not hold.

#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#import "StringKinds.h"

// Ends the program, which the fuzzer takes for a finding.
#define OV_REQUIRE(condition)                                                      \
  do {                                                                             \
    if (!(condition)) {                                                            \
      std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                \
    }                                                                              \
  } while (0)

namespace ov::fuzz {

// Settings first, then text; nothing but zeros after the end.
class Input {
 public:
  Input(const uint8_t *data, size_t size) : next_(data), end_(data + size) {}

  uint8_t byte() { return next_ < end_ ? *next_++ : 0; }
  uint16_t number16() {
    const uint16_t low = byte();
    return static_cast<uint16_t>(low | byte() << 8);
  }
  uint32_t number32() {
    const uint32_t low = number16();
    return low | static_cast<uint32_t>(number16()) << 16;
  }
  bool flag() { return byte() & 1; }

  // The rest, as UTF-16 with the low byte first.
  std::u16string text() {
    std::u16string units;
    while (next_ < end_) units += static_cast<char16_t>(number16());
    return units;
  }

 private:
  const uint8_t *next_;
  const uint8_t *end_;
};

inline test::StringKind stringKind(uint8_t byte) {
  return test::stringKinds()[byte % test::stringKinds().size()];
}

inline bool isBeginning(NSString *part, const std::u16string &whole) {
  return whole.starts_with(test::unitsOf(part));
}

// Whether the units stand in the whole in this order, others between them.
inline bool isPicked(const std::u16string &part, const std::u16string &whole) {
  size_t found = 0;
  for (char16_t unit : whole) {
    if (found < part.size() && part[found] == unit) ++found;
  }
  return found == part.size();
}

// The name of the exception that was raised, or nil.
template <typename Call>
NSString *raisedBy(Call call) {
  @try {
    call();
  } @catch (NSException *exception) {
    return [exception name];
  }
  return nil;
}

}  // namespace ov::fuzz
