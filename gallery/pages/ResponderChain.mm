// The chain of responders, drawn as objects join and leave it.

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const NSUInteger kResponders = 4;

// What a chain's boxes say.
static NSString *nameOfLink(NSResponder *responder) {
  if ([responder isKindOfClass:[HXDynamicResponder class]]) {
    HXDynamicResponder *dynamic = static_cast<HXDynamicResponder *>(responder);
    NSString *kind = [dynamic isKindOfClass:[HXViewDynamicResponder class]] ? @"follows the view"
                                                                            : @"in the window";
    return [NSString stringWithFormat:@"Responder, order %ld, %@",
                                      static_cast<long>([dynamic ordering]), kind];
  }
  if (responder == NSApp) return @"The application";
  if ([responder isKindOfClass:[NSWindow class]]) return @"The window";
  return NSStringFromClass([responder class]);
}

// Draws the chain of a window from the top down.
@interface ChainView : NSView {
  NSWindow *_window;
  NSString *_title;
}
- (void)showWindow:(NSWindow *)window title:(NSString *)title;
- (NSArray *)names;
@end

@implementation ChainView

- (void)dealloc {
  [_window release];
  [_title release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)showWindow:(NSWindow *)window title:(NSString *)title {
  [_window autorelease];
  _window = [window retain];
  [_title autorelease];
  _title = [title copy];
  [self setNeedsDisplay:YES];
}

- (NSArray *)names {
  NSMutableArray *names = [NSMutableArray array];
  for (NSResponder *link = _window; link; link = [link nextResponder]) {
    [names addObject:nameOfLink(link)];
  }
  return names;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  GalleryDrawText(_title, NSMakeRect(0, 0, NSWidth([self bounds]), 24), GalleryBoldFont(13),
                  GalleryTextColor(), NSLeftTextAlignment);
  CGFloat y = 34;
  NSResponder *link = _window;
  for (NSString *name in [self names]) {
    const BOOL dynamic = [link isKindOfClass:[HXDynamicResponder class]];
    const NSRect box = NSMakeRect(0.5, y + 0.5, NSWidth([self bounds]) - 1, 32);
    [dynamic ? GalleryColor(0xE7EEFB) : GalleryWindowColor() set];
    [GalleryRoundedPath(box, 5) fill];
    [dynamic ? GalleryAccentColor() : GalleryLineColor() set];
    [GalleryRoundedPath(box, 5) stroke];
    GalleryDrawText(name, NSInsetRect(box, 12, 0), GalleryFont(12), GalleryTextColor(),
                    NSLeftTextAlignment);
    y += 33;
    link = [link nextResponder];
    if (!link) break;
    [GalleryColor(0x9AA5B8) set];
    NSRectFill(NSMakeRect(NSMidX(box), y, 1, 12));
    y += 12;
  }
}

@end

// The view that responders follow from window to window.
@interface FollowedView : NSView
@end

@implementation FollowedView

- (void)drawRect:(NSRect)rect {
  (void)rect;
  [GalleryColor(0xD8F0E4) set];
  [GalleryRoundedPath([self bounds], 6) fill];
  GalleryDrawText(@"The view", [self bounds], GalleryBoldFont(12), GalleryColor(0x14663F),
                  NSCenterTextAlignment);
}

@end

@interface ResponderChainPage : GalleryPage {
  NSView *_canvas;
  NSWindow *_windows[2];
  ChainView *_chains[2];
  FollowedView *_followed;
  HXDynamicResponder *_responders[kResponders];
  NSInteger _place;
}
@end

@implementation ResponderChainPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 92;
}

+ (NSString *)name {
  return @"chain";
}

+ (NSString *)title {
  return @"Responder chain";
}

+ (NSString *)summary {
  return @"Objects that join a window's chain in their order, and follow a view between windows.";
}

- (void)dealloc {
  for (HXDynamicResponder *responder : _responders) {
    [responder setEnabled:NO];
    [responder release];
  }
  [_followed release];
  for (NSWindow *window : _windows) [window release];
  [_canvas release];
  [super dealloc];
}

- (NSWindow *)makeWindow:(int)index {
  NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(60 + 260 * index, 60, 220, 90)
                                                 styleMask:NSTitledWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:YES];
  [window setReleasedWhenClosed:NO];
  [window setTitle:index == 0 ? @"First window" : @"Second window"];
  return window;
}

- (NSView *)makeView {
  _canvas = [[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 942, 420)];
  for (int i = 0; i < 2; ++i) {
    _windows[i] = [self makeWindow:i];
    _chains[i] = [[[ChainView alloc] initWithFrame:NSMakeRect(24 + 460 * i, 20, 420, 390)]
        autorelease];
    [_chains[i] showWindow:_windows[i] title:[_windows[i] title]];
    [_canvas addSubview:_chains[i]];
  }
  _followed = [[FollowedView alloc] initWithFrame:NSMakeRect(30, 24, 160, 42)];
  [[_windows[0] contentView] addSubview:_followed];
  _responders[0] = [[HXDynamicResponder alloc] initWithWindow:_windows[0] ordering:5];
  _responders[1] = [[HXDynamicResponder alloc] initWithWindow:_windows[0] ordering:1];
  _responders[2] = [[HXViewDynamicResponder alloc] initWithView:_followed ordering:3];
  _responders[3] = [[HXViewDynamicResponder alloc] initWithView:_followed ordering:7];
  [_responders[0] setEnabled:YES];
  [_responders[2] setEnabled:YES];
  return _canvas;
}

- (void)willHide {
  for (NSWindow *window : _windows) [window orderOut:nil];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Enabled"];
  static NSString *const labels[kResponders] = {@"Window's, order 5", @"Window's, order 1",
                                                @"View's, order 3", @"View's, order 7"};
  for (NSUInteger i = 0; i < kResponders; ++i) {
    [settings addCheckBox:labels[i]
                       on:[_responders[i] enabled]
                  changed:[self, i](BOOL on) {
                    [_responders[i] setEnabled:on];
                    [self chainChanged];
                  }];
  }
  [settings addColumn:@"Order and place"];
  [settings addSlider:@"Order of first"
                 from:0
                   to:10
                value:5
              changed:[self](double value) {
                [_responders[0] setOrdering:static_cast<NSInteger>(value)];
                [self chainChanged];
              }];
  [settings addPopUp:@"The view is"
              titles:@[ @"in the first window", @"in the second", @"in no window" ]
            selected:0
             changed:[self](NSInteger index) { [self moveViewTo:index]; }];
  [settings addButton:@"Show the windows"
              pressed:[self] {
                for (NSWindow *window : _windows) [window orderFront:nil];
              }];
}

- (void)moveViewTo:(NSInteger)place {
  _place = place;
  if (place < 2) {
    [[_windows[place] contentView] addSubview:_followed];
  } else {
    [_followed removeFromSuperview];
  }
  [self chainChanged];
}

- (void)chainChanged {
  [_canvas setNeedsDisplay:YES];
  [self setMessage:[[_chains[0] names] componentsJoinedByString:@" > "] warning:NO];
}

- (NSArray *)statusLines {
  return @[
    [@"chain.0=" stringByAppendingString:[[_chains[0] names] componentsJoinedByString:@"|"]],
    [@"chain.1=" stringByAppendingString:[[_chains[1] names] componentsJoinedByString:@"|"]],
    GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")
  ];
}

@end
