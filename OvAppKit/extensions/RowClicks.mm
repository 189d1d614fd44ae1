#include "extensions/RowClicks.h"

#import <OvAppKit/NSTableView+OvAppKit.h>

#import "support/Methods.h"

namespace ov {

RowClick rowClick(NSTableView *table, NSEvent *event) {
  const NSPoint point = [table convertPoint:[event locationInWindow] fromView:nil];
  RowClick click;
  click.row = [table rowAtPoint:point];
  click.column = [table columnAtPoint:point];
  // The platform takes what lies beside the last column for a part of it.
  const NSInteger last = [table numberOfColumns] - 1;
  if (click.column == last && last >= 0 && point.x >= NSMaxX([table rectOfColumn:last])) {
    click.column = -1;
  }
  click.tableColumn = [table tableColumnAtColumn:click.column];
  return click;
}

void selectForMenu(NSTableView *table, const RowClick &click,
                   const std::function<bool()> &allowed) {
  if (click.row < 0 || click.column < 0) {
    [table deselectAll:nil];
  } else if (![table isRowSelected:click.row] && allowed()) {
    [table selectRow:click.row byExtendingSelection:NO];
  }
}

NSMenu *menuOfAnyView(NSTableView *table, NSEvent *event) {
  // An outline's superclass is the table, whose own menus would ask about rows.
  const SEL selector = @selector(menuForEvent:);
  const IMP method = [[NSTableView superclass] instanceMethodForSelector:selector];
  return asFunction<NSMenu *(id, SEL, NSEvent *)>(method)(table, selector, event);
}

NSDragOperation usualDragOperations(bool isLocal) {
  return isLocal ? NSDragOperationMove : NSDragOperationCopy;
}

}  // namespace ov
