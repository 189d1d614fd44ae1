#include "platform/TrackingRects.h"

#include <algorithm>

namespace ov {

NSMutableArray *TrackingRects::list() const {
  // The variable is private to the platform's library; key-value coding reaches it.
  if (list_ == nil) list_ = [view_ valueForKey:@"tracking_rects"];
  return list_;
}

NSTrackingRectTag TrackingRects::add(NSRect rect, id owner, void *userData, bool assumeInside,
                                     Class kind) {
  NSMutableArray *rects = list();
  if ([rects count] >= kMost) return 0;
  lastTag_ = std::max(lastTag_, [(GSTrackingRect *)[rects lastObject] tag]) + 1;
  GSTrackingRect *added = [[kind alloc] initWithRect:rect
                                                 tag:lastTag_
                                               owner:owner
                                            userData:userData
                                              inside:assumeInside];
  [rects addObject:added];
  [added release];
  view_->_rFlags.has_trkrects = 1;
  return lastTag_;
}

GSTrackingRect *TrackingRects::find(Class kind) const {
  for (GSTrackingRect *rect in list()) {
    if ([rect isKindOfClass:kind]) return rect;
  }
  return nil;
}

bool TrackingRects::remove(NSTrackingRectTag tag) {
  NSMutableArray *rects = list();
  // Tags only grow, so the list is sorted by them.
  NSUInteger low = 0;
  NSUInteger high = [rects count];
  while (low < high) {
    const NSUInteger middle = low + (high - low) / 2;
    if ([(GSTrackingRect *)[rects objectAtIndex:middle] tag] < tag) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  if (low == [rects count]) return false;
  GSTrackingRect *found = [rects objectAtIndex:low];
  if ([found tag] != tag) return false;
  [found invalidate];
  [[found retain] autorelease];  // outlives the walk that may be under way
  [rects removeObjectAtIndex:low];
  if ([rects count] == 0) view_->_rFlags.has_trkrects = 0;
  return true;
}

NSUInteger TrackingRects::countOfPlatformToolTips() const {
  if (!view_->_rFlags.has_tooltips) return 0;
  const Class tips = NSClassFromString(@"GSToolTips");
  NSUInteger count = 0;
  for (GSTrackingRect *rect in list()) count += [[rect owner] isKindOfClass:tips];
  return count;
}

}  // namespace ov
