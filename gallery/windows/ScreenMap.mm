#import "windows/ScreenMap.h"

#include <algorithm>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"

static const CGFloat kButtonWidth = 84;
static const CGFloat kButtonHeight = 24;

struct PlaceTitle {
  ScreenPlace place;
  NSString *title;
  NSString *name;
};

static const PlaceTitle kPlaces[] = {
    {ScreenPlace::TopLeft, @"Top left", @"topleft"},
    {ScreenPlace::TopRight, @"Top right", @"topright"},
    {ScreenPlace::Centre, @"Centre", @"centre"},
    {ScreenPlace::BottomLeft, @"Bottom left", @"bottomleft"},
    {ScreenPlace::BottomRight, @"Bottom right", @"bottomright"},
};

@implementation ScreenMap

- (id)initWithWindow:(NSWindow *)window pressed:(std::function<void(ScreenPlace)>)pressed {
  self = [super initWithFrame:NSMakeRect(0, 0, 300, 200)];
  if (!self) return nil;
  _shown = [window retain];
  _pressed = std::move(pressed);
  NSMutableArray *buttons = [NSMutableArray array];
  for (const PlaceTitle &place : kPlaces) {
    NSButton *button = [[[GalleryButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setTitle:place.title];
    [button setFont:GalleryFont(11)];
    [button setTag:static_cast<NSInteger>(place.place)];
    [button setTarget:self];
    [button setAction:@selector(press:)];
    [self addSubview:button];
    [buttons addObject:button];
  }
  _buttons = [buttons copy];
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (NSString *name in @[ NSWindowDidMoveNotification, NSWindowDidResizeNotification ]) {
    [center addObserver:self selector:@selector(windowChanged:) name:name object:window];
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_shown release];
  [_buttons release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)press:(id)sender {
  _pressed(static_cast<ScreenPlace>([sender tag]));
}

- (void)windowChanged:(NSNotification *)notification {
  (void)notification;
  [self setNeedsDisplay:YES];
}

- (NSArray *)buttons {
  return _buttons;
}

static NSSize screenSize() {
  const NSSize size = [[NSScreen mainScreen] frame].size;
  return size.width > 0 && size.height > 0 ? size : NSMakeSize(1, 1);
}

- (CGFloat)heightForWidth:(CGFloat)width {
  return floor(width * screenSize().height / screenSize().width);
}

- (CGFloat)widthForHeight:(CGFloat)height {
  return ceil(height * screenSize().width / screenSize().height);
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  const NSSize size = [self bounds].size;
  const CGFloat left = 8, right = size.width - 8 - kButtonWidth;
  const CGFloat top = 8, bottom = size.height - 8 - kButtonHeight;
  const NSPoint places[] = {
      {left, top},    {right, top},    {floor((left + right) / 2), floor((top + bottom) / 2)},
      {left, bottom}, {right, bottom},
  };
  NSUInteger i = 0;
  for (NSButton *button in _buttons) {
    const NSPoint place = places[i++];
    [button setFrame:NSMakeRect(place.x, place.y, kButtonWidth, kButtonHeight)];
  }
}

// The window's frame on the map, whose first line is the screen's last.
- (NSRect)mapRect {
  const NSRect frame = [_shown frame];
  const NSRect screen = [[NSScreen mainScreen] frame];
  const CGFloat scale = NSWidth([self bounds]) / screenSize().width;
  return NSMakeRect(round((NSMinX(frame) - NSMinX(screen)) * scale),
                    round((NSMaxY(screen) - NSMaxY(frame)) * scale), round(NSWidth(frame) * scale),
                    round(NSHeight(frame) * scale));
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  NSBezierPath *screen = GalleryRoundedPath(NSInsetRect([self bounds], 0.5, 0.5), 6);
  [GalleryColor(0xDCE3ED) set];
  [screen fill];
  [GalleryColor(0xB6BECB) set];
  [screen stroke];
  if (![_shown isVisible]) return;
  const NSRect window = NSIntersectionRect([self mapRect], NSInsetRect([self bounds], 2, 2));
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect(window, 0.5, 0.5), 3);
  [GalleryColor(0x2F6FDE, 0.35) set];
  [path fill];
  [GalleryAccentColor() set];
  [path stroke];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  NSUInteger i = 0;
  for (NSButton *button in _buttons) {
    [lines addObject:GalleryStatusLine([@"rect." stringByAppendingString:kPlaces[i++].name], button,
                                       [button bounds], @"")];
  }
  return lines;
}

@end
