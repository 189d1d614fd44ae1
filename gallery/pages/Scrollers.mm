// Scrollers in three looks, with the arrows at four places, and what they tell while they are
// worked.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "forms/EventLog.h"
#import "scrolling/SampleScrollers.h"
#import "scrolling/ScrolledSheet.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kLogWidth = 300;
static const CGFloat kCaptionHeight = 22;
static const CGFloat kRowHeight = 28;

namespace {

constexpr int kAppearanceCount = 3;
constexpr int kConfigurationCount = 4;
NSString *const kAppearances[kAppearanceCount] = {@"platform", @"metal", @"black"};
NSString *const kConfigurations[kConfigurationCount] = {@"One at each end", @"Both at the start",
                                                        @"Both at the end", @"Both at both ends"};

}  // namespace

@interface ScrollersPage : GalleryPage {
  GalleryStage *_stage;
  HXScrollView *_scrolls[kAppearanceCount];
  NSTextField *_captions[kAppearanceCount];
  HXScroller *_bars[kConfigurationCount][2];
  NSTextField *_barNames[kConfigurationCount];
  EventLog *_log;
  double _proportion;
}
@end

@implementation ScrollersPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 48;
}

+ (NSString *)name {
  return @"scrollers";
}

+ (NSString *)title {
  return @"Scrollers";
}

+ (NSString *)summary {
  return @"Scrollers in three looks, with the arrows at four places, that tell of their tracking.";
}

- (void)dealloc {
  [_stage setLayout:nullptr];
  for (HXScrollView *scroll : _scrolls) [scroll setDelegate:nil];
  for (auto &row : _bars) {
    for (HXScroller *bar : row) {
      [bar setDelegate:nil];
      [bar setTarget:nil];
    }
  }
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOutIn:size]; }];
  _proportion = 0.3;
  for (int i = 0; i < kAppearanceCount; ++i) [self addScrollView:i];
  for (int i = 0; i < kConfigurationCount; ++i) {
    _barNames[i] =
        [self add:GalleryLabel(kConfigurations[i], GalleryFont(12), GalleryQuietTextColor())];
    for (int look = 0; look < 2; ++look) _bars[i][look] = [self addBar:i + 1 look:look + 1];
  }
  _log = [self add:[[[EventLog alloc] initWithTitle:@"Tracking"] autorelease]];
  return _stage;
}

- (id)add:(NSView *)view {
  [_stage addSubview:view];
  return view;
}

- (void)addScrollView:(int)appearance {
  HXScrollView *scroll =
      [[[HXScrollView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [scroll setHasVerticalScroller:YES];
  [scroll setHasHorizontalScroller:YES];
  [scroll setBorderType:NSLineBorder];
  [scroll setDocumentView:[[[ScrolledSheet alloc] initWithFrame:NSMakeRect(0, 0, 900, 1200)]
                              autorelease]];
  for (NSScroller *scroller in @[ [scroll verticalScroller], [scroll horizontalScroller] ]) {
    // The scroll view hands on what its scrollers tell it.
    [static_cast<HXScroller *>(scroller) setDelegate:scroll];
    [static_cast<HXScroller *>(scroller) setAppearance:appearance];
  }
  [scroll setDelegate:self];
  _scrolls[appearance] = [self add:scroll];
  NSString *const names[kAppearanceCount] = {@"Default: the platform's", @"Metal", @"Black"};
  _captions[appearance] =
      [self add:GalleryLabel(names[appearance], GalleryFont(12), GalleryQuietTextColor())];
}

- (HXScroller *)addBar:(int)configuration look:(int)appearance {
  HXScroller *bar = [[[GalleryScrollerClass(configuration) alloc]
      initWithFrame:NSMakeRect(0, 0, 240, [NSScroller scrollerWidth])] autorelease];
  [bar setAppearance:appearance];
  [bar setFloatValue:0.3f knobProportion:float(_proportion)];
  [bar setEnabled:YES];
  [bar setDelegate:self];
  [bar setTarget:self];
  [bar setAction:@selector(barMoved:)];
  return [self add:bar];
}

- (void)layOutIn:(NSSize)size {
  const CGFloat left = GalleryLargeMargin;
  const CGFloat width = std::max(CGFloat(200), size.width - kLogWidth - 2 * left);
  const CGFloat barsHeight = kConfigurationCount * kRowHeight + GalleryMargin;
  const CGFloat top = GalleryMargin + kCaptionHeight;
  const CGFloat third = std::floor((width - 2 * GalleryMargin) / 3);
  const CGFloat height = std::max(CGFloat(60), size.height - top - barsHeight - GalleryLargeMargin);
  for (int i = 0; i < kAppearanceCount; ++i) {
    const CGFloat x = left + i * (third + GalleryMargin);
    [_captions[i] setFrameOrigin:NSMakePoint(x - 2, GalleryMargin)];
    [_scrolls[i] setFrame:NSMakeRect(x, top, third, height)];
  }
  const CGFloat bar = std::floor((width - 130 - GalleryMargin) / 2);
  for (int i = 0; i < kConfigurationCount; ++i) {
    const CGFloat y = top + height + GalleryLargeMargin + i * kRowHeight;
    [_barNames[i] setFrameOrigin:NSMakePoint(left - 2, y + 1)];
    for (int look = 0; look < 2; ++look) {
      [_bars[i][look] setFrame:NSMakeRect(left + 130 + look * (bar + GalleryMargin), y, bar,
                                          [NSScroller scrollerWidth])];
    }
  }
  [_log setFrame:NSMakeRect(size.width - kLogWidth, 0, kLogWidth, size.height)];
}

- (NSView *)keyView {
  return _scrolls[1];
}

#pragma mark Events

static NSString *partName(NSScrollerPart part) {
  NSString *const names[] = {@"nothing",        @"decrement page", @"knob", @"increment page",
                             @"decrement line", @"increment line", @"slot"};
  return part <= NSScrollerKnobSlot ? names[part] : @"";
}

- (void)tell:(NSString *)event of:(id)scroller part:(NSScrollerPart)part {
  NSString *source = @"bar";
  for (int i = 0; i < kAppearanceCount; ++i) {
    if ([_scrolls[i] verticalScroller] == scroller) source = kAppearances[i];
    if ([_scrolls[i] horizontalScroller] == scroller) source = kAppearances[i];
  }
  [_log addEvent:[NSString stringWithFormat:@"%@ %@", event, partName(part)] from:source color:nil];
  [self changed];
}

- (void)scroller:(HXScroller *)scroller
     inScrollView:(HXScrollView *)scrollView
    willTrackPart:(NSScrollerPart)part {
  (void)scrollView;
  [self tell:@"will track" of:scroller part:part];
}

- (void)scroller:(HXScroller *)scroller
    inScrollView:(HXScrollView *)scrollView
    didTrackPart:(NSScrollerPart)part {
  (void)scrollView;
  [self tell:@"did track" of:scroller part:part];
}

- (void)scrollViewDidScrollContent:(HXScrollView *)scrollView {
  for (int i = 0; i < kAppearanceCount; ++i) {
    if (_scrolls[i] != scrollView) continue;
    const NSPoint origin = [scrollView documentVisibleRect].origin;
    [_log addEvent:[NSString stringWithFormat:@"content at %g, %g", origin.x, origin.y]
              from:kAppearances[i]
             color:GalleryQuietTextColor()];
  }
  [self changed];
}

- (void)scroller:(HXScroller *)scroller willTrackPart:(NSScrollerPart)part {
  [self tell:@"will track" of:scroller part:part];
}

- (void)scroller:(HXScroller *)scroller didTrackPart:(NSScrollerPart)part {
  [self tell:@"did track" of:scroller part:part];
}

// What a scroll view does for its scrollers: arrows go a little, pages more, the knob anywhere.
- (void)barMoved:(HXScroller *)bar {
  static const float steps[] = {0, -0.25f, 0, 0.25f, -0.05f, 0.05f, 0};
  const NSScrollerPart part = [bar hitPart];
  if (part > NSScrollerKnobSlot) return;
  [bar setFloatValue:std::clamp([bar floatValue] + steps[part], 0.0f, 1.0f)];
  [self changed];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Scroll views"];
  [settings addPopUp:@"Content"
              titles:@[ @"Larger", @"Much larger", @"Smaller" ]
            selected:0
             changed:[self](NSInteger index) {
               const NSSize sizes[] = {NSMakeSize(900, 1200), NSMakeSize(9000, 12000),
                                       NSMakeSize(60, 60)};
               for (HXScrollView *scroll : _scrolls) {
                 [[scroll documentView] setFrameSize:sizes[index]];
               }
               [_stage setNeedsDisplay:YES];
               [self changed];
             }];
  [settings addCheckBox:@"Hide idle scrollers"
                     on:NO
                changed:[self](BOOL on) {
                  for (HXScrollView *scroll : _scrolls) [scroll setAutohidesScrollers:on];
                  [_stage setNeedsDisplay:YES];
                  [self changed];
                }];
  [settings addColumn:@"Scrollers below"];
  [settings addCheckBox:@"Enabled"
                     on:YES
                changed:[self](BOOL on) {
                  for (auto &row : _bars) {
                    for (HXScroller *bar : row) {
                      [bar setEnabled:on];
                      [bar setNeedsDisplay:YES];
                    }
                  }
                  [self changed];
                }];
  [settings addSlider:@"Knob"
                 from:0.05
                   to:0.9
                value:_proportion
              changed:[self](double value) {
                _proportion = value;
                for (auto &row : _bars) {
                  for (HXScroller *bar : row) {
                    const BOOL enabled = [bar isEnabled];
                    [bar setFloatValue:[bar floatValue] knobProportion:float(value)];
                    [bar setEnabled:enabled];
                  }
                }
              }];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray arrayWithArray:[_log statusLines]];
  for (int i = 0; i < kAppearanceCount; ++i) {
    NSScroller *scroller = [_scrolls[i] verticalScroller];
    NSString *const parts[] = {@"knob", @"up", @"down"};
    const NSScrollerPart numbers[] = {NSScrollerKnob, NSScrollerDecrementLine,
                                      NSScrollerIncrementLine};
    for (int part = 0; part < 3; ++part) {
      NSString *key = [NSString stringWithFormat:@"rect.%@.%@", kAppearances[i], parts[part]];
      [lines addObject:GalleryStatusLine(key, scroller, [scroller rectForPart:numbers[part]], @"")];
    }
    NSString *key = [@"rect." stringByAppendingString:kAppearances[i]];
    [lines addObject:GalleryStatusLine(key, scroller, [scroller bounds], @"")];
    const NSPoint origin = [_scrolls[i] documentVisibleRect].origin;
    [lines addObject:[NSString
                         stringWithFormat:@"origin.%@=%g %g", kAppearances[i], origin.x, origin.y]];
  }
  for (int i = 0; i < kConfigurationCount; ++i) {
    NSString *key = [NSString stringWithFormat:@"rect.bar%d", i + 1];
    [lines addObject:GalleryStatusLine(key, _bars[i][0], [_bars[i][0] bounds], @"")];
    [lines
        addObject:[NSString stringWithFormat:@"value.bar%d=%.2f", i + 1, [_bars[i][0] floatValue]]];
  }
  [lines addObject:GalleryStatusLine(@"grid", _stage, [_stage bounds], @"")];
  return lines;
}

@end
