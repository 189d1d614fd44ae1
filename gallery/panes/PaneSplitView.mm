#import "panes/PaneSplitView.h"

#import "shell/GalleryStyle.h"

// Odd, so that the line is in the middle.
static const CGFloat kThickness = 7;
static const CGFloat kGripLength = 32;
static const CGFloat kGripWidth = 3;

// A rectangle of that size in the middle of another, as it lies along or across the axis.
static NSRect centred(NSRect rect, CGFloat length, CGFloat width, BOOL upright) {
  const NSSize size = upright ? NSMakeSize(width, length) : NSMakeSize(length, width);
  return NSMakeRect(NSMinX(rect) + floor((NSWidth(rect) - size.width) / 2),
                    NSMinY(rect) + floor((NSHeight(rect) - size.height) / 2), size.width,
                    size.height);
}

@implementation PaneSplitView

- (CGFloat)dividerThickness {
  return kThickness;
}

// A drag that collapses the last pane takes the divider to the far edge, beyond which nobody can
// take hold of it again. Laying out brings it back.
- (void)mouseDown:(NSEvent *)event {
  [super mouseDown:event];
  if (![self mouseLocked]) [self resizeSubviewsWithOldSize:[self bounds].size];
}

- (void)drawDividerInRect:(NSRect)rect {
  const BOOL upright = [self isVertical];
  const CGFloat length = upright ? NSHeight(rect) : NSWidth(rect);
  [GalleryWindowColor() set];
  NSRectFill(rect);
  [GalleryLineColor() set];
  NSRectFill(centred(rect, length, 1, upright));
  if ([self mouseLocked] || length < kGripLength) return;
  [GalleryColor(0xAEB8C8) set];
  [GalleryRoundedPath(centred(rect, kGripLength, kGripWidth, upright), kGripWidth / 2) fill];
}

@end
