#import "FrameHost.h"

#include <algorithm>
#include <cstdlib>

@implementation OvTestPlainContainer
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  [super drawImageInRect:rect isFlipped:flipped imagePart:part imageVariation:variation];
}
@end

@implementation OvTestFrameView
- (BOOL)isFlipped {
  return _flipped;
}
@end

namespace {

int drawings = 0;
int pictures = 0;
long pixels = 0;

}  // namespace

// The platform's methods by other names, and these by the platform's, once exchanged.
@interface NSImage (OvTestDrawings)
@end
@implementation NSImage (OvTestDrawings)
- (void)_ovTestDrawInRect:(NSRect)destination
                 fromRect:(NSRect)source
                operation:(NSCompositingOperation)operation
                 fraction:(CGFloat)fraction
           respectFlipped:(BOOL)respects
                    hints:(NSDictionary *)hints {
  ++drawings;
  [self _ovTestDrawInRect:destination
                 fromRect:source
                operation:operation
                 fraction:fraction
           respectFlipped:respects
                    hints:hints];
}
@end

@interface NSCachedImageRep (OvTestPictures)
@end
@implementation NSCachedImageRep (OvTestPictures)
- (id)_ovTestInitWithWindow:(NSWindow *)window rect:(NSRect)rect {
  self = [self _ovTestInitWithWindow:window rect:rect];
  ++pictures;
  pixels += std::lround(NSWidth(rect) * NSHeight(rect));
  return self;
}
- (void)_ovTestDealloc {
  --pictures;
  pixels -= std::lround(NSWidth([self rect]) * NSHeight([self rect]));
  [self _ovTestDealloc];
}
@end

@interface _OvTestFrameHost : NSObject
@end
@implementation _OvTestFrameHost
+ (void)load {
  const auto exchange = [](const char *name, SEL tests, SEL platforms) {
    Class where = objc_getClass(name);
    method_exchangeImplementations(class_getInstanceMethod(where, tests),
                                   class_getInstanceMethod(where, platforms));
  };
  exchange("NSImage",
           @selector(_ovTestDrawInRect:fromRect:operation:fraction:respectFlipped:hints:),
           @selector(drawInRect:fromRect:operation:fraction:respectFlipped:hints:));
  exchange("NSCachedImageRep", @selector(_ovTestInitWithWindow:rect:),
           @selector(initWithWindow:rect:));
  exchange("NSCachedImageRep", @selector(_ovTestDealloc), @selector(dealloc));
}
@end

namespace ov::test {

int imageDrawings() { return drawings; }
int heldPictures() { return pictures; }
long heldPicturePixels() { return pixels; }

Samples::Samples(OvTestFrameView *view, const Plane &plane, const std::function<void()> &draw) {
  @autoreleasepool {
    [view lockFocus];
    for (int i = 0; i < 40; ++i) {
      const CGFloat stripe = NSWidth([view bounds]) / 40;
      [[NSColor colorWithDeviceRed:(i % 5) / 4.0 green:(i % 7) / 6.0 blue:(i % 3) / 2.0
                             alpha:1] set];
      NSRectFill(NSMakeRect(i * stripe, 0, stripe + 1, NSHeight([view bounds])));
    }
    [NSGraphicsContext saveGraphicsState];
    NSAffineTransform *transform = [NSAffineTransform transform];
    [transform scaleBy:plane.scale];
    [transform rotateByDegrees:plane.turn];
    [transform concat];
    draw();
    [NSGraphicsContext restoreGraphicsState];
    NSBitmapImageRep *rep =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    width_ = static_cast<int>([rep pixelsWide]);
    height_ = static_cast<int>([rep pixelsHigh]);
    stride_ = static_cast<int>([rep bitsPerPixel] / 8);
    for (int y = 0; y < height_; ++y) {
      const unsigned char *row = [rep bitmapData] + y * [rep bytesPerRow];
      data_.insert(data_.end(), row, row + width_ * stride_);
    }
  }
}

Pixel Samples::at(int x, int y) const {
  const std::uint8_t *p = &data_[static_cast<size_t>((y * width_ + x) * stride_)];
  return {p[0], p[1], p[2], 255};
}

int Samples::distance(const Samples &other) const {
  if (data_.size() != other.data_.size()) return 1000;
  size_t counts[256] = {};
  for (size_t i = 0; i < data_.size(); ++i) {
    if (data_[i] != other.data_[i]) ++counts[std::abs(data_[i] - other.data_[i])];
  }
  // Where a pixel's middle meets the boundary of two of an image's, single precision does not tell
  // on which side it is, and some samples may be the neighbours'.
  size_t odd = sizeof(CGFloat) == sizeof(float) ? data_.size() / 100 : 0;
  int most = 255;
  for (; most > 0 && counts[most] <= odd; --most) odd -= counts[most];
  return most;
}

NSImage *makeImage(int width, int height, const std::function<Pixel(int, int)> &pixel) {
  NSBitmapImageRep *rep = emptyBitmap(width, height, NSCalibratedRGBColorSpace);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel p = pixel(x, y);
      unsigned char *to = [rep bitmapData] + y * [rep bytesPerRow] + 4 * x;
      const int samples[] = {p.r * p.a / 255, p.g * p.a / 255, p.b * p.a / 255, p.a};
      std::ranges::copy(samples, to);
    }
  }
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(width, height)] autorelease];
  [image addRepresentation:rep];
  return image;
}

NSImage *noise(int width, int height, Random &random) {
  return makeImage(width, height, [&](int, int) {
    const auto sample = [&] { return static_cast<int>(random.integer(0, 255)); };
    const int alpha = random.oneIn(2) ? 255 : sample();
    return Pixel{sample(), sample(), sample(), alpha};
  });
}

void invertBitmap(NSImage *image) {
  for (NSImageRep *rep in [image representations]) {
    if (![rep isKindOfClass:[NSBitmapImageRep class]]) continue;
    auto *bitmap = static_cast<NSBitmapImageRep *>(rep);
    unsigned char *data = [bitmap bitmapData];
    for (NSInteger i = 0; i < [bitmap bytesPerPlane]; ++i) {
      if (i % 4 != 3) data[i] = data[i / 4 * 4 + 3] - data[i];
    }
  }
}

}  // namespace ov::test
