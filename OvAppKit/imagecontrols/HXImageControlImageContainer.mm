#import <OvAppKit/HXImageControlImageResourceNameSuffixRegistry.h>

#import "imagecontrols/HXImageControlImageContainer+Private.h"

#include <iterator>

#include "imagecontrols/StretchSlices.h"
#import "platform/ImageFileGuard.h"
#import "platform/ImageResources.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

using ov::kImagePartCount;
using ov::kImageVariationCount;

HXImageControlImageResourceNameSuffixRegistry *newSharedRegistry() {
  auto *registry = [[HXImageControlImageResourceNameSuffixRegistry alloc] init];
  NSString *const parts[] = {
      @"",           @"-left",        @"-right",        @"-top",  @"-bottom",   @"-left-top",
      @"-right-top", @"-left-bottom", @"-right-bottom", @"-icon", @"-accessory"};
  NSString *const variations[] = {@"-default", @"-highlighted", @"-mouseopushed", @"-mouseovered",
                                  @"-disabled"};
  static_assert(std::size(parts) == kImagePartCount &&
                std::size(variations) == kImageVariationCount);
  for (HXImageControlImagePart part = 0; part < kImagePartCount; ++part) {
    [registry setSuffix:parts[part] forImagePart:part];
  }
  for (HXImageControlImageVariation variation = 0; variation < kImageVariationCount; ++variation) {
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
  for (HXImageControlImagePart part = 0; part < kImagePartCount; ++part) {
    for (HXImageControlImageVariation variation = 0; variation < kImageVariationCount;
         ++variation) {
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
  for (HXImageControlImageVariation variation = 0; variation < kImageVariationCount; ++variation) {
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
  delete _state;
  [super dealloc];
}

// MARK: Pictures

- (void)_setSegment:(HXImageSegment *)segment
            forPart:(HXImageControlImagePart)part
          variation:(HXImageControlImageVariation)variation {
  HXImageSegment **const held = &imageSegments_[part][variation];
  // What was composed of it keeps its image.
  if (*held != segment && _state != nullptr) _state->frames.clear();
  OvReplaceRetained(held, segment);
}

- (void)setImage:(HXImageSegment *)segment
      forImagePart:(HXImageControlImagePart)part
    imageVariation:(HXImageControlImageVariation)variation {
  if (part >= kImagePartCount || variation >= kImageVariationCount) return;
  [self _setSegment:segment forPart:part variation:variation];
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
  if (variation >= kImageVariationCount) return;
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
  for (HXImageControlImagePart part = 0; part < kImagePartCount; ++part) {
    [self removeAllImagesForImageKey:part];
  }
}

- (void)removeAllImagesForImageKey:(HXImageControlImagePart)part {
  if (part >= kImagePartCount) return;
  for (HXImageControlImageVariation variation = 0; variation < kImageVariationCount; ++variation) {
    [self _setSegment:nil forPart:part variation:variation];
  }
}

- (void)removeAllImagesForImageVariation:(HXImageControlImageVariation)variation {
  if (variation >= kImageVariationCount) return;
  for (HXImageControlImagePart part = 0; part < kImagePartCount; ++part) {
    [self _setSegment:nil forPart:part variation:variation];
  }
}

- (BOOL)containsImageForImagePart:(HXImageControlImagePart)part {
  return [self containsImageVariation:HXImageControlImageVariationDefault forImagePart:part];
}

- (BOOL)containsImageVariation:(HXImageControlImageVariation)variation
                  forImagePart:(HXImageControlImagePart)part {
  return part < kImagePartCount && variation < kImageVariationCount &&
         imageSegments_[part][variation] != nil;
}

- (NSSize)imageSizeForImagePart:(HXImageControlImagePart)part {
  if (part >= kImagePartCount) return NSZeroSize;
  HXImageSegment *segment = imageSegments_[part][HXImageControlImageVariationDefault];
  return segment ? [segment rect].size : NSZeroSize;
}

@end
