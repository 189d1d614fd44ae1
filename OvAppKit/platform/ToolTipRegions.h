// A view's own list of tool-tip rectangles.
//
// The platform's list cuts each rectangle to the view's present bounds, adds none while a
// tip is about to show, skips every second one when it removes all, and takes time that
// grows with the square of their number. This one keeps every rectangle as it was given,
// gives the platform's window only those that are visible now, and shows the texts in the
// platform's own tip window. A grid's rectangles, one per item, are kept as the grid's
// geometry, whatever their number. Removable once the platform's list has these qualities.

#pragma once

#import <AppKit/AppKit.h>

#include <vector>

#include "matrix/GridGeometry.h"
#include "platform/TrackingRects.h"
#include "support/Retained.h"

namespace ov {

struct ToolTip {
  NSToolTipTag tag = 0;
  NSRect rect = NSZeroRect;
  id owner = nil;             // not retained, unless text is
  Retained<NSString *> text;  // for an owner that is no provider: what it stood for
  void *userData = nullptr;
};

}  // namespace ov

@interface _OvToolTipRegions : NSObject {
  NSView *_view;                      // not retained: it owns this object
  ov::TrackingRects *_trackingRects;  // the view's
  std::vector<ov::ToolTip> _tips;     // ascending by tag
  ov::GridGeometry _grid;             // one tip per item, tags from _gridTag on
  NSToolTipTag _gridTag;
  id _gridOwner;  // nil without grid tips; not retained
  NSToolTipTag _lastTag;
  std::vector<NSTrackingRectTag> _installed;
  NSToolTipTag _entered;  // the tip that shows or is about to, or 0
  BOOL _pointerInside;    // the pointer came into a tip and was not seen to leave
  BOOL _asking;           // a tip's text is being asked for
  BOOL _pressed;          // a mouse button is down
}

- (id)initWithView:(NSView *)view trackingRects:(ov::TrackingRects *)trackingRects;

// -1 for an empty rectangle or no owner.
- (NSToolTipTag)addRect:(NSRect)rect owner:(id)owner userData:(void *)userData;
// One tip for each item of a grid, with the item index as user data.
- (void)addGrid:(const ov::GridGeometry &)grid owner:(id)owner;
// NO for an unknown tag.
- (BOOL)removeTag:(NSToolTipTag)tag;
- (void)removeAll;

// What is visible has changed: by scrolling, resizing, a new window, or a new list.
- (void)visibleRectDidChange;
// While a mouse button is down no tip shows: one that does, or is about to, is hidden.
- (void)mousePressed;
- (void)mouseReleased;
// Forgets the view, which is going away.
- (void)viewWillDeallocate;

@end
