// A right click in a table or an outline, and the selection that follows it.

#pragma once

#import <AppKit/AppKit.h>

#include <functional>

namespace ov {

// -1 and nil where there is no row or column.
struct RowClick {
  NSInteger row = -1;
  NSInteger column = -1;
  NSTableColumn *tableColumn = nil;
};

RowClick rowClick(NSTableView *table, NSEvent *event);

// Clears the selection after a click on nothing; selects the row alone if it is not selected
// and `allowed` answers so, which is asked only then.
void selectForMenu(NSTableView *table, const RowClick &click, const std::function<bool()> &allowed);

// The menu that any view would show.
NSMenu *menuOfAnyView(NSTableView *table, NSEvent *event);

// Unless its data source tells otherwise, what may be done with rows that are dragged.
NSDragOperation usualDragOperations(bool isLocal);

}  // namespace ov
