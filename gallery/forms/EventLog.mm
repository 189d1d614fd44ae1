#import "forms/EventLog.h"

#include <algorithm>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"

static const CGFloat kRowHeight = 19;
static const CGFloat kHeaderHeight = 35;
static const NSUInteger kMostEvents = 1000;
static const NSUInteger kReportedEvents = 60;

@interface LoggedEvent : NSObject {
 @public
  NSString *_event;
  NSString *_source;
  NSColor *_color;
}
@end

@implementation LoggedEvent

- (void)dealloc {
  [_event release];
  [_source release];
  [_color release];
  [super dealloc];
}

@end

// Draws the events that can be seen.
@interface EventLines : NSView {
 @public
  NSMutableArray *_events;
}
- (void)eventsDidChange;
@end

@implementation EventLines

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) _events = [[NSMutableArray alloc] init];
  return self;
}

- (void)dealloc {
  [_events release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (void)eventsDidChange {
  const CGFloat needed = [_events count] * kRowHeight + 2 * 4;
  // As wide as it will be: too wide a view would get a horizontal scroller at once.
  NSSize room = [[self enclosingScrollView] bounds].size;
  if (needed > room.height) room.width -= [NSScroller scrollerWidth] + 1;
  [self setFrameSize:NSMakeSize(std::max<CGFloat>(0, room.width), std::max(needed, room.height))];
  [self scrollPoint:NSMakePoint(0, std::max<CGFloat>(0, needed - room.height))];
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  [GalleryPanelColor() set];
  NSRectFill(rect);
  const auto count = static_cast<NSInteger>([_events count]);
  const auto first =
      std::max<NSInteger>(0, static_cast<NSInteger>((NSMinY(rect) - 4) / kRowHeight));
  const auto last = std::min<NSInteger>(
      count, static_cast<NSInteger>(std::max<CGFloat>(0, NSMaxY(rect)) / kRowHeight) + 1);
  const CGFloat width = NSWidth([self bounds]);
  for (NSInteger i = first; i < last; ++i) {
    const LoggedEvent *event = [_events objectAtIndex:i];
    const NSRect row =
        NSMakeRect(GalleryMargin, 4 + i * kRowHeight, width - 2 * GalleryMargin, kRowHeight);
    GalleryDrawText(event->_source, row, GalleryFont(11), GalleryQuietTextColor(),
                    NSRightTextAlignment);
    GalleryDrawText(event->_event, row, GalleryFont(11), event->_color, NSLeftTextAlignment);
  }
}

@end

@implementation EventLog

- (id)initWithTitle:(NSString *)title {
  self = [super initWithFrame:NSMakeRect(0, 0, 300, 300)];
  if (!self) return nil;
  _title = GalleryLabel(title, GalleryBoldFont(12), GalleryTextColor());
  _clear = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
  [_clear setTitle:@"Clear"];
  [_clear setFont:GalleryFont(11)];
  [_clear setTarget:self];
  [_clear setAction:@selector(clear:)];
  _scroll = [[[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_scroll setHasHorizontalScroller:NO];
  _lines = [[[EventLines alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_scroll setDocumentView:_lines];
  for (NSView *view in @[ _title, _clear, _scroll ]) [self addSubview:view];
  return self;
}

- (BOOL)isOpaque {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  [GalleryPanelColor() set];
  NSRectFill(rect);
  [GalleryLineColor() set];
  NSRectFill(NSMakeRect(0, kHeaderHeight, NSWidth([self bounds]), 1));
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  const NSSize size = [self bounds].size;
  const CGFloat titleHeight = NSHeight([_title frame]);
  [_title setFrameOrigin:NSMakePoint(GalleryMargin, floor((kHeaderHeight - titleHeight) / 2))];
  [_clear setFrame:NSMakeRect(size.width - GalleryMargin - 60, 6, 60, 22)];
  // Lines of the old size would get scrollers, which stay as long as they leave too little room.
  [_lines setFrameSize:NSZeroSize];
  [_scroll setFrame:NSMakeRect(0, kHeaderHeight + 1, size.width,
                               std::max<CGFloat>(0, size.height - kHeaderHeight - 1))];
  [_lines eventsDidChange];
}

- (void)addEvent:(NSString *)text from:(NSString *)source color:(NSColor *)color {
  LoggedEvent *event = [[[LoggedEvent alloc] init] autorelease];
  event->_event = [text copy];
  event->_source = [source copy];
  event->_color = [color ?: GalleryTextColor() retain];
  if ([_lines->_events count] == kMostEvents) [_lines->_events removeObjectAtIndex:0];
  [_lines->_events addObject:event];
  ++_count;
  [_lines eventsDidChange];
}

- (void)clear:(id)sender {
  (void)sender;
  [_lines->_events removeAllObjects];
  _count = 0;
  [_lines eventsDidChange];
}

- (NSButton *)clearButton {
  return _clear;
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  [lines addObject:[NSString stringWithFormat:@"log=%lu", static_cast<unsigned long>(_count)]];
  const NSUInteger kept = [_lines->_events count];
  for (NSUInteger i = kept - std::min(kept, kReportedEvents); i < kept; ++i) {
    const LoggedEvent *event = [_lines->_events objectAtIndex:i];
    [lines addObject:[NSString stringWithFormat:@"log.%lu=%@ %@",
                                                static_cast<unsigned long>(_count - kept + i),
                                                event->_event, event->_source]];
  }
  [lines addObject:GalleryStatusLine(@"rect.clear", _clear, [_clear bounds], @"")];
  return lines;
}

@end
