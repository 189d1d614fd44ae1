#import <OvAppKit/OvMouseKeyPanel.h>

@implementation OvMouseKeyPanel

- (BOOL)canBecomeMainWindow {
  return YES;
}

- (BOOL)canBecomeKeyWindow {
  return YES;
}

- (void)sendEvent:(NSEvent *)event {
  if (![self _delegateTakes:event]) [super sendEvent:event];
}

- (BOOL)_delegateTakes:(NSEvent *)event {
  id delegate = [self delegate];
  switch ([event type]) {
    case NSLeftMouseDown:
    case NSRightMouseDown:
      return [delegate respondsToSelector:@selector(mouseDown:inWindow:)] &&
             [delegate mouseDown:event inWindow:self];
    case NSKeyDown:
      return [delegate respondsToSelector:@selector(keyDown:inWindow:)] && [delegate keyDown:event
                                                                                    inWindow:self];
    default:
      return NO;
  }
}

@end
