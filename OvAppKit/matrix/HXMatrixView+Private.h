// What the files of the grid share and a host does not see.

#pragma once

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#include "matrix/BandCoverage.h"
#include "matrix/GridGeometry.h"
#include "platform/ToolTipRegions.h"
#include "platform/TrackingRects.h"

// State beyond the promised variables.
struct OvMatrixViewState {
  explicit OvMatrixViewState(NSView *view) : trackingRects(view) {
    toolTips = [[_OvToolTipRegions alloc] initWithView:view trackingRects:&trackingRects];
  }
  ~OvMatrixViewState() {
    [toolTips viewWillDeallocate];
    [toolTips release];
  }
  OvMatrixViewState(const OvMatrixViewState &) = delete;
  OvMatrixViewState &operator=(const OvMatrixViewState &) = delete;

  ov::TrackingRects trackingRects;
  _OvToolTipRegions *toolTips = nil;
  // The part of the document that was visible when the drop ring was drawn last.
  NSRect ringFrame = NSZeroRect;
  // What the rubber band covered at its last step, and the record it left; the next step
  // goes on from there if nobody else has changed either.
  ov::BandCoverage band;
  HXMatrixViewSelectionInfo *bandRecord = nil;  // not retained: only compared
  NSUInteger bandChangeCount = 0;
  // Editing is being ended: making the view first responder ends it once more.
  bool endingEditing = false;
};

@interface HXMatrixView (OvPrivate)

// The layout as a value, for the rules.
- (ov::GridGeometry)_ovGrid;
- (ov::GridFit)_ovFit;

// The scroll view that this view is the document of, or nil.
- (NSScrollView *)_ovScrollView;
// The visible part of the document, or the bounds outside a scroll view.
- (NSRect)_ovVisibleFrame;

// Gives every item a tool tip without naming them one by one. NO when a subclass has its
// own idea of cell frames or tool-tip rectangles, which must then be asked.
- (BOOL)_ovAddToolTipsForItemsWithOwner:(id)owner;

// The whole-view drop ring is to be drawn elsewhere, the visible rectangle having moved.
- (void)_ovMarkRingMovedFrom:(NSRect)oldFrame to:(NSRect)newFrame;
- (BOOL)_ovShowsRingAroundView;

// Whether every item may be selected, so that whole ranges need not be asked for one by one.
- (BOOL)_ovAllowsEveryItem;

// Makes another record current, taking over the caller's reference.
- (void)_ovAdoptSelectionInfo:(HXMatrixViewSelectionInfo *)info;

@end

@interface HXMatrixViewSelectionInfo (OvPrivate)
// Grows with each message that edits the record.
- (NSUInteger)_ovChangeCount;
@end

// Whether a class does by itself what another class up its line does.
inline bool OvInheritsMethod(id object, SEL selector, Class ancestor) {
  return [object methodForSelector:selector] == [ancestor instanceMethodForSelector:selector];
}
