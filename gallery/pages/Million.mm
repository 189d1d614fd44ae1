// The grid on many items, made up as they are drawn.

#import <OvAppKit/OvAppKit.h>

#include <chrono>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

// A colour swatch with the item's number.
@interface SwatchCell : NSCell {
  BOOL _hovered;
}
- (void)setMouseOrvered:(BOOL)flag;
@end

@implementation SwatchCell

- (void)setMouseOrvered:(BOOL)flag {
  _hovered = flag;
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  (void)view;
  const NSUInteger index = [[self objectValue] unsignedIntegerValue];
  const CGFloat hue = (index % 360) / 360.0;
  NSRect swatch = NSInsetRect(frame, 2, 2);
  if ([self isHighlighted]) {
    [GalleryAccentColor() set];
    NSRectFill(frame);
    swatch = NSInsetRect(frame, 3, 3);
  }
  [[NSColor colorWithCalibratedHue:hue saturation:_hovered ? 0.45 : 0.28 brightness:0.95
                             alpha:1] set];
  NSRectFill(swatch);
  GalleryDrawText([NSString stringWithFormat:@"%lu", static_cast<unsigned long>(index)], frame,
                  GalleryFont(11), GalleryTextColor(), NSCenterTextAlignment);
}

@end

// Tells its owner how long drawing took.
@interface TimedGrid : HXMatrixView {
  double _lastDrawSeconds;
}
- (double)lastDrawSeconds;
@end

@implementation TimedGrid

- (double)lastDrawSeconds {
  return _lastDrawSeconds;
}

- (void)drawRect:(NSRect)rect {
  const auto start = std::chrono::steady_clock::now();
  [super drawRect:rect];
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  // A page, not a strip or a cell.
  if (NSEqualSizes(rect.size, [self visibleRect].size)) _lastDrawSeconds = time.count();
}

@end

@interface MillionPage : GalleryPage {
  NSScrollView *_scroll;
  TimedGrid *_grid;
  NSUInteger _count;
}
@end

// The tool tips, which a grid installs only for a delegate that has them.
@interface MillionToolTips : NSObject
@end

@implementation MillionToolTips

- (NSString *)matrixView:(HXMatrixView *)grid toolTipAtItemIndex:(NSUInteger)index {
  return [NSString stringWithFormat:@"Item %lu\nColumn %lu, row %lu",
                                    static_cast<unsigned long>(index),
                                    static_cast<unsigned long>([grid columnAtItemIndex:index]),
                                    static_cast<unsigned long>([grid rowAtItemIndex:index])];
}

@end

@implementation MillionPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 20;
}

+ (NSString *)name {
  return @"million";
}

+ (NSString *)title {
  return @"A million items";
}

+ (NSString *)summary {
  return @"Scrolling, selecting and resizing take as long for a million items as for ten.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_grid setDataSource:nil];
  [_grid setDelegate:nil];
  [_grid release];
  [_scroll release];
  [super dealloc];
}

+ (MillionToolTips *)toolTips {
  static MillionToolTips *toolTips = [[MillionToolTips alloc] init];
  return toolTips;
}

- (NSView *)makeView {
  _count = 1000000;
  _scroll = [[GalleryScrollView alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)];
  _grid = [[TimedGrid alloc] initWithFrame:NSMakeRect(0, 0, 400, 300)];
  [_grid setAutoFitHorizentally:NO];
  [_grid setCellSize:NSMakeSize(75, 46)];
  [_grid setIntercellSpacing:NSMakeSize(2, 2)];
  [_grid setDataCell:[[[SwatchCell alloc] initTextCell:@""] autorelease]];
  [_grid setBackgroundColor:GalleryPanelColor()];
  [_scroll setDocumentView:_grid];
  [_grid setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
  [_grid setDataSource:self];
  [_grid setDelegate:[MillionPage toolTips]];
  [_grid setMouseTrackingEnabled:YES];
  [[_scroll contentView] setPostsBoundsChangedNotifications:YES];
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  [center addObserver:self
             selector:@selector(describe)
                 name:HXMatrixViewSelectionDidChangeNotification
               object:_grid];
  [center addObserver:self
             selector:@selector(describeSoon)
                 name:NSViewBoundsDidChangeNotification
               object:[_scroll contentView]];
  return _scroll;
}

- (NSView *)keyView {
  return _grid;
}

- (void)didShow {
  [self describeSoon];
}

- (void)willHide {
  [NSObject cancelPreviousPerformRequestsWithTarget:self];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Items"];
  [settings addPopUp:@"Number"
              titles:@[ @"10", @"1,000", @"100,000", @"1,000,000" ]
            selected:3
             changed:[self](NSInteger index) {
               static const NSUInteger counts[] = {10, 1000, 100000, 1000000};
               _count = counts[index];
               [_grid reloadData];
               [self describeSoon];
             }];
  [settings addPopUp:@"Fills"
              titles:@[ @"the width", @"the height" ]
            selected:0
             changed:[self](NSInteger index) {
               [_grid setAutoFitHorizentally:index == 1];
               [self describeSoon];
             }];
  [settings addColumn:@"Behaviour"];
  [settings addCheckBox:@"Follows the pointer"
                     on:YES
                changed:[self](BOOL on) {
                  [_grid setMouseTrackingEnabled:on];
                  [_grid setNeedsDisplay:YES];
                }];
  [settings addCheckBox:@"Tool tips"
                     on:YES
                changed:[self](BOOL on) { [_grid setDelegate:on ? [MillionPage toolTips] : nil]; }];
}

// The time is known once the page has been drawn.
- (void)describeSoon {
  [NSObject cancelPreviousPerformRequestsWithTarget:self selector:@selector(describe) object:nil];
  [self performSelector:@selector(describe)
             withObject:nil
             afterDelay:0.1
                inModes:@[ NSDefaultRunLoopMode, NSEventTrackingRunLoopMode ]];
}

- (void)describe {
  [self setMessage:[NSString
                       stringWithFormat:@"%lu of %lu selected. The last full page took %.1f ms "
                                        @"to draw.",
                                        static_cast<unsigned long>([_grid numberOfSelectedItems]),
                                        static_cast<unsigned long>(_count),
                                        [_grid lastDrawSeconds] * 1000]
           warning:NO];
}

- (BOOL)isSettled {
  return [_grid lastDrawSeconds] > 0 && [[self message] length] > 0;
}

- (NSArray *)statusLines {
  return @[
    [NSString stringWithFormat:@"items=%lu", static_cast<unsigned long>(_count)],
    [NSString stringWithFormat:@"columns=%lu", static_cast<unsigned long>([_grid numberOfColumns])],
    [NSString stringWithFormat:@"selectedcount=%lu",
                               static_cast<unsigned long>([_grid numberOfSelectedItems])],
    GalleryStatusLine(@"grid", _grid, [_grid visibleRect], @"")
  ];
}

#pragma mark Data source

- (NSUInteger)numberOfItemsInMatrixView:(HXMatrixView *)grid {
  (void)grid;
  return _count;
}

- (id)matrixView:(HXMatrixView *)grid
    objectValueForCell:(NSCell *)cell
           atItemIndex:(NSUInteger)index {
  (void)grid, (void)cell;
  return @(index);
}

@end
