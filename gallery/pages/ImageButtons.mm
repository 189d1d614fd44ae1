// Buttons that are drawn from a picture set: every state held still, and buttons to press.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "forms/EventLog.h"
#import "imagecontrols/SampleArtwork.h"
#import "imagecontrols/StateBoard.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kLogWidth = 270;
static const CGFloat kCaptionHeight = 22;
static const CGFloat kButtonHeight = 40;

namespace {

enum Button { kMomentary, kToggle, kMenu, kPlate, kStrip, kOn };
constexpr int kLiveCount = 6;
constexpr int kPositionCount = 7;

NSString *const kNames[kLiveCount] = {@"momentary", @"toggle", @"menu", @"plate", @"strip", @"on"};
NSString *const kTitles[kLiveCount] = {@"Push",        @"Toggle",  @"Choose",
                                       @"One picture", @"A strip", @"On, disabled"};
NSString *const kPositionNames[kPositionCount] = {@"none",  @"only",  @"left",    @"right",
                                                  @"below", @"above", @"overlaps"};
NSString *const kTexts[] = {@"", @"A title that is much wider than its button"};

}  // namespace

@interface ImageButtonsPage : GalleryPage {
  GalleryStage *_stage;
  StateBoard *_board;
  HXImageButton *_live[kLiveCount];
  HXImageButton *_positions[kPositionCount];
  NSTextField *_captions[3];
  EventLog *_log;
  int _popUps;
  BOOL _pushed;
  BOOL _hover;
  BOOL _pictures;
}
@end

@implementation ImageButtonsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 40;
}

+ (NSString *)name {
  return @"imagebuttons";
}

+ (NSString *)title {
  return @"Image buttons";
}

+ (NSString *)summary {
  return @"Buttons drawn from a picture set: frame, icon and accessory, five states.";
}

- (void)dealloc {
  [_stage setLayout:nullptr];
  [self forgetArtwork];
  for (HXImageButton *button : _live) [button setDelegate:nil];
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOutIn:size]; }];
  _pushed = _hover = _pictures = YES;
  _board = [self add:[[[StateBoard alloc] initWithFrame:NSZeroRect] autorelease]];
  for (int i = 0; i < kLiveCount; ++i) {
    _live[i] = [self addButton:kTitles[i]];
  }
  [_live[kToggle] setButtonType:NSPushOnPushOffButton];
  [_live[kToggle] setAlternateTitle:@"On"];
  [_live[kOn] setButtonType:NSPushOnPushOffButton];
  [_live[kOn] setState:NSOnState];
  [_live[kOn] setEnabled:NO];
  [_live[kMenu] setMenu:[self sampleMenu]];
  for (int i = 0; i < kPositionCount; ++i) {
    _positions[i] = [self addButton:kPositionNames[i]];
    [_positions[i] setImagePosition:static_cast<NSCellImagePosition>(i)];
  }
  NSString *const captions[] = {
      @"Every state of the set, held still", @"Live",
      @"The icon at each position; y grows downward in a button, so below is above"};
  for (int i = 0; i < 3; ++i) {
    _captions[i] = [self add:GalleryLabel(captions[i], GalleryFont(12), GalleryQuietTextColor())];
  }
  _log = [self add:[[[EventLog alloc] initWithTitle:@"Actions and menus"] autorelease]];
  [self dress];
  for (int i = 0; i + 1 < kLiveCount; ++i) [_live[i] setNextKeyView:_live[i + 1]];
  return _stage;
}

- (id)add:(NSView *)view {
  [_stage addSubview:view];
  return view;
}

- (HXImageButton *)addButton:(NSString *)title {
  HXImageButton *button = [[[HXImageButton alloc] initWithFrame:NSZeroRect] autorelease];
  [button setTitle:title];
  [button setFont:GalleryFont(13)];
  [button setButtonType:NSMomentaryPushInButton];
  [button setTarget:self];
  [button setAction:@selector(pressed:)];
  [button setDelegate:self];
  return [self add:button];
}

- (NSMenu *)sampleMenu {
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
  for (NSString *title in @[ @"Opened", @"Copy", @"Rename", @"Move to trash" ]) {
    NSMenuItem *item = (NSMenuItem *)[menu addItemWithTitle:title
                                                     action:@selector(menuItemChosen:)
                                              keyEquivalent:@""];
    [item setTarget:self];
  }
  return menu;
}

// The set that a button wears.
- (SampleArtwork *)artworkFor:(int)index {
  if (index == kPlate) return [SampleArtwork plate];
  if (index == kStrip) return [SampleArtwork strip];
  return [SampleArtwork buttonWithIcon:NO accessory:index == kMenu];
}

// As the settings want the set to be.
- (SampleArtwork *)reduced:(SampleArtwork *)artwork {
  if (!_pictures) return nil;
  if (!_pushed) {
    [artwork removeAllImagesForImageVariation:HXImageControlImageVariationMousePushed];
  }
  if (!_hover) [artwork removeAllImagesForImageVariation:HXImageControlImageVariationMouseOver];
  return artwork;
}

// What the buttons wear calls this page.
- (void)forgetArtwork {
  for (HXImageButton *button : _live) {
    [static_cast<SampleArtwork *>([button imageContainer]) setDrawn:nullptr];
  }
}

- (void)dress {
  [self forgetArtwork];
  for (int i = 0; i < kLiveCount; ++i) {
    SampleArtwork *artwork = [self reduced:[self artworkFor:i]];
    [artwork setDrawn:[self] { [self changed]; }];
    [_live[i] setImageContainer:artwork];
  }
  SampleArtwork *withIcon = [self reduced:[SampleArtwork buttonWithIcon:YES accessory:NO]];
  for (HXImageButton *button : _positions) [button setImageContainer:withIcon];
  [_board setArtwork:[self reduced:[SampleArtwork buttonWithIcon:YES accessory:YES]]];
  [_stage setNeedsDisplay:YES];
  [self changed];
}

- (void)layOutIn:(NSSize)size {
  const CGFloat left = GalleryLargeMargin;
  const CGFloat width = std::max(CGFloat(200), size.width - kLogWidth - 2 * left - GalleryMargin);
  CGFloat y = GalleryMargin;
  [_captions[0] setFrameOrigin:NSMakePoint(left - 2, y)];
  y += kCaptionHeight;
  [_board setFrame:NSMakeRect(left, y, width, [StateBoard height])];
  y += [StateBoard height] + GalleryLargeMargin;
  [_captions[1] setFrameOrigin:NSMakePoint(left - 2, y)];
  y += kCaptionHeight;
  const CGFloat third = std::floor((width - 2 * GalleryMargin) / 3);
  for (int i = 0; i < kLiveCount; ++i) {
    [_live[i]
        setFrame:NSMakeRect(left + (i % 3) * (third + GalleryMargin),
                            y + (i / 3) * (kButtonHeight + GalleryMargin), third, kButtonHeight)];
  }
  y += 2 * (kButtonHeight + GalleryMargin) + GalleryMargin;
  [_captions[2] setFrameOrigin:NSMakePoint(left - 2, y)];
  y += kCaptionHeight;
  const CGFloat part =
      std::floor((width - (kPositionCount - 1) * GallerySmallMargin) / kPositionCount);
  for (int i = 0; i < kPositionCount; ++i) {
    [_positions[i] setFrame:NSMakeRect(left + i * (part + GallerySmallMargin), y, part, 60)];
  }
  [_log setFrame:NSMakeRect(size.width - kLogWidth, 0, kLogWidth, size.height)];
}

- (NSView *)keyView {
  return _live[kMomentary];
}

#pragma mark Events

- (void)pressed:(HXImageButton *)button {
  NSString *title = [button title];
  for (int i = 0; i < kLiveCount; ++i) {
    if (_live[i] == button) title = kNames[i];
  }
  const BOOL on = button == _live[kToggle] && [button state] == NSOnState;
  [_log addEvent:on ? @"action, on" : @"action" from:title color:nil];
  [self changed];
}

- (void)imageButton:(HXImageButton *)button willPopUpMenu:(NSMenu *)menu {
  (void)button;
  NSString *title = [NSString stringWithFormat:@"Opened: %d", ++_popUps];
  [[menu itemAtIndex:0] setTitle:title];
  [_log addEvent:@"willPopUpMenu" from:@"menu" color:GalleryQuietTextColor()];
  [self changed];
}

- (void)menuItemChosen:(NSMenuItem *)item {
  [_log addEvent:[item title] from:@"menu" color:GalleryAccentColor()];
  [self changed];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Buttons"];
  [settings addCheckBox:@"Enabled"
                     on:YES
                changed:[self](BOOL on) {
                  for (int i = 0; i < kOn; ++i) [_live[i] setEnabled:on];
                  for (HXImageButton *button : _positions) [button setEnabled:on];
                  [self changed];
                }];
  [settings addPopUp:@"Title"
              titles:@[ @"Its own", @"None", @"Too long" ]
            selected:0
             changed:[self](NSInteger index) {
               for (int i = 0; i < kLiveCount; ++i) {
                 [_live[i] setTitle:index == 0 ? kTitles[i] : kTexts[index - 1]];
                 if (i == kToggle) [_live[i] setAlternateTitle:index == 0 ? @"On" : @""];
               }
               [self changed];
             }];
  [settings
      addPopUp:@"Size"
        titles:@[ @"Regular", @"Small", @"Mini" ]
      selected:0
       changed:[self](NSInteger index) {
         const auto size = static_cast<NSControlSize>(index);
         for (HXImageButton *button : _live) {
           [[button cell] setControlSize:size];
           [button setFont:[NSFont systemFontOfSize:[NSFont systemFontSizeForControlSize:size]]];
           [button setNeedsDisplay:YES];
         }
       }];
  [settings addColumn:@"The set"];
  [settings addCheckBox:@"Pictures"
                     on:YES
                changed:[self](BOOL on) {
                  _pictures = on;
                  [self dress];
                }];
  [settings addCheckBox:@"Mouse over"
                     on:YES
                changed:[self](BOOL on) {
                  _hover = on;
                  [self dress];
                }];
  [settings addCheckBox:@"Mouse pushed"
                     on:YES
                changed:[self](BOOL on) {
                  _pushed = on;
                  [self dress];
                }];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray arrayWithArray:[_log statusLines]];
  for (int i = 0; i < kLiveCount; ++i) {
    NSString *key = [@"rect." stringByAppendingString:kNames[i]];
    [lines addObject:GalleryStatusLine(key, _live[i], [_live[i] bounds], @"")];
    auto *artwork = static_cast<SampleArtwork *>([_live[i] imageContainer]);
    [lines addObject:[NSString stringWithFormat:@"drawn.%@=%u", kNames[i], [artwork drawnState]]];
  }
  for (int i = 0; i < kPositionCount; ++i) {
    NSString *key = [@"rect.icon." stringByAppendingString:kPositionNames[i]];
    [lines addObject:GalleryStatusLine(key, _positions[i], [_positions[i] bounds], @"")];
  }
  [lines addObject:[NSString stringWithFormat:@"toggle=%d", int([_live[kToggle] state])]];
  [lines addObject:GalleryStatusLine(@"grid", _stage, [_stage bounds], @"")];
  return lines;
}

@end
