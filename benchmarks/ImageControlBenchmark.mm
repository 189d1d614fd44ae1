// A nine-piece frame: drawn again, beside one image of its size, nine images, and others' frames.

#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageSegment.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Measure.h"
#include "QtFrames.h"

/* Never composes. */
@interface OvBenchPieces : HXImageControlImageContainer
@end
@implementation OvBenchPieces
- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  [super drawImageInRect:rect isFlipped:flipped imagePart:part imageVariation:variation];
}
@end

@interface OvBenchCanvas : NSView
@end
@implementation OvBenchCanvas
- (BOOL)isFlipped {
  return YES;
}
@end

namespace {

constexpr int kSide = 24;
constexpr int kCap = 8;

std::array<unsigned char, kSide * kSide * 4> artwork() {
  std::array<unsigned char, kSide * kSide * 4> pixels{};
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      const int alpha = x < 4 || y < 4 || x >= kSide - 4 || y >= kSide - 4 ? 128 : 255;
      unsigned char *p = &pixels[static_cast<size_t>((y * kSide + x) * 4)];
      p[0] = static_cast<unsigned char>(x * 10 * alpha / 255);
      p[1] = static_cast<unsigned char>(y * 10 * alpha / 255);
      p[2] = static_cast<unsigned char>(99 * alpha / 255);
      p[3] = static_cast<unsigned char>(alpha);
    }
  }
  return pixels;
}

NSImage *imageOf(const std::array<unsigned char, kSide * kSide * 4> &pixels) {
  NSBitmapImageRep *rep =
      [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                               pixelsWide:kSide
                                               pixelsHigh:kSide
                                            bitsPerSample:8
                                          samplesPerPixel:4
                                                 hasAlpha:YES
                                                 isPlanar:NO
                                           colorSpaceName:NSCalibratedRGBColorSpace
                                              bytesPerRow:kSide * 4
                                             bitsPerPixel:32] autorelease];
  std::ranges::copy(pixels, [rep bitmapData]);
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(kSide, kSide)] autorelease];
  [image addRepresentation:rep];
  return image;
}

// What a drawing draws, as an image of its own.
NSImage *pictureOf(NSSize size, const std::function<void()> &draw) {
  NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
  [image lockFocus];
  draw();
  [image unlockFocus];
  return image;
}

// A view that is drawn into, and calls that wait for the display server: what it does later costs,
// too.
class Canvas {
 public:
  Canvas()
      : window_([[NSWindow alloc] initWithContentRect:NSMakeRect(20, 20, 900, 700)
                                            styleMask:NSTitledWindowMask
                                              backing:NSBackingStoreBuffered
                                                defer:NO]) {
    [window_ setReleasedWhenClosed:NO];
    [window_ setContentView:[[[OvBenchCanvas alloc] init] autorelease]];
    [window_ orderFront:nil];
    [[window_ contentView] lockFocus];
  }
  ~Canvas() {
    [[window_ contentView] unlockFocus];
    [window_ orderOut:nil];
    [window_ release];
  }
  Canvas(const Canvas &) = delete;
  Canvas &operator=(const Canvas &) = delete;

  // Many drawings, and one look at what has become of them.
  static std::function<void()> batch(const std::function<void()> &draw, int count) {
    return [draw, count] {
      @autoreleasepool {
        for (int i = 0; i < count; ++i) draw();
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:NSMakeRect(0, 0, 1, 1)] release];
      }
    };
  }

 private:
  NSWindow *window_;
};

struct Frames {
  HXImageControlImageContainer *composed;
  HXImageControlImageContainer *pieces;
};

void draw(HXImageControlImageContainer *container, NSRect rect) {
  [container drawImageInRect:rect isFlipped:YES imageVariation:HXImageControlImageVariationDefault];
}

void measureSize(const Frames &frames, NSImage *image,
                 const std::array<unsigned char, kSide * kSide * 4> &pixels, int width,
                 int height) {
  const NSRect rect = NSMakeRect(10, 10, width, height);
  const std::string size = std::to_string(width) + " x " + std::to_string(height);
  const int count = width > 400 ? 20 : 100;
  const auto timed = [&](const std::string &what, const std::function<void()> &call, int calls) {
    const double time = bench::median(Canvas::batch(call, calls), 9) / calls;
    bench::row(what + ", " + size, time);
  };
  const auto compared = [&](const std::string &what, const std::function<void()> &call,
                            const std::function<void()> &reference, int calls, double limit) {
    bench::ratio(what + ", " + size,
                 bench::medianRatio(Canvas::batch(call, calls), Canvas::batch(reference, calls)),
                 limit);
  };

  const auto again = [&] { draw(frames.composed, rect); };
  const auto pieces = [&] { draw(frames.pieces, rect); };
  again();
  again();
  NSImage *whole = pictureOf(rect.size, [&] {
    [frames.pieces drawImageInRect:{NSZeroPoint, rect.size}
                         isFlipped:NO
                    imageVariation:HXImageControlImageVariationDefault];
  });
  const auto one = [&] {
    [whole drawInRect:rect
              fromRect:{NSZeroPoint, rect.size}
             operation:NSCompositeSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
  };
  const auto bare = [&] {
    for (int i = 0; i < 9; ++i) {
      const int column = i % 3;
      const int line = i / 3;
      const CGFloat xs[] = {0, kCap, rect.size.width - kCap, rect.size.width};
      const CGFloat ys[] = {0, kCap, rect.size.height - kCap, rect.size.height};
      [image drawInRect:NSMakeRect(10 + xs[column], 10 + ys[line], xs[column + 1] - xs[column],
                                   ys[line + 1] - ys[line])
                fromRect:NSMakeRect(column * kCap, (2 - line) * kCap, kCap, kCap)
               operation:NSCompositeSourceOver
                fraction:1
          respectFlipped:YES
                   hints:nil];
    }
  };
  timed("the frame again", again, count);
  timed("one composed image", one, count);
  timed("nine calls of the platform", bare, count);
  timed("our nine pieces", pieces, count);
  compared("the frame again : one composed image", again, one, count, 1.2);
  compared("the frame again : nine calls", again, bare, count, 0.5);
  compared("our nine pieces : nine calls", pieces, bare, count, 1.5);

  std::vector<NSImage *> cut;
  for (int i = 0; i < 9; ++i) {
    cut.push_back(pictureOf(NSMakeSize(kCap, kCap), [&] {
      [image drawInRect:NSMakeRect(0, 0, kCap, kCap)
               fromRect:NSMakeRect(i % 3 * kCap, (2 - i / 3) * kCap, kCap, kCap)
              operation:NSCompositeCopy
               fraction:1];
    }));
  }
  const auto platforms = [&] {
    NSDrawNinePartImage(rect, cut[0], cut[1], cut[2], cut[3], cut[4], cut[5], cut[6], cut[7],
                        cut[8], NSCompositeSourceOver, 1, YES);
  };
  timed("NSDrawNinePartImage", platforms, 1);
  compared("the frame again : NSDrawNinePartImage", again, platforms, 1, 1);

  if (const auto qt = bench::qtFrame(pixels.data(), width, height)) {
    timed("qDrawBorderPixmap", qt, count);
    // Into memory, where nothing is sent to a display server.
    compared("the frame again : qDrawBorderPixmap", again, qt, count, 1);
  } else {
    bench::row("qDrawBorderPixmap, " + size, 0, "absent: Qt is not installed");
  }
}

}  // namespace

void bench::imageControls() {
  bench::heading("A frame of nine pieces");
  @autoreleasepool {
    const auto pixels = artwork();
    NSImage *image = imageOf(pixels);
    auto *segment = [[[HXImageSegment alloc] initWithImage:image] autorelease];
    Frames frames{[[[HXImageControlImageContainer alloc] init] autorelease],
                  [[[OvBenchPieces alloc] init] autorelease]};
    for (HXImageControlImageContainer *each : {frames.composed, frames.pieces}) {
      [each setStrechableImage:segment
                       leftCap:kCap
                        topCap:kCap
             forImageVariation:HXImageControlImageVariationDefault];
    }
    const Canvas canvas;
    measureSize(frames, image, pixels, 200, 40);
    measureSize(frames, image, pixels, 40, 20);
    measureSize(frames, image, pixels, 800, 600);

    int step = 0;
    const auto sizes = [&step](HXImageControlImageContainer *container) {
      return Canvas::batch(
          [&step, container] {
            draw(container, NSMakeRect(10, 10, 100 + step % 500, 40 + step / 500 % 300));
            ++step;
          },
          100);
    };
    bench::ratio("another size each time : pieces in these sizes",
                 bench::medianRatio(sizes(frames.composed), sizes(frames.pieces)), 1.2);
    const auto twice = [&step](HXImageControlImageContainer *container) {
      return Canvas::batch(
          [&step, container] {
            const NSRect rect = NSMakeRect(10, 10, 100 + step % 500, 40 + step / 500 % 300);
            draw(container, rect);
            draw(container, rect);
            ++step;
          },
          20);
    };
    bench::ratio("another size each second time : pieces in these sizes",
                 bench::medianRatio(twice(frames.composed), twice(frames.pieces)), 2);
  }
}
