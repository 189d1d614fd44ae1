// Editing an item in place, and the context menu.

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#import "matrix/HXMatrixView+Private.h"
#include "support/Retained.h"

@implementation HXMatrixView (HXMatrixViewEditing)

- (NSUInteger)editedItemIndex {
  return editedItemIndex;
}

- (void)editItemAtIndex:(NSUInteger)index withEvent:(NSEvent *)event select:(BOOL)flag {
  if (![self _isValidItemIndex:index]) return;
  // The platform does not end the editing of one item before it sets its editor up for the
  // next, and then works with a clip view that is gone.
  if (editedItemIndex != NSNotFound) [[self window] endEditingFor:nil];
  NSText *editor = [[self window] fieldEditor:YES forObject:self];
  editedItemIndex = index;
  if (_flags.dataCellRespondsToSetProposedDragOperation) {
    [(id)dataCell setProposedDragOperation:0];
  }
  [dataCell setHighlighted:[_selectionInfo containsIndex:index]];
  [dataCell setObjectValue:[dataSource matrixView:self
                               objectValueForCell:dataCell
                                      atItemIndex:index]];
  [dataCell editWithFrame:[self frameOfCellAtItemIndex:index]
                   inView:self
                   editor:editor
                 delegate:self
                    event:event];
  if (flag) [editor selectAll:self];
}

- (void)textDidEndEditing:(NSNotification *)notification {
  editedItemIndex = NSNotFound;
  // The platform sends this while the editor is still first responder, so that taking its
  // place ends the editing, and sends this, again.
  if (_state->endingEditing) return;
  _state->endingEditing = true;
  const auto editor = ov::retain([notification object]);
  const auto clipView = ov::retain<NSView *>(
      [editor.get() isKindOfClass:[NSText class]] ? [(NSText *)editor.get() superview] : nil);
  [[self window] makeFirstResponder:self];
  // The platform wraps the editor in a clip view and leaves that behind in this view.
  if ([clipView.get() isKindOfClass:[NSClipView class]] && [clipView.get() superview] == self) {
    [dataCell endEditing:editor.get()];
    [clipView.get() removeFromSuperview];
  }
  _state->endingEditing = false;
}

- (NSMenu *)menuForEvent:(NSEvent *)event {
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  const NSUInteger index = [self itemIndexAtPoint:point];
  if (index == NSNotFound) {
    [self deselectAll:self];
  } else if (![_selectionInfo containsIndex:index] && [self _shouldSelectItemIndex:index]) {
    [self selectItem:index byExtendingSelection:NO];
  }
  // Asked of the data source, sent to the delegate: kept as it has always been.
  if (_flags.dataSourceRespondsToContextMenuForCell) {
    if (![delegate respondsToSelector:@selector(matrixView:contextMenuForCell:atItemIndex:)]) {
      return nil;
    }
    return [delegate matrixView:self contextMenuForCell:dataCell atItemIndex:index];
  }
  return [super menuForEvent:event];
}

@end
