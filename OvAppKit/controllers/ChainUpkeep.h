// What the chains of dynamic responders need to hear of windows and window controllers. The
// platform announces neither of these, so a method of NSWindow and one of NSWindowController
// are extended when the first responder gets a window:
//
// A window that is deallocated would leave its responders a dangling pointer. Before it goes,
// every responder's window becomes nil.
//
// A window controller that takes over a window puts itself next to the window, in front of
// the responders, where AppKit's users expect it behind them. They are put back in front of
// it, in the order that they had.

#pragma once

#import <OvAppKit/HXDynamicResponder.h>

namespace ov {

// Each responder that has had a window stays known until it is forgotten.
void rememberResponder(HXDynamicResponder *responder);
void forgetResponder(HXDynamicResponder *responder);

}  // namespace ov
