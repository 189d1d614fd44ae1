#import <AppKit/AppKit.h>

/** Selected items, parents of rows, a context menu and drags for every outline view of the
    program.

      NSInteger index = 0;
      id parent = [outline parentItemForRow:[outline selectedRow] childIndex:&index];

    Menus and drags are those of `NSTableView+OvAppKit.h`, with the methods that have `outlineView:`
    in their names and items in place of rows; an outline view never asks the methods of a
    table view. */
@interface NSOutlineView (HXAppKitExtensions)

/** The item of `selectedRow` while two or more rows are selected; nil with one selected row or
    none. That a single selected row gives nil is deliberate; ask `itemAtRow:` for it. */
- (id)selectedItem;

/** The items of all selected rows, the topmost first; never nil. */
- (NSArray *)selectedItems;

/** The parent of the item in a row; nil for a row at the top level. `childIndex`, which may be
    NULL, gets the number of siblings above the row, which is the item's index among its parent's
    children. For a row that is not there the answers are nil and 0. */
- (id)parentItemForRow:(NSInteger)row childIndex:(NSInteger *)childIndex;

/** As a table view's, with the delegate's `outlineView:shouldSelectItem:` and
    `outlineView:shouldSelectTableColumn:`, and the data source's
    `outlineView:contextMenuForTableColumn:byItem:`. Where the data source has no such method
    the answer is that of every view: the menu of `setMenu:`, or nil. */
- (NSMenu *)menuForEvent:(NSEvent *)event;

/** As a table view's, with the data source's
    `outlineView:draggingSourceOperationMaskForLocal:`; else 16 (move) within the program and
    1 (copy) to others. */
- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal;

/** As a table view's: passed on to the data source, where it has the method. */
- (void)draggedImage:(NSImage *)image beganAt:(NSPoint)point;
- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation;
- (void)draggedImage:(NSImage *)image movedTo:(NSPoint)point;

@end

/** What an outline view's data source may have for it, each method by itself. */
@interface NSObject (OvOutlineViewHelpers)

/** The menu for a right click; nil for none. `column` and `item` are nil where there is none
    under the pointer. */
- (NSMenu *)outlineView:(NSOutlineView *)outline
    contextMenuForTableColumn:(NSTableColumn *)column
                       byItem:(id)item;

/** What may be done with items that are dragged. */
- (NSDragOperation)outlineView:(NSOutlineView *)outline
    draggingSourceOperationMaskForLocal:(BOOL)isLocal;

- (void)outlineView:(NSOutlineView *)outline draggedImage:(NSImage *)image beganAt:(NSPoint)point;
- (void)outlineView:(NSOutlineView *)outline
       draggedImage:(NSImage *)image
            endedAt:(NSPoint)point
          operation:(NSDragOperation)operation;
- (void)outlineView:(NSOutlineView *)outline draggedImage:(NSImage *)image movedTo:(NSPoint)point;

@end
