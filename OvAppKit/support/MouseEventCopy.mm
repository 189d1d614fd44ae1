#include "support/MouseEventCopy.h"

namespace ov {

NSEvent *mouseEventLike(NSEvent *event, NSEventType type, NSPoint locationInWindow) {
  if (event == nil) return nil;
  // Other events raise when they are asked for what a mouse button has.
  constexpr NSUInteger kMouse = NSLeftMouseDownMask | NSLeftMouseUpMask | NSLeftMouseDraggedMask |
                                NSRightMouseDownMask | NSRightMouseUpMask |
                                NSRightMouseDraggedMask | NSOtherMouseDownMask |
                                NSOtherMouseUpMask | NSOtherMouseDraggedMask | NSMouseMovedMask;
  const bool isMouse = (NSEventMaskFromType([event type]) & kMouse) != 0;
  return [NSEvent mouseEventWithType:type
                            location:locationInWindow
                       modifierFlags:[event modifierFlags]
                           timestamp:[event timestamp]
                        windowNumber:[event windowNumber]
                             context:[event context]
                         eventNumber:isMouse ? [event eventNumber] : 0
                          clickCount:isMouse ? [event clickCount] : 1
                            pressure:isMouse ? [event pressure] : 0];
}

}  // namespace ov
