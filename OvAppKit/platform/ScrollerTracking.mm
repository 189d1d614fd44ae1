#include "platform/ScrollerTracking.h"

#import <GNUstepGUI/GSTheme.h>
#import <OvAppKit/HXScroller.h>

#include "support/Methods.h"

static NSScrollerPart OvPageInsteadOfLine(NSScrollerPart part) {
  if (part == NSScrollerDecrementLine) return NSScrollerDecrementPage;
  return part == NSScrollerIncrementLine ? NSScrollerIncrementPage : part;
}

@implementation NSScroller (OvScrollerArrows)

+ (int)_arrowsConfig {
  return [[GSTheme theme] scrollerArrowsSameEndForScroller:nil] ? 3 : 1;
}

@end

@implementation NSScroller (OvScrollerTracking)

- (void)drawArrow:(NSScrollerArrow)arrow highlightPart:(NSInteger)highlightPart {
  // Not by a message: a subclass's drawArrow:highlight: may have come here.
  const SEL name = @selector(drawArrow:highlight:);
  const auto draw = ov::asFunction<void(id, SEL, NSScrollerArrow, BOOL)>(
      [NSScroller instanceMethodForSelector:name]);
  draw(self, name, arrow, highlightPart == static_cast<NSInteger>(arrow));
}

- (void)trackPagingArea:(NSEvent *)event {
  [self ov_repeatActionForEvent:event delay:0.3F period:0.1F];
}

- (void)ov_repeatActionForEvent:(NSEvent *)event delay:(float)delay period:(float)period {
  const NSScrollerPart part = _hitPart;
  const BOOL isArrow = part == NSScrollerDecrementLine || part == NSScrollerIncrementLine;
  const BOOL pages = ([event modifierFlags] & NSAlternateKeyMask) != 0;
  const NSScrollerPart told = pages ? OvPageInsteadOfLine(part) : part;
  NSPoint pointer = [event locationInWindow];
  BOOL wasOnPart = NO;
  BOOL isDue = YES;
  [NSEvent startPeriodicEventsAfterDelay:delay withPeriod:period];
  @try {
    while (event != nil && [event type] != NSLeftMouseUp) {
      if ([event type] != NSPeriodic) pointer = [event locationInWindow];
      // An action may have taken the scroller away, or left it nothing to scroll.
      const BOOL isOnPart = _window != nil && _scFlags.isEnabled && [self testPart:pointer] == part;
      if (isArrow && isOnPart != wasOnPart) [self highlight:isOnPart];
      wasOnPart = isOnPart;
      if (isOnPart && (isDue || [event type] == NSPeriodic)) {
        _hitPart = told;
        [self sendAction:_action to:_target];
        _hitPart = part;
      }
      isDue = NO;
      event =
          [NSApp nextEventMatchingMask:NSLeftMouseUpMask | NSLeftMouseDraggedMask | NSPeriodicMask
                             untilDate:[NSDate distantFuture]
                                inMode:NSEventTrackingRunLoopMode
                               dequeue:YES];
    }
  } @finally {
    [NSEvent stopPeriodicEvents];
  }
}

@end
