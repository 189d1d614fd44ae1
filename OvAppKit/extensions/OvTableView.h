#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

/** Posted by the table view (the object; no user info) when rows that were dragged out of it
    have been dropped on a trash. */
OV_EXPORT NSString *const OvTableViewDidEndDraggingToTrashNotification;

/** A table view that tells when its rows were dragged onto the trash.

      [table setDelegate:self];
      …
      - (void)tableViewDidEndDraggingToTrash:(NSNotification *)notification {
        [self deleteRows:draggedRows];
        [[notification object] reloadData];
      }

    Its data source writes the rows to the pasteboard, as for every table view. A trash is any
    view that takes the drag with `NSDragOperationDelete`. */
@interface OvTableView : NSTableView

/** `NSDragOperationDelete` (32) for every drag, within the program or not; the data source is
    not asked. */
- (NSDragOperation)draggingSourceOperationMaskForLocal:(BOOL)isLocal;

/** Posts `OvTableViewDidEndDraggingToTrashNotification` for an operation of exactly
    `NSDragOperationDelete` (32), and does nothing else: the data source does not hear of the
    end of the drag. A drop that nobody took, or that the view under it refused, is no deletion,
    although the platform reports it as one. */
- (void)draggedImage:(NSImage *)image endedAt:(NSPoint)point operation:(NSDragOperation)operation;

/** The delegate, which is not retained, becomes an observer of
    `OvTableViewDidEndDraggingToTrashNotification` if it has `tableViewDidEndDraggingToTrash:`;
    the delegate before it is none any more. */
- (void)setDelegate:(id)delegate;

@end

@interface NSObject (OvTableViewDelegate)

/** The notification's object is the table view. */
- (void)tableViewDidEndDraggingToTrash:(NSNotification *)notification;

@end
