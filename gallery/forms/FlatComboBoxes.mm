#import "forms/FlatComboBoxes.h"

#import "shell/GalleryStyle.h"

// As wide as the platform's button, which goes on taking the clicks.
static const CGFloat kArrowWidth = 20;

@implementation FlatComboBoxCell

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  [super drawInteriorWithFrame:frame inView:view];
  NSRect arrow = frame;
  arrow.origin.x = NSMaxX(frame) - kArrowWidth;
  arrow.size.width = kArrowWidth;
  [GalleryPanelColor() set];
  NSRectFill(arrow);
  const CGFloat x = NSMaxX(frame) - 9, y = NSMidY(frame), s = [view isFlipped] ? 1 : -1;
  NSBezierPath *path = [NSBezierPath bezierPath];
  [path moveToPoint:NSMakePoint(x - 4, y - 2 * s)];
  [path lineToPoint:NSMakePoint(x, y + 2 * s)];
  [path lineToPoint:NSMakePoint(x + 4, y - 2 * s)];
  [path setLineWidth:1.5];
  [path setLineCapStyle:NSRoundLineCapStyle];
  [path setLineJoinStyle:NSRoundLineJoinStyle];
  [GalleryQuietTextColor() set];
  [path stroke];
}

@end

@implementation FlatComboBox

+ (Class)cellClass {
  return [FlatComboBoxCell class];
}

@end

@implementation FlatVPComboBox

+ (Class)cellClass {
  return [FlatComboBoxCell class];
}

@end
