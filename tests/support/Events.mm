#import "Events.h"

#import <GNUstepGUI/GSDisplayServer.h>

#import "RunLoop.h"

namespace ov::test {

NSEvent *mouseEvent(NSEventType type, NSView *view, NSPoint point, NSUInteger flags,
                    NSInteger clickCount) {
  NSWindow *window = [view window];
  static NSInteger number = 0;
  return [NSEvent mouseEventWithType:type
                            location:[view convertPoint:point toView:nil]
                       modifierFlags:flags
                           timestamp:[NSDate timeIntervalSinceReferenceDate]
                        windowNumber:[window windowNumber]
                             context:[window graphicsContext]
                         eventNumber:++number
                          clickCount:clickCount
                            pressure:1];
}

NSEvent *keyEvent(NSWindow *window, NSString *characters, NSUInteger flags) {
  return [NSEvent keyEventWithType:NSKeyDown
                          location:NSZeroPoint
                     modifierFlags:flags
                         timestamp:[NSDate timeIntervalSinceReferenceDate]
                      windowNumber:[window windowNumber]
                           context:[window graphicsContext]
                        characters:characters
       charactersIgnoringModifiers:characters
                         isARepeat:NO
                           keyCode:0];
}

bool bringToFront(NSWindow *window) {
  // Another program on the display may take the keyboard meanwhile: ask again.
  for (int attempt = 0; attempt < 20; attempt++) {
    if ([window isVisible] && [window isKeyWindow]) return true;
    [window makeKeyAndOrderFront:nil];
    if (pumpUntil([=] { return [window isVisible] && [window isKeyWindow]; }, 0.3)) return true;
  }
  return false;
}

void press(NSView *view, NSPoint point, NSUInteger flags, NSInteger clickCount) {
  NSWindow *window = [view window];
  bringToFront(window);
  [NSApp sendEvent:mouseEvent(NSLeftMouseDown, view, point, flags, clickCount)];
}

void dragTo(NSView *view, NSPoint point, NSUInteger flags) {
  [NSApp sendEvent:mouseEvent(NSLeftMouseDragged, view, point, flags)];
}

void release(NSView *view, NSPoint point, NSUInteger flags, NSInteger clickCount) {
  [NSApp sendEvent:mouseEvent(NSLeftMouseUp, view, point, flags, clickCount)];
}

void click(NSView *view, NSPoint point, NSUInteger flags) {
  press(view, point, flags);
  release(view, point, flags);
}

void post(NSEvent *event) { [NSApp postEvent:event atStart:NO]; }

void type(NSWindow *window, NSString *characters, NSUInteger flags) {
  for (NSUInteger i = 0; i < [characters length]; i++) {
    post(keyEvent(window, [characters substringWithRange:NSMakeRange(i, 1)], flags));
    pumpPending();
  }
}

NSPoint screenPoint(NSView *view, NSPoint point) {
  return [[view window] convertBaseToScreen:[view convertPoint:point toView:nil]];
}

NSPoint viewPoint(NSView *view, NSPoint onScreen) {
  return [view convertPoint:[[view window] convertScreenToBase:onScreen] fromView:nil];
}

void warpPointer(NSView *view, NSPoint point) {
  [GSServerForWindow([view window]) setMouseLocation:screenPoint(view, point) onScreen:0];
}

}  // namespace ov::test
