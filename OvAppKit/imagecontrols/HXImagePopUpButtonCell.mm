#import "imagecontrols/HXImagePopUpButtonCell.h"

#import <GNUstepGUI/GSTheme.h>

#include <algorithm>

#include "imagecontrols/ButtonLayout.h"
#include "imagecontrols/FaceOfCell.h"
#include "platform/ButtonArchiving.h"
#include "support/GeometryBridge.h"
#include "support/Retained.h"

namespace {

// Shortens at the end.
constexpr int kTruncateEnd = 0;

// As the platform does at the end of the drawing that is replaced here.
void drawFocus(NSCell *cell, NSRect frame, NSView *view) {
  if (![cell showsFirstResponder] || [[view window] firstResponder] != view) return;
  const NSFocusRingType type = [cell focusRingType];
  if (type == NSFocusRingTypeNone) return;
  const bool outside = type == NSFocusRingTypeExterior;
  [[GSTheme theme] drawFocusFrame:outside ? frame : [cell drawingRectForBounds:frame] view:view];
}

}  // namespace

@implementation HXImagePopUpButtonCell

- (id)copyWithZone:(NSZone *)zone {
  HXImagePopUpButtonCell *copy = [super copyWithZone:zone];
  // The platform's copy is one of the bytes: both own the one container.
  [copy->imageContainer_ retain];
  return copy;
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  if (self != nil) ov::decodeLostParts(self, coder);
  return self;
}

- (void)dealloc {
  // The platform may close the menu yet.
  OvReplaceRetained<HXImageControlImageContainer *>(&imageContainer_, nil);
  [super dealloc];
}

- (void)setImageContainer:(HXImageControlImageContainer *)container {
  OvReplaceRetained(&imageContainer_, container);
}

- (HXImageControlImageContainer *)imageContainer {
  return imageContainer_;
}

- (int32_t)_imageVariationWithFrame:(NSRect)frame inView:(NSView *)view {
  return static_cast<int32_t>(ov::popUpButtonFace(ov::stateOfCell(self, frame, view)).variation);
}

- (void)_drawInteriorWithFrame:(NSRect)frame
                        inView:(NSView *)view
                imageVariation:(int32_t)variation {
  [imageContainer_ drawImageInRect:frame
                         isFlipped:[view isFlipped]
                    imageVariation:static_cast<HXImageControlImageVariation>(variation)];
}

- (void)_drawAccessoryWithFrame:(NSRect)frame
                         inView:(NSView *)view
                 imageVariation:(int32_t)variation {
  [imageContainer_ drawImageInRect:frame
                         isFlipped:[view isFlipped]
                         imagePart:HXImageControlImagePartAccessory
                    imageVariation:static_cast<HXImageControlImageVariation>(variation)];
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  if (imageContainer_ == nil) {
    [super drawWithFrame:frame inView:view];
    return;
  }
  if (NSIsEmptyRect(frame) || [self isTransparent]) return;
  // A cell that changes tells the view that it was drawn in.
  [self setControlView:view];

  const int32_t variation = [self _imageVariationWithFrame:frame inView:view];
  [self _drawInteriorWithFrame:frame inView:view imageVariation:variation];

  if ([self arrowPosition] != NSPopUpNoArrow &&
      [imageContainer_ containsImageForImagePart:HXImageControlImagePartAccessory]) {
    const NSRect arrow = [self arrowRectForBounds:frame];
    if (!NSIsEmptyRect(arrow))
      [self _drawAccessoryWithFrame:arrow inView:view imageVariation:variation];
  }

  // The title's rectangle comes from sizes that the platform takes when it draws the cell.
  [self calcSize];
  const NSRect rect = [self titleRectForBounds:frame];
  const ov::FaceTitle which = variation == HXImageControlImageVariationHighlighted
                                  ? ov::FaceTitle::kAlternate
                                  : ov::FaceTitle::kOrdinary;
  NSAttributedString *title = ov::titleOfCell(self, which, NSWidth(rect), kTruncateEnd);
  if (title != nil && !NSIsEmptyRect(rect)) [self drawTitle:title withFrame:rect inView:view];

  drawFocus(self, frame, view);
}

// A button is pressed for as long as its menu is open; the platform's pop-up buttons never are.
- (void)attachPopUpWithFrame:(NSRect)frame inView:(NSView *)view {
  [super attachPopUpWithFrame:frame inView:view];
  if (imageContainer_ == nil) return;
  [self setHighlighted:YES];
  [view setNeedsDisplay:YES];
}

- (void)dismissPopUp {
  [super dismissPopUp];
  if (imageContainer_ == nil) return;
  [self setHighlighted:NO];
  [[self controlView] setNeedsDisplay:YES];
}

- (NSRect)titleRectForBounds:(NSRect)bounds {
  NSRect title = [super titleRectForBounds:bounds];
  if (imageContainer_ == nil) return title;
  // The platform's is as wide as the text, whatever room there is.
  const NSRect arrow = [self arrowRectForBounds:bounds];
  const CGFloat end = NSIsEmptyRect(arrow) ? NSMaxX(bounds) : NSMinX(arrow);
  title.size.width = std::min(NSWidth(title), std::max<CGFloat>(end - NSMinX(title), 0));
  return title;
}

- (NSRect)arrowRectForBounds:(NSRect)bounds {
  if (![imageContainer_ containsImageForImagePart:HXImageControlImagePartAccessory])
    return NSZeroRect;
  const NSSize arrow = [imageContainer_ imageSizeForImagePart:HXImageControlImagePartAccessory];
  return ov::toNS(ov::arrowRect(static_cast<ov::ArrowPosition>([self arrowPosition]),
                                ov::fromNS(bounds), ov::fromNS(arrow)));
}

@end
