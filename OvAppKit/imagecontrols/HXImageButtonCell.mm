#import "imagecontrols/HXImageButtonCell.h"

#include "imagecontrols/ButtonLayout.h"
#include "imagecontrols/FaceOfCell.h"
#include "platform/ButtonArchiving.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

// Shortens in the middle.
constexpr int kTruncateMiddle = 16384;

bool hasVariation(HXImageControlImageContainer *container, HXImageControlImageVariation variation) {
  return [container containsImageVariation:variation forImagePart:HXImageControlImagePartCenter];
}

}  // namespace

@interface HXImageButtonCell ()
- (NSRect)_titleRoomForBounds:(NSRect)bounds;
@end

@implementation HXImageButtonCell

- (id)copyWithZone:(NSZone *)zone {
  HXImageButtonCell *copy = [super copyWithZone:zone];
  // The platform's copy is one of the bytes: both own the one container.
  [copy->imageContainer_ retain];
  return copy;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) ov::decodeLostParts(self, coder);
  return self;
}

- (void)encodeWithCoder:(NSCoder *)coder {
  [super encodeWithCoder:coder];
  ov::encodeLostParts(self, coder);
}

- (void)dealloc {
  [imageContainer_ release];
  [super dealloc];
}

- (void)setImageContainer:(HXImageControlImageContainer *)container {
  OvReplaceRetained(&imageContainer_, container);
}

- (HXImageControlImageContainer *)imageContainer {
  return imageContainer_;
}

- (void)setButtonType:(NSButtonType)type {
  [super setButtonType:type];
  // A type that shows the state by the background shows it by gray, too, in AppKit.
  if ([self showsStateBy] & NSChangeBackgroundCellMask)
    [self setShowsStateBy:[self showsStateBy] | NSChangeGrayCellMask];
}

- (BOOL)isOpaque {
  return NO;
}

- (void)drawBezelWithFrame:(NSRect)frame inView:(NSView *)view {
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  if (imageContainer_ == nil) {
    [super drawInteriorWithFrame:frame inView:view];
    return;
  }
  if ([self isTransparent]) return;

  const ov::FaceArtwork artwork = {
      .mousePushed = hasVariation(imageContainer_, HXImageControlImageVariationMousePushed),
      .mouseOver = hasVariation(imageContainer_, HXImageControlImageVariationMouseOver)};
  const ov::ButtonFace face = ov::pushButtonFace(ov::stateOfCell(self, frame, view), artwork);
  const auto variation = static_cast<HXImageControlImageVariation>(face.variation);
  const BOOL flipped = [view isFlipped];

  [imageContainer_ drawImageInRect:frame isFlipped:flipped imageVariation:variation];

  // AppKit has no room for a title then; this platform leaves it the whole cell.
  if ([self imagePosition] != NSImageOnly) {
    NSRect rect = [self titleRectForBounds:frame];
    NSAttributedString *title = ov::titleOfCell(self, face.title, NSWidth(rect), kTruncateMiddle);
    if (title != nil && !NSIsEmptyRect(rect)) [self drawTitle:title withFrame:rect inView:view];
  }

  const auto drawPart = [&](HXImageControlImagePart part, const auto &place) {
    if (![imageContainer_ containsImageForImagePart:part]) return;
    const NSRect rect = place();
    if (!NSIsEmptyRect(rect))
      [imageContainer_ drawImageInRect:rect
                             isFlipped:flipped
                             imagePart:part
                        imageVariation:variation];
  };
  drawPart(HXImageControlImagePartIcon, [&] { return [self imageRectForBounds:frame]; });
  drawPart(HXImageControlImagePartAccessory, [&] { return [self accessoryRectForBounds:frame]; });
}

- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView *)view {
  if (imageContainer_ == nil) {
    [super drawInteriorWithFrame:frame inView:view];
    return;
  }
  [self setHighlighted:flag];
  [view setNeedsDisplay:YES];
}

// The inherited title rectangle, within the border. For the platform a cell whose image has a place
// is all image, and its title has the whole of it; AppKit asks whether there is an image, and the
// cell has none of its own here.
- (NSRect)_titleRoomForBounds:(NSRect)bounds {
  const NSCellImagePosition position = [self imagePosition];
  const bool isBeside = position >= NSImageLeft && position <= NSImageAbove;
  const auto type = _cell.type;
  if (isBeside && [self image] == nil) _cell.type = NSTextCellType;
  const NSRect room = [super titleRectForBounds:bounds];
  _cell.type = type;
  return room;
}

- (NSRect)imageRectForBounds:(NSRect)bounds {
  if (![imageContainer_ containsImageForImagePart:HXImageControlImagePartIcon])
    return [super imageRectForBounds:bounds];
  NSSize icon = [imageContainer_ imageSizeForImagePart:HXImageControlImagePartIcon];
  return ov::toNS(ov::iconRect(static_cast<ov::IconPosition>([self imagePosition]),
                               ov::fromNS(bounds), ov::fromNS([self _titleRoomForBounds:bounds]),
                               ov::fromNS(icon), [self isHighlighted]));
}

- (NSRect)titleRectForBounds:(NSRect)bounds {
  NSSize icon = [imageContainer_ imageSizeForImagePart:HXImageControlImagePartIcon];
  if (!(icon.width > 0 && icon.height > 0)) return [super titleRectForBounds:bounds];
  return ov::toNS(ov::titleRectBesideIcon(static_cast<ov::IconPosition>([self imagePosition]),
                                          ov::fromNS([self _titleRoomForBounds:bounds]),
                                          ov::fromNS(icon)));
}

- (NSRect)accessoryRectForBounds:(NSRect)bounds {
  if (![imageContainer_ containsImageForImagePart:HXImageControlImagePartAccessory])
    return NSZeroRect;
  NSSize accessory = [imageContainer_ imageSizeForImagePart:HXImageControlImagePartAccessory];
  return ov::toNS(ov::accessoryRect(ov::fromNS(bounds), ov::fromNS(accessory)));
}

@end
