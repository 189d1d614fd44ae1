// The grid as the source and the destination of a drag.

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>

#import "matrix/HXMatrixView+Private.h"
#include "platform/DragImage.h"
#include "support/GeometryBridge.h"
#include "support/IndexRanges.h"

// A picture of more would not be seen, and could not be had.
static const CGFloat OvLargestDragImage = 4096;

namespace {

// What the drawing of a drag image needs.
struct DragImagePainter {
  HXMatrixView *view;
  NSCell *cell;
  NSIndexSet *indexes;
  NSPoint origin;

  static void draw(void *context) {
    const DragImagePainter &painter = *static_cast<DragImagePainter *>(context);
    ov::forEachIndex(painter.indexes, [&](NSUInteger index) {
      [painter.view _setupCellWithItemIndex:index forDragImage:YES];
      const NSRect frame = [painter.view frameOfCellAtItemIndex:index];
      [painter.cell drawWithFrame:NSOffsetRect(frame, -painter.origin.x, -painter.origin.y)
                           inView:painter.view];
    });
  }
};

}  // namespace

@implementation HXMatrixView (HXMatrixViewDragging)

- (void)setAllowsBeginDragging:(BOOL)flag {
  _flags.allowsBeginDragging = flag ? 1 : 0;
}

- (BOOL)allowsBeginDragging {
  return _flags.allowsBeginDragging;
}

- (NSUInteger)proposedDragOperation {
  return proposedDragOperation;
}

- (NSUInteger)draggingDestinationItemIndex {
  return draggingDestinationItemIndex;
}

- (NSUInteger)draggingLocationItemIndex {
  return draggingLocationItemIndex;
}

#pragma mark Source

- (BOOL)_startDragging:(NSEvent *)event {
  NSIndexSet *indexes = [_selectionInfo containsIndex:_mouseDownItemIndex]
                            ? [self selectedItemIndexes]
                            : [NSIndexSet indexSetWithIndex:_mouseDownItemIndex];
  NSPasteboard *pasteboard = [NSPasteboard pasteboardWithName:NSDragPboard];
  if (![dataSource matrixView:self writeItemsWithIndexes:indexes toPasteboard:pasteboard]) {
    return NO;
  }

  const NSPoint pointer = [self convertPoint:[event locationInWindow] fromView:nil];
  const BOOL flipped = [self isFlipped];
  NSPoint location = NSZeroPoint;
  NSSize offset = NSZeroSize;
  NSImage *image = nil;
  if (_flags.dataSourceRespondsToDragImage) {
    image = [dataSource matrixView:self dragImageForItemIndexes:indexes];
  }
  if (image != nil) {
    const NSSize size = [image size];
    location = NSMakePoint(pointer.x - size.width / 2,
                           flipped ? pointer.y + size.height / 2 : pointer.y - size.height / 2);
  } else {
    image = [self _dragImageForItemIndexes:indexes event:event imageLocation:&location];
    // The platform moves the image by the offset in the screen's orientation.
    const CGFloat dy = pointer.y - _mouseDownLocation.y;
    offset = NSMakeSize(pointer.x - _mouseDownLocation.x, flipped ? -dy : dy);
  }
  [self dragImage:image
               at:location
           offset:offset
            event:event
       pasteboard:pasteboard
           source:self
        slideBack:YES];
  return YES;
}

- (NSImage *)_dragImageForItemIndexes:(NSIndexSet *)indexes
                                event:(NSEvent *)event
                        imageLocation:(NSPointPointer)location {
  (void)event;
  NSIndexSet *shown = indexes;
  NSRect frame = NSZeroRect;
  if ([self enclosingScrollView] == nil) frame = [self frameOfCellsAtItemIndexes:indexes];
  if ([self enclosingScrollView] != nil || NSWidth(frame) > OvLargestDragImage ||
      NSHeight(frame) > OvLargestDragImage) {
    shown = [self _ovItemIndexes:indexes
                          inRect:[self enclosingScrollView] != nil ? [self _ovVisibleFrame]
                                                                   : [self visibleRect]];
    frame = [self frameOfCellsAtItemIndexes:shown];
  }
  if (location != nullptr) {
    *location = NSMakePoint(NSMinX(frame), [self isFlipped] ? NSMaxY(frame) : NSMinY(frame));
  }

  DragImagePainter painter = {self, dataCell, shown, frame.origin};
  NSImage *opaque =
      OvImageDrawnByView(frame.size, [self isFlipped], &DragImagePainter::draw, &painter);
  NSImage *image = [[[NSImage alloc] initWithSize:frame.size] autorelease];
  if (opaque == nil) return image;
  [image lockFocus];
  [opaque dissolveToPoint:NSZeroPoint fraction:0.5];
  [image unlockFocus];
  return image;
}

// The items of a set whose cells overlap a rectangle; takes the time of that rectangle's
// cells, not of the set.
- (NSIndexSet *)_ovItemIndexes:(NSIndexSet *)indexes inRect:(NSRect)rect {
  NSMutableIndexSet *result = [[[NSMutableIndexSet alloc] init] autorelease];
  NSIndexSet *candidates = [self itemIndexesAtColumns:[self columnsInRect:rect]
                                                 rows:[self rowsInRect:rect]];
  ov::forEachIndex(candidates, [&](NSUInteger index) {
    if ([indexes containsIndex:index] &&
        NSIntersectsRect([self frameOfCellAtItemIndex:index], rect)) {
      [result addIndex:index];
    }
  });
  return result;
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  if (_flags.dataSourceRespondsToDraggingSourceOperationMask) {
    return [dataSource matrixView:self draggingSourceOperationMaskForLocal:isLocal];
  }
  return isLocal ? NSDragOperationMove : NSDragOperationCopy;
}

- (void)draggedImage:(NSImage *)image beganAt:(NSPoint)point {
  if (_flags.dataSourceRespondsToDraggedImageBeganAt) {
    [dataSource matrixView:self draggedImage:image beganAt:point];
  }
}

- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  if (_flags.dataSourceRespondsToDraggedImageEndedAt) {
    [dataSource matrixView:self draggedImage:image endedAt:point operation:operation];
  }
}

- (void)draggedImage:(NSImage *)image movedTo:(NSPoint)point {
  if (_flags.dataSourceRespondsToDraggedImageMovedTo) {
    [dataSource matrixView:self draggedImage:image movedTo:point];
  }
}

#pragma mark Destination

- (NSUInteger)_ovItemIndexUnderDrag:(id<NSDraggingInfo>)info {
  return [self itemIndexAtPoint:[self convertPoint:[info draggingLocation] fromView:nil]];
}

// Asks for a drop on an item, and when it refuses for one on the whole view; *target
// becomes what was asked for last.
- (NSDragOperation)_ovOperationForDrag:(id<NSDraggingInfo>)info target:(NSUInteger *)target {
  NSDragOperation operation = [dataSource matrixView:self
                                        validateDrop:info
                                   proposedItemIndex:*target];
  if (operation == NSDragOperationNone && [self _isValidItemIndex:*target]) {
    *target = NSNotFound;
    operation = [dataSource matrixView:self validateDrop:info proposedItemIndex:NSNotFound];
  }
  return operation;
}

- (void)_ovMarkDropTarget:(NSUInteger)target {
  if (target == NSNotFound) {
    [self setNeedsDisplay:YES];
  } else {
    [self setNeedsDisplayAtItemIndex:target];
  }
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  if (!_flags.dataSourceRespondsToValidateDrop) return NSDragOperationNone;
  NSUInteger target = [self _ovItemIndexUnderDrag:info];
  draggingLocationItemIndex = target;
  draggingDestinationItemIndex = NSNotFound;
  proposedDragOperation = NSDragOperationNone;
  const NSDragOperation operation = [self _ovOperationForDrag:info target:&target];
  if (operation != proposedDragOperation) {
    draggingDestinationItemIndex = target;
    proposedDragOperation = operation;
    [self _ovMarkDropTarget:target];
  }
  return proposedDragOperation;
}

- (NSDragOperation)draggingUpdated:(id<NSDraggingInfo>)info {
  if (!_flags.dataSourceRespondsToValidateDrop) return NSDragOperationNone;
  NSUInteger target = [self _ovItemIndexUnderDrag:info];
  if (target != draggingLocationItemIndex) {
    draggingLocationItemIndex = target;
    const NSDragOperation operation = [self _ovOperationForDrag:info target:&target];
    [self _ovMarkDropTarget:draggingDestinationItemIndex];
    draggingDestinationItemIndex = target;
    proposedDragOperation = operation;
    [self _ovMarkDropTarget:target];
  }
  return proposedDragOperation;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
  (void)info;
  if (!_flags.dataSourceRespondsToValidateDrop) return;
  proposedDragOperation = NSDragOperationNone;
  [self _ovMarkDropTarget:draggingDestinationItemIndex];
  draggingLocationItemIndex = NSNotFound;
  draggingDestinationItemIndex = NSNotFound;
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  if (!_flags.dataSourceRespondsToValidateDrop) return NO;
  const NSUInteger target = draggingDestinationItemIndex;
  proposedDragOperation = NSDragOperationNone;
  [self _ovMarkDropTarget:target];
  const BOOL accepted = _flags.dataSourceRespondsToAcceptDrop && [dataSource matrixView:self
                                                                             acceptDrop:info
                                                                              itemIndex:target];
  draggingLocationItemIndex = NSNotFound;
  draggingDestinationItemIndex = NSNotFound;
  return accepted;
}

@end
