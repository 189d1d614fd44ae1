// The small views: filled, with an image, a label, a frame, hidden and shown; tabs without a
// border.

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const NSSize kTile = {210, 130};
static const CGFloat kGap = 24;

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

@interface SimpleViewsPage : GalleryPage {
  OvFlippedView *_canvas;
  OvSimpleView *_filled;
  OvSimpleView *_pictured;
  OvSimpleView *_labelled;
  OvSimpleView *_framed;
  OvBorderlessTabView *_tabs;
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
  [_canvas release];
  [super dealloc];
}

// A tile with its caption below, placed in a row of four.
- (OvSimpleView *)addTile:(NSInteger)index caption:(NSString *)caption {
  const CGFloat x = kGap + index * (kTile.width + kGap);
  OvSimpleView *view = [[[OvSimpleView alloc]
      initWithFrame:NSMakeRect(x, kGap, kTile.width, kTile.height)] autorelease];
  [_canvas addSubview:view];
  NSTextField *label = GalleryLabel(caption, GalleryFont(12), GalleryQuietTextColor());
  [label setFrameOrigin:NSMakePoint(x - 2, kGap + kTile.height + 6)];
  [_canvas addSubview:label];
  return view;
}

- (NSView *)makeView {
  _canvas = [[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 942, 400)];
  _filled = [self addTile:0 caption:@"Filled"];
  [_filled setFillColor:GalleryColor(0xDCE9FF)];
  [_filled setFillRect:YES];
  _pictured = [self addTile:1 caption:@"An image, stretched"];
  [_pictured setImage:sampleImage()];
  _labelled = [self addTile:2 caption:@"Filled, with a label"];
  [_labelled setFillColor:GalleryColor(0xF2F4F8)];
  [_labelled setFillRect:YES];
  [_labelled setLabel:@"No selection"];
  [_labelled setLabelColor:GalleryColor(0x98A2B3)];
  [_labelled setLabelFont:GalleryBoldFont(20)];
  _framed = [self addTile:3 caption:@"A frame"];
  [_framed setFrameColor:GalleryAccentColor()];
  [_framed setStrokeRect:YES];
  [_framed setFrameLineWidth:2];
  [self addTabs];
  return _canvas;
}

- (void)addTabs {
  const CGFloat y = kGap + kTile.height + 44;
  _tabs = [[[OvBorderlessTabView alloc]
      initWithFrame:NSMakeRect(kGap, y, 2 * kTile.width + kGap, 150)] autorelease];
  [_tabs setFont:GalleryFont(12)];
  for (NSString *title in @[ @"Summary", @"Details", @"History" ]) {
    NSTabViewItem *item = [[[NSTabViewItem alloc] initWithIdentifier:title] autorelease];
    [item setLabel:title];
    OvSimpleView *view = [[[OvSimpleView alloc] initWithFrame:NSZeroRect] autorelease];
    [view setFillColor:GalleryPanelColor()];
    [view setFillRect:YES];
    [view setLabel:title];
    [view setLabelFont:GalleryFont(15)];
    [item setView:view];
    [_tabs addTabViewItem:item];
  }
  [_tabs setDelegate:static_cast<id>(self)];
  [_tabs selectFirstTabViewItem:nil];
  [_canvas addSubview:_tabs];
}

- (NSView *)keyView {
  return _tabs;
}

- (void)tabView:(NSTabView *)tabView didSelectTabViewItem:(NSTabViewItem *)item {
  (void)tabView;
  [self setMessage:[[item label] stringByAppendingString:@" chosen."] warning:NO];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"All four"];
  [settings addCheckBox:@"Hidden"
                     on:NO
                changed:[self](BOOL on) {
                  for (OvSimpleView *view in [self tiles]) [view setHidden:on];
                  [_canvas setNeedsDisplay:YES];
                  [self changed];
                }];
  [settings addCheckBox:@"Frame"
                     on:NO
                changed:[self](BOOL on) {
                  for (OvSimpleView *view in [self tiles]) [view setStrokeRect:on];
                }];
  [settings addSlider:@"Line width"
                 from:1
                   to:12
                value:2
              changed:[self](double value) {
                for (OvSimpleView *view in [self tiles]) {
                  [view setFrameLineWidth:static_cast<float>(value)];
                }
              }];
  [settings addColumn:@"The label"];
  [settings addPopUp:@"Text"
              titles:@[ @"No selection", @"Empty", @"Wider than its view" ]
            selected:0
             changed:[self](NSInteger index) {
               static NSString *const texts[] = {@"No selection", @"Empty",
                                                 @"A label that is wider than its view"};
               [_labelled setLabel:texts[index]];
             }];
  [settings addSlider:@"Font size"
                 from:9
                   to:36
                value:20
              changed:[self](double value) { [_labelled setLabelFont:GalleryBoldFont(value)]; }];
  [settings addColumn:@"Tabs"];
  [settings addPopUp:@"Kind"
              titles:@[ @"Tabs at the top", @"Tabs at the bottom", @"No tabs" ]
            selected:0
             changed:[self](NSInteger index) {
               static const NSTabViewType types[] = {NSTopTabsBezelBorder, NSBottomTabsBezelBorder,
                                                     NSNoTabsNoBorder};
               [_tabs setTabViewType:types[index]];
               [_tabs setNeedsDisplay:YES];
             }];
}

- (NSArray *)tiles {
  return @[ _filled, _pictured, _labelled, _framed ];
}

- (NSArray *)statusLines {
  return @[
    [NSString stringWithFormat:@"hidden=%d", [_filled isHidden]],
    [@"tab=" stringByAppendingString:[[_tabs selectedTabViewItem] label] ?: @""],
    GalleryStatusLine(@"filled", _filled, [_filled bounds], @""),
    GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")
  ];
}

@end
