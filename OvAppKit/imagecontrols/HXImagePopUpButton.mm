#import "imagecontrols/HXImagePopUpButton.h"

#include "imagecontrols/FaceOfCell.h"
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
  ov::setImageContainerOfButton(self, [self imagePopUpButtonCell], container);
}

- (HXImageControlImageContainer *)imageContainer {
  return [[self imagePopUpButtonCell] imageContainer];
}

- (void)setShowsBorderOnlyWhileMouseInside:(BOOL)flag {
  [super setShowsBorderOnlyWhileMouseInside:flag];
  ov::setHoverTracking(self, flag);
}

@end
