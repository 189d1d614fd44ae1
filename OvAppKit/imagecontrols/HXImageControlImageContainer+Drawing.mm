#import "imagecontrols/HXImageControlImageContainer+Private.h"

#import "platform/ImageDrawing.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

// What frames are drawn by.
struct DrawingMethods {
  IMP drawPiece;
  IMP size;
  IMP contains;
  IMP containsVariation;
  friend bool operator==(const DrawingMethods &, const DrawingMethods &) = default;
};

template <typename MethodOf>
DrawingMethods drawingMethods(MethodOf methodOf) {
  return {
    methodOf(@selector(drawImageInRect:isFlipped:imagePart:imageVariation:)),
        methodOf(@selector(imageSizeForImagePart:)),
        methodOf(@selector(containsImageForImagePart:)),
        methodOf(@selector(containsImageVariation:forImagePart:))
  };
}

// As they are here, before a host's category or a subclass has put others in their place.
DrawingMethods ours;

}  // namespace

@implementation HXImageControlImageContainer (HXImageControlImageContainerDrawing)

+ (void)load {
  Class container = objc_getClass("HXImageControlImageContainer");
  ours = drawingMethods([container](SEL selector) {
    return method_getImplementation(class_getInstanceMethod(container, selector));
  });
}

// nil where nothing is to be drawn.
- (HXImageSegment *)_segmentForPart:(HXImageControlImagePart)part
                          variation:(HXImageControlImageVariation)variation {
  HXImageSegment *segment = imageSegments_[part][variation];
  return segment ?: imageSegments_[part][HXImageControlImageVariationDefault];
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
         imageVariation:(HXImageControlImageVariation)variation {
  if (variation >= ov::kImageVariationCount) return;
  // A host's image may even let the container go.
  const auto held = ov::retain(self);
  ov::FrameContent content;
  content.rect = rect;
  content.flipped = flipped;
  for (HXImageControlImagePart part = 0; part < content.sizes.size(); ++part) {
    if (![self containsImageForImagePart:part]) continue;
    content.sizes[part] = ov::fromNS([self imageSizeForImagePart:part]);
  }
  const auto drawPiece = [&](const ov::FramePiece &piece) {
    [self drawImageInRect:ov::toNS(piece.rect)
                isFlipped:flipped
                imagePart:static_cast<HXImageControlImagePart>(piece.part)
           imageVariation:variation];
  };
  // A subclass's pieces may look different every time.
  if (drawingMethods([self](SEL selector) { return [self methodForSelector:selector]; }) != ours) {
    ov::drawPieces(content, drawPiece);
    return;
  }
  for (HXImageControlImagePart part = 0; part < content.sizes.size(); ++part) {
    if (!content.sizes[part]) continue;
    HXImageSegment *segment = [self _segmentForPart:part variation:variation];
    content.slices[part] = {[segment image], [segment rect]};
  }
  if (_state == nullptr) _state = new OvImageContainerState;
  _state->frames.draw(content, drawPiece);
}

- (void)drawImageInRect:(NSRect)rect
              isFlipped:(BOOL)flipped
              imagePart:(HXImageControlImagePart)part
         imageVariation:(HXImageControlImageVariation)variation {
  if (part >= ov::kImagePartCount || variation >= ov::kImageVariationCount) return;
  HXImageSegment *segment = [self _segmentForPart:part variation:variation];
  // A host's image may change the container while it is drawn.
  const auto held = ov::retain(segment);
  NSImage *image = [segment image];
  [image setFlipped:flipped];
  OvDrawImagePart(image, rect, [segment rect], flipped);
}

@end
