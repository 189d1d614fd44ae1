#import "platform/ImageChanges.h"

#include <unordered_map>

#include "support/Methods.h"

namespace {

// The images that somebody asks about. An image lives as long as it is here.
struct Watched {
  int watchers = 0;
  std::uint64_t drawings = 0;
};
using WatchedImages = std::unordered_map<NSImage *, Watched>;

// Never destroyed: images may be drawn into while the process ends.
WatchedImages &watchedImages() {
  static auto *const images = new WatchedImages;
  return *images;
}

const std::uint64_t *watch(NSImage *image) {
  Watched &watched = watchedImages()[image];
  ++watched.watchers;
  return &watched.drawings;
}

void unwatch(NSImage *image) {
  const auto found = watchedImages().find(image);
  if (found != watchedImages().end() && --found->second.watchers == 0) {
    watchedImages().erase(found);
  }
}

void noteDrawing(NSImage *image) {
  const auto found = watchedImages().find(image);
  if (found != watchedImages().end()) ++found->second.drawings;
}

const SEL kDraw = @selector(drawInRect:fromRect:operation:fraction:respectFlipped:hints:);

}  // namespace

namespace ov {

bool drawsPredictably(NSImage *image) {
  return [image cacheMode] != NSImageCacheNever &&
         [image methodForSelector:kDraw] == [NSImage instanceMethodForSelector:kDraw];
}

ImageState::ImageState(NSImage *image)
    : image_(retain(image)),
      class_(object_getClass(image)),
      size_([image size]),
      background_(retain([image backgroundColor])),
      cacheMode_([image cacheMode]),
      prefersColorMatch_([image prefersColorMatch]),
      matchesOnMultipleResolution_([image matchesOnMultipleResolution]),
      drawings_(watch(image)),
      drawingsThen_(*drawings_) {
  for (NSImageRep *representation in [image representations]) {
    representations_.push_back({retain(representation), [representation size]});
  }
}

ImageState::ImageState(ImageState &&other) noexcept = default;

ImageState::~ImageState() {
  // One that was moved from watches nothing.
  if (image_.get() != nil) unwatch(image_.get());
}

bool ImageState::holds() const {
  NSImage *image = image_.get();
  if (*drawings_ != drawingsThen_ || object_getClass(image) != class_ ||
      !NSEqualSizes([image size], size_) || [image backgroundColor] != background_.get() ||
      [image cacheMode] != cacheMode_ ||
      static_cast<bool>([image prefersColorMatch]) != prefersColorMatch_ ||
      static_cast<bool>([image matchesOnMultipleResolution]) != matchesOnMultipleResolution_) {
    return false;
  }
  NSArray *representations = [image representations];
  const NSUInteger count = [representations count];
  if (count != representations_.size()) return false;
  for (NSUInteger i = 0; i < count; ++i) {
    NSImageRep *representation = [representations objectAtIndex:i];
    if (representation != representations_[i].object.get() ||
        !NSEqualSizes([representation size], representations_[i].size)) {
      return false;
    }
  }
  return true;
}

}  // namespace ov

// The platform's methods by other names, and ours by the platform's, once exchanged.
@interface NSImage (OvImageChanges)
- (void)_ovLockFocusOnRepresentation:(NSImageRep *)representation;
- (void)_ovUnlockFocus;
@end

@implementation NSImage (OvImageChanges)

// Everything goes through this one, also the platform's making of its copy. Counted at both ends:
// in between, the image may be drawn.
- (void)_ovLockFocusOnRepresentation:(NSImageRep *)representation {
  noteDrawing(self);
  [self _ovLockFocusOnRepresentation:representation];
}

- (void)_ovUnlockFocus {
  noteDrawing(self);
  [self _ovUnlockFocus];
}

@end

@interface _OvImageChangesBridge : NSObject
@end

@implementation _OvImageChangesBridge

+ (void)load {
  ov::exchangeMethods("NSImage", @selector(_ovLockFocusOnRepresentation:),
                      @selector(lockFocusOnRepresentation:));
  ov::exchangeMethods("NSImage", @selector(_ovUnlockFocus), @selector(unlockFocus));
}

@end
