#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>

#include <cmath>
#include <vector>

#include "extensions/PixelDecoding.h"
#include "platform/ImageFileGuard.h"

namespace {

// Of these the platform's colour of a pixel has room for; more would be written beyond it.
constexpr NSInteger kMostSamplesOfColor = 5;

constexpr CGFloat kLongestSide = 8192;

NSString *const kNotPremultiplied =
    @"Unsupported bitmap format. The alpha values are nonpremultiplied.";
NSString *const kFloating = @"Unsupported bitmap format. The samples are floating values.";
NSString *const kNotEightBits =
    @"Unsupported bitmap format. The bits length per sample is not 8 bits.";

// Whether the samples can be read; else a line in the log says why not.
bool isReadable(NSBitmapImageRep *bitmap, NSString *function) {
  NSString *reason = nil;
  switch (ov::unreadable([bitmap bitmapFormat], [bitmap bitsPerSample])) {
    case ov::Unreadable::no:
      return true;
    case ov::Unreadable::notPremultiplied:
      reason = kNotPremultiplied;
      break;
    case ov::Unreadable::floating:
      reason = kFloating;
      break;
    case ov::Unreadable::notEightBits:
      reason = kNotEightBits;
      break;
  }
  NSLog(@"%@() %@", function, reason);
  return false;
}

bool knowsItsSize(NSBitmapImageRep *bitmap) {
  return [bitmap respondsToSelector:@selector(pixelsWide)] &&
         [bitmap respondsToSelector:@selector(pixelsHigh)];
}

bool isOutside(NSBitmapImageRep *bitmap, NSInteger x, NSInteger y) {
  return knowsItsSize(bitmap) &&
         (x < 0 || y < 0 || x >= [bitmap pixelsWide] || y >= [bitmap pixelsHigh]);
}

// The bytes of a pixel, of which so many are going to be read; NULL when they are known not to
// be there.
const uint8_t *bytesOfPixel(NSBitmapImageRep *bitmap, NSInteger x, NSInteger y, NSInteger count) {
  const uint8_t *data = [bitmap bitmapData];
  if (data == NULL || isOutside(bitmap, x, y)) return NULL;
  const NSInteger bytesPerRow = [bitmap bytesPerRow];
  const NSInteger offset = ov::pixelOffset(x, y, bytesPerRow, [bitmap bitsPerPixel]);
  if (knowsItsSize(bitmap) && offset + count > bytesPerRow * [bitmap pixelsHigh]) return NULL;
  return data + offset;
}

// The platform divides by alpha, also by 0. What has no colour is black.
NSColor *withNumbers(NSColor *color) {
  const CGFloat alpha = [color alphaComponent];
  const CGFloat safeAlpha = std::isfinite(alpha) ? alpha : 0;
  NSString *space = [color colorSpaceName];
  if ([space isEqualToString:NSDeviceRGBColorSpace] ||
      [space isEqualToString:NSCalibratedRGBColorSpace]) {
    if (std::isfinite([color redComponent] + [color greenComponent] + [color blueComponent] +
                      alpha)) {
      return color;
    }
    return [space isEqualToString:NSDeviceRGBColorSpace]
               ? [NSColor colorWithDeviceRed:0 green:0 blue:0 alpha:safeAlpha]
               : [NSColor colorWithCalibratedRed:0 green:0 blue:0 alpha:safeAlpha];
  }
  if ([space isEqualToString:NSDeviceWhiteColorSpace] ||
      [space isEqualToString:NSCalibratedWhiteColorSpace]) {
    if (std::isfinite([color whiteComponent] + alpha)) return color;
    return [space isEqualToString:NSDeviceWhiteColorSpace]
               ? [NSColor colorWithDeviceWhite:0 alpha:safeAlpha]
               : [NSColor colorWithCalibratedWhite:0 alpha:safeAlpha];
  }
  if ([space isEqualToString:NSDeviceCMYKColorSpace] &&
      !std::isfinite([color cyanComponent] + [color magentaComponent] + [color yellowComponent] +
                     [color blackComponent] + alpha)) {
    return [NSColor colorWithDeviceCyan:0 magenta:0 yellow:0 black:1 alpha:safeAlpha];
  }
  return color;
}

}  // namespace

NSColor *HXGetColorFromBitmapImageRep(NSBitmapImageRep *bitmap, int x, int y) {
  if ([bitmap respondsToSelector:@selector(colorAtX:y:)]) {
    if ([bitmap respondsToSelector:@selector(samplesPerPixel)] &&
        [bitmap samplesPerPixel] > kMostSamplesOfColor) {
      return nil;
    }
    return withNumbers([bitmap colorAtX:x y:y]);
  }
  if (bitmap == nil) return nil;

  NSString *space = [bitmap colorSpaceName];
  const bool hasAlpha = [bitmap hasAlpha];
  const NSUInteger format = [bitmap bitmapFormat];
  if (!isReadable(bitmap, @"HXGetColorFromBitmapImageRep")) return nil;
  if (![space isEqualToString:NSDeviceRGBColorSpace]) {
    NSLog(@"HXGetColorFromBitmapImageRep() %@ not supported.", space);
    return nil;
  }
  const NSInteger samples = [bitmap samplesPerPixel];
  const auto count = static_cast<NSInteger>(ov::bytesOfRGB(hasAlpha, format, samples));
  const uint8_t *pixel = bytesOfPixel(bitmap, x, y, count);
  if (pixel == NULL) return nil;
  const ov::Components c = ov::decodeRGB(pixel, hasAlpha, format, samples);
  return [NSColor colorWithDeviceRed:c.red green:c.green blue:c.blue alpha:c.alpha];
}

void HXGetPixelFromBitmapImageRep(NSBitmapImageRep *bitmap, uint32_t *pixel, int x, NSInteger y) {
  if (bitmap == nil || pixel == NULL) return;
  if ([bitmap respondsToSelector:@selector(getPixel:atX:y:)]) {
    if (isOutside(bitmap, x, y)) return;
    // The platform's integers are as wide as a pointer.
    const NSInteger samples = [bitmap samplesPerPixel];
    if (samples < 1) return;
    std::vector<NSUInteger> wide(static_cast<size_t>(samples));
    [bitmap getPixel:wide.data() atX:x y:y];
    for (const NSUInteger sample : wide) *pixel++ = static_cast<uint32_t>(sample);
    return;
  }
  // The same questions as for a colour; the answer does not matter here.
  (void)[bitmap hasAlpha];
  if (!isReadable(bitmap, @"HXGetPixelFromBitmapImageRep")) return;
  const NSInteger samples = [bitmap samplesPerPixel];
  if (samples < 1) return;
  const uint8_t *bytes = bytesOfPixel(bitmap, x, y, samples);
  if (bytes == NULL) return;
  for (NSInteger i = 0; i < samples; i++) pixel[i] = bytes[i];
}

@implementation NSBitmapImageRep (HXAppKitExtensions)

- (id)initWithContentsOfFile:(NSString *)path {
  return OvInitBitmapWithData(self, OvSafeImageDataWithContentsOfFile(path));
}

- (id)initWithContentsOfURL:(NSURL *)url {
  if ([url isFileURL]) return [self initWithContentsOfFile:[url path]];
  return OvInitBitmapWithData(self, url != nil ? [NSData dataWithContentsOfURL:url] : nil);
}

- (NSImage *)imageWithSize:(NSSize)size {
  // So written that a side that is not a number is refused, too.
  const bool possible = size.width > 0 && size.height > 0 && size.width <= kLongestSide &&
                        size.height <= kLongestSide;
  if (!possible) return nil;
  NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
  [image lockFocus];
  [[NSGraphicsContext currentContext] setImageInterpolation:NSImageInterpolationHigh];
  [self drawInRect:NSMakeRect(0, 0, size.width, size.height)];
  [image unlockFocus];
  return image;
}

@end
