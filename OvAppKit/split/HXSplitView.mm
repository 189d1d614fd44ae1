#import <OvAppKit/HXSplitView.h>

@implementation HXSplitView

- (void)mouseDown:(NSEvent *)event {
  if ([event clickCount] > 1) {
    const NSPoint point = [[self superview] convertPoint:[event locationInWindow] fromView:nil];
    if ([self hitTest:point] == self) {
      if ([_delegate respondsToSelector:@selector(splitViewDidDoubleClickSplitter:)]) {
        [_delegate splitViewDidDoubleClickSplitter:self];
      }
      return;
    }
  }
  [super mouseDown:event];
}

- (BOOL)isSubviewCollapsed:(NSView *)subview {
  const NSRect frame = subview != nil ? [subview frame] : NSZeroRect;
  return NSIsEmptyRect(frame) || !NSIntersectsRect(frame, [self bounds]);
}

@end
