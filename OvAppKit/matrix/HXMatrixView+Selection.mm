// The selection: calls from the host, clicks, and the rules of Shift, Command and the
// rubber band.

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/HXMatrixViewSelectionManager.h>

#include <algorithm>

#import "matrix/HXMatrixView+Private.h"
#include "support/IndexRanges.h"

static NSIndexSet *OvRange(NSUInteger a, NSUInteger b) {
  const NSUInteger low = std::min(a, b);
  const NSUInteger high = std::max(a, b);
  if (high >= NSNotFound) return [NSIndexSet indexSet];
  return [NSIndexSet indexSetWithIndexesInRange:NSMakeRange(low, high - low + 1)];
}

@implementation HXMatrixView (HXMatrixViewSelection)

#pragma mark Behaviours and options

- (void)setMultipleSelectionBehavior:(int)behavior {
  [_selectionManager setMultipleSelectionBehavior:behavior];
}

- (int)multipleSelectionBehavior {
  return [_selectionManager multipleSelectionBehavior];
}

- (void)setAlternateMultipleSelectionBehavior:(int)behavior {
  [_selectionManager setAlternateMultipleSelectionBehavior:behavior];
}

- (int)alternateMultipleSelectionBehavior {
  return [_selectionManager alternateMultipleSelectionBehavior];
}

- (void)setMultipleSelectionBehaviorForDragging:(int)behavior {
  [_selectionManager setMultipleSelectionBehaviorForDragging:behavior];
}

- (int)multipleSelectionBehaviorForDragging {
  return [_selectionManager multipleSelectionBehaviorForDragging];
}

- (void)setAlternateMultipleSelectionBehaviorForDragging:(int)behavior {
  [_selectionManager setAlternateMultipleSelectionBehaviorForDragging:behavior];
}

- (int)alternateMultipleSelectionBehaviorForDragging {
  return [_selectionManager alternateMultipleSelectionBehaviorForDragging];
}

- (void)setAllowsMultipleSelection:(BOOL)flag {
  _flags.allowsMultipleSelection = flag ? 1 : 0;
  if (flag || [_selectionInfo count] < 2) return;
  const NSUInteger kept = [_selectionInfo lastSelectionIndex];
  NSMutableIndexSet *others = [[[_selectionInfo selectionIndexes] mutableCopy] autorelease];
  if (kept != NSNotFound) [others removeIndex:kept];
  [self setNeedsDisplayAtItemIndexes:others];
  [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndex:kept]];
  [self _selectionDidChange];
}

- (BOOL)allowsMultipleSelection {
  return _flags.allowsMultipleSelection;
}

- (void)setAllowsEmptySelection:(BOOL)flag {
  _flags.allowsEmptySelection = flag ? 1 : 0;
  if (flag || [_selectionInfo count] > 0 || _numberOfItems == 0) return;
  [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndex:0]];
  [self setNeedsDisplayAtItemIndex:0];
  [self _selectionDidChange];
}

- (BOOL)allowsEmptySelection {
  return _flags.allowsEmptySelection;
}

#pragma mark The record

- (HXMatrixViewSelectionInfo *)_selectionInfo {
  return _selectionInfo;
}

- (void)_ovAdoptSelectionInfo:(HXMatrixViewSelectionInfo *)info {
  // A caller up the stack may still be using the old one.
  [_selectionInfo autorelease];
  _selectionInfo = info;
  if (_state != nullptr) _state->bandRecord = nil;
}

- (NSUInteger)numberOfSelectedItems {
  return [_selectionInfo count];
}

- (NSIndexSet *)selectedItemIndexes {
  NSIndexSet *indexes = [_selectionInfo selectionIndexes];
  if (indexes == nil) return [NSIndexSet indexSet];
  return [[[NSIndexSet alloc] initWithIndexSet:indexes] autorelease];
}

- (BOOL)isItemSelected:(NSUInteger)index {
  return [_selectionInfo containsIndex:index];
}

#pragma mark The delegate

- (BOOL)_shouldSelectItemIndex:(NSUInteger)index {
  if (!_flags.delegateRespondsToShouldSelectItem) return YES;
  return [delegate matrixView:self shouldSelectItemIndex:index];
}

- (void)_didSelectItemIndex:(NSUInteger)index {
  if (_flags.delegateRespondsToDidSelectItemIndex) {
    [delegate matrixView:self didSelectItemIndex:index];
  }
}

- (void)_didSelectItemIndexes:(NSIndexSet *)indexes {
  if (_flags.delegateRespondsToDidSelectItemIndexes) {
    [delegate matrixView:self didSelectItemIndexes:indexes];
  } else if (_flags.delegateRespondsToDidSelectItemIndex) {
    ov::forEachIndex(
        indexes, [&](NSUInteger index) { [delegate matrixView:self didSelectItemIndex:index]; });
  }
}

- (void)_selectionDidChange {
  [[NSNotificationCenter defaultCenter]
      postNotificationName:HXMatrixViewSelectionDidChangeNotification
                    object:self];
}

// Shows and announces a change.
- (void)_ovFinishSelection {
  [self displayIfNeeded];
  [self _selectionDidChange];
}

- (BOOL)_ovAllowsEveryItem {
  return !_flags.delegateRespondsToShouldSelectItem &&
         OvInheritsMethod(self, @selector(_shouldSelectItemIndex:), [HXMatrixView class]);
}

// The indexes of a set that may be selected.
- (NSIndexSet *)_ovAllowedAmong:(NSIndexSet *)indexes {
  if ([self _ovAllowsEveryItem]) return indexes;
  NSMutableIndexSet *allowed = [[[NSMutableIndexSet alloc] init] autorelease];
  ov::forEachIndex(indexes, [&](NSUInteger index) {
    if ([self _shouldSelectItemIndex:index]) [allowed addIndex:index];
  });
  return allowed;
}

#pragma mark Calls from the host

- (void)selectItem:(NSUInteger)index byExtendingSelection:(BOOL)extend {
  if (!extend) {
    [self setNeedsDisplayAtItemIndexes:[_selectionInfo selectionIndexes]];
    [_selectionInfo removeAllIndexes];
  }
  if ([_selectionInfo containsIndex:index]) return;
  [_selectionInfo addIndex:index];
  [self setNeedsDisplayAtItemIndex:index];
  [self _ovFinishSelection];
}

- (void)selectItemsWithIndexes:(NSIndexSet *)indexes {
  NSIndexSet *wanted = indexes != nil ? indexes : [NSIndexSet indexSet];
  NSIndexSet *current = [_selectionInfo selectionIndexes];
  if ([wanted isEqualToIndexSet:current]) return;
  [self setNeedsDisplayAtItemIndexes:ov::difference(current, wanted)];
  [self setNeedsDisplayAtItemIndexes:ov::difference(wanted, current)];
  [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndexes:wanted]];
  [self _ovFinishSelection];
}

- (void)selectAll:(id)sender {
  (void)sender;
  const NSUInteger count = [_selectionInfo count];
  if (!_flags.allowsMultipleSelection || count >= _numberOfItems) return;
  const NSRange all = NSMakeRange(0, _numberOfItems);
  if (count == 0) {
    [self setNeedsDisplay:YES];
  } else {
    NSIndexSet *everything = [NSIndexSet indexSetWithIndexesInRange:all];
    [self
        setNeedsDisplayAtItemIndexes:ov::difference(everything, [_selectionInfo selectionIndexes])];
  }
  [_selectionInfo addIndexesInRange:all];
  [self _ovFinishSelection];
}

- (void)deselectAll:(id)sender {
  (void)sender;
  const NSUInteger count = [_selectionInfo count];
  if (!_flags.allowsEmptySelection || count == 0) return;
  if (count == _numberOfItems) {
    [self setNeedsDisplay:YES];
  } else {
    [self setNeedsDisplayAtItemIndexes:[_selectionInfo selectionIndexes]];
  }
  [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] init]];
  [self _ovFinishSelection];
}

#pragma mark Clicks

- (void)mouseClicked:(NSEvent *)event {
  (void)event;
  const NSUInteger index = _mouseDownItemIndex;
  if (![self _isValidItemIndex:index]) {
    [self deselectAll:self];
    return;
  }
  if (_mouseDownFlags & NSShiftKeyMask) {
    [self _ovExtendSelectionToItem:index];
  } else if (_mouseDownFlags & NSCommandKeyMask) {
    [self _ovToggleItem:index];
  } else {
    [self _ovSelectOnlyItem:index];
  }
  if (_flags.delegateRespondsToCellClicked && [self _isValidItemIndex:index]) {
    [delegate matrixView:self cellClickedAtItemIndex:index];
  }
}

- (void)_ovExtendSelectionToItem:(NSUInteger)index {
  if ([_selectionInfo count] == 0) {
    [self _ovAddItem:index];
    return;
  }
  NSIndexSet *covered = [self _itemIndexesForMouseDownItemIndex:index
                                                 mouseDownFlags:_mouseDownFlags];
  if (covered == nil) covered = [NSIndexSet indexSet];
  NSIndexSet *added = ov::difference(covered, [_selectionInfo selectionIndexes]);
  if (_flags.delegateRespondsToShouldSelectItem) added = [self _ovAllowedAmong:added];
  const BOOL adds = [added count] > 0;
  if (adds) {
    // All of it, refused items included, as long as one was accepted.
    [_selectionInfo addIndexes:covered];
    [self _didSelectItemIndexes:added];
    [self setNeedsDisplayAtItemIndexes:added];
  }
  NSIndexSet *removed = ov::difference([_selectionInfo selectionIndexes], covered);
  const BOOL removes = [removed count] > 0;
  if (removes) {
    [_selectionInfo removeIndexes:removed];
    [self setNeedsDisplayAtItemIndexes:removed];
  }
  if (adds || removes) [self _ovFinishSelection];
}

- (void)_ovToggleItem:(NSUInteger)index {
  if (![_selectionInfo containsIndex:index]) {
    [self _ovAddItem:index];
    return;
  }
  [_selectionInfo removeIndex:index];
  [self setNeedsDisplayAtItemIndex:index];
  [self _ovFinishSelection];
}

- (void)_ovAddItem:(NSUInteger)index {
  if (![self _shouldSelectItemIndex:index]) return;
  [_selectionInfo addIndex:index];
  [self _didSelectItemIndex:index];
  [self setNeedsDisplayAtItemIndex:index];
  [self _ovFinishSelection];
}

- (void)_ovSelectOnlyItem:(NSUInteger)index {
  const BOOL wasSelected = [_selectionInfo containsIndex:index];
  if (wasSelected && [_selectionInfo count] == 1) return;
  if (!wasSelected && ![self _shouldSelectItemIndex:index]) return;
  NSMutableIndexSet *others = [[[_selectionInfo selectionIndexes] mutableCopy] autorelease];
  [others removeIndex:index];
  [self setNeedsDisplayAtItemIndexes:others];
  [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] initWithSelectionIndex:index]];
  if (!wasSelected) {
    [self _didSelectItemIndex:index];
    [self setNeedsDisplayAtItemIndex:index];
  }
  [self _ovFinishSelection];
}

#pragma mark Rules

- (NSIndexSet *)_itemIndexesForMouseDownItemIndex:(NSUInteger)index
                                   mouseDownFlags:(NSUInteger)flags {
  const int behavior = flags & NSAlternateKeyMask
                           ? [_selectionManager alternateMultipleSelectionBehavior]
                           : [_selectionManager multipleSelectionBehavior];
  switch (behavior) {
    case HXMatrixViewRectangularSelection: {
      const NSUInteger anchor = [_selectionInfo firstSelectionIndex];
      const NSUInteger columnA = [self columnAtItemIndex:anchor];
      const NSUInteger columnB = [self columnAtItemIndex:index];
      const NSUInteger rowA = [self rowAtItemIndex:anchor];
      const NSUInteger rowB = [self rowAtItemIndex:index];
      const NSUInteger column = std::min(columnA, columnB);
      const NSUInteger row = std::min(rowA, rowB);
      return [self itemIndexesAtColumns:NSMakeRange(column, std::max(columnA, columnB) - column + 1)
                                   rows:NSMakeRange(row, std::max(rowA, rowB) - row + 1)];
    }
    case HXMatrixViewLinearSelection:
      return OvRange([_selectionInfo lastSelectionIndex], index);
    default:
      return nil;
  }
}

- (NSIndexSet *)_itemIndexesForMouseDraggedColumns:(NSRange)columns
                                              rows:(NSRange)rows
                                    mouseDownFlags:(NSUInteger)flags {
  const int behavior = flags & NSAlternateKeyMask
                           ? [_selectionManager alternateMultipleSelectionBehaviorForDragging]
                           : [_selectionManager multipleSelectionBehaviorForDragging];
  switch (behavior) {
    case HXMatrixViewRectangularSelection:
      return [self itemIndexesAtColumns:columns rows:rows];
    case HXMatrixViewLinearSelection: {
      if (columns.length == 0 || rows.length == 0) return [NSIndexSet indexSet];
      const NSUInteger start = [self itemIndexAtColumn:columns.location row:rows.location];
      const NSUInteger end = [self itemIndexAtColumn:NSMaxRange(columns) - 1
                                                 row:NSMaxRange(rows) - 1];
      if (start == NSNotFound && end == NSNotFound) return [NSIndexSet indexSet];
      return OvRange(start == NSNotFound ? 0 : start, end == NSNotFound ? _numberOfItems - 1 : end);
    }
    default:
      return [NSIndexSet indexSet];
  }
}

- (HXMatrixViewSelectionInfo *)_selectionInfoForMouseDraggedItemIndexes:(NSIndexSet *)indexes
                                           selectionInfoBeforeMouseDown:
                                               (HXMatrixViewSelectionInfo *)info
                                                         mouseDownFlags:(NSUInteger)flags {
  if (indexes == nil) indexes = [NSIndexSet indexSet];
  if (flags & NSShiftKeyMask) {
    HXMatrixViewSelectionInfo *result =
        [[[HXMatrixViewSelectionInfo alloc] initWithSelectionInfo:info] autorelease];
    [result addIndexes:[self _ovAllowedAmong:ov::difference(indexes, [info selectionIndexes])]];
    return result;
  }
  if (flags & NSCommandKeyMask) return [self _ovToggle:indexes in:info];

  HXMatrixViewSelectionInfo *result = [[[HXMatrixViewSelectionInfo alloc] init] autorelease];
  if ([self _ovAllowsEveryItem]) {
    [result addIndexes:indexes];
    return result;
  }
  // What the live selection holds already was allowed before and is not asked again.
  ov::forEachIndex(indexes, [&](NSUInteger index) {
    if ([_selectionInfo containsIndex:index] || [self _shouldSelectItemIndex:index]) {
      [result addIndex:index];
    }
  });
  return result;
}

// The record with each index of a set toggled, in ascending order, so that its two ends
// move as they would index by index. Neighbours that go the same way go together.
- (HXMatrixViewSelectionInfo *)_ovToggle:(NSIndexSet *)indexes
                                      in:(HXMatrixViewSelectionInfo *)info {
  HXMatrixViewSelectionInfo *result =
      [[[HXMatrixViewSelectionInfo alloc] initWithSelectionInfo:info] autorelease];
  NSIndexSet *fresh = ov::difference(indexes, [info selectionIndexes]);
  NSIndexSet *removed = ov::difference(indexes, fresh);
  NSIndexSet *added = [self _ovAllowedAmong:fresh];
  NSUInteger nextRemoved = [removed firstIndex];
  NSUInteger nextAdded = [added firstIndex];
  while (nextRemoved != NSNotFound || nextAdded != NSNotFound) {
    if (nextRemoved < nextAdded) {
      const NSUInteger end = ov::endOfRun(removed, nextRemoved);
      [result removeIndexesInRange:NSMakeRange(nextRemoved, end - nextRemoved)];
      nextRemoved = [removed indexGreaterThanIndex:end - 1];
    } else {
      const NSUInteger end = ov::endOfRun(added, nextAdded);
      [result addIndexesInRange:NSMakeRange(nextAdded, end - nextAdded)];
      [result setLastSelectionIndex:end - 1];
      nextAdded = [added indexGreaterThanIndex:end - 1];
    }
  }
  return result;
}

@end
