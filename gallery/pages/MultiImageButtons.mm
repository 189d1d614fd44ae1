// Buttons of whole pictures: with four states, with a picture for the press, and with a menu.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>
#include <functional>

#import "forms/EventLog.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kLogWidth = 290;
static const CGFloat kRowHeight = 78;

namespace {

enum Row { kPlain, kTracking, kMenu, kIcon, kAtOnce, kHeld };
constexpr int kRowCount = 6;
constexpr int kStateCount = 4;

NSString *const kNames[kRowCount] = {@"plain", @"tracking", @"menu", @"icon", @"atonce", @"held"};
NSString *const kTitles[kRowCount] = {
    @"Multi-image button", @"with mouse-over",   @"with a menu of the delegate's",
    @"Icon button",        @"Selectable button", @"with push-in"};
NSString *const kHints[kRowCount] = {
    @"acts when it is released inside",    @"shows a picture under the mouse",
    @"pops its menu up instead of acting", @"another picture while pressed",
    @"pops its menu up at once",           @"acts on a click; held, it pops its menu up"};

}  // namespace

// Tells when it shows another picture.
@interface ToldMultiImageButton : HXMultiImageButton {
 @public
  std::function<void()> _shown;
  NSImage *_last;
}
@end

@implementation ToldMultiImageButton

- (void)drawRect:(NSRect)rect {
  [super drawRect:rect];
  NSImage *image = [[self multiImageCell] image];
  if (image == _last) return;
  _last = image;
  if (_shown) _shown();
}

@end

@interface MultiImageButtonsPage : GalleryPage {
  GalleryStage *_stage;
  NSControl *_controls[kRowCount];
  NSTextField *_titles[kRowCount];
  NSTextField *_hints[kRowCount];
  NSTextField *_caption;
  NSImageView *_states[kStateCount];
  NSTextField *_stateNames[kStateCount];
  EventLog *_log;
  NSMenu *_menu;
}
@end

@implementation MultiImageButtonsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 42;
}

+ (NSString *)name {
  return @"multibuttons";
}

+ (NSString *)title {
  return @"Multi-image and selectable buttons";
}

+ (NSString *)shortTitle {
  return @"Multi-image buttons";
}

+ (NSString *)summary {
  return @"Buttons of whole pictures: four states, a picture for the press, a menu.";
}

- (void)dealloc {
  [_stage setLayout:nullptr];
  for (int i = kPlain; i <= kMenu; ++i) {
    [[self multiImageButton:i] setDelegate:nil];
    [self multiImageButton:i]->_shown = nullptr;
  }
  [_menu release];
  [super dealloc];
}

#pragma mark The views

- (ToldMultiImageButton *)multiImageButton:(int)row {
  return static_cast<ToldMultiImageButton *>(_controls[row]);
}

- (NSView *)makeView {
  _stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOutIn:size]; }];
  _menu = [[self sampleMenu] retain];
  NSBundle *artwork = [NSBundle mainBundle];
  for (int i = 0; i < kRowCount; ++i) {
    const Class kinds[kRowCount] = {[ToldMultiImageButton class], [ToldMultiImageButton class],
                                    [ToldMultiImageButton class], [OvIconButton class],
                                    [OvSelectableButton class],   [OvSelectableButton class]};
    _controls[i] = [self add:[[[kinds[i] alloc] initWithFrame:NSZeroRect] autorelease]];
    [_controls[i] setTarget:self];
    [_controls[i] setAction:@selector(pressed:)];
    _titles[i] = [self add:GalleryLabel(kTitles[i], GalleryFont(13), GalleryTextColor())];
    _hints[i] = [self add:GalleryLabel(kHints[i], GalleryFont(12), GalleryQuietTextColor())];
  }
  for (int i = kPlain; i <= kMenu; ++i) {
    [self multiImageButton:i]->_shown = [self] { [self changed]; };
  }
  [[self multiImageButton:kTracking] setTrackingEnabled:YES];
  [[self multiImageButton:kMenu] setTrackingEnabled:YES];
  [[self multiImageButton:kMenu] setDelegate:self];
  for (int i = kIcon; i < kRowCount; ++i) {
    auto *button = static_cast<OvIconButton *>(_controls[i]);
    [button setImage:[artwork imageForResource:@"GalleryButton-default-icon"]];
    [button setHighlightImage:[artwork imageForResource:@"GalleryButton-highlighted-icon"]];
    if (i >= kAtOnce) [button setMenu:_menu];
  }
  [static_cast<OvSelectableButton *>(_controls[kHeld]) setAllowPushIn:YES];
  for (int i = 0; i + 1 < kRowCount; ++i) [_controls[i] setNextKeyView:_controls[i + 1]];

  _caption = [self add:GalleryLabel(@"The four pictures of a multi-image button", GalleryFont(12),
                                    GalleryQuietTextColor())];
  NSString *const keys[kStateCount] = {
      HXMultiImageButtonDefaultImageKey, HXMultiImageButtonAlternateImageKey,
      HXMultiImageButtonMouseOverImageKey, HXMultiImageButtonDisabledImageKey};
  NSString *const names[kStateCount] = {@"default", @"alternate", @"mouse over", @"disabled"};
  HXMultiImageCell *cell = [[self multiImageButton:kPlain] multiImageCell];
  for (int i = 0; i < kStateCount; ++i) {
    _states[i] = [self add:[[[NSImageView alloc] initWithFrame:NSZeroRect] autorelease]];
    [_states[i] setImage:[cell imageForKey:keys[i]]];
    [_states[i] setImageScaling:NSScaleNone];
    _stateNames[i] = [self add:GalleryLabel(names[i], GalleryFont(12), GalleryQuietTextColor())];
  }
  _log = [self add:[[[EventLog alloc] initWithTitle:@"Actions and menus"] autorelease]];
  return _stage;
}

- (id)add:(NSView *)view {
  [_stage addSubview:view];
  return view;
}

- (NSMenu *)sampleMenu {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  for (NSString *title in @[ @"By name", @"By date", @"By size" ]) {
    NSMenuItem *item = (NSMenuItem *)[menu addItemWithTitle:title
                                                     action:@selector(menuItemChosen:)
                                              keyEquivalent:@""];
    [item setTarget:self];
  }
  return menu;
}

// A button has the size of its picture.
- (NSSize)sizeOf:(int)row {
  const NSSize size = row <= kMenu ? [[[[self multiImageButton:row] multiImageCell]
                                         imageForKey:HXMultiImageButtonDefaultImageKey] size]
                                   : NSMakeSize(32, 32);
  return size.width > 0 ? size : NSMakeSize(32, 32);
}

- (void)layOutIn:(NSSize)size {
  const CGFloat left = GalleryLargeMargin;
  const CGFloat column = std::floor((size.width - kLogWidth - 2 * left) / 2);
  for (int i = 0; i < kRowCount; ++i) {
    const NSSize control = [self sizeOf:i];
    const CGFloat x = left + (i / 3) * column;
    const CGFloat y = GalleryLargeMargin + (i % 3) * kRowHeight;
    [_controls[i] setFrame:NSMakeRect(x, y, control.width, control.height)];
    [_titles[i] setFrameOrigin:NSMakePoint(x + 52, y)];
    [_hints[i] setFrameOrigin:NSMakePoint(x + 52, y + 18)];
  }
  CGFloat y = GalleryLargeMargin + 3 * kRowHeight + GalleryMargin;
  [_caption setFrameOrigin:NSMakePoint(left - 2, y)];
  y += 28;
  for (int i = 0; i < kStateCount; ++i) {
    const NSSize picture = [self sizeOf:kPlain];
    const CGFloat x = left + i * 96;
    [_states[i] setFrame:NSMakeRect(x + std::floor((80 - picture.width) / 2), y, picture.width,
                                    picture.height)];
    const CGFloat name = NSWidth([_stateNames[i] frame]);
    [_stateNames[i]
        setFrameOrigin:NSMakePoint(x + std::floor((80 - name) / 2), y + picture.height + 6)];
  }
  [_log setFrame:NSMakeRect(size.width - kLogWidth, 0, kLogWidth, size.height)];
}

- (NSView *)keyView {
  return _controls[kPlain];
}

#pragma mark Events

- (NSString *)nameOf:(id)control {
  for (int i = 0; i < kRowCount; ++i) {
    if (_controls[i] == control) return kNames[i];
  }
  return @"";
}

- (void)pressed:(id)sender {
  [_log addEvent:@"action" from:[self nameOf:sender] color:nil];
  [self changed];
}

- (NSMenu *)menuForPopUp:(HXMultiImageButton *)button {
  [_log addEvent:@"menuForPopUp:" from:[self nameOf:button] color:GalleryQuietTextColor()];
  [self changed];
  return _menu;
}

- (void)menuItemChosen:(NSMenuItem *)item {
  [_log addEvent:[item title] from:@"menu" color:GalleryAccentColor()];
  [self changed];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"All"];
  [settings addCheckBox:@"Enabled"
                     on:YES
                changed:[self](BOOL on) {
                  for (NSControl *control : _controls) [control setEnabled:on];
                  [_stage setNeedsDisplay:YES];
                  [self changed];
                }];
  [settings addColumn:@"Multi-image buttons"];
  [settings addCheckBox:@"Drawn when disabled"
                     on:YES
                changed:[self](BOOL on) {
                  for (int i = kPlain; i <= kMenu; ++i) {
                    [[[self multiImageButton:i] multiImageCell] setDrawsWhenDisabled:on];
                  }
                  [_stage setNeedsDisplay:YES];
                }];
  [settings addCheckBox:@"Track the mouse"
                     on:YES
                changed:[self](BOOL on) {
                  [[self multiImageButton:kTracking] setTrackingEnabled:on];
                  [self changed];
                }];
  [settings addColumn:@"Selectable button"];
  [settings addCheckBox:@"Push-in"
                     on:YES
                changed:[self](BOOL on) {
                  [static_cast<OvSelectableButton *>(_controls[kHeld]) setAllowPushIn:on];
                  [self changed];
                }];
}

// Which of its pictures a multi-image button shows.
- (NSString *)shownBy:(int)row {
  HXMultiImageCell *cell = [[self multiImageButton:row] multiImageCell];
  NSImage *image = [cell image];
  if (image == nil) return @"none";
  if (image == [cell imageForKey:HXMultiImageButtonAlternateImageKey]) return @"alternate";
  if (image == [cell imageForKey:HXMultiImageButtonMouseOverImageKey]) return @"mouseover";
  if (image == [cell imageForKey:HXMultiImageButtonDisabledImageKey]) return @"disabled";
  return @"default";
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray arrayWithArray:[_log statusLines]];
  for (int i = 0; i < kRowCount; ++i) {
    NSString *key = [@"rect." stringByAppendingString:kNames[i]];
    [lines addObject:GalleryStatusLine(key, _controls[i], [_controls[i] bounds], @"")];
    if (i > kMenu) continue;
    [lines addObject:[NSString stringWithFormat:@"shown.%@=%@", kNames[i], [self shownBy:i]]];
  }
  [lines addObject:GalleryStatusLine(@"grid", _stage, [_stage bounds], @"")];
  return lines;
}

@end
