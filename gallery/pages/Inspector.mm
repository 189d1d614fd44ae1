// Folding views in a column that closes up as they fold.

#import <OvAppKit/OvAppKit.h>

#include <functional>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kColumnWidth = 320;

// A row of colours, one of which is chosen by a click.
@interface InspectorSwatches : NSView {
  NSInteger _chosen;
  std::function<void(NSInteger)> _changed;
}
- (id)initWithChanged:(std::function<void(NSInteger)>)changed;
@end

static NSColor *swatchColor(NSInteger index) {
  static const unsigned colors[] = {0x2F6FDE, 0x1F9D6B, 0xD97A1E, 0xC2364F, 0x7A4BC2, 0x4A5568};
  return GalleryColor(colors[index]);
}

static NSString *swatchName(NSInteger index) {
  static NSString *const names[] = {@"Blue", @"Green", @"Orange", @"Red", @"Violet", @"Slate"};
  return names[index];
}

static const NSInteger kSwatches = 6;

@implementation InspectorSwatches

- (id)initWithChanged:(std::function<void(NSInteger)>)changed {
  self = [super initWithFrame:NSMakeRect(0, 0, kColumnWidth, 44)];
  if (self) _changed = std::move(changed);
  return self;
}

- (NSRect)rectOfSwatch:(NSInteger)index {
  return NSMakeRect(35 + index * 34, 8, 26, 26);
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  for (NSInteger i = 0; i < kSwatches; ++i) {
    [swatchColor(i) set];
    [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect([self rectOfSwatch:i], 3, 3)] fill];
    if (i != _chosen) continue;
    NSBezierPath *ring =
        [NSBezierPath bezierPathWithOvalInRect:NSInsetRect([self rectOfSwatch:i], 1, 1)];
    [ring setLineWidth:1.5];
    [ring stroke];
  }
}

- (void)mouseDown:(NSEvent *)event {
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  for (NSInteger i = 0; i < kSwatches; ++i) {
    if (!NSPointInRect(point, [self rectOfSwatch:i])) continue;
    _chosen = i;
    [self setNeedsDisplay:YES];
    _changed(i);
  }
}

@end

// One value of the inspector, with its name in front.
static NSView *valueRow(NSString *name, NSString *value) {
  GalleryBox *row = [GalleryBox boxWithFill:nil border:nil];
  [row setFrame:NSMakeRect(0, 0, kColumnWidth, 26)];
  NSTextField *label = GalleryLabel(name, GalleryFont(12), GalleryQuietTextColor());
  [label setFrameOrigin:NSMakePoint(35, 4)];
  NSTextField *text = GalleryLabel(value, GalleryFont(12), GalleryTextColor());
  [text setFrameOrigin:NSMakePoint(130, 4)];
  [row addSubview:label];
  [row addSubview:text];
  return row;
}

// The rows one below the other, with a little air at both ends.
static NSView *stack(NSArray *rows) {
  OvFlippedView *view = [[[OvFlippedView alloc] initWithFrame:NSZeroRect] autorelease];
  CGFloat y = 6;
  for (NSView *row in rows) {
    [row setFrameOrigin:NSMakePoint(0, y)];
    [view addSubview:row];
    y += NSHeight([row frame]);
  }
  [view setFrameSize:NSMakeSize(kColumnWidth, y + 10)];
  return view;
}

@interface InspectorPage : GalleryPage {
  NSScrollView *_scroll;
  OvFlippedView *_column;
  NSMutableArray *_sections;
  NSColor *_color;
  int _boxSize;
  BOOL _locked;
  BOOL _summaries;
  BOOL _embossed;
}
- (void)makeSections;
- (void)restack;
@end

@implementation InspectorPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 62;
}

+ (NSString *)name {
  return @"inspector";
}

+ (NSString *)title {
  return @"Inspector";
}

+ (NSString *)summary {
  return @"Views that fold to their header. Click a header, or its triangle.";
}

- (void)dealloc {
  for (OvCollapsingView *section in _sections) [section setDelegate:nil];
  [_sections release];
  [_color release];
  [_scroll release];
  [super dealloc];
}

- (NSView *)makeView {
  _summaries = YES;
  _color = [swatchColor(0) retain];
  _sections = [[NSMutableArray alloc] init];
  _scroll = [[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)];
  _column = [[[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)] autorelease];
  [_scroll setDocumentView:_column];
  [_scroll setHasHorizontalScroller:NO];
  [self makeSections];
  return _scroll;
}

- (OvCollapsingView *)addSection:(NSString *)title
                        headline:(NSString *)headline
                         content:(NSView *)content {
  const NSSize size = [content frame].size;
  OvCollapsingView *section =
      [[[OvCollapsingView alloc] initWithFrame:NSMakeRect(0, 0, kColumnWidth, 100)
                                          size:_boxSize] autorelease];
  [section setFrameSize:NSMakeSize(kColumnWidth, [section headerHeight] + size.height)];
  [section setContentView:content];
  [section setTitle:title];
  [section setHeadline:_summaries ? headline : nil];
  [section setHeaderEmboss:_embossed];
  [section setLocked:_locked];
  [section setDelegate:self];
  [section setHeaderToolTip:@"Click to fold or unfold"];
  [_column addSubview:section];
  [_sections addObject:section];
  return section;
}

- (void)makeSections {
  for (OvCollapsingView *section in _sections) {
    [section setDelegate:nil];
    [section removeFromSuperview];
  }
  [_sections removeAllObjects];
  [self addSection:@"General"
          headline:@"Evening walk.png"
           content:stack(@[
             valueRow(@"Name", @"Evening walk.png"), valueRow(@"Kind", @"PNG picture"),
             valueRow(@"Size", @"1,284,310 bytes"), valueRow(@"Changed", @"3 October, 18:42")
           ])];
  [self addSection:@"Picture"
          headline:@"2400 x 1600"
           content:stack(@[
             valueRow(@"Width", @"2400 pixels"), valueRow(@"Height", @"1600 pixels"),
             valueRow(@"Depth", @"8 bits, RGB")
           ])];
  InspectorSwatches *swatches = [[[InspectorSwatches alloc] initWithChanged:[self](NSInteger i) {
    [[_sections objectAtIndex:2] setHeadline:_summaries ? swatchName(i) : nil];
    [self setMessage:[swatchName(i) stringByAppendingString:@" chosen."] warning:NO];
  }] autorelease];
  [self addSection:@"Label" headline:@"Blue" content:stack(@[ swatches ])];
  NSTextView *notes =
      [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, kColumnWidth - 47, 90)] autorelease];
  [notes setString:@"Taken from the bridge. The light lasted for three minutes."];
  [notes setFont:GalleryFont(12)];
  [notes setTextColor:GalleryTextColor()];
  GalleryBox *frame = [GalleryBox boxWithFill:GalleryPanelColor() border:GalleryLineColor()];
  [frame setFrame:NSMakeRect(35, 0, kColumnWidth - 47, 90)];
  [notes setFrame:NSInsetRect([frame bounds], 1, 1)];
  [frame addSubview:notes];
  OvFlippedView *inset =
      [[[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, kColumnWidth, 90)] autorelease];
  [inset addSubview:frame];
  [self addSection:@"Notes" headline:@"1 note" content:stack(@[ inset ])];
  [self restack];
}

- (void)restack {
  CGFloat y = GallerySmallMargin;
  for (OvCollapsingView *section in _sections) {
    [section setFrameOrigin:NSMakePoint(GalleryMargin, y)];
    y = NSMaxY([section frame]) + GallerySmallMargin;
  }
  const NSSize visible = [_scroll contentSize];
  [_column setFrameSize:NSMakeSize(MAX(visible.width, kColumnWidth + 2 * GalleryMargin),
                                   MAX(visible.height, y))];
  [_column setNeedsDisplay:YES];
}

- (void)didShow {
  [self restack];
}

- (NSView *)keyView {
  return [[_sections objectAtIndex:0] discrosure];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Headers"];
  [settings addPopUp:@"Size"
              titles:@[ @"0: 23 points", @"1: 17 points", @"2: 14 points" ]
            selected:0
             changed:[self](NSInteger index) {
               _boxSize = static_cast<int>(index);
               [self makeSections];
               [self changed];
             }];
  [settings addCheckBox:@"Summaries"
                     on:YES
                changed:[self](BOOL on) {
                  _summaries = on;
                  [self makeSections];
                  [self changed];
                }];
  [settings addCheckBox:@"Embossed titles"
                     on:NO
                changed:[self](BOOL on) {
                  _embossed = on;
                  for (OvCollapsingView *section in _sections) [section setHeaderEmboss:on];
                  [_column setNeedsDisplay:YES];
                }];
  [settings addColumn:@"Behaviour"];
  [settings addCheckBox:@"Locked"
                     on:NO
                changed:[self](BOOL on) {
                  _locked = on;
                  for (OvCollapsingView *section in _sections) [section setLocked:on];
                  [self changed];
                }];
  [settings addButton:@"Fold all" pressed:[self] { [self setAllCollapsed:YES]; }];
  [settings addButton:@"Unfold all" pressed:[self] { [self setAllCollapsed:NO]; }];
}

- (void)setAllCollapsed:(BOOL)collapsed {
  for (OvCollapsingView *section in _sections) {
    [section setCollapsed:collapsed];
    [section refresh];
  }
}

#pragma mark The folding views' delegate

- (void)collapsingViewDidCollapse:(NSNotification *)notification {
  [self sectionChanged:[notification object] how:@"folded"];
}

- (void)collapsingViewDidExpand:(NSNotification *)notification {
  [self sectionChanged:[notification object] how:@"unfolded"];
}

- (void)sectionChanged:(OvCollapsingView *)section how:(NSString *)how {
  [self restack];
  [self setMessage:[NSString stringWithFormat:@"%@ %@.", [section title], how] warning:NO];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  for (OvCollapsingView *section in _sections) {
    NSString *key = [@"section." stringByAppendingString:[[section title] lowercaseString]];
    NSRect header = [section bounds];
    header.size.height = [section headerHeight];
    [lines addObject:GalleryStatusLine(key, section, header, @"")];
    [lines addObject:[NSString stringWithFormat:@"%@.collapsed=%d", key, [section isCollapsed]]];
    [lines addObject:[NSString stringWithFormat:@"%@.height=%d", key,
                                                static_cast<int>(NSHeight([section frame]))]];
    [lines
        addObject:[NSString stringWithFormat:@"%@.text=%@", key, [[section header] stringValue]]];
    NSView *button = [section discrosure];
    [lines addObject:GalleryStatusLine([key stringByAppendingString:@".button"], button,
                                       [button bounds], @"")];
  }
  [lines addObject:GalleryStatusLine(@"grid", _column, [_column visibleRect], @"")];
  return lines;
}

@end
