// What the files of the split view share and a host does not see.

#pragma once

#import <OvAppKit/OvSplitView.h>

#include <memory>
#include <vector>

#include "platform/ToolTipRegions.h"
#include "platform/TrackingRects.h"
#import "split/DeferredDefault.h"

// State beyond the promised variables.
struct OvSplitViewState {
  explicit OvSplitViewState(NSView *view) : trackingRects(view) {
    toolTips = [[_OvToolTipRegions alloc] initWithView:view trackingRects:&trackingRects];
  }
  ~OvSplitViewState() {
    [toolTips viewWillDeallocate];
    [toolTips release];
  }
  OvSplitViewState(const OvSplitViewState &) = delete;
  OvSplitViewState &operator=(const OvSplitViewState &) = delete;

  ov::TrackingRects trackingRects;
  _OvToolTipRegions *toolTips = nil;
  // A collapsed pane is being expanded for want of another one to take the space.
  bool expandingForSpace = false;
  // The platform has changed the size, and not laid out yet.
  bool resizing = false;
  // The panes that the layout under way has marked for display; not retained, only compared.
  std::vector<NSView *> marked;
  // Takes what is saved under the autosave name while a divider is dragged.
  std::unique_ptr<ov::DeferredDefault> dragSaves;
  // What of the view could be seen when the tool tips were installed.
  NSRect tipsVisibleRect = NSZeroRect;
};

// Where collapsed panes are parked.
static const CGFloat OvOffscreen = 1000000;

@interface OvSplitView (OvPrivate)

- (void)_setup;
- (void)_setupCursors;
// For a system of that version; see OvGestaltOSVersion().
- (void)_ovSetupCursorsForSystemVersion:(int)version;

// One number for each pane; any other count changes nothing.
- (void)_updateSubviewsWithThicknesses:(NSArray *)thicknesses;
- (void)_collapsedSubviewsToOffscreen;

- (void)_updateDividers;
- (void)_setDividerAtIndex:(uint32_t)index toDistanceFromBase:(float)distance;
- (NSInteger)_dividerIndexUnderMouse:(NSPoint)point;
// Where a divider begins on the axis.
- (float)_ovOriginOfDivider:(NSInteger)index;
- (void)_resetToolTipRect;
// The dividers, or what stands over them, changed.
- (void)_ovCursorRectsDidChange;

- (void)_ovDragDivider:(NSInteger)index withEvent:(NSEvent *)event;

+ (NSString *)_userDefaultsKeyForName:(NSString *)name;
- (void)_saveLayoutUsingAutosaveName:(NSNotification *)notification;
// Only while there is an autosave name.
- (void)_ovObserveOwnResizes;

@end

// The part of a rectangle that lies along, or across, a split view's axis.
namespace ov {

inline CGFloat alongAxis(NSPoint point, BOOL vertical) { return vertical ? point.x : point.y; }
inline CGFloat alongAxis(NSSize size, BOOL vertical) { return vertical ? size.width : size.height; }
inline CGFloat acrossAxis(NSSize size, BOOL vertical) {
  return vertical ? size.height : size.width;
}
inline NSRect rectOnAxis(CGFloat origin, CGFloat length, CGFloat across, BOOL vertical) {
  return vertical ? NSMakeRect(origin, 0, length, across) : NSMakeRect(0, origin, across, length);
}

}  // namespace ov
