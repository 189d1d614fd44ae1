// State, collaborators, layout and queries of the grid.

#import <OvAppKit/HXMatrixView.h>
#import <OvAppKit/HXMatrixViewMouseTrackingManager.h>
#import <OvAppKit/HXMatrixViewSelectionInfo.h>
#import <OvAppKit/HXMatrixViewSelectionManager.h>
#import <OvAppKit/HXMatrixViewToolTipManager.h>

#include <algorithm>

#import "matrix/HXMatrixView+Private.h"
#import "matrix/HXMatrixViewManagers+Private.h"
#include "support/GeometryBridge.h"
#include "support/IndexRanges.h"
#include "support/Retained.h"

NSString *const HXMatrixViewSelectionDidChangeNotification = @"HXMatrixViewSelectionDidChange";

@implementation HXMatrixView

#pragma mark Creating

- (id)init {
  return [self initWithFrame:NSZeroRect];
}

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self != nil) [self _initialize];
  return self;
}

- (void)_initialize {
  dataSource = nil;
  delegate = nil;
  intercellSpacing = NSMakeSize(1, 1);
  cellSize = NSMakeSize(64, 64);
  gridStyleMask = HXMatrixViewGridNone;
  gridLineWidth = 1;
  _numberOfItems = 0;
  _numberOfColumns = 0;
  _numberOfRows = 0;
  _mouseDownFlags = 0;
  _mouseDownLocation = NSZeroPoint;
  _mouseDownItemIndex = NSNotFound;
  _mouseDowned = NO;
  _mouseDragged = NO;
  _draggingRefused = NO;
  _rubberBandFrame = NSZeroRect;
  _rubberBandColumns = NSMakeRange(0, 0);
  _rubberBandRows = NSMakeRange(0, 0);
  draggingLocationItemIndex = NSNotFound;
  draggingDestinationItemIndex = NSNotFound;
  proposedDragOperation = NSDragOperationNone;
  editedItemIndex = NSNotFound;
  _flags = {};
  _flags.autoFitHorizentally = YES;
  _flags.allowsBeginDragging = YES;
  _flags.allowsEmptySelection = YES;
  _flags.allowsMultipleSelection = YES;
  if (_state == nullptr) _state = new OvMatrixViewState(self);
  [self _ovReleaseOwnedObjects];  // none, unless a subclass initialises the view again
  _selectionManager = [[HXMatrixViewSelectionManager alloc] initWithMatrixView:self];
  _selectionInfo = [[HXMatrixViewSelectionInfo alloc] init];
}

- (void)awakeFromNib {
  [self reloadData];
}

- (void)dealoc {
  [self _ovReleaseOwnedObjects];
}

- (void)_ovReleaseOwnedObjects {
  [self setMouseTrackingEnabled:NO];
  [_toolTipManager release];
  _toolTipManager = nil;
  [_selectionManager release];
  _selectionManager = nil;
  [self _ovAdoptSelectionInfo:nil];
  [_selectionInfoBeforeMouseDown release];
  _selectionInfoBeforeMouseDown = nil;
  OvReplaceRetained<NSCell *>(&dataCell, nil);
  OvReplaceRetained<NSColor *>(&backgroundColor, nil);
  OvReplaceRetained<NSColor *>(&gridColor, nil);
  OvReplaceRetained<NSShadow *>(&gridShadow, nil);
}

// What the view owns is not released here (see -dealoc), but none of it may speak to the
// view any more.
- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_mouseTrackingManager _matrixViewWillDeallocate];
  [_toolTipManager _matrixViewWillDeallocate];
  delete _state;
  _state = nullptr;
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

#pragma mark Windows and scroll views

- (void)viewWillMoveToWindow:(NSWindow *)window {
  [_mouseTrackingManager removeAllTrackingRegions];
  [super viewWillMoveToWindow:window];
}

- (void)viewDidMoveToWindow {
  [super viewDidMoveToWindow];
  [_mouseTrackingManager resetAllTrackingRegions];
  if (_state != nullptr) [_state->toolTips visibleRectDidChange];
}

- (void)viewWillMoveToSuperview:(NSView *)superview {
  if ([self superview] != nil) {
    [[NSNotificationCenter defaultCenter] removeObserver:self
                                                    name:NSViewBoundsDidChangeNotification
                                                  object:[self superview]];
  }
  [super viewWillMoveToSuperview:superview];
}

- (void)viewDidMoveToSuperview {
  [super viewDidMoveToSuperview];
  if ([[self superview] isKindOfClass:[NSClipView class]]) {
    [[self superview] setPostsBoundsChangedNotifications:YES];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(_ovClipViewDidScroll:)
                                                 name:NSViewBoundsDidChangeNotification
                                               object:[self superview]];
  }
}

- (void)_ovClipViewDidScroll:(NSNotification *)notification {
  (void)notification;
  // The platform asks -adjustScroll: for a scroller's scrolling only, not for the
  // automatic one during a drag.
  if ([self _ovShowsRingAroundView]) {
    [self _ovMarkRingMovedFrom:_state->ringFrame to:[self _ovVisibleFrame]];
  }
  [_state->toolTips visibleRectDidChange];
}

- (NSScrollView *)_ovScrollView {
  NSView *view = [[self superview] superview];
  return [view isKindOfClass:[NSScrollView class]] ? (NSScrollView *)view : nil;
}

- (NSRect)_ovVisibleFrame {
  NSScrollView *scrollView = [self enclosingScrollView];
  return scrollView != nil ? [scrollView documentVisibleRect] : [self bounds];
}

#pragma mark Data source and delegate

- (void)setDataSource:(id)anObject {
  dataSource = anObject;
#define OV_RESPONDS(sel) ([dataSource respondsToSelector:@selector(sel)] ? 1 : 0)
  _flags.dataSourceRespondsToAcceptDrop = OV_RESPONDS(matrixView:acceptDrop:itemIndex:);
  _flags.dataSourceRespondsToValidateDrop = OV_RESPONDS(matrixView:validateDrop:proposedItemIndex:);
  _flags.dataSourceRespondsToDraggedImageMovedTo = OV_RESPONDS(matrixView:draggedImage:movedTo:);
  _flags.dataSourceRespondsToDraggedImageEndedAt =
      OV_RESPONDS(matrixView:draggedImage:endedAt:operation:);
  _flags.dataSourceRespondsToDraggedImageBeganAt = OV_RESPONDS(matrixView:draggedImage:beganAt:);
  _flags.dataSourceRespondsToDraggingSourceOperationMask =
      OV_RESPONDS(matrixView:draggingSourceOperationMaskForLocal:);
  _flags.dataSourceRespondsToDragImage = OV_RESPONDS(matrixView:dragImageForItemIndexes:);
  _flags.dataSourceRespondsToWriteItems =
      OV_RESPONDS(matrixView:writeItemsWithIndexes:toPasteboard:);
  _flags.dataSourceRespondsToContextMenuForCell =
      OV_RESPONDS(matrixView:contextMenuForCell:atItemIndex:);
  _flags.dataSourceRespondsToSetObjectValue = OV_RESPONDS(matrixView:setObjectValue:forItemIndex:);
#undef OV_RESPONDS
  [self reloadData];
}

- (id)dataSource {
  return dataSource;
}

- (void)setDelegate:(id)anObject {
  delegate = anObject;
#define OV_RESPONDS(sel) ([delegate respondsToSelector:@selector(sel)] ? 1 : 0)
  _flags.delegateRespondsToToolTipAtItemIndex = OV_RESPONDS(matrixView:toolTipAtItemIndex:);
  _flags.delegateRespondsToShouldEditItem = OV_RESPONDS(matrixView:shouldEditItemIndex:);
  _flags.delegateRespondsToDidSelectItemIndexes = OV_RESPONDS(matrixView:didSelectItemIndexes:);
  _flags.delegateRespondsToDidSelectItemIndex = OV_RESPONDS(matrixView:didSelectItemIndex:);
  _flags.delegateRespondsToShouldSelectItem = OV_RESPONDS(matrixView:shouldSelectItemIndex:);
  _flags.delegateRespondsToDidEndDragSelection = OV_RESPONDS(matrixViewDidEndDragSelection:);
  _flags.delegateRespondsToWillStartDragSelection = OV_RESPONDS(matrixViewWillStartDragSelection:);
  _flags.delegateRespondsToCellDoubleClicked =
      OV_RESPONDS(matrixView:cellDoubleClickedAtItemIndex:);
  _flags.delegateRespondsToCellClicked = OV_RESPONDS(matrixView:cellClickedAtItemIndex:);
#undef OV_RESPONDS
  if (!_flags.delegateRespondsToToolTipAtItemIndex) {
    [_toolTipManager release];
    _toolTipManager = nil;
  } else if (_toolTipManager == nil) {
    _toolTipManager = [[HXMatrixViewToolTipManager alloc] initWithMatrixView:self];
  }
}

- (id)delegate {
  return delegate;
}

#pragma mark Layout

- (ov::GridGeometry)_ovGrid {
  return {ov::fromNS(cellSize),
          ov::fromNS(intercellSpacing),
          _numberOfItems,
          {_numberOfColumns, _numberOfRows}};
}

- (ov::GridFit)_ovFit {
  return _flags.autoFitHorizentally ? ov::GridFit::height : ov::GridFit::width;
}

- (void)_calcColumnsAndRowsForFrameWidth:(CGFloat)width {
  [self _ovTakeShape:[self _ovGrid].shapeFor(ov::GridFit::width, width)];
}

- (void)_calcColumnsAndRowsForFrameHeight:(CGFloat)height {
  [self _ovTakeShape:[self _ovGrid].shapeFor(ov::GridFit::height, height)];
}

- (void)_ovTakeShape:(ov::GridShape)shape {
  _numberOfColumns = shape.columns;
  _numberOfRows = shape.rows;
  [_toolTipManager resetAllToolTips];
  [_mouseTrackingManager resetAllTrackingRegions];
}

- (void)_ovCalcColumnsAndRowsForSize:(NSSize)size {
  if (_flags.autoFitHorizentally) {
    [self _calcColumnsAndRowsForFrameHeight:size.height];
  } else {
    [self _calcColumnsAndRowsForFrameWidth:size.width];
  }
}

- (void)_ovLayOutAgain {
  [self _ovCalcColumnsAndRowsForSize:[self bounds].size];
  [self sizeToFit];
  [self setNeedsDisplay:YES];
}

- (void)setCellSize:(NSSize)aSize {
  cellSize = aSize;
  [self _ovLayOutAgain];
}

- (NSSize)cellSize {
  return cellSize;
}

- (void)setIntercellSpacing:(NSSize)aSize {
  intercellSpacing = aSize;
  [self _ovLayOutAgain];
}

- (NSSize)intercellSpacing {
  return intercellSpacing;
}

- (void)setAutoFitHorizentally:(BOOL)flag {
  _flags.autoFitHorizentally = flag ? 1 : 0;
  NSScrollView *scrollView = [self _ovScrollView];
  if (scrollView != nil) [self setFrameSize:[scrollView contentSize]];
}

- (BOOL)autoFitHorizentally {
  return _flags.autoFitHorizentally;
}

- (NSUInteger)numberOfItems {
  return _numberOfItems;
}

- (NSUInteger)numberOfColumns {
  return _numberOfColumns;
}

- (NSUInteger)numberOfRows {
  return _numberOfRows;
}

- (NSSize)_ovSizeForSize:(NSSize)size {
  NSScrollView *scrollView = [self _ovScrollView];
  const NSSize atLeast = scrollView != nil ? [scrollView contentSize] : NSZeroSize;
  return ov::toNS([self _ovGrid].sizeFor([self _ovFit], ov::fromNS(size), ov::fromNS(atLeast)));
}

- (void)sizeToFit {
  [self setFrameSize:[self _ovSizeForSize:[self bounds].size]];
}

- (void)setFrameSize:(NSSize)newSize {
  if (_state == nullptr) {  // the initialiser of a superclass is still at work
    [super setFrameSize:newSize];
    return;
  }
  [self _ovCalcColumnsAndRowsForSize:newSize];
  [super setFrameSize:[self _ovSizeForSize:newSize]];
  // The part that is visible depends on the new frame.
  [_state->toolTips visibleRectDidChange];
}

// The platform's own -setFrame:, which automatic resizing sends, does not come through
// -setFrameSize:.
- (void)setFrame:(NSRect)frame {
  if (!NSEqualPoints(frame.origin, [self frame].origin)) [self setFrameOrigin:frame.origin];
  [self setFrameSize:frame.size];
}

- (void)reloadData {
  _numberOfItems = [dataSource numberOfItemsInMatrixView:self];
  if (_numberOfItems >= NSNotFound) {
    NSLog(@"[HXMatrixView] The data source answers an impossible number of items.");
    _numberOfItems = 0;
  }
  [self _ovLayOutAgain];
  if ([_selectionInfo count] > 0) {
    [self _ovAdoptSelectionInfo:[[HXMatrixViewSelectionInfo alloc] init]];
    [self _selectionDidChange];
  }
}

- (void)noteNumberOfItemsChanged {
  [self reloadData];
}

#pragma mark Appearance

- (void)setDataCell:(NSCell *)aCell {
  if (aCell == dataCell || [aCell isEqual:dataCell]) return;
  OvReplaceRetained(&dataCell, aCell);
  _flags.dataCellRespondsToSetMouseOrvered =
      [dataCell respondsToSelector:@selector(setMouseOrvered:)] ? 1 : 0;
  _flags.dataCellRespondsToSetProposedDragOperation =
      [dataCell respondsToSelector:@selector(setProposedDragOperation:)] ? 1 : 0;
}

- (NSCell *)dataCell {
  return dataCell;
}

- (void)setBackgroundColor:(NSColor *)aColor {
  OvReplaceRetained(&backgroundColor, aColor);
}

- (NSColor *)backgroundColor {
  return backgroundColor;
}

- (void)setGridColor:(NSColor *)aColor {
  OvReplaceRetained(&gridColor, aColor);
}

- (NSColor *)gridColor {
  return gridColor;
}

- (void)setGridStyleMask:(NSUInteger)mask {
  gridStyleMask = mask;
}

- (NSUInteger)gridStyleMask {
  return gridStyleMask;
}

- (void)setGridLineWidth:(CGFloat)width {
  gridLineWidth = width;
}

- (CGFloat)gridLineWidth {
  return gridLineWidth;
}

- (void)setGridShadow:(NSShadow *)aShadow {
  OvReplaceRetained(&gridShadow, aShadow);
}

- (NSShadow *)gridShadow {
  return gridShadow;
}

#pragma mark Geometry

- (NSRect)frameOfCellAtColumn:(NSUInteger)column row:(NSUInteger)row {
  return ov::toNS([self _ovGrid].frameAt(column, row));
}

- (NSRect)frameOfCellAtItemIndex:(NSUInteger)index {
  if (![self _isValidItemIndex:index] || _numberOfColumns == 0) return NSZeroRect;
  return [self frameOfCellAtColumn:index % _numberOfColumns row:index / _numberOfColumns];
}

- (NSRect)frameOfCellsAtColumns:(NSRange)columns rows:(NSRange)rows {
  return ov::toNS([self _ovGrid].frameOf(ov::fromNS(columns), ov::fromNS(rows)));
}

// The columns that a set stands in, from leftmost to rightmost.
- (NSRange)_ovColumnsOfItemIndexes:(NSIndexSet *)indexes {
  const ov::GridGeometry grid = [self _ovGrid];
  NSUInteger first = NSNotFound;
  NSUInteger end = 0;
  for (NSUInteger index = [indexes firstIndex]; index != NSNotFound;) {
    const NSUInteger runEnd = ov::endOfRun(indexes, index);
    const ov::IndexRange columns = grid.columnsOf({index, runEnd - index});
    first = std::min(first, static_cast<NSUInteger>(columns.location));
    end = std::max(end, static_cast<NSUInteger>(columns.end()));
    if (first == 0 && end == _numberOfColumns) break;
    index = [indexes indexGreaterThanIndex:runEnd - 1];
  }
  return first == NSNotFound ? NSMakeRange(0, 0) : NSMakeRange(first, end - first);
}

- (NSRect)frameOfCellsAtItemIndexes:(NSIndexSet *)indexes {
  // Indexes beyond the last item have no frame.
  NSIndexSet *valid = indexes;
  if ([indexes count] > 0 && [indexes lastIndex] >= _numberOfItems) {
    NSMutableIndexSet *cut = [[indexes mutableCopy] autorelease];
    [cut removeIndexesInRange:NSMakeRange(_numberOfItems, NSNotFound - 1 - _numberOfItems)];
    valid = cut;
  }
  if ([valid count] == 0 || _numberOfColumns == 0) return NSZeroRect;
  const NSRange columns = [self _ovColumnsOfItemIndexes:valid];
  const NSUInteger firstRow = [self rowAtItemIndex:[valid firstIndex]];
  const NSUInteger lastRow = [self rowAtItemIndex:[valid lastIndex]];
  return [self frameOfCellsAtColumns:columns rows:NSMakeRange(firstRow, lastRow - firstRow + 1)];
}

- (NSUInteger)itemIndexAtPoint:(NSPoint)point {
  return [self _ovGrid].itemAt(ov::fromNS(point));
}

- (NSUInteger)itemIndexAtColumn:(NSUInteger)column row:(NSUInteger)row {
  return [self _ovGrid].itemAt(column, row);
}

- (NSIndexSet *)itemIndexesAtColumns:(NSRange)columns rows:(NSRange)rows {
  const ov::GridGeometry grid = [self _ovGrid];
  NSMutableIndexSet *indexes = [[[NSMutableIndexSet alloc] init] autorelease];
  if (columns.length == 0) return [[indexes copy] autorelease];
  const NSUInteger end = rows.location + std::min(rows.length, NSNotFound - rows.location);
  const ov::IndexRange block = ov::fromNS(columns);
  const bool rowsJoin = _numberOfColumns > 0 && columns.length >= _numberOfColumns;
  for (NSUInteger row = rows.location; row < end; ++row) {
    ov::IndexRange items = grid.itemsInRow(row, block);
    if (items.isEmpty()) break;  // and so are all rows after it
    if (rowsJoin && row + 1 < end) {
      // As wide as the layout, so each row begins where the one before it ends or
      // earlier: only the last two rows that hold items decide where it all ends.
      const NSUInteger lastHolding = (_numberOfItems - 1 - columns.location) / _numberOfColumns;
      const NSUInteger last = std::min(end - 1, lastHolding);
      ov::Index itemsEnd = std::max(items.end(), grid.itemsInRow(last, block).end());
      if (last > row) itemsEnd = std::max(itemsEnd, grid.itemsInRow(last - 1, block).end());
      items.length = itemsEnd - items.location;
      row = end;
    }
    items.length = std::min(items.length, static_cast<ov::Index>(NSNotFound - 1 - items.location));
    [indexes addIndexesInRange:ov::toNS(items)];
  }
  return [[indexes copy] autorelease];
}

- (NSUInteger)columnAtItemIndex:(NSUInteger)index {
  return [self _ovGrid].columnOf(index);
}

- (NSUInteger)rowAtItemIndex:(NSUInteger)index {
  return [self _ovGrid].rowOf(index);
}

- (NSRange)columnsInRect:(NSRect)rect {
  return ov::toNS([self _ovGrid].columnsIn(ov::fromNS(rect)));
}

- (NSRange)rowsInRect:(NSRect)rect {
  return ov::toNS([self _ovGrid].rowsIn(ov::fromNS(rect)));
}

- (BOOL)_isValidItemIndex:(NSUInteger)index {
  return index < _numberOfItems;
}

- (void)setNeedsDisplayAtItemIndex:(NSUInteger)index {
  if (![self _isValidItemIndex:index]) return;
  [self setNeedsDisplayInRect:[self frameOfCellAtItemIndex:index]];
}

- (void)setNeedsDisplayAtItemIndexes:(NSIndexSet *)indexes {
  const NSUInteger first = [indexes firstIndex];
  if (first == NSNotFound || indexes == nil) return;
  const NSUInteger last = [indexes lastIndex];
  if (first == last) {
    [self setNeedsDisplayAtItemIndex:first];
    return;
  }
  if (_numberOfColumns == 0) return;
  const NSRange columns = [self _ovColumnsOfItemIndexes:indexes];
  const NSRect topLeft = [self frameOfCellAtColumn:columns.location
                                               row:[self rowAtItemIndex:first]];
  const NSRect bottomRight = [self frameOfCellAtColumn:NSMaxRange(columns) - 1
                                                   row:[self rowAtItemIndex:last]];
  [self setNeedsDisplayInRect:NSUnionRect(topLeft, bottomRight)];
}

- (BOOL)scrollItemToVisible:(NSUInteger)index {
  if (![self _isValidItemIndex:index]) return NO;
  return [self scrollRectToVisible:[self frameOfCellAtItemIndex:index]];
}

#pragma mark Tool tips and tracking rectangles
// A superclass that is initialised from an archive, or deallocated, may send these while
// there is no state.

- (NSToolTipTag)addToolTipRect:(NSRect)rect owner:(id)owner userData:(void *)userData {
  if (_state == nullptr) return [super addToolTipRect:rect owner:owner userData:userData];
  return [_state->toolTips addRect:rect owner:owner userData:userData];
}

- (void)removeToolTip:(NSToolTipTag)tag {
  if (_state == nullptr || ![_state->toolTips removeTag:tag]) [super removeToolTip:tag];
}

- (void)removeAllToolTips {
  if (_state == nullptr) return [super removeAllToolTips];
  [_state->toolTips removeAll];
  // The platform's removal leaves every second tip in place.
  NSUInteger left = _state->trackingRects.countOfPlatformToolTips();
  while (left > 0) {
    [super removeAllToolTips];
    const NSUInteger now = _state->trackingRects.countOfPlatformToolTips();
    if (now == left) break;
    left = now;
  }
}

- (BOOL)_ovAddToolTipsForItemsWithOwner:(id)owner {
  for (SEL selector : {
         @selector(addToolTipRect:owner:userData:), @selector(numberOfItems),
             @selector(frameOfCellAtItemIndex:), @selector(frameOfCellAtColumn:row:)
       }) {
    if (!OvInheritsMethod(self, selector, [HXMatrixView class])) return NO;
  }
  [_state->toolTips addGrid:[self _ovGrid] owner:owner];
  return YES;
}

- (NSTrackingRectTag)addTrackingRect:(NSRect)rect
                               owner:(id)owner
                            userData:(void *)userData
                        assumeInside:(BOOL)flag {
  if (_state == nullptr) {
    return [super addTrackingRect:rect owner:owner userData:userData assumeInside:flag];
  }
  return _state->trackingRects.add(rect, owner, userData, flag);
}

- (void)removeTrackingRect:(NSTrackingRectTag)tag {
  if (_state == nullptr) return [super removeTrackingRect:tag];
  _state->trackingRects.remove(tag);
}

@end
