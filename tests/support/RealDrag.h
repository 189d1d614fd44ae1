// A whole drag session with the platform's own dragging, from a press in one view to a
// release anywhere.

#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <vector>

namespace ov::test {

// Where a drag goes after its press: places in a view.
struct DragStop {
  NSView *view;
  NSPoint point;
};

enum class DragDriver {
  posted,  // the press and the release are posted, the pointer is warped
  xtest    // everything comes from the display server
};

// Presses in the view, moves a little so that the drag starts, visits the stops, releases
// at the last one. Answers whether all of it happened. The view's window must be on screen.
bool dragThrough(NSView *view, NSPoint from, const std::vector<DragStop> &stops,
                 DragDriver driver = DragDriver::posted, NSUInteger flags = 0,
                 NSSize firstMove = NSMakeSize(6, 4));

}  // namespace ov::test
