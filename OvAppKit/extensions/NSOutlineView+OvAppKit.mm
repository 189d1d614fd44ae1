#import <OvAppKit/NSOutlineView+OvAppKit.h>
#import <OvAppKit/NSTableView+OvAppKit.h>

#include "extensions/RowClicks.h"
#import "platform/DragOutcome.h"

@implementation NSOutlineView (HXAppKitExtensions)

- (id)selectedItem {
  return [self numberOfSelectedRows] < 2 ? nil : [self itemAtRow:[self selectedRow]];
}

- (NSArray *)selectedItems {
  NSIndexSet *rows = [self selectedRowIndexes];
  NSMutableArray *items = [NSMutableArray arrayWithCapacity:[rows count]];
  for (NSUInteger row = [rows firstIndex]; row != NSNotFound;
       row = [rows indexGreaterThanIndex:row]) {
    id item = [self itemAtRow:row];
    if (item != nil) [items addObject:item];
  }
  return [[items copy] autorelease];
}

- (id)parentItemForRow:(NSInteger)row childIndex:(NSInteger *)childIndex {
  if (childIndex != nullptr) *childIndex = 0;
  if (row < 0 || row >= [self numberOfRows]) return nil;
  const NSInteger level = [self levelForRow:row];
  NSInteger siblings = 0;
  id parent = nil;
  for (NSInteger above = row - 1; above >= -1; --above) {
    const NSInteger levelAbove = [self levelForRow:above];
    if (levelAbove < level) {
      parent = [self itemAtRow:above];
      break;
    }
    if (levelAbove == level) ++siblings;
  }
  if (childIndex != nullptr) *childIndex = siblings;
  return parent;
}

- (NSMenu *)menuForEvent:(NSEvent *)event {
  if (event == nil) return ov::menuOfAnyView(self, nil);
  const ov::RowClick click = ov::rowClick(self, event);
  id item = [self itemAtRow:click.row];
  ov::selectForMenu(self, click, [&] {
    id delegate = [self delegate];
    bool allowed = true;
    if ([delegate respondsToSelector:@selector(outlineView:shouldSelectItem:)]) {
      allowed = [delegate outlineView:self shouldSelectItem:item];
    }
    if ([delegate respondsToSelector:@selector(outlineView:shouldSelectTableColumn:)]) {
      allowed = allowed && [delegate outlineView:self shouldSelectTableColumn:click.tableColumn];
    }
    return allowed;
  });
  id source = [self dataSource];
  if ([source respondsToSelector:@selector(outlineView:contextMenuForTableColumn:byItem:)]) {
    return [source outlineView:self contextMenuForTableColumn:click.tableColumn byItem:item];
  }
  return ov::menuOfAnyView(self, event);
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  id source = [self dataSource];
  if ([source respondsToSelector:@selector(outlineView:draggingSourceOperationMaskForLocal:)]) {
    return [source outlineView:self draggingSourceOperationMaskForLocal:isLocal];
  }
  return ov::usualDragOperations(isLocal);
}

- (void)draggedImage:(NSImage *)image beganAt:(NSPoint)point {
  // The first message of a drag.
  OvWatchDrags();
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(outlineView:draggedImage:beganAt:)]) return;
  [source outlineView:self draggedImage:image beganAt:point];
}

- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(outlineView:draggedImage:endedAt:operation:)]) return;
  [source outlineView:self
         draggedImage:image
              endedAt:point
            operation:OvOutcomeOfDrag(self, operation)];
}

- (void)draggedImage:(NSImage *)image movedTo:(NSPoint)point {
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(outlineView:draggedImage:movedTo:)]) return;
  [source outlineView:self draggedImage:image movedTo:point];
}

@end
