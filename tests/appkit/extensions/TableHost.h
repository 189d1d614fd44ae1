// A data source and delegate of tables and outlines that has only the optional methods it is
// told to have, and notes their calls; and drags of rows.

#pragma once

#import <AppKit/AppKit.h>

#include <set>
#include <string>
#include <vector>

#import "RealDrag.h"

// A table of `rows` rows. An outline: the top level has `tree`'s roots, "a" has "a1", "a2" and
// "a3", "a2" has "a2x" and "a2y", "b" has none.
@interface OvTestTableHost : NSObject {
 @public
  std::set<std::string> has;
  std::vector<std::string> calls;
  NSInteger rows;
  NSMenu *menu;
  BOOL allowsRow;
  BOOL allowsColumn;
  BOOL writes;
  NSDragOperation mask;
  NSMutableArray *values;
}
- (int)countOf:(const std::string &)call;
@end

// A place for drops.
@interface OvTestTrash : NSView {
 @public
  NSDragOperation answer;
  BOOL performs;
  int performed;
}
@end

namespace ov::test {

NSTableColumn *column(NSString *identifier, CGFloat width);

// The middle of a cell, and a place below the last row.
NSPoint cellPoint(NSTableView *table, NSInteger row, NSInteger column);

std::string selectedRows(NSTableView *table);

// Presses on a selected row, starts a drag sideways, visits the stops, releases at the last.
bool dragRows(NSTableView *table, NSPoint from, const std::vector<DragStop> &stops);

// Delivers a right click through the queue, with the release.
void rightClick(NSView *view, NSPoint point);

}  // namespace ov::test
