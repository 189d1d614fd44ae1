// A view that asks about every key, and a panel whose delegate sees events first.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "forms/EventLog.h"
#import "keys/KeyView.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kLogWidth = 420;
static const CGFloat kKeyHeight = 130;
static const NSSize kPanelSize = {260, 92};

@interface KeysAndPanelsPage : GalleryPage {
  KeyView *_keys;
  GalleryBox *_divider;
  EventLog *_log;
  OvMouseKeyPanel *_panel;
  NSButton *_panelButton;
  NSMutableArray *_controls;
  NSMutableArray *_controlNames;
  BOOL _processesArrows;
  BOOL _processesSpace;
  BOOL _processesSigns;
  BOOL _takesClicks;
  BOOL _takesKeys;
  int _taken;
  int _pressed;
}
- (void)layOut:(NSSize)size;
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
  return @"A delegate that is asked which keys a view processes; a panel whose delegate comes "
         @"first.";
}

- (void)dealloc {
  if (_view) [static_cast<GalleryStage *>(_view) setLayout:nullptr];
  [[_keys intercepter] setDelegate:nil];
  [_panel setDelegate:nil];
  [_panel release];
  [_controls release];
  [_controlNames release];
  [super dealloc];
}

- (NSView *)makeView {
  GalleryStage *stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOut:size]; }];
  _processesArrows = _processesSpace = _processesSigns = YES;
  _controls = [[NSMutableArray alloc] init];
  _controlNames = [[NSMutableArray alloc] init];
  _keys = [[[KeyView alloc] initWithChange:[self] { [self changed]; }] autorelease];
  [[_keys intercepter] setDelegate:static_cast<id>(self)];
  _log = [[[EventLog alloc] initWithTitle:@"What the delegates are asked"] autorelease];
  _divider = [GalleryBox boxWithFill:GalleryLineColor() border:nil];
  for (NSView *view in @[ _keys, _divider, _log ]) [stage addSubview:view];
  return stage;
}

// The keys at the left, with room for the panel below them; the log at the right.
- (void)layOut:(NSSize)size {
  const CGFloat width = std::max<CGFloat>(0, size.width - kLogWidth - 1);
  const CGFloat height = std::min(kKeyHeight, size.height - 2 * GalleryLargeMargin);
  [_keys setFrame:NSMakeRect(GalleryLargeMargin, GalleryLargeMargin, width - 2 * GalleryLargeMargin,
                             height)];
  [_divider setFrame:NSMakeRect(width, 0, 1, size.height)];
  [_log setFrame:NSMakeRect(width + 1, 0, kLogWidth, size.height)];
}

- (NSView *)keyView {
  return _keys;
}

- (void)didShow {
  [self setMessage:@"Press keys, or show the panel." warning:NO];
}

- (void)willHide {
  [_panel orderOut:nil];
}

- (void)close {
  [_panel orderOut:nil];
}

- (void)control:(NSView *)control named:(NSString *)name {
  [_controls addObject:control];
  [_controlNames addObject:name];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"The view processes"];
  [self control:[settings addCheckBox:@"Arrow keys"
                                   on:YES
                              changed:[self](BOOL on) { _processesArrows = on; }]
          named:@"arrows"];
  [self control:[settings addCheckBox:@"White space"
                                   on:YES
                              changed:[self](BOOL on) { _processesSpace = on; }]
          named:@"space"];
  [self control:[settings addCheckBox:@"Letters, digits and signs"
                                   on:YES
                              changed:[self](BOOL on) { _processesSigns = on; }]
          named:@"signs"];
  [settings addColumn:@"The panel"];
  [self control:[settings addButton:@"Show the panel" pressed:[self] { [self showPanel]; }]
          named:@"show"];
  [self control:[settings addCheckBox:@"The delegate takes clicks"
                                   on:NO
                              changed:[self](BOOL on) { _takesClicks = on; }]
          named:@"clicks"];
  [self control:[settings addCheckBox:@"The delegate takes keys"
                                   on:NO
                              changed:[self](BOOL on) { _takesKeys = on; }]
          named:@"keys"];
}

#pragma mark Keys

- (BOOL)answer:(BOOL)answer to:(SEL)question {
  NSString *text = NSStringFromSelector(question);
  text = [text substringToIndex:[text rangeOfString:@":"].location];
  [_log addEvent:text
            from:answer ? @"YES" : @"NO"
           color:answer ? GalleryTextColor() : GalleryWarningColor()];
  return answer;
}

- (BOOL)shouldProcessUpArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesArrows to:_cmd];
}

- (BOOL)shouldProcessDownArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesArrows to:_cmd];
}

- (BOOL)shouldProcessLeftArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesArrows to:_cmd];
}

- (BOOL)shouldProcessRightArrowFunctionKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesArrows to:_cmd];
}

- (BOOL)shouldProcessWhitespaceKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesSpace to:_cmd];
}

- (BOOL)shouldProcessAlphaNumericOrPunctuationKeyDown:(id)receiver event:(NSEvent *)event {
  (void)receiver, (void)event;
  return [self answer:_processesSigns to:_cmd];
}

#pragma mark The panel

- (void)makePanel {
  _panel = [[OvMouseKeyPanel alloc]
      initWithContentRect:NSMakeRect(0, 0, kPanelSize.width, kPanelSize.height)
                styleMask:NSBorderlessWindowMask
                  backing:NSBackingStoreBuffered
                    defer:NO];
  [_panel setReleasedWhenClosed:NO];
  [_panel setFloatingPanel:YES];
  OvSimpleView *back =
      [[[OvSimpleView alloc] initWithFrame:[[_panel contentView] bounds]] autorelease];
  [back setFillColor:GalleryColor(0xFFFDF2)];
  [back setFillRect:YES];
  [back setFrameColor:GalleryColor(0xE3D9A6)];
  [back setStrokeRect:YES];
  [[_panel contentView] addSubview:back];
  NSTextField *title = GalleryLabel(@"A panel without a frame. Escape closes it.", GalleryFont(11),
                                    GalleryQuietTextColor());
  [title setFrameOrigin:NSMakePoint(floor((kPanelSize.width - NSWidth([title frame])) / 2), 60)];
  [[_panel contentView] addSubview:title];
  _panelButton = [[[GalleryButton alloc]
      initWithFrame:NSMakeRect((kPanelSize.width - 120) / 2, 18, 120, 27)] autorelease];
  [_panelButton setTitle:@"A button"];
  [_panelButton setFont:GalleryFont(12)];
  [_panelButton setTarget:self];
  [_panelButton setAction:@selector(buttonPressed:)];
  [[_panel contentView] addSubview:_panelButton];
  [_panel setDelegate:static_cast<id>(self)];
}

// Below the view, as if it were a part of the page.
- (void)showPanel {
  if (!_panel) [self makePanel];
  const NSRect keys = [_keys convertRect:[_keys bounds] toView:nil];
  const NSPoint place = [[_keys window]
      convertBaseToScreen:NSMakePoint(floor(NSMidX(keys) - kPanelSize.width / 2),
                                      NSMinY(keys) - GalleryMargin - kPanelSize.height)];
  [_panel setFrameOrigin:place];
  [_panel makeKeyAndOrderFront:nil];
  [self changed];
}

- (void)buttonPressed:(id)sender {
  (void)sender;
  [self setMessage:[NSString stringWithFormat:@"The button was pressed %d times.", ++_pressed]
           warning:NO];
}

- (BOOL)mouseDown:(NSEvent *)event inWindow:(NSWindow *)window {
  (void)event, (void)window;
  [self answer:_takesClicks to:_cmd];
  if (!_takesClicks) return NO;
  [self setMessage:[NSString stringWithFormat:@"The delegate took %d events.", ++_taken]
           warning:NO];
  return YES;
}

- (BOOL)keyDown:(NSEvent *)event inWindow:(NSWindow *)window {
  const BOOL escape = [[event charactersIgnoringModifiers] isEqualToString:@"\033"];
  [self answer:_takesKeys || escape to:_cmd];
  if (escape) {
    [window orderOut:nil];
    [[_keys window] makeKeyWindow];
  }
  if (_takesKeys) ++_taken;
  [self setMessage:escape       ? @"The panel is closed."
                   : _takesKeys ? @"The delegate took a key."
                                : @"The panel got a key."
           warning:NO];
  return _takesKeys || escape;
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray arrayWithArray:[_log statusLines]];
  [lines addObject:GalleryStatusLine(@"rect.keyview", _keys, [_keys bounds], @"")];
  [lines addObject:[NSString
                       stringWithFormat:@"focused=%d", [[_keys window] firstResponder] == _keys]];
  [lines addObject:[@"lastkey=" stringByAppendingString:[_keys lastKey]]];
  [lines addObject:[NSString stringWithFormat:@"keycount=%d", [_keys count]]];
  [lines addObject:[NSString stringWithFormat:@"processed=%d", [_keys lastWasProcessed]]];
  [lines addObject:[NSString stringWithFormat:@"panel=%d", [_panel isVisible]]];
  [lines addObject:[NSString stringWithFormat:@"panelkey=%d", [_panel isKeyWindow]]];
  [lines addObject:[NSString stringWithFormat:@"taken=%d", _taken]];
  [lines addObject:[NSString stringWithFormat:@"pressed=%d", _pressed]];
  if ([_panel isVisible]) {
    [lines
        addObject:GalleryStatusLine(@"rect.panelbutton", _panelButton, [_panelButton bounds], @"")];
  }
  for (NSUInteger i = 0; i < [_controls count]; ++i) {
    NSView *control = [_controls objectAtIndex:i];
    [lines addObject:GalleryStatusLine(
                         [@"rect." stringByAppendingString:[_controlNames objectAtIndex:i]],
                         control, [control bounds], @"")];
    if (![control isKindOfClass:[GalleryCheckBox class]]) continue;
    [lines addObject:[NSString
                         stringWithFormat:@"is%@=%d", [_controlNames objectAtIndex:i],
                                          [static_cast<NSButton *>(control) state] == NSOnState]];
  }
  return lines;
}

@end
