// The chain of responders, drawn as objects join and leave it.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const NSUInteger kResponders = 4;
static NSString *const kNames[kResponders] = {@"A", @"B", @"C", @"D"};
static const NSInteger kOrders[kResponders] = {5, 1, 3, 7};
static NSString *const kWindowNames[] = {@"First window", @"Second window"};

// What the responders have to do.
@interface HXDynamicResponder (GalleryChain)
- (void)takeAction:(id)page;
@end

// Draws the chain of a window from the top down.
@interface ChainView : NSView {
 @public
  NSWindow *_chainWindow;
  NSView *_followed;
  HXDynamicResponder *const *_responders;
  NSResponder *_taker;  // of the last action; only compared
}
- (NSArray *)names;
@end

@implementation ChainView

- (BOOL)isFlipped {
  return YES;
}

- (NSString *)nameOfLink:(NSResponder *)link {
  if (link == _chainWindow) return [_chainWindow title];
  if (link == NSApp) return @"The application";
  for (NSUInteger i = 0; i < kResponders; ++i) {
    if (link != _responders[i]) continue;
    return [NSString
        stringWithFormat:@"%@, order %ld", kNames[i], static_cast<long>([_responders[i] ordering])];
  }
  return NSStringFromClass([link class]);
}

- (NSArray *)names {
  NSMutableArray *names = [NSMutableArray array];
  for (NSResponder *link = _chainWindow; link; link = [link nextResponder]) {
    [names addObject:[self nameOfLink:link]];
  }
  return names;
}

// In the window's box, as the view is in the window.
- (void)drawFollowedViewIn:(NSRect)box {
  const NSRect tag = NSMakeRect(NSMaxX(box) - 86, NSMinY(box) + 4, 78, NSHeight(box) - 8);
  [GalleryColor(0xD8F0E4) set];
  [GalleryRoundedPath(tag, 4) fill];
  GalleryDrawText(@"The view", tag, GalleryBoldFont(11), GalleryColor(0x14663F),
                  NSCenterTextAlignment);
}

- (void)drawLink:(NSResponder *)link in:(NSRect)box {
  const BOOL dynamic = [link isKindOfClass:[HXDynamicResponder class]];
  const BOOL took = link == _taker;
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect(box, 0.5, 0.5), 5);
  [took ? GalleryAccentColor() : dynamic ? GalleryColor(0xE7EEFB) : GalleryWindowColor() set];
  [path fill];
  [dynamic ? GalleryAccentColor() : GalleryColor(0xC3CAD6) set];
  [path setLineWidth:1];
  [path stroke];
  const NSRect text = NSInsetRect(box, 12, 0);
  GalleryDrawText([self nameOfLink:link], text, dynamic ? GalleryBoldFont(12) : GalleryFont(12),
                  took ? [NSColor whiteColor] : GalleryTextColor(), NSLeftTextAlignment);
  if (link == _chainWindow && [_followed window] == _chainWindow) [self drawFollowedViewIn:box];
  if (!dynamic) return;
  NSString *kind = [link isKindOfClass:[HXViewDynamicResponder class]] ? @"follows the view"
                                                                       : @"belongs to the window";
  GalleryDrawText(took ? @"took the action" : kind, text, GalleryFont(11),
                  took ? [NSColor whiteColor] : GalleryQuietTextColor(), NSRightTextAlignment);
}

// As high as there is room for the longest chain.
- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSSize size = [self bounds].size;
  const CGFloat pitch = std::clamp<CGFloat>(floor(size.height / (kResponders + 2)), 36, 54);
  const CGFloat height = pitch - 12;
  CGFloat y = 0;
  for (NSResponder *link = _chainWindow; link; link = [link nextResponder]) {
    if (y > 0) {
      [GalleryColor(0x9AA5B8) set];
      NSRectFill(NSMakeRect(24, y - 11, 1, 10));
    }
    [self drawLink:link in:NSMakeRect(0, y, size.width, height)];
    y += pitch;
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
  NSWindow *_windows[2];
  ChainView *_chains[2];
  FollowedView *_followed;
  HXDynamicResponder *_responders[kResponders];
  NSMutableArray *_controls;
  NSMutableArray *_controlNames;
}
- (void)responderTookAction:(HXDynamicResponder *)responder;
@end

@implementation HXDynamicResponder (GalleryChain)

- (void)takeAction:(id)page {
  [page responderTookAction:self];
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
  if (_view) [static_cast<GalleryStage *>(_view) setLayout:nullptr];
  for (HXDynamicResponder *responder : _responders) {
    [responder setEnabled:NO];
    [responder release];
  }
  [_followed release];
  for (NSWindow *window : _windows) [window release];
  [_controls release];
  [_controlNames release];
  [super dealloc];
}

- (NSView *)makeView {
  GalleryStage *stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOut:size]; }];
  _followed = [[FollowedView alloc] initWithFrame:NSMakeRect(30, 24, 160, 42)];
  for (int i = 0; i < 2; ++i) {
    _windows[i] = [[NSWindow alloc] initWithContentRect:NSMakeRect(60 + 260 * i, 60, 220, 90)
                                              styleMask:NSTitledWindowMask
                                                backing:NSBackingStoreBuffered
                                                  defer:YES];
    [_windows[i] setReleasedWhenClosed:NO];
    [_windows[i] setTitle:kWindowNames[i]];
    _chains[i] = [[[ChainView alloc] initWithFrame:NSZeroRect] autorelease];
    _chains[i]->_chainWindow = _windows[i];
    _chains[i]->_followed = _followed;
    _chains[i]->_responders = _responders;
    [stage addSubview:_chains[i]];
  }
  [[_windows[0] contentView] addSubview:_followed];
  for (NSUInteger i = 0; i < kResponders; ++i) {
    _responders[i] = i < 2 ? [[HXDynamicResponder alloc] initWithWindow:_windows[0]
                                                               ordering:kOrders[i]]
                           : [[HXViewDynamicResponder alloc] initWithView:_followed
                                                                 ordering:kOrders[i]];
  }
  [_responders[0] setEnabled:YES];
  [_responders[2] setEnabled:YES];
  _controls = [[NSMutableArray alloc] init];
  _controlNames = [[NSMutableArray alloc] init];
  return stage;
}

- (void)layOut:(NSSize)size {
  const CGFloat gap = 2 * GalleryLargeMargin;
  const CGFloat width = floor((size.width - 2 * GalleryLargeMargin - gap) / 2);
  for (int i = 0; i < 2; ++i) {
    [_chains[i] setFrame:NSMakeRect(GalleryLargeMargin + i * (width + gap), GalleryLargeMargin,
                                    width, size.height - GalleryLargeMargin - GalleryMargin)];
  }
}

- (void)didShow {
  [self setMessage:@"An action goes down the chain to the first responder that has it." warning:NO];
}

- (void)willHide {
  for (NSWindow *window : _windows) [window orderOut:nil];
}

- (void)control:(NSView *)control named:(NSString *)name {
  [_controls addObject:control];
  [_controlNames addObject:name];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"In the chain"];
  for (NSUInteger i = 0; i < kResponders; ++i) {
    NSString *label =
        [NSString stringWithFormat:@"%@, the %@", kNames[i], i < 2 ? @"first window's" : @"view's"];
    NSButton *box = [settings addCheckBox:label
                                       on:[_responders[i] enabled]
                                  changed:[self, i](BOOL on) { [self setResponder:i enabled:on]; }];
    [self control:box named:kNames[i]];
  }
  [settings addColumn:@"Order and place"];
  NSSlider *order = [settings addSlider:@"Order of A"
                                   from:0
                                     to:10
                                  value:kOrders[0]
                                changed:[self](double value) {
                                  [_responders[0] setOrdering:static_cast<NSInteger>(value)];
                                  [self chainChanged:@"Equal orders: who came last stands first."];
                                }];
  [self control:order named:@"order"];
  NSArray *places = @[ @"View to the first window", @"View to the second", @"View out of both" ];
  for (NSUInteger i = 0; i < [places count]; ++i) {
    NSButton *button =
        [settings addButton:[places objectAtIndex:i]
                    pressed:[self, i] { [self moveViewTo:static_cast<NSInteger>(i)]; }];
    [self control:button
            named:[NSString stringWithFormat:@"place%lu", static_cast<unsigned long>(i)]];
  }
  [settings addButton:@"Show the two windows"
              pressed:[self] {
                for (NSWindow *window : _windows) [window orderFront:nil];
              }];
  [settings addColumn:@"An action"];
  for (int i = 0; i < 2; ++i) {
    NSString *title = i == 0 ? @"Send it to the first window" : @"Send it to the second";
    [self control:[settings addButton:title pressed:[self, i] { [self sendActionTo:i]; }]
            named:i == 0 ? @"send0" : @"send1"];
  }
}

- (void)setResponder:(NSUInteger)index enabled:(BOOL)enabled {
  [_responders[index] setEnabled:enabled];
  [self chainChanged:[NSString stringWithFormat:@"%@ has %@ the chain.", kNames[index],
                                                enabled ? @"joined" : @"left"]];
}

- (void)moveViewTo:(NSInteger)place {
  if (place < 2) {
    [[_windows[place] contentView] addSubview:_followed];
    [self chainChanged:@"C and D go where the view goes."];
  } else {
    [_followed removeFromSuperview];
    [self chainChanged:@"Without a window, C and D are in no chain."];
  }
}

- (void)sendActionTo:(int)index {
  [self showTaker:nil];
  if (![_windows[index] tryToPerform:@selector(takeAction:) with:self]) {
    [self setMessage:@"Nobody in this chain has the action." warning:YES];
  }
}

- (void)responderTookAction:(HXDynamicResponder *)responder {
  [self showTaker:responder];
  const auto *place = std::ranges::find(_responders, responder);
  [self setMessage:[kNames[place - _responders] stringByAppendingString:@" took the action."]
           warning:NO];
}

- (void)showTaker:(HXDynamicResponder *)taker {
  for (ChainView *chain : _chains) {
    chain->_taker = taker;
    [chain setNeedsDisplay:YES];
  }
}

- (void)chainChanged:(NSString *)message {
  [self showTaker:nil];
  [_view setNeedsDisplay:YES];
  [self setMessage:message warning:NO];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  for (int i = 0; i < 2; ++i) {
    [lines
        addObject:[NSString stringWithFormat:@"chain.%d=%@", i,
                                             [[_chains[i] names] componentsJoinedByString:@"|"]]];
  }
  for (NSUInteger i = 0; i < [_controls count]; ++i) {
    NSView *control = [_controls objectAtIndex:i];
    [lines addObject:GalleryStatusLine(
                         [@"rect." stringByAppendingString:[_controlNames objectAtIndex:i]],
                         control, [control bounds], @"")];
  }
  return lines;
}

@end
