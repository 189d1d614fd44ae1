// The platform's list of tracking rectangles, without two of its faults.
//
// It looks through all rectangles for a free tag at each addition, and for the tag at
// each removal; a grid re-installs a hundred at every scroll step. And its window walks
// the list by bare pointers while it tells owners of the pointer, so that an owner that
// removes a rectangle from inside mouseEntered: leaves it with a freed one.
// Removable once the platform numbers its rectangles and keeps them for the walk.

#pragma once

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTrackingRect.h>

namespace ov {

class TrackingRects {
 public:
  explicit TrackingRects(NSView *view) : view_(view) {}

  // The tag, never 0 and never used again; 0 when there are too many already (the window
  // copies the whole list to its stack at every mouse move). The kind is the class of the
  // rectangle, the platform's or one derived from it.
  NSTrackingRectTag add(NSRect rect, id owner, void *userData, bool assumeInside,
                        Class kind = [GSTrackingRect class]);
  // The first one of a class, or nil.
  GSTrackingRect *find(Class kind) const;
  // NO for an unknown tag.
  bool remove(NSTrackingRectTag tag);

  // The rectangles that the platform's own tool tips have made.
  NSUInteger countOfPlatformToolTips() const;

  static constexpr NSUInteger kMost = 1 << 16;

 private:
  NSMutableArray *list() const;

  NSView *view_;                        // not retained: it owns this object
  mutable NSMutableArray *list_ = nil;  // the view's, which keeps the same one
  NSTrackingRectTag lastTag_ = 0;
};

}  // namespace ov
