// A mouse event like another one at a new place: controls that pop a menu up under
// themselves hand one on whose location is where the menu shall open.

#pragma once

#import <AppKit/AppKit.h>

namespace ov {

// Autoreleased. The modifier flags, timestamp, window number and graphics context are the
// event's, and so are the event number, click count and pressure of one that has them; from
// others (a key, a periodic event) these are 0, 1 and 0. The type must be one of a mouse
// button's or a mouse move's; nil without an event.
NSEvent *mouseEventLike(NSEvent *event, NSEventType type, NSPoint locationInWindow);

}  // namespace ov
