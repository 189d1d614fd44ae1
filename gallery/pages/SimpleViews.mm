// The small views: filled, with an image, a label, a frame, hidden and shown; tabs without a
// border beside the platform's.

#import <OvAppKit/OvAppKit.h>

#include <functional>

#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kGap = 24;
static const CGFloat kTileHeight = 130;
static const CGFloat kCaptionHeight = 18;

// A container that has its subviews laid out whenever its size changes.
@interface SimpleViewsCanvas : OvFlippedView {
 @public
  std::function<void()> _layOut;
}
@end

@implementation SimpleViewsCanvas

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  if (_layOut) _layOut();
}

@end

// Four colours that meet in the middle: stretching shows.
static NSImage *sampleImage() {
  NSImage *image = [[[NSImage alloc] initWithSize:NSMakeSize(64, 64)] autorelease];
  [image lockFocus];
  static const unsigned colors[] = {0x8EC5FC, 0xE0C3FC, 0xFBC2EB, 0xA1E3C9};
  for (int i = 0; i < 4; ++i) {
    [GalleryColor(colors[i]) set];
    NSRectFill(NSMakeRect((i % 2) * 32, (i / 2) * 32, 32, 32));
  }
  [GalleryColor(0xFFFFFF) set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(18, 18, 28, 28)] fill];
  [image unlockFocus];
  return image;
}

namespace {

enum Tile { kFilled, kPictured, kLabelled, kFramed };
constexpr int kTileCount = 4;

NSString *const kCaptions[kTileCount] = {@"Filled", @"An image, stretched", @"Filled, with a label",
                                         @"A frame"};
NSString *const kLabels[] = {@"No selection", @"Empty", @"A label that is wider than its view"};
const NSTabViewType kTabTypes[] = {NSTopTabsBezelBorder, NSBottomTabsBezelBorder,
                                   NSNoTabsBezelBorder, NSNoTabsLineBorder};

}  // namespace

@interface SimpleViewsPage : GalleryPage {
  SimpleViewsCanvas *_canvas;
  OvSimpleView *_tiles[kTileCount];
  NSTextField *_captions[kTileCount];
  NSTabView *_tabs[2];
  GalleryBox *_backings[2];
  NSTextField *_tabCaptions[2];
  NSImage *_image;
  NSButton *_imageFilled;
}
@end

@implementation SimpleViewsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 64;
}

+ (NSString *)name {
  return @"simple";
}

+ (NSString *)title {
  return @"Simple views";
}

+ (NSString *)summary {
  return @"A colour, an image, a label, a frame; a container from the top left; bare tabs.";
}

- (void)dealloc {
  for (NSTabView *tabs : _tabs) [tabs setDelegate:nil];
  if (_canvas) _canvas->_layOut = nullptr;
  [_canvas release];
  [_image release];
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _canvas = [[SimpleViewsCanvas alloc] initWithFrame:NSMakeRect(0, 0, 942, 498)];
  _image = [sampleImage() retain];
  for (int i = 0; i < kTileCount; ++i) {
    _tiles[i] =
        [[[OvSimpleView alloc] initWithFrame:NSMakeRect(0, 0, 200, kTileHeight)] autorelease];
    [_tiles[i] setFrameColor:GalleryAccentColor()];
    [_tiles[i] setFrameLineWidth:2];
    [_canvas addSubview:_tiles[i]];
    _captions[i] = [self addCaption:kCaptions[i]];
  }
  [_tiles[kFilled] setFillColor:GalleryColor(0xDCE9FF)];
  [_tiles[kFilled] setFillRect:YES];
  [_tiles[kPictured] setFillColor:GalleryColor(0xFDE9C8)];
  [_tiles[kPictured] setImage:_image];
  [_tiles[kLabelled] setFillColor:GalleryColor(0xF2F4F8)];
  [_tiles[kLabelled] setFillRect:YES];
  [_tiles[kLabelled] setLabel:kLabels[0]];
  [_tiles[kLabelled] setLabelColor:GalleryColor(0x7C889B)];
  [_tiles[kLabelled] setLabelFont:GalleryBoldFont(20)];
  [_tiles[kFramed] setStrokeRect:YES];
  [self addTabs:0 class:[OvBorderlessTabView class] caption:@"Tabs without a border"];
  [self addTabs:1 class:[NSTabView class] caption:@"The platform's tabs, with theirs"];
  _canvas->_layOut = [self] { [self layOut]; };
  [self layOut];
  return _canvas;
}

- (NSTextField *)addCaption:(NSString *)caption {
  NSTextField *label = GalleryLabel(caption, GalleryFont(12), GalleryQuietTextColor());
  [_canvas addSubview:label];
  return label;
}

// The platform's tabs are white and black edges, made for the grey behind them.
- (void)addTabs:(int)index class:(Class)tabViewClass caption:(NSString *)caption {
  _backings[index] = [GalleryBox boxWithFill:GalleryColor(0xC4CAD4) border:nil];
  _tabs[index] = [[[tabViewClass alloc] initWithFrame:NSMakeRect(0, 0, 400, 200)] autorelease];
  [_tabs[index] setFont:GalleryFont(12)];
  for (NSString *title in @[ @"Summary", @"Details", @"History" ]) {
    NSTabViewItem *item = [[[NSTabViewItem alloc] initWithIdentifier:title] autorelease];
    [item setLabel:title];
    OvSimpleView *view = [[[OvSimpleView alloc] initWithFrame:NSZeroRect] autorelease];
    [view setFillColor:GalleryColor(0xEDF0F4)];
    [view setFillRect:YES];
    [view setLabel:title];
    [view setLabelFont:GalleryFont(15)];
    [item setView:view];
    [_tabs[index] addTabViewItem:item];
  }
  [_tabs[index] selectFirstTabViewItem:nil];
  [_tabs[index] setDelegate:static_cast<id>(self)];
  [_backings[index] addSubview:_tabs[index]];
  [_canvas addSubview:_backings[index]];
  _tabCaptions[index] = [self addCaption:caption];
}

// Four tiles side by side, below them the two tab views.
- (void)layOut {
  const NSSize size = [_canvas bounds].size;
  const CGFloat width = MAX(1, floor((size.width - kGap * (kTileCount + 1)) / kTileCount));
  const CGFloat belowTiles = kGap + kTileHeight + 6;
  for (int i = 0; i < kTileCount; ++i) {
    const CGFloat x = kGap + i * (width + kGap);
    // A hidden view is far away, and comes back to where it was: it is moved when it is there.
    if (![_tiles[i] isHidden]) [_tiles[i] setFrameOrigin:NSMakePoint(x, kGap)];
    [_tiles[i] setFrameSize:NSMakeSize(width, kTileHeight)];
    [_captions[i] setFrameOrigin:NSMakePoint(x - 2, belowTiles)];
  }
  const CGFloat tabsTop = belowTiles + kCaptionHeight + kGap;
  const CGFloat tabsWidth = MAX(60, floor((size.width - 3 * kGap) / 2));
  const CGFloat tabsHeight = MAX(60, size.height - tabsTop - 6 - kCaptionHeight - GalleryMargin);
  for (int i = 0; i < 2; ++i) {
    const CGFloat x = kGap + i * (tabsWidth + kGap);
    [_backings[i] setFrame:NSMakeRect(x, tabsTop, tabsWidth, tabsHeight)];
    [_tabs[i] setFrame:NSInsetRect([_backings[i] bounds], 10, 10)];
    [_tabCaptions[i] setFrameOrigin:NSMakePoint(x - 2, tabsTop + tabsHeight + 6)];
  }
  [_canvas setNeedsDisplay:YES];
}

// The platform places the view of a chosen item only when the tabs are resized.
- (void)showTabsOfType:(NSTabViewType)type {
  for (NSTabView *tabs : _tabs) {
    [tabs setTabViewType:type];
    [[[tabs selectedTabViewItem] view] setFrame:[tabs contentRect]];
  }
  [_canvas setNeedsDisplay:YES];
  [self changed];
}

- (NSView *)keyView {
  return _tabs[0];
}

- (void)tabView:(NSTabView *)tabView didSelectTabViewItem:(NSTabViewItem *)item {
  (void)tabView;
  [self setMessage:[[item label] stringByAppendingString:@" chosen."] warning:NO];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"All four"];
  [settings addCheckBox:@"Hidden"
                     on:NO
                changed:[self](BOOL on) {
                  for (OvSimpleView *tile : _tiles) [tile setHidden:on];
                  [self layOut];
                  [self changed];
                }];
  [settings addCheckBox:@"A frame round each"
                     on:NO
                changed:[self](BOOL on) {
                  for (int i = 0; i < kFramed; ++i) [_tiles[i] setStrokeRect:on];
                  [self changed];
                }];
  [settings addSlider:@"Line width"
                 from:1
                   to:12
                value:2
              changed:[self](double value) {
                for (OvSimpleView *tile : _tiles) {
                  [tile setFrameLineWidth:static_cast<float>(value)];
                }
              }];
  [settings addColumn:@"The image"];
  [settings addCheckBox:@"Image"
                     on:YES
                changed:[self](BOOL on) {
                  [_tiles[kPictured] setImage:on ? _image : nil];
                  // An image switches the filling off.
                  [_imageFilled setState:[_tiles[kPictured] fillRect] ? NSOnState : NSOffState];
                  [self changed];
                }];
  _imageFilled = [settings addCheckBox:@"Filled"
                                    on:NO
                               changed:[self](BOOL on) {
                                 [_tiles[kPictured] setFillRect:on];
                                 [self changed];
                               }];
  [settings addColumn:@"The label"];
  [settings addPopUp:@"Text"
              titles:@[ kLabels[0], kLabels[1], @"Too wide" ]
            selected:0
             changed:[self](NSInteger index) {
               [_tiles[kLabelled] setLabel:kLabels[index]];
               [self changed];
             }];
  [settings
      addSlider:@"Font size"
           from:9
             to:36
          value:20
        changed:[self](double value) { [_tiles[kLabelled] setLabelFont:GalleryBoldFont(value)]; }];
  [settings addColumn:@"Tabs"];
  [settings addPopUp:@"Kind"
              titles:@[ @"At the top", @"At the bottom", @"None, bezel", @"None, line" ]
            selected:0
             changed:[self](NSInteger index) { [self showTabsOfType:kTabTypes[index]]; }];
}

#pragma mark Status

// Where the tab can be pressed; the platform only tells which tab is at a point.
- (NSRect)rectOfTab:(NSTabViewItem *)item {
  const NSSize size = [_tabs[0] bounds].size;
  for (CGFloat y : {CGFloat(10), size.height - 10}) {
    CGFloat first = -1, last = -1;
    for (CGFloat x = 0; x < size.width; x += 2) {
      if ([_tabs[0] tabViewItemAtPoint:NSMakePoint(x, y)] != item) continue;
      if (first < 0) first = x;
      last = x;
    }
    if (first >= 0) return NSMakeRect(first, y - 4, last - first, 8);
  }
  return NSZeroRect;
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  static NSString *const names[kTileCount] = {@"filled", @"pictured", @"labelled", @"framed"};
  for (int i = 0; i < kTileCount; ++i) {
    [lines addObject:[NSString stringWithFormat:@"hidden.%@=%d", names[i], [_tiles[i] isHidden]]];
    [lines addObject:GalleryStatusLine([@"rect." stringByAppendingString:names[i]], _tiles[i],
                                       [_tiles[i] bounds], @"")];
  }
  for (NSTabViewItem *item in [_tabs[0] tabViewItems]) {
    NSString *key = [@"rect.tab." stringByAppendingString:[[item label] lowercaseString]];
    [lines addObject:GalleryStatusLine(key, _tabs[0], [self rectOfTab:item], @"")];
  }
  [lines addObject:[@"tab=" stringByAppendingString:[[_tabs[0] selectedTabViewItem] label] ?: @""]];
  [lines addObject:[NSString stringWithFormat:@"imagefills=%d", [_tiles[kPictured] fillRect]]];
  [lines addObject:GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")];
  return lines;
}

@end
