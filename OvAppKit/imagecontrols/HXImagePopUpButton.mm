#import "imagecontrols/HXImagePopUpButton.h"

#import "imagecontrols/HXImagePopUpButtonCell.h"

#include "support/HoverTracking.h"

@implementation HXImagePopUpButton

+ (Class)cellClass {
  return [HXImagePopUpButtonCell class];
}

- (id)initWithCoder:(NSCoder *)coder {
  self = [super initWithCoder:coder];
  // The platform's flag comes out of the archive with the cell.
  if (self != nil) ov::setHoverTracking(self, [self showsBorderOnlyWhileMouseInside]);
  return self;
}

- (void)dealloc {
  ov::setHoverTracking(self, NO);
  [super dealloc];
}

- (HXImagePopUpButtonCell *)imagePopUpButtonCell {
  id cell = [self cell];
  return [cell isKindOfClass:[HXImagePopUpButtonCell class]] ? cell : nil;
}

- (void)setImageContainer:(HXImageControlImageContainer *)container {
  HXImagePopUpButtonCell *cell = [self imagePopUpButtonCell];
  if (cell == nil || [cell imageContainer] == container) return;
  [cell setImageContainer:container];
  [self setNeedsDisplay:YES];
  [self setShowsBorderOnlyWhileMouseInside:
            [container containsImageVariation:HXImageControlImageVariationMouseOver
                                 forImagePart:HXImageControlImagePartCenter]];
}

- (HXImageControlImageContainer *)imageContainer {
  return [[self imagePopUpButtonCell] imageContainer];
}

- (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag {
  [super setShowsBorderOnlyWhileMouseInside:flag];
  ov::setHoverTracking(self, flag);
}

@end
