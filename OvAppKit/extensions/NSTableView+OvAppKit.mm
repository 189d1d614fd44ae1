#import <OvAppKit/NSTableView+OvAppKit.h>

#include "extensions/RowClicks.h"
#import "platform/DragOutcome.h"

@implementation NSTableView (HXAppKitExtensions)

- (NSTableColumn *)tableColumnAtColumn:(NSInteger)column {
  if (column < 0 || column >= [self numberOfColumns]) return nil;
  return [[self tableColumns] objectAtIndex:column];
}

- (NSMenu *)menuForEvent:(NSEvent *)event {
  if (event == nil) return ov::menuOfAnyView(self, nil);
  const ov::RowClick click = ov::rowClick(self, event);
  ov::selectForMenu(self, click, [&] {
    id delegate = [self delegate];
    bool allowed = true;
    if ([delegate respondsToSelector:@selector(tableView:shouldSelectRow:)]) {
      allowed = [delegate tableView:self shouldSelectRow:click.row];
    }
    if ([delegate respondsToSelector:@selector(tableView:shouldSelectTableColumn:)]) {
      allowed = allowed && [delegate tableView:self shouldSelectTableColumn:click.tableColumn];
    }
    return allowed;
  });
  id source = [self dataSource];
  if ([source respondsToSelector:@selector(tableView:contextMenuForTableColumn:row:)]) {
    return [source tableView:self contextMenuForTableColumn:click.tableColumn row:click.row];
  }
  return ov::menuOfAnyView(self, event);
}

- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  id source = [self dataSource];
  if ([source respondsToSelector:@selector(tableView:draggingSourceOperationMaskForLocal:)]) {
    return [source tableView:self draggingSourceOperationMaskForLocal:isLocal];
  }
  return ov::usualDragOperations(isLocal);
}

- (void)draggedImage:(NSImage *)image beganAt:(NSPoint)point {
  // The first message of a drag.
  OvWatchDrags();
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(tableView:draggedImage:beganAt:)]) return;
  [source tableView:self draggedImage:image beganAt:point];
}

- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation {
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(tableView:draggedImage:endedAt:operation:)]) return;
  [source tableView:self
       draggedImage:image
            endedAt:point
          operation:OvOutcomeOfDrag(self, operation)];
}

- (void)draggedImage:(NSImage *)image movedTo:(NSPoint)point {
  id source = [self dataSource];
  if (![source respondsToSelector:@selector(tableView:draggedImage:movedTo:)]) return;
  [source tableView:self draggedImage:image movedTo:point];
}

@end
