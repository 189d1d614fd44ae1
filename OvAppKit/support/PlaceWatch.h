// Tells when a view has come to lie elsewhere on the screen, by itself or with what is around it:
// moved, resized, scrolled, hidden, put into another window, or its window was moved or left the
// screen. The pointer, which may rest meanwhile, gives no sign of any of these.

#pragma once

#import <AppKit/AppKit.h>

#include <vector>

@interface _OvPlaceWatch : NSObject {
  NSView *_view;
  id _target;
  SEL _action;
  std::vector<NSView *> _observed;  // the view and those around it; only compared
  NSRect _place;
}

// Neither is retained; -stop before one of them dies. The action has no argument.
- (id)initWithView:(NSView *)view target:(id)target action:(SEL)action;

// The part of the view that can be seen, on the screen, when it was last looked at; empty while
// none can.
- (NSRect)place;

// Looks where the view is now, and sends the action where that is elsewhere.
- (void)lookAgain;
// The same, without a word.
- (void)settle;

- (void)stop;

@end
