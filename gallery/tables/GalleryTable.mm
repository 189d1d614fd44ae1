#import "tables/GalleryTable.h"

#import "shell/GalleryControls.h"
#import "shell/GalleryStyle.h"

@interface GalleryHeaderCell : NSTableHeaderCell
@end

@implementation GalleryHeaderCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  [GalleryWindowColor() set];
  NSRectFill(frame);
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(NSMinX(frame), [view isFlipped] ? NSMaxY(frame) - 1 : NSMinY(frame),
                        NSWidth(frame), 1));
  GalleryDrawText([self stringValue], NSInsetRect(frame, 6, 0), GalleryBoldFont(11),
                  GalleryQuietTextColor(), NSLeftTextAlignment);
}

@end

// What the platform would draw black.
@interface GalleryTableScroll : GalleryScrollView
@end

@implementation GalleryTableScroll

- (void)drawRect:(NSRect)rect {
  [super drawRect:rect];
  [GalleryLineColor() set];
  NSFrameRect([self bounds]);
}

@end

// Centred vertically, as the platform's text cell is not.
@interface GalleryTableCell : NSTextFieldCell
@end

@implementation GalleryTableCell

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView *)view {
  (void)view;
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(frame);
  GalleryDrawText([self stringValue], NSInsetRect(frame, 4, 0), GalleryFont(12), GalleryTextColor(),
                  NSLeftTextAlignment);
  [NSGraphicsContext restoreGraphicsState];
}

@end

static void drawSelectedRows(NSTableView *table, NSRect rect) {
  [GalleryColor(0xDCE8FB) set];
  NSIndexSet *rows = [table selectedRowIndexes];
  for (NSUInteger row = [rows firstIndex]; row != NSNotFound;
       row = [rows indexGreaterThanIndex:row]) {
    NSRectFill(NSIntersectionRect([table rectOfRow:static_cast<NSInteger>(row)], rect));
  }
}

@implementation GalleryTable

- (void)highlightSelectionInClipRect:(NSRect)rect {
  drawSelectedRows(self, rect);
}

@end

@implementation GalleryOutline

- (void)highlightSelectionInClipRect:(NSRect)rect {
  drawSelectedRows(self, rect);
}

- (NSRect)frameOfOutlineCellAtRow:(NSInteger)row {
  static const CGFloat kTriangle = 10;
  NSRect frame = [super frameOfOutlineCellAtRow:row];
  frame.origin.x += 3;
  frame.origin.y += floor(([self rowHeight] - kTriangle) / 2);
  return frame;
}

@end

NSTableColumn *GalleryTableColumn(NSString *title, CGFloat width) {
  NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:title] autorelease];
  [column setHeaderCell:[[[GalleryHeaderCell alloc] initTextCell:title] autorelease]];
  [column setDataCell:[[[GalleryTableCell alloc] initTextCell:@""] autorelease]];
  [column setWidth:width];
  [column setEditable:NO];
  return column;
}

NSScrollView *GalleryTableScrollView(NSTableView *table) {
  NSScrollView *scroll =
      [[[GalleryTableScroll alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [scroll setHasHorizontalScroller:NO];
  [scroll setBorderType:NSLineBorder];
  [table setBackgroundColor:GalleryPanelColor()];
  [table setDrawsGrid:NO];
  [table setRowHeight:24];
  [table setIntercellSpacing:NSMakeSize(0, 0)];
  [table setAllowsMultipleSelection:YES];
  [table setAllowsColumnReordering:NO];
  [table setCornerView:nil];
  [table setVerticalMotionCanBeginDrag:YES];
  [scroll setDocumentView:table];
  return scroll;
}
