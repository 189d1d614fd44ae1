// Presses, drags and releases: clicks, rubber bands, and the start of an item drag.

#import <OvAppKit/HXAutoScrollManager.h>
#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/OvMatrixView.h>

#include "matrix/BandSelection.h"
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
  _state->bandRecord = nil;

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
  // The editor, or a panel that the delegate has run, may have taken the release.
  [_state->toolTips mouseReleased];
}

#pragma mark Drag

- (void)mouseDragged:(NSEvent *)event {
  _mouseDragged = YES;
  const BOOL mayDragItems = _flags.allowsBeginDragging && _flags.dataSourceRespondsToWriteItems &&
                            !_draggingRefused && [self _isValidItemIndex:_mouseDownItemIndex] &&
                            !(_mouseDownFlags & (NSShiftKeyMask | NSCommandKeyMask));
  if (mayDragItems) {
    if ([self _startDragging:event]) {
      [_state->toolTips mouseReleased];  // the platform's drag has taken the release
      return;
    }
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

// Whether no subclass has rules of its own.
- (BOOL)_ovHasStandardBandRules {
  const SEL covered = @selector(_itemIndexesForMouseDraggedColumns:rows:mouseDownFlags:);
  const SEL combination = @selector(_selectionInfoForMouseDraggedItemIndexes:
                                                selectionInfoBeforeMouseDown:mouseDownFlags:);
  return OvInheritsMethod(self, @selector(itemIndexesAtColumns:rows:), [HXMatrixView class]) &&
         OvInheritsMethod(self, covered, [HXMatrixView class]) &&
         (OvInheritsMethod(self, combination, [HXMatrixView class]) ||
          OvInheritsMethod(self, combination, [OvMatrixView class]));
}

// What the band covers by the standard rules, to be compared from step to step; NO where it
// cannot be.
- (BOOL)_ovTakeCoverage:(ov::BandCoverage *)coverage columns:(NSRange)columns rows:(NSRange)rows {
  if (![self _ovHasStandardBandRules]) return NO;
  const int behavior = _mouseDownFlags & NSAlternateKeyMask
                           ? [self alternateMultipleSelectionBehaviorForDragging]
                           : [self multipleSelectionBehaviorForDragging];
  switch (behavior) {
    case HXMatrixViewRectangularSelection:
      *coverage = {_numberOfColumns, _numberOfItems, ov::fromNS(columns), ov::fromNS(rows)};
      return _numberOfColumns > 0;
    case HXMatrixViewLinearSelection: {
      NSIndexSet *covered = [self _itemIndexesForMouseDraggedColumns:columns
                                                                rows:rows
                                                      mouseDownFlags:_mouseDownFlags];
      const NSUInteger count = [covered count];
      *coverage =
          ov::BandCoverage::range(_numberOfItems, {count > 0 ? [covered firstIndex] : 0, count});
      return YES;
    }
    default:
      return NO;
  }
}

// Whether the next step can go on from the last one: no delegate has a say, and nobody else
// has touched the selection or the layout.
- (BOOL)_ovCanStepFrom:(const ov::BandCoverage &)from to:(const ov::BandCoverage &)to {
  if (![self _ovBandRecordIsCurrent] || !from.sameLayout(to) || ![self _ovAllowsEveryItem]) {
    return NO;
  }
  // Not with a record that a host has put together: items, but no anchor.
  return [_selectionInfoBeforeMouseDown firstSelectionIndex] != NSNotFound ||
         [_selectionInfoBeforeMouseDown count] == 0;
}

- (ov::BandMode)_ovBandMode {
  if (_mouseDownFlags & NSShiftKeyMask) {
    return [self isKindOfClass:[OvMatrixView class]] ? ov::BandMode::toggle : ov::BandMode::extend;
  }
  return _mouseDownFlags & NSCommandKeyMask ? ov::BandMode::toggle : ov::BandMode::replace;
}

// Whether the record is still as the last step left it.
- (BOOL)_ovBandRecordIsCurrent {
  return _state->bandRecord == _selectionInfo &&
         _state->bandChangeCount == [_selectionInfo _ovChangeCount];
}

// YES if the selection changed.
- (BOOL)_ovSelectBandOverColumns:(NSRange)columns rows:(NSRange)rows {
  ov::BandCoverage coverage;
  const BOOL comparable = [self _ovTakeCoverage:&coverage columns:columns rows:rows];
  BOOL changed = NO;
  BOOL done = NO;
  if (comparable && [self _ovCanStepFrom:_state->band to:coverage]) {
    const ov::BandMode mode = [self _ovBandMode];
    const ov::BandStep step =
        ov::bandStep(_selectionInfoBeforeMouseDown, _state->band, coverage, mode);
    [self _ovAnnounceAdded:step.added removed:step.removed];
    changed = !step.isEmpty();
    // The delegate was told meanwhile and may have changed the selection.
    done = [self _ovBandRecordIsCurrent];
    if (done && changed) {
      ov::applyBandStep(step, _selectionInfo, _selectionInfoBeforeMouseDown, coverage, mode);
    }
  }
  if (!done) {
    // Computed afresh from the selection at the press, so that moving the band back undoes
    // what it did.
    NSIndexSet *covered = [self _itemIndexesForMouseDraggedColumns:columns
                                                              rows:rows
                                                    mouseDownFlags:_mouseDownFlags];
    HXMatrixViewSelectionInfo *info =
        [self _selectionInfoForMouseDraggedItemIndexes:covered
                          selectionInfoBeforeMouseDown:_selectionInfoBeforeMouseDown
                                        mouseDownFlags:_mouseDownFlags];
    NSIndexSet *added = ov::difference([info selectionIndexes], [_selectionInfo selectionIndexes]);
    NSIndexSet *removed =
        ov::difference([_selectionInfo selectionIndexes], [info selectionIndexes]);
    // After a step that the delegate disturbed there is nothing new to tell it.
    if (!changed) [self _ovAnnounceAdded:added removed:removed];
    if ([added count] > 0 || [removed count] > 0) {
      [self _ovAdoptSelectionInfo:[info retain]];
      changed = YES;
    }
  }
  _state->band = coverage;
  _state->bandRecord = comparable ? _selectionInfo : nil;
  _state->bandChangeCount = [_selectionInfo _ovChangeCount];
  return changed;
}

- (void)_ovAnnounceAdded:(NSIndexSet *)added removed:(NSIndexSet *)removed {
  if ([added count] > 0) [self _didSelectItemIndexes:added];
  [self setNeedsDisplayAtItemIndexes:added];
  [self setNeedsDisplayAtItemIndexes:removed];
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
  [_state->toolTips mouseReleased];
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
