#import "GridTest.h"

#include <sstream>

using ov::test::journal;
using ov::test::text;

namespace ov::test {

Journal &journal() {
  static Journal one;
  return one;
}

Lines Journal::of(std::initializer_list<const char *> words) const {
  Lines found;
  for (const std::string &line : lines_) {
    std::string first = line.substr(0, line.find(' '));
    for (const char *word : words) {
      if (first == word) found.push_back(line);
    }
  }
  return found;
}

bool Journal::has(const std::string &line) const {
  return std::find(lines_.begin(), lines_.end(), line) != lines_.end();
}

std::string text(NSRect rect) {
  std::ostringstream out;
  out << rect;
  return out.str();
}

std::string text(NSPoint point) {
  std::ostringstream out;
  out << point;
  return out.str();
}

std::string text(CGFloat length) {
  std::ostringstream out;
  out << length;
  return out.str();
}

std::string text(NSUInteger index) { return index == NSNotFound ? "none" : std::to_string(index); }

std::string text(NSIndexSet *set) {
  if (!set) return "nil";
  std::string all;
  for (NSUInteger i = [set firstIndex]; i != NSNotFound; i = [set indexGreaterThanIndex:i]) {
    all += (all.empty() ? "" : " ") + std::to_string(i);
  }
  return all;
}

NSIndexSet *indexes(std::initializer_list<NSUInteger> list) {
  NSMutableIndexSet *set = [NSMutableIndexSet indexSet];
  for (NSUInteger i : list) [set addIndex:i];
  return set;
}

NSIndexSet *indexRange(NSUInteger location, NSUInteger length) {
  return [NSIndexSet indexSetWithIndexesInRange:NSMakeRange(location, length)];
}

}  // namespace ov::test

namespace {

// A line of a word and an index or a set.
void note(const char *word) { journal().add(word); }
void note(const char *word, const std::string &rest) { journal().add(word + (" " + rest)); }
void note(const char *word, NSUInteger index) { note(word, text(index)); }
void note(const char *word, NSIndexSet *set) { note(word, text(set)); }

const std::set<std::string> kOptional = {"matrixView:setObjectValue:forItemIndex:",
                                         "matrixView:contextMenuForCell:atItemIndex:",
                                         "matrixView:writeItemsWithIndexes:toPasteboard:",
                                         "matrixView:dragImageForItemIndexes:",
                                         "matrixView:draggingSourceOperationMaskForLocal:",
                                         "matrixView:draggedImage:beganAt:",
                                         "matrixView:draggedImage:endedAt:operation:",
                                         "matrixView:draggedImage:movedTo:",
                                         "matrixView:validateDrop:proposedItemIndex:",
                                         "matrixView:acceptDrop:itemIndex:",
                                         "matrixView:cellClickedAtItemIndex:",
                                         "matrixView:cellDoubleClickedAtItemIndex:",
                                         "matrixViewWillStartDragSelection:",
                                         "matrixViewDidEndDragSelection:",
                                         "matrixView:shouldSelectItemIndex:",
                                         "matrixView:didSelectItemIndex:",
                                         "matrixView:didSelectItemIndexes:",
                                         "matrixView:shouldEditItemIndex:",
                                         "matrixView:toolTipAtItemIndex:"};

}  // namespace

@implementation OvTestItems

+ (OvTestItems *)items:(NSUInteger)count {
  OvTestItems *items = [[[self alloc] init] autorelease];
  items->count = count;
  items->writes = YES;
  items->accepts = YES;
  items->sourceMask = NSDragOperationCopy;
  return items;
}

- (void)dealloc {
  [dragImage release];
  [menu release];
  [super dealloc];
}

- (void)has:(std::initializer_list<const char *>)selectors {
  for (const char *selector : selectors) {
    if (!kOptional.contains(selector)) {
      ADD_FAILURE() << selector << " is no method of a data source or delegate";
    }
    methods.insert(selector);
  }
}

- (BOOL)respondsToSelector:(SEL)selector {
  std::string name = sel_getName(selector);
  if (kOptional.contains(name)) return methods.contains(name);
  return [super respondsToSelector:selector];
}

- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)matrixView {
  view = matrixView;
  note("count");
  return count;
}
- (id)matrixView:(HXMatrixView *)matrixView
    objectValueForCell:(NSCell *)aCell
           atItemIndex:(NSUInteger)index {
  view = matrixView;
  cell = aCell;
  note("value", index);
  return [NSString stringWithFormat:@"item %lu", (unsigned long)index];
}
- (void)matrixView:(HXMatrixView *)matrixView
    setObjectValue:(id)value
      forItemIndex:(NSUInteger)index {
  (void)matrixView, (void)value;
  note("setObjectValue", index);
}
- (BOOL)matrixView:(HXMatrixView *)matrixView
    writeItemsWithIndexes:(NSIndexSet *)indexes
             toPasteboard:(NSPasteboard *)aPasteboard {
  view = matrixView;
  pasteboard = aPasteboard;
  note("write", indexes);
  if (writes) {
    [aPasteboard declareTypes:@[ NSStringPboardType ] owner:nil];
    [aPasteboard setString:@"items" forType:NSStringPboardType];
  }
  return writes;
}
- (NSImage *)matrixView:(HXMatrixView *)matrixView dragImageForItemIndexes:(NSIndexSet *)indexes {
  view = matrixView;
  note("dragImage", indexes);
  return dragImage;
}
- (NSDragOperation)matrixView:(HXMatrixView *)matrixView
    draggingSourceOperationMaskForLocal:(BOOL)isLocal {
  view = matrixView;
  note("mask", isLocal ? "local" : "other");
  return sourceMask;
}
- (void)matrixView:(HXMatrixView *)matrixView
      draggedImage:(NSImage *)image
           beganAt:(NSPoint)aPoint {
  (void)image;
  view = matrixView;
  point = aPoint;
  note("began");
}
- (void)matrixView:(HXMatrixView *)matrixView
      draggedImage:(NSImage *)image
           movedTo:(NSPoint)aPoint {
  (void)image;
  view = matrixView;
  point = aPoint;
  note("moved");
}
- (void)matrixView:(HXMatrixView *)matrixView
      draggedImage:(NSImage *)image
           endedAt:(NSPoint)aPoint
         operation:(NSDragOperation)operation {
  (void)image;
  view = matrixView;
  point = aPoint;
  note("ended", static_cast<NSUInteger>(operation));
}
- (NSDragOperation)matrixView:(HXMatrixView *)matrixView
                 validateDrop:(id<NSDraggingInfo>)anInfo
            proposedItemIndex:(NSUInteger)index {
  view = matrixView;
  info = anInfo;
  note("validate", index);
  return validate ? validate(index) : NSDragOperationCopy;
}
- (BOOL)matrixView:(HXMatrixView *)matrixView
        acceptDrop:(id<NSDraggingInfo>)anInfo
         itemIndex:(NSUInteger)index {
  view = matrixView;
  info = anInfo;
  note("accept", index);
  return accepts;
}

- (void)matrixView:(HXMatrixView *)matrixView cellClickedAtItemIndex:(NSUInteger)index {
  view = matrixView;
  note("clicked", index);
}
- (void)matrixView:(HXMatrixView *)matrixView cellDoubleClickedAtItemIndex:(NSUInteger)index {
  view = matrixView;
  note("doubleClicked", index);
}
- (void)matrixViewWillStartDragSelection:(HXMatrixView *)matrixView {
  view = matrixView;
  note("willStartBand");
}
- (void)matrixViewDidEndDragSelection:(HXMatrixView *)matrixView {
  view = matrixView;
  note("didEndBand");
}
- (BOOL)matrixView:(HXMatrixView *)matrixView shouldSelectItemIndex:(NSUInteger)index {
  view = matrixView;
  note("shouldSelect", index);
  return maySelect ? maySelect(index) : YES;
}
- (void)matrixView:(HXMatrixView *)matrixView didSelectItemIndex:(NSUInteger)index {
  view = matrixView;
  note("didSelect", index);
}
- (void)matrixView:(HXMatrixView *)matrixView didSelectItemIndexes:(NSIndexSet *)indexes {
  view = matrixView;
  note("didSelectItems", indexes);
}
- (BOOL)matrixView:(HXMatrixView *)matrixView shouldEditItemIndex:(NSUInteger)index {
  view = matrixView;
  note("shouldEdit", index);
  return mayEdit ? mayEdit(index) : YES;
}
- (NSString *)matrixView:(HXMatrixView *)matrixView toolTipAtItemIndex:(NSUInteger)index {
  view = matrixView;
  note("toolTip", index);
  if (!toolTip) return [NSString stringWithFormat:@"tip %lu", (unsigned long)index];
  std::string string = toolTip(index);
  return string.empty() ? nil : [NSString stringWithUTF8String:string.c_str()];
}
- (NSMenu *)matrixView:(HXMatrixView *)matrixView
    contextMenuForCell:(NSCell *)aCell
           atItemIndex:(NSUInteger)index {
  view = matrixView;
  cell = aCell;
  note("menu", index);
  return menu;
}
// Not a method of a delegate: the grid subscribes nobody to its notification.
- (void)matrixViewSelectionDidChange:(NSNotification *)notification {
  (void)notification;
  note("subscribed");
}

@end

@implementation OvTestCell

static int cellDeaths = 0;
// NSCell copies itself bit by bit, so a copy would share an instance variable.
static NSColor *cellFill = nil;

+ (int)deaths {
  return cellDeaths;
}
- (void)dealloc {
  cellDeaths++;
  [super dealloc];
}
- (void)setFill:(NSColor *)color {
  [cellFill autorelease];
  cellFill = [color retain];
}
- (void)setHighlighted:(BOOL)flag {
  note("highlighted", flag ? "1" : "0");
  [super setHighlighted:flag];
}
- (void)setObjectValue:(id)value {
  if (value) note("value=", [[value description] UTF8String]);
  [super setObjectValue:value];
}
- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  (void)view;
  note("draw",
       std::string([[[self objectValue] description] UTF8String] ?: "nil") + " " + text(frame));
  if (!cellFill) return;
  [cellFill set];
  NSRectFill(frame);
}
- (void)editWithFrame:(NSRect)frame
               inView:(NSView *)view
               editor:(NSText *)editor
             delegate:(id)object
                event:(NSEvent *)event {
  note("edit", text(frame));
  [super editWithFrame:frame inView:view editor:editor delegate:object event:event];
}
- (void)endEditing:(NSText *)editor {
  note("endEditing");
  [super endEditing:editor];
}

@end

@implementation OvTestHoverCell
- (void)setMouseOrvered:(BOOL)flag {
  note("hover", flag ? "1" : "0");
}
@end

@implementation OvTestDropCell
- (void)setProposedDragOperation:(NSDragOperation)operation {
  note("proposed", static_cast<NSUInteger>(operation));
}
@end

@implementation OvTestFullCell
- (void)setMouseOrvered:(BOOL)flag {
  note("hover", flag ? "1" : "0");
}
- (void)setProposedDragOperation:(NSDragOperation)operation {
  note("proposed", static_cast<NSUInteger>(operation));
}
@end

@implementation OvTestGrid

- (GridState)state {
  return {dataSource,
          delegate,
          intercellSpacing,
          cellSize,
          dataCell,
          _selectionManager,
          _selectionInfo,
          _selectionInfoBeforeMouseDown,
          backgroundColor,
          gridColor,
          gridStyleMask,
          gridLineWidth,
          gridShadow,
          _numberOfItems,
          _numberOfColumns,
          _numberOfRows,
          _mouseDownFlags,
          _mouseDownLocation,
          _mouseDownItemIndex,
          _mouseDowned,
          _mouseDragged,
          _draggingRefused,
          _rubberBandFrame,
          _rubberBandColumns,
          _rubberBandRows,
          draggingLocationItemIndex,
          draggingDestinationItemIndex,
          proposedDragOperation,
          editedItemIndex,
          _toolTipManager,
          _mouseTrackingManager,
          _flags};
}

- (void)setBand:(NSRect)frame {
  _rubberBandFrame = frame;
}

- (void)setDropOperation:(NSUInteger)operation at:(NSUInteger)index {
  proposedDragOperation = operation;
  draggingDestinationItemIndex = index;
}

- (void)reloadData {
  note("reload");
  [super reloadData];
}
- (void)sizeToFit {
  note("sizeToFit");
  [super sizeToFit];
}
- (void)_calcColumnsAndRowsForFrameWidth:(CGFloat)width {
  note("calcWidth", ov::test::text(width));
  [super _calcColumnsAndRowsForFrameWidth:width];
}
- (void)_calcColumnsAndRowsForFrameHeight:(CGFloat)height {
  note("calcHeight", ov::test::text(height));
  [super _calcColumnsAndRowsForFrameHeight:height];
}

- (void)drawCellWithFrame:(NSRect)frame atItemIndex:(NSUInteger)index {
  note("drawCell", text(index) + " " + text(frame));
  [super drawCellWithFrame:frame atItemIndex:index];
}
- (void)drawGridLinesInRect:(NSRect)rect {
  note("gridLines", text(rect));
  [super drawGridLinesInRect:rect];
}
- (void)drawRubberBandWithFrame:(NSRect)frame {
  note("band", text(frame));
  [super drawRubberBandWithFrame:frame];
}
- (void)drawDraggingDestinationRingWithFrame:(NSRect)frame
                                 atItemIndex:(NSUInteger)index
                       proposedDragOperation:(NSUInteger)operation {
  note("ring", text(frame) + " " + text(index) + " " + text(operation));
  [super drawDraggingDestinationRingWithFrame:frame
                                  atItemIndex:index
                        proposedDragOperation:operation];
}

- (void)setNeedsDisplayInRect:(NSRect)rect {
  note("dirty", text(rect));
  [super setNeedsDisplayInRect:rect];
}
- (void)setNeedsDisplayAtItemIndex:(NSUInteger)index {
  note("dirtyItem", index);
  [super setNeedsDisplayAtItemIndex:index];
}
- (void)setNeedsDisplayAtItemIndexes:(NSIndexSet *)indexes {
  note("dirtyItems", indexes);
  [super setNeedsDisplayAtItemIndexes:indexes];
}
- (void)displayIfNeeded {
  note("display");
  [super displayIfNeeded];
}
- (void)_selectionDidChange {
  note("changed");
  [super _selectionDidChange];
}

- (NSToolTipTag)addToolTipRect:(NSRect)rect owner:(id)owner userData:(void *)data {
  note("tip", text(reinterpret_cast<NSUInteger>(data)) + " " + text(rect));
  tipOwners.push_back(owner);
  return [super addToolTipRect:rect owner:owner userData:data];
}
- (void)removeAllToolTips {
  note("removeTips");
  [super removeAllToolTips];
}
- (NSTrackingRectTag)addTrackingRect:(NSRect)rect
                               owner:(id)owner
                            userData:(void *)data
                        assumeInside:(BOOL)flag {
  // Tool tips are made of tracking rectangles too.
  if ([owner isKindOfClass:[HXMatrixViewMouseTrackingManager class]]) {
    note("region", text(reinterpret_cast<NSUInteger>(data)) + " " + text(rect));
    regionOwners.push_back(owner);
    regionAssumesInside.push_back(flag);
  }
  return [super addTrackingRect:rect owner:owner userData:data assumeInside:flag];
}
- (void)removeTrackingRect:(NSTrackingRectTag)tag {
  note("removeRegion");
  [super removeTrackingRect:tag];
}

- (BOOL)autoscroll:(NSEvent *)event {
  note("autoscroll");
  return [super autoscroll:event];
}
- (BOOL)_startDragging:(NSEvent *)event {
  note("startDragging");
  return [super _startDragging:event];
}
- (void)dragImage:(NSImage *)image
               at:(NSPoint)location
           offset:(NSSize)offset
            event:(NSEvent *)event
       pasteboard:(NSPasteboard *)pasteboard
           source:(id)source
        slideBack:(BOOL)slideBack {
  note("dragImageAt", text(location) + " offset " + text(NSMakePoint(offset.width, offset.height)));
  draggedImage = [[image retain] autorelease];
  draggedSource = source;
  draggedPasteboard = pasteboard;
  draggedSlideBack = slideBack;
  draggedEvent = event;
  if (!callsThroughDragImage) return;
  [super dragImage:image
                at:location
            offset:offset
             event:event
        pasteboard:pasteboard
            source:source
         slideBack:slideBack];
}
- (void)editItemAtIndex:(NSUInteger)index withEvent:(NSEvent *)event select:(BOOL)flag {
  note("editItem", text(index) + (flag ? " select" : " plain"));
  [super editItemAtIndex:index withEvent:event select:flag];
}
- (BOOL)becomeFirstResponder {
  note("firstResponder");
  return [super becomeFirstResponder];
}

@end

@implementation OvTestOvGrid
@end

namespace ov::test {

void GridTest::SetUp() {
  LiveTest::SetUp();
  journal().clear();
}

void GridTest::TearDown() {
  [[HXAutoScrollManager sharedManager] stop];
  LiveTest::TearDown();
  // A grid asks its data source as long as it lives.
  for (OvTestItems *one : all_) [one release];
  all_.clear();
  items = nil;
}

OvTestItems *GridTest::newItems(NSUInteger count) {
  OvTestItems *one = [[OvTestItems items:count] retain];
  all_.push_back(one);
  return one;
}

OvTestGrid *GridTest::makeGrid(NSUInteger itemCount, NSSize size) {
  if (!items || items->count != itemCount) items = newItems(itemCount);
  OvTestGrid *grid =
      [[[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)] autorelease];
  [grid setAutoFitHorizentally:NO];
  [grid setDataCell:[[[OvTestCell alloc] init] autorelease]];
  [grid setDelegate:items];
  [grid setDataSource:items];
  journal().clear();
  return grid;
}

OvTestGrid *GridTest::gridInWindow(NSUInteger itemCount, NSSize size, bool onScreen) {
  NSWindow *window = onScreen ? showWindow(size) : makeWindow(size);
  OvTestGrid *grid = makeGrid(itemCount, size);
  [[window contentView] addSubview:grid];
  if (onScreen) pumpPending();
  journal().clear();
  return grid;
}

OvTestGrid *GridTest::gridInScrollView(NSUInteger itemCount, NSSize size, bool onScreen) {
  NSWindow *window = onScreen ? showWindow(size) : makeWindow(size);
  OvTestGrid *grid = makeGrid(itemCount, size);
  NSScrollView *scroll = scrollView(window, grid);
  [scroll setHasHorizontalScroller:NO];
  [grid setAutoresizingMask:NSViewWidthSizable];
  [grid setFrameSize:[scroll contentSize]];
  if (onScreen) pumpPending();
  journal().clear();
  return grid;
}

NSPoint GridTest::middle(HXMatrixView *grid, NSUInteger index) {
  NSRect frame = [grid frameOfCellAtItemIndex:index];
  return NSMakePoint(NSMidX(frame), NSMidY(frame));
}

}  // namespace ov::test
