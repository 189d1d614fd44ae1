// the bytes of a picture
//
// What the look at the header lets through, the platform must read without harm.

#import <AppKit/AppKit.h>
#import <OvAppKit/HXImageSegment.h>

#include <algorithm>
#include <memory>
#include <span>

#include "FuzzInput.h"
#include "platform/ImageHeaders.h"

/* Of no file; its data is at hand. */
@interface OvFuzzURL : NSURL {
 @public
  NSData *content;
}
@end

@implementation OvFuzzURL
- (BOOL)isFileURL {
  return NO;
}
- (NSData *)resourceDataUsingCache:(BOOL)usesCache {
  return content;
}
@end

namespace {

void check(std::span<const uint8_t> bytes) {
  const bool safe = ov::isSafeImage(bytes);
  // Others are left to the libraries that read them.
  if (!ov::isKnownImage(bytes)) return;
  OvFuzzURL *url = [[[OvFuzzURL alloc] initWithString:@"http://localhost/"] autorelease];
  url->content = [NSData dataWithBytes:bytes.data() length:bytes.size()];
  HXImageSegment *segment = [[[HXImageSegment alloc] initWithURL:url] autorelease];
  OV_REQUIRE(safe || [segment image] == nil);
  for (NSImageRep *rep in [[segment image] representations]) {
    const auto pixels =
        static_cast<uint64_t>([rep pixelsWide]) * static_cast<uint64_t>([rep pixelsHigh]);
    OV_REQUIRE(pixels > 0 && pixels <= ov::kMostImagePixels);
  }
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
