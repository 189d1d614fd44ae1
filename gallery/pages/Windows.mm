// A window that is placed, resized and measured, and the colour under the pointer.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GalleryStyle.h"
#import "shell/GalleryValueList.h"
#import "windows/AlignmentSample.h"
#import "windows/ColorSample.h"
#import "windows/DemonstrationWindow.h"
#import "windows/ScreenMap.h"

static const CGFloat kTitleHeight = 24;
static const CGFloat kControlsHeight = 166;  // the buttons, and what is measured
static const NSSize kSizes[] = {{240, 180}, {320, 240}, {440, 320}};

@interface WindowsPage : GalleryPage {
  NSWindow *_demonstration;
  ScreenMap *_map;
  NSArray *_sizeButtons;
  NSButton *_animated;
  NSButton *_toolbar;
  GalleryValueList *_values;
  ColorSample *_color;
  AlignmentSample *_alignment;
  NSArray *_titles;
  BOOL _placed;
}
- (void)layOut;
@end

@interface WindowsView : GalleryBox {
 @public
  WindowsPage *_page;
}
@end

@implementation WindowsView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  [_page layOut];
}

@end

@implementation WindowsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 80;
}

+ (NSString *)name {
  return @"windows";
}

+ (NSString *)title {
  return @"Windows";
}

+ (NSString *)summary {
  return @"Windows at a screen's corners, sizes about the top right corner, colours of pixels.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  if (_view) static_cast<WindowsView *>(_view)->_page = nil;
  [_demonstration release];
  [_sizeButtons release];
  [_titles release];
  [super dealloc];
}

- (NSView *)makeView {
  WindowsView *view = static_cast<WindowsView *>([WindowsView boxWithFill:GalleryPanelColor()
                                                                   border:nil]);
  view->_page = self;
  _demonstration = [MakeDemonstrationWindow() retain];
  _map = [[[ScreenMap alloc] initWithWindow:_demonstration
                                    pressed:[self](ScreenPlace place) { [self moveTo:place]; }]
      autorelease];
  NSMutableArray *buttons = [NSMutableArray array];
  for (const NSSize &size : kSizes) {
    NSButton *button = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setTitle:[NSString stringWithFormat:@"%d × %d", static_cast<int>(size.width),
                                                static_cast<int>(size.height)]];
    [button setTag:static_cast<NSInteger>(&size - kSizes)];
    [buttons addObject:[self prepare:button action:@selector(resize:)]];
  }
  _sizeButtons = [buttons copy];
  _animated = [self checkBox:@"Animated" on:YES action:@selector(describe)];
  _toolbar = [self checkBox:@"Toolbar" on:YES action:@selector(toggleToolbar:)];
  _values = [[[GalleryValueList alloc] initWithNames:@[
    @"frame", @"frameTopLeftPoint", @"toolbarHeight", @"widthWithoutContent",
    @"heightWithoutContent"
  ]] autorelease];
  _color = [[[ColorSample alloc] initWithChange:[self] { [self changed]; }] autorelease];
  _alignment = [[[AlignmentSample alloc] initWithFrame:NSZeroRect] autorelease];
  NSMutableArray *titles = [NSMutableArray array];
  for (NSString *title in @[ @"Size and toolbar", @"Place", @"Under the pointer", @"Alignment" ]) {
    [titles addObject:GalleryLabel(title, GalleryBoldFont(12), GalleryTextColor())];
  }
  _titles = [titles copy];
  for (NSView *part in @[ _map, _animated, _toolbar, _values, _color, _alignment ]) {
    [view addSubview:part];
  }
  for (NSView *button in _sizeButtons) [view addSubview:button];
  for (NSView *title in _titles) [view addSubview:title];
  for (NSString *name in @[ NSWindowDidMoveNotification, NSWindowDidResizeNotification ]) {
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(describe)
                                                 name:name
                                               object:_demonstration];
  }
  return view;
}

- (NSButton *)prepare:(NSButton *)button action:(SEL)action {
  [button setFont:GalleryFont(11)];
  [button setTarget:self];
  [button setAction:action];
  return button;
}

- (NSButton *)checkBox:(NSString *)title on:(BOOL)on action:(SEL)action {
  NSButton *box = [[[GalleryCheckBox alloc] initWithFrame:NSZeroRect] autorelease];
  [box setButtonType:NSSwitchButton];
  [box setTitle:title];
  [box setState:on ? NSOnState : NSOffState];
  return [self prepare:box action:action];
}

// Sizes and places above, pixels below. The map and the sample share the height. A window in
// the middle of the screen leaves the buttons free.
- (void)layOut {
  const NSSize size = [_view bounds].size;
  const CGFloat gap = 2 * GalleryLargeMargin;
  const CGFloat width = floor((size.width - 2 * GalleryLargeMargin - gap) / 2);
  const CGFloat left = GalleryLargeMargin, right = left + width + gap;
  const CGFloat top = GalleryLargeMargin - 4;
  const CGFloat rows = size.height - 2 * top - 2 * kTitleHeight - GalleryLargeMargin;
  const CGFloat mapHeight = std::clamp<CGFloat>(
      floor(rows * 0.55), kControlsHeight, std::max(kControlsHeight, [_map heightForWidth:width]));
  const CGFloat mapWidth = std::min(width, [_map widthForHeight:mapHeight]);
  const CGFloat first = top + kTitleHeight;
  const CGFloat bottom = first + mapHeight + GalleryLargeMargin, second = bottom + kTitleHeight;
  const NSPoint titles[] = {{left, top}, {right, top}, {left, bottom}, {right, bottom}};
  NSUInteger i = 0;
  for (NSView *title in _titles) [title setFrameOrigin:titles[i++]];
  [_map setFrame:NSMakeRect(right, first, mapWidth, mapHeight)];

  const CGFloat buttonWidth = floor((width - 2 * GallerySmallMargin) / 3);
  CGFloat x = left;
  for (NSButton *button in _sizeButtons) {
    [button setFrame:NSMakeRect(x, first, buttonWidth, 24)];
    x += buttonWidth + GallerySmallMargin;
  }
  [_animated setFrame:NSMakeRect(left, first + 32, buttonWidth, 22)];
  [_toolbar
      setFrame:NSMakeRect(left + buttonWidth + GallerySmallMargin, first + 32, buttonWidth, 22)];
  [_values setFrame:NSMakeRect(left, first + kControlsHeight - [self valuesHeight], width,
                               [self valuesHeight])];

  const CGFloat sampleHeight = std::clamp<CGFloat>(size.height - second - top, 100, 320);
  [_color setFrame:NSMakeRect(left, second, width, sampleHeight)];
  [_alignment setFrame:NSMakeRect(right, second, width, [AlignmentSample height])];
}

- (CGFloat)valuesHeight {
  return [GalleryValueList heightForCount:5];
}

- (NSView *)keyView {
  return [[_map buttons] objectAtIndex:0];
}

- (void)didShow {
  if (!_placed) [_demonstration moveToBottomRightOfScreen:[NSScreen mainScreen]];
  _placed = YES;
  [_demonstration orderFront:self];
  [self describe];
}

- (void)willHide {
  [_demonstration orderOut:self];
}

- (void)close {
  [_demonstration orderOut:self];
}

#pragma mark What the buttons do

- (void)moveTo:(ScreenPlace)place {
  NSScreen *screen = [NSScreen mainScreen];
  switch (place) {
    case ScreenPlace::TopLeft:
      [_demonstration moveToTopLeftOfScreen:screen];
      break;
    case ScreenPlace::TopRight:
      [_demonstration moveToTopRightOfScreen:screen];
      break;
    case ScreenPlace::Centre:
      [_demonstration moveToCenterOfScreen:screen];
      break;
    case ScreenPlace::BottomLeft:
      [_demonstration moveToBottomLeftOfScreen:screen];
      break;
    case ScreenPlace::BottomRight:
      [_demonstration moveToBottomRightOfScreen:screen];
      break;
  }
  [_demonstration orderFront:self];
  [self describe];
}

- (void)resize:(id)sender {
  [_demonstration resizeWindowTo:kSizes[[sender tag]]
                         display:YES
                         animate:[_animated state] == NSOnState];
  [self describe];
}

- (void)toggleToolbar:(id)sender {
  [[_demonstration toolbar] setVisible:[sender state] == NSOnState];
  [self describe];
}

#pragma mark What is shown

- (void)describe {
  const NSRect frame = [_demonstration frame];
  const NSPoint topLeft = [_demonstration frameTopLeftPoint];
  [_values setValues:@[
    [NSString stringWithFormat:@"%g, %g  %g × %g", NSMinX(frame), NSMinY(frame), NSWidth(frame),
                               NSHeight(frame)],
    [NSString stringWithFormat:@"%g, %g", topLeft.x, topLeft.y],
    [NSString stringWithFormat:@"%g", [_demonstration toolbarHeight]],
    [NSString stringWithFormat:@"%g", [_demonstration widthWithoutContent]],
    [NSString stringWithFormat:@"%g", [_demonstration heightWithoutContent]],
  ]];
  [_map setNeedsDisplay:YES];
  [self setMessage:@"The window keeps its top right corner when its size changes." warning:NO];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  const NSRect frame = [_demonstration frame];
  const NSPoint topLeft = [_demonstration frameTopLeftPoint];
  [lines addObject:[NSString stringWithFormat:@"rect.demonstration=%g %g %g %g", topLeft.x,
                                              topLeft.y, NSWidth(frame), NSHeight(frame)]];
  [lines addObject:[NSString stringWithFormat:@"toolbarheight=%g", [_demonstration toolbarHeight]]];
  [lines addObject:GalleryStatusLine(@"rect.toolbar", _toolbar, [_toolbar bounds], @"")];
  [lines addObject:GalleryStatusLine(@"rect.animated", _animated, [_animated bounds], @"")];
  [lines addObject:[NSString stringWithFormat:@"isanimated=%d", [_animated state] == NSOnState]];
  NSUInteger i = 0;
  for (NSButton *button in _sizeButtons) {
    NSString *key = [NSString stringWithFormat:@"rect.size%lu", static_cast<unsigned long>(i++)];
    [lines addObject:GalleryStatusLine(key, button, [button bounds], @"")];
  }
  [lines addObjectsFromArray:[_map statusLines]];
  [lines addObjectsFromArray:[_color statusLines]];
  return lines;
}

@end
