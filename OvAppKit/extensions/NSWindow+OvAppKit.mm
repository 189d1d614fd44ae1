#import <OvAppKit/NSScreen+OvAppKit.h>
#import <OvAppKit/NSWindow+OvAppKit.h>

#include <cmath>

namespace {

// Puts a window into a screen: at its left (0), its right (1) or between, and from its bottom
// (0) to its top (1).
void place(NSWindow *window, NSScreen *screen, CGFloat across, CGFloat up) {
  if (screen == nil) return;
  const NSRect area = [screen frameByExcludingMenuBar];
  const NSSize size = [window frame].size;
  [window setFrameOrigin:NSMakePoint(NSMinX(area) + (NSWidth(area) - size.width) * across,
                                     NSMinY(area) + (NSHeight(area) - size.height) * up)];
}

}  // namespace

@implementation NSWindow (HXAppKitExtensions)

- (void)moveToTopLeftOfScreen:(NSScreen *)screen {
  place(self, screen, 0, 1);
}

- (void)moveToBottomLeftOfScreen:(NSScreen *)screen {
  place(self, screen, 0, 0);
}

- (void)moveToTopRightOfScreen:(NSScreen *)screen {
  place(self, screen, 1, 1);
}

- (void)moveToBottomRightOfScreen:(NSScreen *)screen {
  place(self, screen, 1, 0);
}

- (void)moveToCenterOfScreen:(NSScreen *)screen {
  place(self, screen, 0.5, 0.5);
}

@end

@implementation NSWindow (QEOldCoordinatesConversionExtensions)

- (NSPoint)frameTopLeftPoint {
  const NSRect frame = [self frame];
  return NSMakePoint(NSMinX(frame), NSMaxY([[self screen] frame]) - NSMaxY(frame));
}

- (void)setFrameTopLeftPointWithFlipped:(NSPoint)point {
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return;
  [self setFrameTopLeftPoint:NSMakePoint(point.x, NSMaxY([[self screen] frame]) - point.y)];
}

@end

@implementation NSWindow (QEResizeExtensions)

- (void)resizeWindowTo:(NSSize)size display:(BOOL)display animate:(BOOL)animate {
  if (!std::isfinite(size.width) || !std::isfinite(size.height)) return;
  if (size.width < 0 || size.height < 0) return;
  const NSRect old = [self frame];
  const NSRect frame =
      NSMakeRect(NSMaxX(old) - size.width, NSMaxY(old) - size.height, size.width, size.height);
  [self setFrame:frame display:display animate:animate];
}

- (NSSize)sizeWithoutContent {
  const NSSize frame = [self frame].size;
  const NSSize content = [[self contentView] bounds].size;
  return NSMakeSize(frame.width - content.width, frame.height - content.height);
}

- (CGFloat)widthWithoutContent {
  return [self sizeWithoutContent].width;
}

- (CGFloat)heightWithoutContent {
  return [self sizeWithoutContent].height;
}

@end

@implementation NSWindow (QEToolbarExtensions)

- (CGFloat)toolbarHeight {
  if (![[self toolbar] isVisible] || [self contentView] == nil) return 0;
  const NSRect content = [NSWindow contentRectForFrameRect:[self frame] styleMask:[self styleMask]];
  return NSHeight(content) - NSHeight([[self contentView] frame]);
}

@end
