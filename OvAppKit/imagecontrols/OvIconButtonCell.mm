#import <OvAppKit/OvIconButtonCell.h>

#import "platform/ImageDrawing.h"
#include "support/Retained.h"

@implementation OvIconButtonCell

- (void)dealloc {
  [_highlightImage release];
  [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone {
  OvIconButtonCell *copy = [super copyWithZone:zone];
  [copy->_highlightImage retain];
  return copy;
}

- (void)setHighlightImage:(NSImage *)image {
  OvReplaceRetained(&_highlightImage, image);
}

- (NSImage *)highlightImage {
  return _highlightImage;
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  [super drawWithFrame:frame inView:view];
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  if (_highlightImage == nil || ![self isHighlighted]) {
    [super drawInteriorWithFrame:frame inView:view];
    return;
  }
  // The platform does not look at the flag; a representation that draws itself may.
  const BOOL wasFlipped = [_highlightImage isFlipped];
  [_highlightImage setFlipped:YES];
  OvDrawWholeImage(_highlightImage, frame, NSCompositeSourceOver, 1);
  [_highlightImage setFlipped:wasFlipped];
}

@end
