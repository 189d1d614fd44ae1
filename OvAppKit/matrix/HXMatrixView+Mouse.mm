// Presses, drags and releases: clicks, rubber bands, and the start of an item drag.

#import <OvAppKit/HXAutoScrollManager.h>
#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#import "matrix/HXMatrixView+Private.h"
#include "matrix/RubberBand.h"
#include "support/GeometryBridge.h"
#include "support/IndexRanges.h"

@implementation HXMatrixView (HXMatrixViewMouse)

- (NSUInteger)mouseDownFlags {
  return _mouseDownFlags;
}

- (NSPoint)mouseDownLocation {
  return _mouseDownLocation;
}

- (BOOL)inDragSelection {
  return _flags.inDragSelection != 0;
}

- (void)willStartDragSelection {
  if (_flags.delegateRespondsToWillStartDragSelection) {
    [delegate matrixViewWillStartDragSelection:self];
  }
}

- (void)didEndDragSelection {
  if (_flags.delegateRespondsToDidEndDragSelection) {
    [delegate matrixViewDidEndDragSelection:self];
  }
}

- (void)setMouseTrackingEnabled:(BOOL)flag {
  if (flag && _mouseTrackingManager == nil) {
    _mouseTrackingManager = [[HXMatrixViewMouseTrackingManager alloc] initWithMatrixView:self];
  } else if (!flag) {
    [_mouseTrackingManager release];
    _mouseTrackingManager = nil;
  }
}

- (BOOL)mouseTrackingEnabled {
  return _mouseTrackingManager != nil;
}

#pragma mark Press

- (void)mouseDown:(NSEvent *)event {
  [_state->toolTips mousePressed];
  [[self window] makeFirstResponder:self];
  [[self window] endEditingFor:nil];

  [_selectionInfoBeforeMouseDown release];
  _selectionInfoBeforeMouseDown =
      [[HXMatrixViewSelectionInfo alloc] initWithSelectionInfo:_selectionInfo];
  _mouseDownFlags = [event modifierFlags];
  _mouseDownLocation = [self convertPoint:[event locationInWindow] fromView:nil];
  _mouseDownItemIndex = [self itemIndexAtPoint:_mouseDownLocation];
  _mouseDowned = YES;
  _mouseDragged = NO;
  _draggingRefused = NO;
  _rubberBandFrame = NSZeroRect;
  _rubberBandColumns = NSMakeRange(0, 0);
  _rubberBandRows = NSMakeRange(0, 0);

  const NSInteger clicks = [event clickCount];
  if (clicks > 0 && clicks % 2 == 0 && [self _isValidItemIndex:_mouseDownItemIndex]) {
    [self _ovDoubleClickItem:_mouseDownItemIndex withEvent:event];
  }
}

- (void)_ovDoubleClickItem:(NSUInteger)index withEvent:(NSEvent *)event {
  if ([dataCell isEditable] && (!_flags.delegateRespondsToShouldEditItem ||
                                [delegate matrixView:self shouldEditItemIndex:index])) {
    [self editItemAtIndex:index withEvent:event select:YES];
  } else if (_flags.delegateRespondsToCellDoubleClicked) {
    [delegate matrixView:self cellDoubleClickedAtItemIndex:index];
  }
}

#pragma mark Drag

- (void)mouseDragged:(NSEvent *)event {
  _mouseDragged = YES;
  const BOOL mayDragItems = _flags.allowsBeginDragging && _flags.dataSourceRespondsToWriteItems &&
                            !_draggingRefused && [self _isValidItemIndex:_mouseDownItemIndex] &&
                            !(_mouseDownFlags & (NSShiftKeyMask | NSCommandKeyMask));
  if (mayDragItems) {
    if ([self _startDragging:event]) return;
    _draggingRefused = YES;
  } else if (_selectionInfoBeforeMouseDown == nil) {
    return;
  }

  if (_flags.inDragSelection == 0) {
    [self willStartDragSelection];
    _flags.inDragSelection = 1;
  }
  [[HXAutoScrollManager sharedManager] start:event];
  [self autoscroll:event];

  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  const NSRect band = [self _rubberBandRectWithMouseDownPoint:_mouseDownLocation
                                            mouseDraggedPoint:point];
  const NSRange columns = [self columnsInRect:band];
  const NSRange rows = [self rowsInRect:band];
  BOOL selectionChanged = NO;
  if (!NSEqualRanges(columns, _rubberBandColumns) || !NSEqualRanges(rows, _rubberBandRows)) {
    selectionChanged = [self _ovSelectBandOverColumns:columns rows:rows];
  }
  const ov::DirtyStrips strips = ov::stripsBetween(ov::fromNS(_rubberBandFrame), ov::fromNS(band));
  for (int i = 0; i < strips.count; ++i) {
    [self setNeedsDisplayInRect:ov::toNS(strips.rects[static_cast<std::size_t>(i)])];
  }

  _rubberBandFrame = band;
  _rubberBandColumns = columns;
  _rubberBandRows = rows;
  [self displayIfNeeded];
  if (selectionChanged) [self _selectionDidChange];
}

// Computed afresh from the selection at the press, so that moving the band back undoes
// what it did. YES if the selection changed.
- (BOOL)_ovSelectBandOverColumns:(NSRange)columns rows:(NSRange)rows {
  NSIndexSet *covered = [self _itemIndexesForMouseDraggedColumns:columns
                                                            rows:rows
                                                  mouseDownFlags:_mouseDownFlags];
  HXMatrixViewSelectionInfo *info =
      [self _selectionInfoForMouseDraggedItemIndexes:covered
                        selectionInfoBeforeMouseDown:_selectionInfoBeforeMouseDown
                                      mouseDownFlags:_mouseDownFlags];
  NSIndexSet *added = ov::difference([info selectionIndexes], [_selectionInfo selectionIndexes]);
  NSIndexSet *removed = ov::difference([_selectionInfo selectionIndexes], [info selectionIndexes]);
  if ([added count] == 0 && [removed count] == 0) return NO;
  if ([added count] > 0) {
    [self _didSelectItemIndexes:added];
    [self setNeedsDisplayAtItemIndexes:added];
  }
  [self setNeedsDisplayAtItemIndexes:removed];
  [self _ovAdoptSelectionInfo:[info retain]];
  return YES;
}

- (NSRect)_rubberBandRectWithMouseDownPoint:(NSPoint)mouseDownPoint
                          mouseDraggedPoint:(NSPoint)mouseDraggedPoint {
  ov::Point dragged = ov::fromNS(mouseDraggedPoint);
  NSScrollView *scrollView = [self enclosingScrollView];
  if (scrollView != nil) {
    dragged = ov::clampInto(dragged, ov::fromNS([scrollView documentVisibleRect]));
  }
  return ov::toNS(ov::rectBetween(ov::fromNS(mouseDownPoint), dragged));
}

#pragma mark Release

- (void)mouseUp:(NSEvent *)event {
  [[HXAutoScrollManager sharedManager] stop];
  if (_mouseDragged) {
    if (_flags.inDragSelection != 0) {
      [self didEndDragSelection];
      _flags.inDragSelection = 0;
    }
  } else if (_mouseDowned) {
    [self mouseClicked:event];
  }
  _mouseDowned = NO;
  _mouseDragged = NO;
  if (!NSIsEmptyRect(_rubberBandFrame)) {
    [self setNeedsDisplayInRect:_rubberBandFrame];
    _rubberBandFrame = NSZeroRect;
  }
  [_selectionInfoBeforeMouseDown release];
  _selectionInfoBeforeMouseDown = nil;
}

@end
