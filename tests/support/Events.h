// Events made in the test. Places are in the view's own coordinates.

#pragma once

#import <AppKit/AppKit.h>

namespace ov::test {

NSEvent *mouseEvent(NSEventType type, NSView *view, NSPoint point, NSUInteger flags = 0,
                    NSInteger clickCount = 1);
NSEvent *keyEvent(NSWindow *window, NSString *characters, NSUInteger flags = 0);

// Shows the window and gives it the keyboard; answers whether that worked.
bool bringToFront(NSWindow *window);

// Deliver through the application, as the event loop does. A press brings the window to the
// front first, since the platform gives clicks in other windows to the window alone.
void press(NSView *view, NSPoint point, NSUInteger flags = 0, NSInteger clickCount = 1);
void dragTo(NSView *view, NSPoint point, NSUInteger flags = 0);
void release(NSView *view, NSPoint point, NSUInteger flags = 0, NSInteger clickCount = 1);
void click(NSView *view, NSPoint point, NSUInteger flags = 0);

// Put into the queue; nothing happens before the loop runs.
void post(NSEvent *event);

// Types one key after another through the queue and lets each be handled.
void type(NSWindow *window, NSString *characters, NSUInteger flags = 0);

// A place in the view as a place on the screen (y up), and the other way round.
NSPoint screenPoint(NSView *view, NSPoint point);
NSPoint viewPoint(NSView *view, NSPoint onScreen);

// Puts the real pointer there.
void warpPointer(NSView *view, NSPoint point);

}  // namespace ov::test
