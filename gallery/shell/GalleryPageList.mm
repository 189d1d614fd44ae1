#import "shell/GalleryPageList.h"

#import "shell/GalleryStyle.h"

@interface GalleryPageNameCell : NSTextFieldCell
@end

@implementation GalleryPageNameCell

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  GalleryPageList *list = static_cast<GalleryPageList *>(view);
  const NSInteger row = [list rowAtPoint:NSMakePoint(NSMidX(frame), NSMidY(frame))];
  const BOOL selected = [list isRowSelected:row];
  if (selected) {
    [GalleryAccentColor() set];
    [GalleryRoundedPath(NSInsetRect(frame, 0, 1), 5) fill];
  }
  NSRect text = NSInsetRect(frame, 10, 0);
  GalleryDrawText([self stringValue], text, GalleryFont(13),
                  selected ? [NSColor whiteColor] : GalleryTextColor(), NSLeftTextAlignment);
}

@end

@implementation GalleryPageList

// The cells draw the selection.
- (void)highlightSelectionInClipRect:(NSRect)rect {
  (void)rect;
}

// The cell of the row that loses the selection is drawn over its old background.
- (void)selectRowIndexes:(NSIndexSet *)indexes byExtendingSelection:(BOOL)extend {
  [super selectRowIndexes:indexes byExtendingSelection:extend];
  [self setNeedsDisplay:YES];
}

@end

GalleryPageList *GalleryMakePageList() {
  GalleryPageList *list =
      [[[GalleryPageList alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  NSTableColumn *column = [[[NSTableColumn alloc] initWithIdentifier:@"page"] autorelease];
  [column setDataCell:[[[GalleryPageNameCell alloc] initTextCell:@""] autorelease]];
  [column setEditable:NO];
  [list addTableColumn:column];
  [list setHeaderView:nil];
  [list setCornerView:nil];
  [list setDrawsGrid:NO];
  [list setRowHeight:30];
  [list setIntercellSpacing:NSMakeSize(0, 2)];
  [list setBackgroundColor:GallerySidebarColor()];
  [list setAllowsEmptySelection:NO];
  [list setAllowsMultipleSelection:NO];
  [list setAllowsColumnReordering:NO];
  [list setAllowsColumnResizing:NO];
  return list;
}
