#import <OvAppKit/OvSelectableButton.h>

#include "platform/MenuPopUp.h"
#include "support/MouseEventCopy.h"

namespace {

// How long the mouse is held until the menu appears, in seconds.
constexpr NSTimeInterval kHold = 0.5;

// Where along the left edge the menu appears, as a part of the bounds' height.
constexpr CGFloat kBeside = 0.5;
constexpr CGFloat kBelow = 1;

}  // namespace

@implementation OvSelectableButton

- (id)initWithFrame:(NSRect)frame {
  return [super initWithFrame:frame];
}

- (void)setAllowPushIn:(BOOL)flag {
  _allowPushIn = flag;
}

- (BOOL)allowPushIn {
  return _allowPushIn;
}

- (void)mouseDown:(NSEvent *)event {
  if (![self isEnabled]) return;
  // What the menu or the action does may be the end of the button.
  [[self retain] autorelease];
  [self highlight:YES];
  @try {
    if ([self menu] == nil) {
      [super mouseDown:event];
    } else if (_allowPushIn) {
      [self _ovWaitAfter:event];
    } else {
      [self _ovPopUpMenuAt:kBeside event:event];
    }
  } @finally {
    [self highlight:NO];
  }
}

// A person who uses the keyboard has no other way to the menu.
- (void)keyDown:(NSEvent *)event {
  if ([self menu] == nil || ![self isEnabled] || ![self _ovOpensMenu:event]) {
    [super keyDown:event];
    return;
  }
  [[self retain] autorelease];
  [self highlight:YES];
  @try {
    [self _ovPopUpMenuAt:_allowPushIn ? kBelow : kBeside event:event];
  } @finally {
    [self highlight:NO];
  }
}

- (BOOL)_ovOpensMenu:(NSEvent *)key {
  NSString *characters = [key characters];
  if ([characters length] != 1) return NO;
  const unichar character = [characters characterAtIndex:0];
  return character == NSDownArrowFunctionKey || (character == ' ' && !_allowPushIn);
}

- (void)_ovWaitAfter:(NSEvent *)event {
  NSEvent *next = [[self window] nextEventMatchingMask:NSLeftMouseUpMask | NSLeftMouseDraggedMask
                                             untilDate:[NSDate dateWithTimeIntervalSinceNow:kHold]
                                                inMode:NSEventTrackingRunLoopMode
                                               dequeue:YES];
  if (next == nil) {
    [self _ovPopUpMenuAt:kBelow event:event];
  } else if ([next type] == NSLeftMouseDragged) {
    [self setNeedsDisplay:YES];
    [self mouseDragged:next];
  } else {
    [self _ovSendActionToTarget];
    [self setNeedsDisplay:YES];
  }
}

- (void)_ovSendActionToTarget {
  const SEL action = [self action];
  id target = [self target];
  if (action == NULL || ![target respondsToSelector:action]) return;
  [target performSelector:action withObject:self];
}

- (void)_ovPopUpMenuAt:(CGFloat)height event:(NSEvent *)event {
  const NSRect bounds = [self bounds];
  const NSPoint anchor = NSMakePoint(NSMinX(bounds), NSMinY(bounds) + NSHeight(bounds) * height);
  const NSEventType type = [event type] == NSKeyDown ? NSLeftMouseDown : [event type];
  NSEvent *opening = ov::mouseEventLike(event, type, [self convertPoint:anchor toView:nil]);
  ov::popUpMenu([self menu], opening, self, nil);
}

@end
