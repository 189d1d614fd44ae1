// HXMatrixView: a scrollable grid of equally sized item cells.
//
// The view shows a flat list of items. A data source says how many there are and
// what each one's value is; one shared cell, the data cell, is set up for each
// item in turn and draws it. The view reflows when it is resized, keeps its own
// selection, and takes part in dragging. It is meant to be the document view of a
// scroll view:
//
//   HXMatrixView *grid = [[HXMatrixView alloc] initWithFrame:frame];
//   [grid setAutoFitHorizentally:NO];            // fill the width, grow downward
//   [grid setCellSize:NSMakeSize(120, 90)];
//   [grid setDataCell:[[[NSTextFieldCell alloc] init] autorelease]];
//   [grid setDataSource:self];                   // reloads
//   [grid setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
//   [scrollView setDocumentView:grid];
//
// The coordinate system is flipped. Items are numbered row by row from the top
// left; spacing lies only between cells, and what is left over stays empty at the
// right (or bottom):
//
//   x = 0       64 65      129 130
//   y = 0  +-----+  +-----+  +-----+
//          |  0  |  |  1  |  |  2  |     cell size 64 x 64
//     64   +-----+  +-----+  +-----+     intercell spacing 1 x 1
//     65   +-----+  +-----+              horizontal and vertical pitch 65
//          |  3  |  |  4  |
//    129   +-----+  +-----+
//
// The view uses the main thread only, like every view.

#import <AppKit/AppKit.h>
#import <OvFoundation/OvDefines.h>

@class HXMatrixViewSelectionInfo, HXMatrixViewSelectionManager;
@class HXMatrixViewToolTipManager, HXMatrixViewMouseTrackingManager;

/** How a Shift-click or a rubber band turns two ends into a set of items. Any other
    value selects nothing. */
enum {
  /** Every item in the block of columns and rows that the two ends span. */
  HXMatrixViewRectangularSelection = 0,
  /** Every item from one end to the other, in item order. */
  HXMatrixViewLinearSelection = 1
};

/** Bits of the grid style mask. */
enum {
  HXMatrixViewGridNone = 0,
  /** Lines between columns. */
  HXMatrixViewVerticalGridLines = 1,
  /** Lines between rows. */
  HXMatrixViewHorizontalGridLines = 2
};

/** The grid style bit that limits the lines to the inside of the grid: one fewer than
    there are columns, and one fewer than there are rows. Without it the lines go on at
    the same pitch to the end of what is drawn. */
#define HXMatrixViewInsideGridLines ((NSUInteger)0x80000000U)

/** Posted, synchronously, after every change of the selection; the object is the view,
    there is no user info. Its value is "HXMatrixViewSelectionDidChange". The view does
    not subscribe its delegate: observe it yourself. */
OV_EXPORT NSString *const HXMatrixViewSelectionDidChangeNotification;

/** What the view remembers of its collaborators, and its options. */
struct HXMatrixViewFlags {
  unsigned int RESERVED : 6;
  uint32_t inDragSelection;
  unsigned int dataCellRespondsToSetMouseOrvered : 1;
  unsigned int dataCellRespondsToSetProposedDragOperation : 1;
  unsigned int delegateRespondsToToolTipAtItemIndex : 1;
  unsigned int delegateRespondsToShouldEditItem : 1;
  unsigned int delegateRespondsToDidSelectItemIndexes : 1;
  unsigned int delegateRespondsToDidSelectItemIndex : 1;
  unsigned int delegateRespondsToShouldSelectItem : 1;
  unsigned int delegateRespondsToDidEndDragSelection : 1;
  unsigned int delegateRespondsToWillStartDragSelection : 1;
  unsigned int delegateRespondsToCellDoubleClicked : 1;
  unsigned int delegateRespondsToCellClicked : 1;
  unsigned int dataSourceRespondsToAcceptDrop : 1;
  unsigned int dataSourceRespondsToValidateDrop : 1;
  unsigned int dataSourceRespondsToDraggedImageMovedTo : 1;
  unsigned int dataSourceRespondsToDraggedImageEndedAt : 1;
  unsigned int dataSourceRespondsToDraggedImageBeganAt : 1;
  unsigned int dataSourceRespondsToDraggingSourceOperationMask : 1;
  unsigned int dataSourceRespondsToDragImage : 1;
  unsigned int dataSourceRespondsToWriteItems : 1;
  unsigned int dataSourceRespondsToContextMenuForCell : 1;
  unsigned int dataSourceRespondsToSetObjectValue : 1;
  unsigned int autoFitHorizentally : 1;
  unsigned int allowsBeginDragging : 1;
  unsigned int allowsEmptySelection : 1;
  unsigned int allowsMultipleSelection : 1;
};

@interface HXMatrixView : NSView {
  id dataSource;
  id delegate;
  NSSize intercellSpacing;
  NSSize cellSize;
  NSCell *dataCell;
  HXMatrixViewSelectionManager *_selectionManager;
  HXMatrixViewSelectionInfo *_selectionInfo;
  HXMatrixViewSelectionInfo *_selectionInfoBeforeMouseDown;
  NSColor *backgroundColor;
  NSColor *gridColor;
  NSUInteger gridStyleMask;
  CGFloat gridLineWidth;
  NSShadow *gridShadow;
  NSUInteger _numberOfItems;
  NSUInteger _numberOfColumns;
  NSUInteger _numberOfRows;
  NSUInteger _mouseDownFlags;
  NSPoint _mouseDownLocation;
  NSUInteger _mouseDownItemIndex;
  BOOL _mouseDowned;
  BOOL _mouseDragged;
  BOOL _draggingRefused;
  NSRect _rubberBandFrame;
  NSRange _rubberBandColumns;
  NSRange _rubberBandRows;
  NSUInteger draggingLocationItemIndex;
  NSUInteger draggingDestinationItemIndex;
  NSUInteger proposedDragOperation;
  NSUInteger editedItemIndex;
  HXMatrixViewToolTipManager *_toolTipManager;
  HXMatrixViewMouseTrackingManager *_mouseTrackingManager;
  struct HXMatrixViewFlags _flags;
  struct OvMatrixViewState *_state;
}

// MARK: Creating

/** A grid without items, data source or data cell: cells of 64 x 64 points, 1 point
    apart, fitted to the height (see -setAutoFitHorizentally:). -init is the same with an
    empty frame. A grid that comes from an archive keeps its configuration: cell size,
    spacing, data cell, colours, grid lines, options, selection behaviours, mouse
    tracking; and its data source and delegate where these are in the archive for another
    reason, too. The selection and the layout are not archived. */
- (id)initWithFrame:(NSRect)frame;

/** Reloads: an interface file connects the data source before this is sent. */
- (void)awakeFromNib;

/** Releases what the view owns: the data cell, the colours and the shadow, the managers
    and the selection. The name is spelt so on purpose and nothing in the platform sends
    it, so a view that is merely released keeps these objects alive. A host that creates
    and drops many grids may send it once, as the last message before the last release. */
- (void)dealoc;

// MARK: Data source and delegate

/** The object that supplies the items. Not retained; nil by default. Setting it asks the
    object once which optional methods it has, then reloads. The object must clear itself
    (setDataSource:nil) before it dies. */
- (void)setDataSource:(id)anObject;
- (id)dataSource;

/** The object that is told of clicks and selection and may veto them. Not retained; nil
    by default. Setting it asks the object once which methods it has; when it supplies
    tool tips they are installed, otherwise every tool tip of the view is removed if the
    previous delegate supplied them. The delegate is not subscribed to any notification. */
- (void)setDelegate:(id)anObject;
- (id)delegate;

// MARK: Layout

/** The size of every cell in points, 64 x 64 by default. Setting it lays the grid out
    anew, resizes the view and marks it for display. */
- (void)setCellSize:(NSSize)aSize;
- (NSSize)cellSize;

/** The gap between neighbouring cells in points, 1 x 1 by default. Setting it lays the
    grid out anew, resizes the view and marks it for display. */
- (void)setIntercellSpacing:(NSSize)aSize;
- (NSSize)intercellSpacing;

/** Which way the grid is fitted. YES, the default: the grid fills the view's height and
    grows sideways. NO: it fills the width and grows downward. In a scroll view setting it
    lays the grid out anew; elsewhere the next resize or reload does. (Spelt so.) */
- (void)setAutoFitHorizentally:(BOOL)flag;
- (BOOL)autoFitHorizentally;

/** The counts of the present layout; 0 before the first reload. In the mode that fits the
    height, the last rows may hold no item: 5 items in a height of 4 cells make 2 columns,
    occupy 3 rows and answer 4 rows. */
- (NSUInteger)numberOfItems;
- (NSUInteger)numberOfColumns;
- (NSUInteger)numberOfRows;

/** Resizes the view to hold its columns and rows: along the growing axis to the content,
    or to the visible size of its scroll view where that is larger. */
- (void)sizeToFit;

/** Any resize lays the grid out anew: the fitted axis follows the size given, in points,
    and the growing axis becomes what the content needs, or the visible size of the scroll
    view where that is larger. Removes and reinstalls tool tips and hover regions. */
- (void)setFrameSize:(NSSize)newSize;

/** Asks the data source for the item count, lays out, resizes and redisplays; clears the
    selection if there is one, and only then announces the change. The second is the same. */
- (void)reloadData;
- (void)noteNumberOfItemsChanged;

// MARK: Appearance

/** The cell that draws and edits every item. Retained; nil by default, and then nothing is
    drawn. A cell equal to the present one is ignored. A cell that implements
    setMouseOrvered:(BOOL) or setProposedDragOperation:(NSDragOperation) is told of the
    hover state, or draws its own drop indication. */
- (void)setDataCell:(NSCell *)aCell;
- (NSCell *)dataCell;

/** The fill behind the cells. Retained; nil, the default, fills nothing. None of these
    five setters redisplays the view. */
- (void)setBackgroundColor:(NSColor *)aColor;
- (NSColor *)backgroundColor;

/** The colour of grid lines. Retained; nil, the default, means +[NSColor gridColor]. */
- (void)setGridColor:(NSColor *)aColor;
- (NSColor *)gridColor;

/** Which grid lines are drawn: a union of the grid style bits; 0, none, by default. */
- (void)setGridStyleMask:(NSUInteger)mask;
- (NSUInteger)gridStyleMask;

/** The width of grid lines in points, 1 by default. A 1-point line in a 1-point gap is
    centred in it. */
- (void)setGridLineWidth:(CGFloat)width;
- (CGFloat)gridLineWidth;

/** A shadow under grid lines. Retained; nil, the default, means none. */
- (void)setGridShadow:(NSShadow *)aShadow;
- (NSShadow *)gridShadow;

// MARK: Geometry (flipped view coordinates, points)

/** The frame of the cell at a place in the grid, whether or not it holds an item. */
- (NSRect)frameOfCellAtColumn:(NSUInteger)column row:(NSUInteger)row;
/** The frame of an item's cell; the zero rectangle for an invalid index. */
- (NSRect)frameOfCellAtItemIndex:(NSUInteger)index;
/** The frame of a block: from its first column and row to its last. */
- (NSRect)frameOfCellsAtColumns:(NSRange)columns rows:(NSRange)rows;
/** The smallest rectangle around the items' cells; zero for an empty set. */
- (NSRect)frameOfCellsAtItemIndexes:(NSIndexSet *)indexes;

/** The item under a point. A cell has its left and top edge and not its right and bottom
    one; a point in a gap, outside the grid or in the empty tail of the last row answers
    NSNotFound. */
- (NSUInteger)itemIndexAtPoint:(NSPoint)point;
/** The item at a place, or NSNotFound when that is beyond the last item. The column is
    not checked against the layout. */
- (NSUInteger)itemIndexAtColumn:(NSUInteger)column row:(NSUInteger)row;
/** The items in a block of columns and rows. A new, immutable set. */
- (NSIndexSet *)itemIndexesAtColumns:(NSRange)columns rows:(NSRange)rows;
/** The place of an index; NSNotFound while there are no columns. The index is not checked
    against the item count. */
- (NSUInteger)columnAtItemIndex:(NSUInteger)index;
- (NSUInteger)rowAtItemIndex:(NSUInteger)index;

/** The columns, or rows, that a rectangle touches; (0, 0) for none. One that only shares
    an edge with the rectangle is left out, at either side. */
- (NSRange)columnsInRect:(NSRect)rect;
- (NSRange)rowsInRect:(NSRect)rect;

/** Marks the items' cells for display: one cell, or one rectangle around all of them.
    Invalid indexes and empty sets mark nothing. */
- (void)setNeedsDisplayAtItemIndex:(NSUInteger)index;
- (void)setNeedsDisplayAtItemIndexes:(NSIndexSet *)indexes;

/** Scrolls until the item's cell is visible. NO for an invalid index, without a scroll
    view, or when nothing had to be scrolled. */
- (BOOL)scrollItemToVisible:(NSUInteger)index;

@end

/** What the grid draws; each step is there to be overridden. */
@interface HXMatrixView (HXMatrixViewDrawing)

/** Draws, in this order: background, cells row by row, grid lines, rubber band, and the
    ring of a drop on the whole view. */
- (void)drawRect:(NSRect)rect;
/** Sets the data cell up for the item and draws it; then the drop ring if the item is the
    drop target and the cell does not draw its own indication. */
- (void)drawCellWithFrame:(NSRect)frame atItemIndex:(NSUInteger)index;
/** Draws the grid lines, with their shadow, that lie in rect. */
- (void)drawGridLinesInRect:(NSRect)rect;
/** Draws the rubber band: a translucent fill and border in the selection colour. */
- (void)drawRubberBandWithFrame:(NSRect)frame;
/** Draws a black ring, 2 points wide, inside frame: around the target cell, or around the
    visible area with NSNotFound. The operation (never 0) is there for subclasses. */
- (void)drawDraggingDestinationRingWithFrame:(NSRect)frame
                                 atItemIndex:(NSUInteger)index
                       proposedDragOperation:(NSUInteger)operation;

@end

@interface HXMatrixView (HXMatrixViewEditing)

/** Starts editing an item in place with the window's field editor, the view being its
    delegate; selects the whole text if flag is YES. The event is the mouse-down that
    started it, or nil. An invalid index does nothing. The edited text is not written back by the
   view: read it in an override of -textDidEndEditing:, from the notification's object, before
   calling super. */
- (void)editItemAtIndex:(NSUInteger)index withEvent:(NSEvent *)event select:(BOOL)flag;
/** The item being edited, or NSNotFound. */
- (NSUInteger)editedItemIndex;
/** Ends editing and makes the view first responder. */
- (void)textDidEndEditing:(NSNotification *)notification;

@end

@interface HXMatrixView (HXMatrixViewSelection)

/** The four behaviours, each HXMatrixViewRectangularSelection or
    HXMatrixViewLinearSelection: for Shift-clicks (rectangular by default) and for the
    rubber band (rectangular), each with its alternate, used while Option is held (linear). */
- (void)setMultipleSelectionBehavior:(int)behavior;
- (int)multipleSelectionBehavior;
- (void)setAlternateMultipleSelectionBehavior:(int)behavior;
- (int)alternateMultipleSelectionBehavior;
- (void)setMultipleSelectionBehaviorForDragging:(int)behavior;
- (int)multipleSelectionBehaviorForDragging;
- (void)setAlternateMultipleSelectionBehaviorForDragging:(int)behavior;
- (int)alternateMultipleSelectionBehaviorForDragging;

/** Whether -selectAll: works; YES by default. Setting NO with several items selected keeps
    only the one selected last, and announces that. Clicks with Shift or Command extend the
    selection even when it is NO. */
- (void)setAllowsMultipleSelection:(BOOL)flag;
- (BOOL)allowsMultipleSelection;
/** Whether the selection may become empty; YES by default. Setting NO with nothing
    selected selects item 0, if there is one, and announces that. */
- (void)setAllowsEmptySelection:(BOOL)flag;
- (BOOL)allowsEmptySelection;
- (NSUInteger)numberOfSelectedItems;
/** A new, immutable copy. */
- (NSIndexSet *)selectedItemIndexes;
- (BOOL)isItemSelected:(NSUInteger)index;

/** Selects an item, instead of or in addition to what is selected. Neither the index is
    checked nor the delegate asked or told; the change is displayed at once and announced.
    Extending by an item that is selected already does nothing. */
- (void)selectItem:(NSUInteger)index byExtendingSelection:(BOOL)extend;
/** Makes the selection exactly these items, with no check and no veto; displays and
    announces the change, if it is one. */
- (void)selectItemsWithIndexes:(NSIndexSet *)indexes;
/** Selects every item, if multiple selection is allowed. The sender is ignored. */
- (void)selectAll:(id)sender;
/** Selects nothing, if the empty selection is allowed. The sender is ignored. */
- (void)deselectAll:(id)sender;

/** The click rules: sent at the release of a press that was not a drag. */
- (void)mouseClicked:(NSEvent *)event;

@end

@interface HXMatrixView (HXMatrixViewMouse)

/** Whether the item under the pointer is followed, so that a data cell with
    setMouseOrvered: can draw a hover state. NO by default. */
- (void)setMouseTrackingEnabled:(BOOL)flag;
- (BOOL)mouseTrackingEnabled;

/** The modifier flags and the place, in view coordinates, of the press in progress, or of
    the last one. */
- (NSUInteger)mouseDownFlags;
- (NSPoint)mouseDownLocation;

/** Whether a rubber band is being drawn. */
- (BOOL)inDragSelection;
/** Tell the delegate that a rubber band begins, or has ended. */
- (void)willStartDragSelection;
- (void)didEndDragSelection;

@end

@interface HXMatrixView (HXMatrixViewDragging)

/** Whether a drag that starts on an item drags items (when the data source can write
    them); YES by default. When NO, every drag is a rubber band. */
- (void)setAllowsBeginDragging:(BOOL)flag;
- (BOOL)allowsBeginDragging;

/** What an incoming drag proposes: the operation (0 for none), its target (NSNotFound with
    an operation means the whole view), and the item under the pointer. The host registers
    the dragged types. */
- (NSUInteger)proposedDragOperation;
- (NSUInteger)draggingDestinationItemIndex;
- (NSUInteger)draggingLocationItemIndex;

@end

/** What subclasses may override or call. */
@interface HXMatrixView (HXMatrixViewSubclassing)

/** Gives every variable its initial value; called by each initialiser after super's. */
- (void)_initialize;
/** Whether an index is below the item count. */
- (BOOL)_isValidItemIndex:(NSUInteger)index;
/** Compute the columns and rows for a width (or height) in points, then reinstall tool
    tips and hover regions. */
- (void)_calcColumnsAndRowsForFrameWidth:(CGFloat)width;
- (void)_calcColumnsAndRowsForFrameHeight:(CGFloat)height;
/** Prepares the data cell for one item: with flag YES for a drag image (no highlight, no
    hover, no drop indication), with NO for the screen. */
- (void)_setupCellWithItemIndex:(NSUInteger)index forDragImage:(BOOL)flag;

/** The current selection record. It is replaced, not edited, by many operations. */
- (HXMatrixViewSelectionInfo *)_selectionInfo;
/** The delegate's veto; YES when it has none. */
- (BOOL)_shouldSelectItemIndex:(NSUInteger)index;
/** Tell the delegate of items that a click or a drag selected. */
- (void)_didSelectItemIndex:(NSUInteger)index;
- (void)_didSelectItemIndexes:(NSIndexSet *)indexes;
/** Posts HXMatrixViewSelectionDidChangeNotification. */
- (void)_selectionDidChange;
/** The items that a Shift-click on an item selects; nil for an unknown behaviour. */
- (NSIndexSet *)_itemIndexesForMouseDownItemIndex:(NSUInteger)index
                                   mouseDownFlags:(NSUInteger)flags;
/** The items that a rubber band over these columns and rows covers. */
- (NSIndexSet *)_itemIndexesForMouseDraggedColumns:(NSRange)columns
                                              rows:(NSRange)rows
                                    mouseDownFlags:(NSUInteger)flags;
/** The selection that a rubber band over these items makes of the selection at the press. */
- (HXMatrixViewSelectionInfo *)_selectionInfoForMouseDraggedItemIndexes:(NSIndexSet *)indexes
                                           selectionInfoBeforeMouseDown:
                                               (HXMatrixViewSelectionInfo *)info
                                                         mouseDownFlags:(NSUInteger)flags;

/** The rectangle between the press and the pointer, the pointer clamped to the visible
    part of the document. */
- (NSRect)_rubberBandRectWithMouseDownPoint:(NSPoint)mouseDownPoint
                          mouseDraggedPoint:(NSPoint)mouseDraggedPoint;
/** Starts a drag of items; NO if the data source would not write them. Returns when the
    drag has ended. */
- (BOOL)_startDragging:(NSEvent *)event;
/** The half-transparent picture of the items that are visible, and where its lower left
    corner lies in view coordinates. Autoreleased. */
- (NSImage *)_dragImageForItemIndexes:(NSIndexSet *)indexes
                                event:(NSEvent *)event
                        imageLocation:(NSPointPointer)location;

@end

/** The data source. The first two methods are required; of the others, those that the
    object had when it was set are sent. */
@interface NSObject (HXMatrixViewDataSource)

- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)matrixView;
/** Asked before each cell is drawn and before editing. */
- (id)matrixView:(HXMatrixView *)matrixView
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index;

/** Only looked for; the view never sends it, since it writes no edits back. */
- (void)matrixView:(HXMatrixView *)matrixView
    setObjectValue:(id)value
      forItemIndex:(NSUInteger)index;

/** Put the items on the pasteboard; NO refuses the drag, which then becomes a rubber band. */
- (BOOL)matrixView:(HXMatrixView *)matrixView
    writeItemsWithIndexes:(NSIndexSet *)indexes
             toPasteboard:(NSPasteboard *)pasteboard;
/** A picture to drag, which is centred on the pointer; nil for the view's own. */
- (NSImage *)matrixView:(HXMatrixView *)matrixView dragImageForItemIndexes:(NSIndexSet *)indexes;
/** What may be done with dragged items. Without it: move within the application, copy to
    another. */
- (NSDragOperation)matrixView:(HXMatrixView *)matrixView
    draggingSourceOperationMaskForLocal:(BOOL)isLocal;
/** The course of a drag; points are in screen coordinates. */
- (void)matrixView:(HXMatrixView *)matrixView draggedImage:(NSImage *)image beganAt:(NSPoint)point;
- (void)matrixView:(HXMatrixView *)matrixView draggedImage:(NSImage *)image movedTo:(NSPoint)point;
- (void)matrixView:(HXMatrixView *)matrixView
      draggedImage:(NSImage *)image
           endedAt:(NSPoint)point
         operation:(NSDragOperation)operation;

/** What a drop on the item would do; 0 refuses it. Asked when the pointer comes onto another
    item or gap, with NSNotFound for a gap; and again with NSNotFound, a drop on the whole
    view, when an item refuses. */
- (NSDragOperation)matrixView:(HXMatrixView *)matrixView
                 validateDrop:(id<NSDraggingInfo>)info
            proposedItemIndex:(NSUInteger)index;
/** Take the drop on an item, or on the whole view with NSNotFound. */
- (BOOL)matrixView:(HXMatrixView *)matrixView
        acceptDrop:(id<NSDraggingInfo>)info
         itemIndex:(NSUInteger)index;

@end

/** The delegate. Every method is optional; those that the object had when it was set are
    sent. */
@interface NSObject (HXMatrixViewDelegate)

- (void)matrixView:(HXMatrixView *)matrixView cellClickedAtItemIndex:(NSUInteger)index;
- (void)matrixView:(HXMatrixView *)matrixView cellDoubleClickedAtItemIndex:(NSUInteger)index;

- (void)matrixViewWillStartDragSelection:(HXMatrixView *)matrixView;
- (void)matrixViewDidEndDragSelection:(HXMatrixView *)matrixView;

/** Whether the user may select the item by a click or a rubber band. */
- (BOOL)matrixView:(HXMatrixView *)matrixView shouldSelectItemIndex:(NSUInteger)index;
/** Items that the user selected. With both methods, several at once go to the second. */
- (void)matrixView:(HXMatrixView *)matrixView didSelectItemIndex:(NSUInteger)index;
- (void)matrixView:(HXMatrixView *)matrixView didSelectItemIndexes:(NSIndexSet *)indexes;

/** Whether a double click may edit the item; asked only when the data cell is editable. */
- (BOOL)matrixView:(HXMatrixView *)matrixView shouldEditItemIndex:(NSUInteger)index;
/** The item's tool tip; nil for none. */
- (NSString *)matrixView:(HXMatrixView *)matrixView toolTipAtItemIndex:(NSUInteger)index;

/** The context menu for an item, or for the empty space with NSNotFound. Sent to the
    delegate when the DATA SOURCE implements it too: which object implements it is asked of
    the data source, on purpose, so a host implements it in both, or uses one object. */
- (NSMenu *)matrixView:(HXMatrixView *)matrixView
    contextMenuForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index;

@end

/** What a data cell may implement in addition to NSCell's methods. */
@interface NSObject (HXMatrixViewDataCell)

/** Whether the pointer is over the item being drawn. (Spelt so.) */
- (void)setMouseOrvered:(BOOL)flag;
/** The operation proposed for a drop on the item being drawn, or 0. A cell with this method
    draws its own drop indication; the view draws no ring around it. */
- (void)setProposedDragOperation:(NSDragOperation)operation;

@end
