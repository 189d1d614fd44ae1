#import "panes/PaneList.h"

#include <algorithm>

#import "shell/GalleryStyle.h"

static const CGFloat kLowRow = 30;
static const CGFloat kHighRow = 52;

static NSString *string(const std::string &text) {
  return [NSString stringWithUTF8String:text.c_str()];
}

static void drawClipped(NSString *text, NSRect rect, NSFont *font, NSColor *color) {
  if (NSWidth(rect) <= 0) return;
  [NSGraphicsContext saveGraphicsState];
  NSRectClip(rect);
  GalleryDrawText(text, rect, font, color, NSLeftTextAlignment);
  [NSGraphicsContext restoreGraphicsState];
}

@implementation PaneList

- (id)initWithBackground:(NSColor *)background chosen:(std::function<void(NSInteger)>)chosen {
  self = [super initWithFrame:NSMakeRect(0, 0, 100, 100)];
  if (!self) return nil;
  _background = [background retain];
  _chosen = std::move(chosen);
  return self;
}

- (void)dealloc {
  [_background release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (void)setRows:(const std::vector<PaneRow> &)rows {
  _rows = rows;
  _selectedRow = 0;
  [self setNeedsDisplay:YES];
}

- (NSInteger)selectedRow {
  return _selectedRow;
}

- (void)selectRow:(NSInteger)row {
  if (row == _selectedRow || row < 0 || row >= static_cast<NSInteger>(_rows.size())) return;
  _selectedRow = row;
  [self setNeedsDisplay:YES];
}

- (NSRect)rectOfRow:(NSInteger)row {
  const bool high = !_rows.empty() && !_rows.front().detail.empty();
  const CGFloat height = high ? kHighRow : kLowRow;
  return NSMakeRect(0, 8 + row * height, NSWidth([self bounds]), height);
}

- (void)drawRow:(NSInteger)row {
  const PaneRow &item = _rows[row];
  const NSRect frame = [self rectOfRow:row];
  const BOOL selected = row == _selectedRow;
  if (selected) {
    [GalleryAccentColor() set];
    [GalleryRoundedPath(NSInsetRect(frame, 6, 1), 5) fill];
  }
  NSColor *strong = selected ? [NSColor whiteColor] : GalleryTextColor();
  NSColor *quiet = selected ? GalleryColor(0xDCE7FC) : GalleryQuietTextColor();
  NSRect text = NSInsetRect(frame, 16, 0);
  if (item.badge > 0) {
    NSString *number = [NSString stringWithFormat:@"%d", item.badge];
    GalleryDrawText(number, text, GalleryFont(11), quiet, NSRightTextAlignment);
    text.size.width -= 28;
  }
  if (item.detail.empty()) {
    drawClipped(string(item.title), text, GalleryFont(13), strong);
    return;
  }
  text = NSInsetRect(text, 0, 6);
  text.size.height /= 2;
  drawClipped(string(item.title), text, GalleryBoldFont(12), strong);
  text.origin.y += NSHeight(text);
  drawClipped(string(item.detail), text, GalleryFont(11), quiet);
}

- (void)drawRect:(NSRect)rect {
  [_background set];
  NSRectFill(rect);
  for (size_t i = 0; i < _rows.size(); ++i) [self drawRow:static_cast<NSInteger>(i)];
}

- (void)chooseRow:(NSInteger)row {
  if (row < 0 || row >= static_cast<NSInteger>(_rows.size())) return;
  [self selectRow:row];
  _chosen(row);
}

- (void)mouseDown:(NSEvent *)event {
  [[self window] makeFirstResponder:self];
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  for (size_t i = 0; i < _rows.size(); ++i) {
    const NSInteger row = static_cast<NSInteger>(i);
    if (NSPointInRect(point, [self rectOfRow:row])) [self chooseRow:row];
  }
}

- (void)keyDown:(NSEvent *)event {
  NSString *characters = [event characters];
  const unichar key = [characters length] > 0 ? [characters characterAtIndex:0] : 0;
  if (key == NSUpArrowFunctionKey) {
    [self chooseRow:_selectedRow - 1];
  } else if (key == NSDownArrowFunctionKey) {
    [self chooseRow:_selectedRow + 1];
  } else {
    [super keyDown:event];
  }
}

@end

@implementation PaneMessage

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (void)setSubject:(const std::string &)subject
              from:(const std::string &)from
              text:(const std::string &)text {
  _subject = subject;
  _from = from;
  _text = text;
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  [GalleryPanelColor() set];
  NSRectFill(rect);
  NSRect area = NSInsetRect([self bounds], GalleryLargeMargin, 16);
  if (NSWidth(area) <= 0 || NSHeight(area) <= 0) return;
  NSRect line = area;
  line.size.height = 24;
  drawClipped(string(_subject), line, GalleryBoldFont(16), GalleryTextColor());
  line.origin.y += 26;
  line.size.height = 18;
  drawClipped(string(_from), line, GalleryFont(12), GalleryQuietTextColor());
  line.origin.y += 28;
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(NSMinX(area), NSMinY(line) - 4, NSWidth(area), 1));
  area.size.height = NSMaxY(area) - NSMinY(line) - 8;
  area.origin.y = NSMinY(line) + 8;
  if (NSHeight(area) <= 0) return;
  [string(_text) drawInRect:area
             withAttributes:@{
               NSFontAttributeName : GalleryFont(13),
               NSForegroundColorAttributeName : GalleryTextColor()
             }];
}

@end
