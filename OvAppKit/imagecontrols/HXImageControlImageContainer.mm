#import <OvAppKit/HXImageControlImageContainer.h>
#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>
#import <OvAppKit/HXImageSegment.h>

#include <iterator>

#include "imagecontrols/NinePieceLayout.h"
#include "imagecontrols/StretchSlices.h"
#import "platform/ImageDrawing.h"
#import "platform/ImageFileGuard.h"
#import "platform/ImageResources.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

constexpr HXImageControlImagePart kPartCount = 11;
constexpr HXImageControlImageVariation kVariationCount = 5;

HXImageControlImageResourceNameSuffixRegistry *newSharedRegistry() {
  auto *registry = [[HXImageControlImageResourceNameSuffixRegistry alloc] init];
  NSString *const parts[] = {
      @"",           @"-left",        @"-right",        @"-top",  @"-bottom",   @"-left-top",
      @"-right-top", @"-left-bottom", @"-right-bottom", @"-icon", @"-accessory"};
  NSString *const variations[] = {@"-default", @"-highlighted", @"-mouseopushed", @"-mouseovered",
                                  @"-disabled"};
  static_assert(std::size(parts) == kPartCount && std::size(variations) == kVariationCount);
  for (HXImageControlImagePart part = 0; part < kPartCount; ++part) {
    [registry setSuffix:parts[part] forImagePart:part];
  }
  for (HXImageControlImageVariation variation = 0; variation < kVariationCount; ++variation) {
    [registry setSuffix:variations[variation] forImageVariation:variation];
  }
  return registry;
}

// The picture in a file; nil where there is none, so that a damaged file is like one that is
// missing.
ov::Retained<HXImageSegment *> segmentAtPath(NSString *path) {
  auto segment = ov::adopt([[HXImageSegment alloc] initWithPath:path]);
  return [segment.get() image] ? segment : ov::Retained<HXImageSegment *>();
}

// The states that stand side by side in a picture; each goes to store(segment, variation).
template <typename Store>
void cutTiles(NSString *path, const int32_t *variations, NSUInteger count, Store store) {
  if (path == nil || variations == nullptr || count == 0) return;
  const auto image = ov::adopt(OvNewImageByReferencingFile(path));
  if (image.get() == nil) return;
  const NSSize size = [image.get() size];
  const CGFloat width = size.width / count;
  for (NSUInteger i = 0; i < count; ++i) {
    const auto tile = ov::adopt([[HXImageSegment alloc]
        initWithImage:image.get()
                 rect:NSMakeRect(i * width, 0, width, size.height)]);
    store(tile.get(), static_cast<HXImageControlImageVariation>(variations[i]));
  }
}

}  // namespace

@implementation HXImageControlImageContainer

+ (HXImageControlImageResourceNameSuffixRegistry *)imageResourceNameSuffixRegistry {
  static HXImageControlImageResourceNameSuffixRegistry *const registry = newSharedRegistry();
  return registry;
}

- (id)init {
  return [super init];
}

- (id)initWithSeparatedImageResourceNamePrefix:(NSString *)prefix {
  return [self initWithSeparatedImageResourceNamePrefix:prefix inBundle:nil];
}

- (id)initWithSeparatedImageResourceNamePrefix:(NSString *)prefix inBundle:(NSBundle *)bundle {
  self = [self init];
  if (self == nil) return nil;
  auto *registry = [[self class] imageResourceNameSuffixRegistry];
  ov::ImageResources resources(bundle, [registry pathExtension]);
  for (HXImageControlImagePart part = 0; part < kPartCount; ++part) {
    for (HXImageControlImageVariation variation = 0; variation < kVariationCount; ++variation) {
      NSString *path = resources.pathOf([registry stringWithPrefix:prefix
                                                         imagePart:part
                                                    imageVariation:variation]);
      if (path) [self setImageWithPath:path forImagePart:part imageVariation:variation];
    }
  }
  return self;
}

- (id)initWithStrechableImageResourceNamePrefix:(NSString *)prefix
                                        leftCap:(CGFloat)leftCap
                                         topCap:(CGFloat)topCap {
  return [self initWithStrechableImageResourceNamePrefix:prefix
                                                 leftCap:leftCap
                                                  topCap:topCap
                                                inBundle:nil];
}

- (id)initWithStrechableImageResourceNamePrefix:(NSString *)prefix
                                        leftCap:(CGFloat)leftCap
                                         topCap:(CGFloat)topCap
                                       inBundle:(NSBundle *)bundle {
  self = [self init];
  if (self == nil) return nil;
  auto *registry = [[self class] imageResourceNameSuffixRegistry];
  ov::ImageResources resources(bundle, [registry pathExtension]);
  for (HXImageControlImageVariation variation = 0; variation < kVariationCount; ++variation) {
    NSString *path = resources.pathOf([registry stringWithPrefix:prefix imageVariation:variation]);
    if (path == nil) continue;
    [self setStrechableImageWithPath:path
                             leftCap:leftCap
                              topCap:topCap
                   forImageVariation:variation];
  }
  return self;
}

- (id)initWithTiledImageResourceName:(NSString *)name
                     imageVariations:(const int32_t *)variations
                               count:(NSUInteger)count {
  return [self initWithTiledImageResourceName:name
                              imageVariations:variations
                                        count:count
                                     inBundle:nil];
}

- (id)initWithTiledImageResourceName:(NSString *)name
                     imageVariations:(const int32_t *)variations
                               count:(NSUInteger)count
                            inBundle:(NSBundle *)bundle {
  self = [self init];
  if (self == nil) return nil;
  auto *registry = [[self class] imageResourceNameSuffixRegistry];
  ov::ImageResources resources(bundle, [registry pathExtension]);
  cutTiles(resources.pathOf(name), variations, count,
           [self](HXImageSegment *tile, HXImageControlImageVariation variation) {
             [self setImage:tile
                   forImagePart:HXImageControlImagePartCenter
                 imageVariation:variation];
           });
  return self;
}

- (id)initWithTiledStrechableImageResourceName:(NSString *)name
                                       leftCap:(CGFloat)leftCap
                                        topCap:(CGFloat)topCap
                               imageVariations:(const int32_t *)variations
                                         count:(NSUInteger)count {
  return [self initWithTiledStrechableImageResourceName:name
                                                leftCap:leftCap
                                                 topCap:topCap
                                        imageVariations:variations
                                                  count:count
                                               inBundle:nil];
}

- (id)initWithTiledStrechableImageResourceName:(NSString *)name
                                       leftCap:(CGFloat)leftCap
                                        topCap:(CGFloat)topCap
                               imageVariations:(const int32_t *)variations
                                         count:(NSUInteger)count
                                      inBundle:(NSBundle *)bundle {
  self = [self init];
  if (self == nil) return nil;
  auto *registry = [[self class] imageResourceNameSuffixRegistry];
  ov::ImageResources resources(bundle, [registry pathExtension]);
  cutTiles(resources.pathOf(name), variations, count,
           [=](HXImageSegment *tile, HXImageControlImageVariation variation) {
             [self setStrechableImage:tile
                              leftCap:leftCap
                               topCap:topCap
                    forImageVariation:variation];
           });
  return self;
}

- (void)dealloc {
  [self removeAllImages];
  [super dealloc];
}

// MARK: Pictures

- (void)setImage:(HXImageSegment *)segment
      forImagePart:(HXImageControlImagePart)part
    imageVariation:(HXImageControlImageVariation)variation {
  if (part >= kPartCount || variation >= kVariationCount) return;
  OvReplaceRetained(&imageSegments_[part][variation], segment);
}

- (void)setImageWithPath:(NSString *)path
            forImagePart:(HXImageControlImagePart)part
          imageVariation:(HXImageControlImageVariation)variation {
  const auto segment = segmentAtPath(path);
  [self setImage:segment.get() forImagePart:part imageVariation:variation];
}

- (void)setStrechableImage:(HXImageSegment *)segment
                   leftCap:(CGFloat)leftCap
                    topCap:(CGFloat)topCap
         forImageVariation:(HXImageControlImageVariation)variation {
  if (variation >= kVariationCount) return;
  // It may be among those that go.
  const auto whole = ov::retain(segment);
  [self removeAllImagesForImageVariation:variation];
  if (segment == nil) return;
  for (const auto &slice : ov::sliceStretchable(ov::fromNS([segment rect]), leftCap, topCap)) {
    [self setImage:[segment imageSegmentWithRect:ov::toNS(slice.rect)]
          forImagePart:static_cast<HXImageControlImagePart>(slice.part)
        imageVariation:variation];
  }
}

- (void)setStrechableImageWithPath:(NSString *)path
                           leftCap:(CGFloat)leftCap
                            topCap:(CGFloat)topCap
                 forImageVariation:(HXImageControlImageVariation)variation {
  const auto segment = segmentAtPath(path);
  [self setStrechableImage:segment.get() leftCap:leftCap topCap:topCap forImageVariation:variation];
}

- (void)removeAllImages {
  for (HXImageControlImagePart part = 0; part < kPartCount; ++part) {
    [self removeAllImagesForImageKey:part];
  }
}

- (void)removeAllImagesForImageKey:(HXImageControlImagePart)part {
  if (part >= kPartCount) return;
  for (HXImageSegment *&segment : imageSegments_[part]) {
    OvReplaceRetained(&segment, static_cast<HXImageSegment *>(nil));
  }
}

- (void)removeAllImagesForImageVariation:(HXImageControlImageVariation)variation {
  if (variation >= kVariationCount) return;
  for (auto &segments : imageSegments_) {
    OvReplaceRetained(&segments[variation], static_cast<HXImageSegment *>(nil));
  }
}

- (BOOL)containsImageForImagePart:(HXImageControlImagePart)part {
  return [self containsImageVariation:HXImageControlImageVariationDefault forImagePart:part];
}

- (BOOL)containsImageVariation:(HXImageControlImageVariation)variation
                  forImagePart:(HXImageControlImagePart)part {
  return part < kPartCount && variation < kVariationCount && imageSegments_[part][variation] != nil;
}

- (NSSize)imageSizeForImagePart:(HXImageControlImagePart)part {
  if (part >= kPartCount) return NSZeroSize;
  HXImageSegment *segment = imageSegments_[part][HXImageControlImageVariationDefault];
  return segment ? [segment rect].size : NSZeroSize;
}

// MARK: Drawing

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
         imageVariation:(HXImageControlImageVariation)variation {
  if (variation >= kVariationCount) return;
  ov::FramePartSizes sizes;
  for (HXImageControlImagePart part = 0; part < sizes.size(); ++part) {
    if (![self containsImageForImagePart:part]) continue;
    sizes[part] = ov::fromNS([self imageSizeForImagePart:part]);
  }
  for (const auto &piece : ov::placeFrame(sizes, ov::fromNS(rect))) {
    [self drawImageInRect:ov::toNS(piece.rect)
                isFlipped:flipped
                imagePart:static_cast<HXImageControlImagePart>(piece.part)
           imageVariation:variation];
  }
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  if (part >= kPartCount || variation >= kVariationCount) return;
  HXImageSegment *found = imageSegments_[part][variation];
  if (found == nil) found = imageSegments_[part][HXImageControlImageVariationDefault];
  // A host's image may change the container while it is drawn.
  const auto segment = ov::retain(found);
  NSImage *image = [segment.get() image];
  [image setFlipped:flipped];
  OvDrawImagePart(image, rect, [segment.get() rect], flipped);
}

@end
