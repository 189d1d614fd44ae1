// the bytes of a picture
//
// What the look at the header lets through, the platform must read without harm.

#import <AppKit/AppKit.h>

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>

#include "FuzzInput.h"
#include "platform/ImageHeaders.h"

namespace {

// The formats that are looked at; others are left to the libraries that read them.
bool isLookedAt(std::span<const uint8_t> bytes) {
  using namespace std::string_view_literals;
  constexpr std::string_view kStarts[] = {"II*\0"sv, "MM\0*"sv, "\x89PNG"sv, "GIF8"sv,
                                          "\xFF\xD8"sv};
  return std::any_of(std::begin(kStarts), std::end(kStarts), [bytes](std::string_view start) {
    return bytes.size() >= start.size() &&
           std::equal(start.begin(), start.end(), bytes.begin(),
                      [](char a, uint8_t b) { return static_cast<uint8_t>(a) == b; });
  });
}

void check(std::span<const uint8_t> bytes) {
  if (!ov::isSafeImage(bytes) || !isLookedAt(bytes)) return;
  NSData *data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  ov::fuzz::raisedBy([data] {
    NSImage *image = [[NSImage alloc] initWithData:data];
    for (NSImageRep *rep in [image representations]) {
      const auto pixels =
          static_cast<uint64_t>([rep pixelsWide]) * static_cast<uint64_t>([rep pixelsHigh]);
      OV_REQUIRE(pixels > 0 && pixels <= ov::kMostImagePixels);
    }
    [image release];
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  // Without room after the end, where a sanitizer watches.
  const auto exact = std::make_unique<uint8_t[]>(size);
  std::copy_n(data, size, exact.get());
  @autoreleasepool {
    check({exact.get(), size});
  }
  return 0;
}
