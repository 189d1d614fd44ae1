#import <AppKit/AppKit.h>

/** A context menu for every table view of the program, and a word of the data source in the
    drags of its rows.

      - (NSMenu *)tableView:(NSTableView *)table
          contextMenuForTableColumn:(NSTableColumn *)column
                                row:(NSInteger)row {
        return row < 0 ? nil : [self menuForTown:[towns objectAtIndex:row]];
      }

    These methods take the place of the platform's in all table views, not only in those of a
    subclass. A table whose data source and delegate have none of the methods of
    `OvTableViewHelpers` selects, edits and drags as it always did, but for the two changes
    that `menuForEvent:` and `draggingSourceOperationMaskForLocal:` tell of. Outline views have
    methods of their own: `NSOutlineView+OvAppKit.h`. */
@interface NSTableView (HXAppKitExtensions)

/** The column at an index in the present order of the columns; nil where there is none, also
    for a negative index. */
- (NSTableColumn *)tableColumnAtColumn:(NSInteger)column;

/** The menu for a right click. First the selection follows the click:

    - on no row or no column, `deselectAll:`;
    - on a row that is not selected, that row alone becomes selected, unless the delegate
      refuses the row (`tableView:shouldSelectRow:`) or the column
      (`tableView:shouldSelectTableColumn:`), in this order;
    - on a selected row, the whole selection stays.

    Then the data source is asked for the menu, whatever became of the selection:
    `tableView:contextMenuForTableColumn:row:`. Where it has no such method the answer is that
    of every view: the menu of `setMenu:`, or nil. So is it for a nil event, which is no click. */
- (NSMenu *)menuForEvent:(NSEvent *)event;

/** What may be done with dragged rows: the answer of the data source to
    `tableView:draggingSourceOperationMaskForLocal:`. Where it has no such method,
    `NSDragOperationMove` (16) within the program and `NSDragOperationCopy` (1) to others; what
    `setDraggingSourceOperationMask:forLocal:` set does not count, deliberately. */
- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal;

/** The beginning, each move and the end of a drag of rows. Each is passed on to the data
    source, with the table in front, where it has the method; otherwise nothing happens. Points
    are on the screen. `operation` is 0 (none) after a drop that nobody took, although the
    platform reports another. */
- (void)draggedImage:(NSImage *)image beganAt:(NSPoint)point;
- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation;
- (void)draggedImage:(NSImage *)image movedTo:(NSPoint)point;

@end

/** What a table view's data source may have for it, each method by itself. */
@interface NSObject (OvTableViewHelpers)

/** The menu for a right click; nil for none. `column` is nil and `row` -1 where there is no
    column or row under the pointer. */
- (NSMenu *)tableView:(NSTableView *)table
    contextMenuForTableColumn:(NSTableColumn *)column
                          row:(NSInteger)row;

/** What may be done with rows that are dragged. */
- (NSDragOperation)tableView:(NSTableView *)table draggingSourceOperationMaskForLocal:(BOOL)isLocal;

- (void)tableView:(NSTableView *)table draggedImage:(NSImage *)image beganAt:(NSPoint)point;
- (void)tableView:(NSTableView *)table
     draggedImage:(NSImage *)image
          endedAt:(NSPoint)point
        operation:(NSDragOperation)operation;
- (void)tableView:(NSTableView *)table draggedImage:(NSImage *)image movedTo:(NSPoint)point;

@end
