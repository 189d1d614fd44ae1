// A view that asks about every key, and a panel whose delegate sees events first.

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

// Shows the keys it gets, and what became of each.
@interface KeyView : NSView {
  HXKeyEventIntercepter *_intercepter;
  NSString *_last;
  BOOL _processed;
}
- (HXKeyEventIntercepter *)intercepter;
- (NSString *)last;
- (BOOL)lastWasProcessed;
@end

@implementation KeyView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) _intercepter = [[HXKeyEventIntercepter alloc] init];
  return self;
}

- (void)dealloc {
  [_intercepter release];
  [_last release];
  [super dealloc];
}

- (HXKeyEventIntercepter *)intercepter {
  return _intercepter;
}

- (NSString *)last {
  return _last ?: @"";
}

- (BOOL)lastWasProcessed {
  return _processed;
}

- (BOOL)acceptsFirstResponder {
  return YES;
}

- (BOOL)becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (BOOL)resignFirstResponder {
  [self setNeedsDisplay:YES];
  return YES;
}

- (void)mouseDown:(NSEvent *)event {
  (void)event;
  [[self window] makeFirstResponder:self];
}

- (void)keyDown:(NSEvent *)event {
  NSString *characters = [event charactersIgnoringModifiers];
  if ([characters length] == 0) return;
  const unichar key = [characters characterAtIndex:0];
  [_last release];
  _last = key > ' ' && key < 0x7f
              ? [characters copy]
              : [[NSString alloc] initWithFormat:@"U+%04X", static_cast<unsigned>(key)];
  _processed = [_intercepter shouldProcessKeyDown:self event:event];
  [self setNeedsDisplay:YES];
  [[NSNotificationCenter defaultCenter] postNotificationName:@"KeyViewDidGetKey" object:self];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const BOOL focused = [[self window] firstResponder] == self;
  const NSRect box = NSInsetRect([self bounds], 1, 1);
  [GalleryWindowColor() set];
  [GalleryRoundedPath(box, 8) fill];
  [focused ? GalleryAccentColor() : GalleryLineColor() set];
  [GalleryRoundedPath(box, 8) stroke];
  NSString *text = [self last];
  if ([text length] == 0) text = focused ? @"Press any key" : @"Click here, then press keys";
  NSRect line = box;
  line.origin.y += 14;
  GalleryDrawText(text, line, GalleryBoldFont(22), GalleryTextColor(), NSCenterTextAlignment);
  if ([[self last] length] == 0) return;
  line.origin.y -= 40;
  GalleryDrawText(_processed ? @"processed" : @"not processed", line, GalleryFont(12),
                  _processed ? GalleryColor(0x14663F) : GalleryWarningColor(),
                  NSCenterTextAlignment);
}

@end

@interface KeysAndPanelsPage : GalleryPage {
  OvFlippedView *_canvas;
  KeyView *_keys;
  OvMouseKeyPanel *_panel;
  BOOL _takesArrows;
  BOOL _takesSpace;
  BOOL _takesLetters;
  BOOL _takesClicks;
  int _clicks;
}
@end

@implementation KeysAndPanelsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 96;
}

+ (NSString *)name {
  return @"keys";
}

+ (NSString *)title {
  return @"Keys and panels";
}

+ (NSString *)summary {
  return @"Which keys a view processes is its delegate's answer, one kind of key at a time.";
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [[_keys intercepter] setDelegate:nil];
  [_panel setDelegate:nil];
  [_panel release];
  [_canvas release];
  [super dealloc];
}

- (NSView *)makeView {
  _takesArrows = _takesSpace = _takesLetters = YES;
  _canvas = [[OvFlippedView alloc] initWithFrame:NSMakeRect(0, 0, 942, 420)];
  _keys = [[[KeyView alloc] initWithFrame:NSMakeRect(24, 24, 400, 140)] autorelease];
  [[_keys intercepter] setDelegate:self];
  [_canvas addSubview:_keys];
  [[NSNotificationCenter defaultCenter] addObserver:self
                                           selector:@selector(changed)
                                               name:@"KeyViewDidGetKey"
                                             object:_keys];
  return _canvas;
}

- (NSView *)keyView {
  return _keys;
}

- (void)willHide {
  [_panel orderOut:nil];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"The view processes"];
  [settings addCheckBox:@"Arrow keys"
                     on:YES
                changed:[self](BOOL on) { _takesArrows = on; }];
  [settings addCheckBox:@"White space" on:YES changed:[self](BOOL on) { _takesSpace = on; }];
  [settings addCheckBox:@"Letters, digits, signs"
                     on:YES
                changed:[self](BOOL on) { _takesLetters = on; }];
  [settings addColumn:@"A panel"];
  [settings addButton:@"Show the panel" pressed:[self] { [self showPanel]; }];
  [settings addCheckBox:@"The delegate takes clicks"
                     on:NO
                changed:[self](BOOL on) { _takesClicks = on; }];
}

#pragma mark Keys

- (BOOL)shouldProcessUpArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesArrows;
}

- (BOOL)shouldProcessDownArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesArrows;
}

- (BOOL)shouldProcessLeftArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesArrows;
}

- (BOOL)shouldProcessRightArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesArrows;
}

- (BOOL)shouldProcessWhitespaceKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesSpace;
}

- (BOOL)shouldProcessAlphaNumericOrPunctuationKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return _takesLetters;
}

#pragma mark The panel

- (void)showPanel {
  if (!_panel) {
    _panel = [[OvMouseKeyPanel alloc] initWithContentRect:NSMakeRect(200, 200, 260, 120)
                                                styleMask:NSBorderlessWindowMask
                                                  backing:NSBackingStoreBuffered
                                                    defer:NO];
    [_panel setReleasedWhenClosed:NO];
    OvSimpleView *back =
        [[[OvSimpleView alloc] initWithFrame:[[_panel contentView] bounds]] autorelease];
    [back setFillColor:GalleryColor(0xFFFDF2)];
    [back setFillRect:YES];
    [back setFrameColor:GalleryColor(0xE3D9A6)];
    [back setStrokeRect:YES];
    [back setFrameLineWidth:2];
    [[_panel contentView] addSubview:back];
    NSButton *button =
        [[[GalleryButton alloc] initWithFrame:NSMakeRect(70, 46, 120, 28)] autorelease];
    [button setTitle:@"A button"];
    [button setFont:GalleryFont(12)];
    [button setTarget:self];
    [button setAction:@selector(buttonPressed:)];
    [[_panel contentView] addSubview:button];
    [_panel setDelegate:static_cast<id>(self)];
  }
  [_panel makeKeyAndOrderFront:nil];
}

- (void)buttonPressed:(id)sender {
  (void)sender;
  [self setMessage:@"The button was pressed." warning:NO];
}

- (BOOL)mouseDown:(NSEvent *)event inWindow:(NSWindow *)window {
  (void)event, (void)window;
  if (!_takesClicks) return NO;
  ++_clicks;
  [self setMessage:[NSString stringWithFormat:@"The delegate took %d clicks.", _clicks] warning:NO];
  return YES;
}

- (BOOL)keyDown:(NSEvent *)event inWindow:(NSWindow *)window {
  if (![[event characters] isEqualToString:@"\033"]) return NO;
  [window orderOut:nil];
  return YES;
}

- (NSArray *)statusLines {
  return @[
    GalleryStatusLine(@"keys", _keys, [_keys bounds], @""),
    [@"lastKey=" stringByAppendingString:[_keys last]],
    [NSString stringWithFormat:@"processed=%d", [_keys lastWasProcessed]],
    [NSString stringWithFormat:@"panel=%d", [_panel isVisible]],
    GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")
  ];
}

@end
