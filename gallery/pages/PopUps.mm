// Pop-up buttons that are drawn from a picture set.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "forms/EventLog.h"
#import "imagecontrols/SampleArtwork.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kLogWidth = 270;
static const CGFloat kRowHeight = 70;
static const CGFloat kPopUpWidth = 190;

namespace {

enum PopUp { kCenter, kBottom, kNoArrow, kPullDown, kOn, kDisabledOn, kBare };
constexpr int kCount = 7;

NSString *const kNames[kCount] = {@"center", @"bottom",     @"noarrow", @"pulldown",
                                  @"on",     @"disabledon", @"bare"};
NSString *const kHints[kCount] = {@"The arrow at the centre",
                                  @"The arrow at the bottom",
                                  @"No arrow",
                                  @"A pull-down menu",
                                  @"On, by a change of picture",
                                  @"On, and disabled",
                                  @"Without pictures: the platform's"};
NSString *const kTitles[] = {@"Apples", @"Oranges", @"Pears",
                             @"A fruit with a name that is too long"};

}  // namespace

@interface PopUpsPage : GalleryPage {
  GalleryStage *_stage;
  HXImagePopUpButton *_popUps[kCount];
  NSTextField *_hints[kCount];
  EventLog *_log;
  BOOL _hover;
}
@end

@implementation PopUpsPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 44;
}

+ (NSString *)name {
  return @"popups";
}

+ (NSString *)title {
  return @"Pop-ups";
}

+ (NSString *)summary {
  return @"Pop-up buttons drawn from a picture set, with the arrow at two places.";
}

- (void)dealloc {
  [_stage setLayout:nullptr];
  [self forgetArtwork];
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOutIn:size]; }];
  _hover = YES;
  for (int i = 0; i < kCount; ++i) {
    _popUps[i] = [self add:[[[HXImagePopUpButton alloc] initWithFrame:NSZeroRect
                                                            pullsDown:i == kPullDown] autorelease]];
    if (i == kPullDown) [_popUps[i] addItemWithTitle:@"Add fruit"];
    for (NSString *title : kTitles) [_popUps[i] addItemWithTitle:title];
    [_popUps[i] setFont:GalleryFont(13)];
    [_popUps[i] setTarget:self];
    [_popUps[i] setAction:@selector(chosen:)];
    _hints[i] = [self add:GalleryLabel(kHints[i], GalleryFont(12), GalleryQuietTextColor())];
  }
  NSPopUpButtonCell *noArrow = [_popUps[kNoArrow] cell];
  [noArrow setArrowPosition:NSPopUpNoArrow];
  NSPopUpButtonCell *bottom = [_popUps[kBottom] cell];
  [bottom setArrowPosition:NSPopUpArrowAtBottom];
  for (int i : {kOn, kDisabledOn}) {
    NSPopUpButtonCell *on = [_popUps[i] cell];
    [on setShowsStateBy:NSChangeGrayCellMask];
    [on setState:NSOnState];
  }
  [_popUps[kDisabledOn] setEnabled:NO];
  _log = [self add:[[[EventLog alloc] initWithTitle:@"Choices"] autorelease]];
  [self dress];
  for (int i = 0; i + 1 < kCount; ++i) [_popUps[i] setNextKeyView:_popUps[i + 1]];
  return _stage;
}

- (id)add:(NSView *)view {
  [_stage addSubview:view];
  return view;
}

// What the pop-ups wear calls this page.
- (void)forgetArtwork {
  for (HXImagePopUpButton *popUp : _popUps) {
    [static_cast<SampleArtwork *>([popUp imageContainer]) setDrawn:nullptr];
  }
}

- (void)dress {
  [self forgetArtwork];
  for (int i = 0; i < kBare; ++i) {
    SampleArtwork *artwork = [SampleArtwork buttonWithIcon:NO accessory:YES];
    if (!_hover) [artwork removeAllImagesForImageVariation:HXImageControlImageVariationMouseOver];
    [artwork setDrawn:[self] { [self changed]; }];
    [_popUps[i] setImageContainer:artwork];
  }
  [self changed];
}

- (void)layOutIn:(NSSize)size {
  for (int i = 0; i < kCount; ++i) {
    const CGFloat column = std::floor((size.width - kLogWidth - 2 * GalleryLargeMargin) / 2);
    const CGFloat x = GalleryLargeMargin + (i % 2) * column;
    const CGFloat y = GalleryLargeMargin + (i / 2) * (kRowHeight + GalleryLargeMargin);
    [_hints[i] setFrameOrigin:NSMakePoint(x - 2, y)];
    [_popUps[i] setFrame:NSMakeRect(x, y + 22, kPopUpWidth, 32)];
  }
  [_log setFrame:NSMakeRect(size.width - kLogWidth, 0, kLogWidth, size.height)];
}

- (NSView *)keyView {
  return _popUps[kCenter];
}

- (void)chosen:(HXImagePopUpButton *)sender {
  for (int i = 0; i < kCount; ++i) {
    if (_popUps[i] != sender) continue;
    [_log addEvent:[sender titleOfSelectedItem] ?: @"" from:kNames[i] color:nil];
  }
  [self changed];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Pop-ups"];
  [settings addCheckBox:@"Enabled"
                     on:YES
                changed:[self](BOOL on) {
                  for (int i = 0; i < kCount; ++i) {
                    if (i != kDisabledOn) [_popUps[i] setEnabled:on];
                  }
                  [self changed];
                }];
  [settings addSlider:@"Width"
                 from:60
                   to:240
                value:kPopUpWidth
              changed:[self](double value) {
                for (HXImagePopUpButton *popUp : _popUps) {
                  [popUp setFrameSize:NSMakeSize(std::round(value), NSHeight([popUp frame]))];
                }
                [_stage setNeedsDisplay:YES];
              }];
  [settings addColumn:@"The set"];
  [settings addCheckBox:@"Mouse over"
                     on:YES
                changed:[self](BOOL on) {
                  _hover = on;
                  [self dress];
                }];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray arrayWithArray:[_log statusLines]];
  for (int i = 0; i < kCount; ++i) {
    NSString *key = [@"rect." stringByAppendingString:kNames[i]];
    [lines addObject:GalleryStatusLine(key, _popUps[i], [_popUps[i] bounds], @"")];
    auto *artwork = static_cast<SampleArtwork *>([_popUps[i] imageContainer]);
    [lines addObject:[NSString stringWithFormat:@"drawn.%@=%u", kNames[i], [artwork drawnState]]];
    [lines addObject:[NSString stringWithFormat:@"title.%@=%@", kNames[i],
                                                [_popUps[i] titleOfSelectedItem] ?: @""]];
  }
  [lines addObject:GalleryStatusLine(@"grid", _stage, [_stage bounds], @"")];
  return lines;
}

@end
