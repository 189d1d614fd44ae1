// How one picture becomes a frame of any size: the lines along which it is cut, the nine pieces,
// the frame, and the picture as a strip of states.

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"
#import "slicing/CapsView.h"
#import "slicing/PieceViews.h"

static const CGFloat kCaptionHeight = 24;
static const CGFloat kStripHeight = 120;
static NSString *const kSamples[] = {@"GalleryPlate-default", @"GalleryPlate-highlighted",
                                     @"GalleryStrip", @"HXScroller_Metal_KnobBody_V"};

@interface SlicingPage : GalleryPage {
  GalleryStage *_stage;
  NSTextField *_captions[4];
  CapsView *_caps;
  PiecesView *_pieces;
  ComposedFrameView *_frame;
  TilesView *_tiles;
  NSSlider *_left;
  NSSlider *_top;
  HXImageSegment *_picture;
  NSString *_pictureName;
  CGFloat _leftCap;
  CGFloat _topCap;
  NSUInteger _states;
}
@end

@implementation SlicingPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 46;
}

+ (NSString *)name {
  return @"slicing";
}

+ (NSString *)title {
  return @"Slicing";
}

+ (NSString *)summary {
  return @"One picture, cut into nine pieces that make a frame of any size. Drop your own.";
}

- (void)dealloc {
  [_stage setLayout:nullptr];
  [_caps setCapsMoved:nullptr];
  [_caps setFileDropped:nullptr];
  [_frame setResized:nullptr];
  [_picture release];
  [_pictureName release];
  [super dealloc];
}

#pragma mark The views

- (NSView *)makeView {
  _stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOutIn:size]; }];
  _caps = [self add:[[[CapsView alloc] initWithFrame:NSZeroRect] autorelease]];
  _pieces = [self add:[[[PiecesView alloc] initWithFrame:NSZeroRect] autorelease]];
  _frame = [self add:[[[ComposedFrameView alloc] initWithFrame:NSZeroRect] autorelease]];
  _tiles = [self add:[[[TilesView alloc] initWithFrame:NSZeroRect] autorelease]];
  NSString *const captions[] = {@"The picture: drag the lines, drop another",
                                @"Its pieces, in their own sizes", @"The frame: drag its corner",
                                @"The picture as a strip of states"};
  for (int i = 0; i < 4; ++i) {
    _captions[i] = [self add:GalleryLabel(captions[i], GalleryFont(12), GalleryQuietTextColor())];
  }
  [_caps setCapsMoved:[self](CGFloat left, CGFloat top) { [self setLeftCap:left topCap:top]; }];
  [_caps setFileDropped:[self](NSString *path) { [self openFile:path]; }];
  [_frame setComposedSize:NSMakeSize(200, 90)];
  [_frame setResized:[self](NSSize) { [self changed]; }];
  _states = 3;
  [self openSample:0];
  return _stage;
}

- (id)add:(NSView *)view {
  [_stage addSubview:view];
  return view;
}

// Three panels in a row, the strip below.
- (void)layOutIn:(NSSize)size {
  const CGFloat width = std::max(
      CGFloat(40), std::floor((size.width - 2 * GalleryLargeMargin - 2 * GalleryMargin) / 3));
  const CGFloat top = GalleryMargin + kCaptionHeight;
  const CGFloat height = std::max(
      CGFloat(40), size.height - top - kStripHeight - kCaptionHeight - 2 * GalleryMargin - 4);
  NSView *const panels[] = {_caps, _pieces, _frame};
  for (int i = 0; i < 3; ++i) {
    const CGFloat x = GalleryLargeMargin + i * (width + GalleryMargin);
    [_captions[i] setFrameOrigin:NSMakePoint(x - 2, GalleryMargin)];
    [panels[i] setFrame:NSMakeRect(x, top, width, height)];
  }
  const CGFloat below = top + height + GalleryMargin;
  [_captions[3] setFrameOrigin:NSMakePoint(GalleryLargeMargin - 2, below)];
  [_tiles setFrame:NSMakeRect(GalleryLargeMargin, below + kCaptionHeight,
                              size.width - 2 * GalleryLargeMargin, kStripHeight)];
}

#pragma mark The picture

- (void)openSample:(NSInteger)index {
  NSString *name = kSamples[index];
  NSImage *image = [[NSBundle mainBundle] imageForResource:name];
  NSBundle *library = [NSBundle bundleForClass:[HXImageControlImageContainer class]];
  if (image == nil) image = [library imageForResource:name];
  [self showPicture:[[[HXImageSegment alloc] initWithImage:image] autorelease] named:name];
}

- (void)openFile:(NSString *)path {
  HXImageSegment *picture = [[[HXImageSegment alloc] initWithPath:path] autorelease];
  NSString *name = [path lastPathComponent];
  if ([picture image] == nil) {
    [self setMessage:[name stringByAppendingString:@" is not a picture that can be read."]
             warning:YES];
    return;
  }
  [self showPicture:picture named:name];
}

- (void)showPicture:(HXImageSegment *)picture named:(NSString *)name {
  [picture retain];
  [_picture release];
  _picture = picture;
  [_pictureName release];
  _pictureName = [name copy];
  const NSSize size = [picture rect].size;
  [self setMessage:[NSString stringWithFormat:@"%@, %g by %g points", name, size.width, size.height]
           warning:NO];
  [_tiles setImage:[picture image] count:_states];
  [self setLeftCap:std::floor(size.width / 4) topCap:std::floor(size.height / 4)];
}

- (void)setLeftCap:(CGFloat)left topCap:(CGFloat)top {
  _leftCap = left;
  _topCap = top;
  HXImageControlImageContainer *container =
      [[[HXImageControlImageContainer alloc] init] autorelease];
  [container setStrechableImage:_picture
                        leftCap:left
                         topCap:top
              forImageVariation:HXImageControlImageVariationDefault];
  [_caps setImage:[_picture image] leftCap:left topCap:top];
  [_pieces setContainer:container];
  [_frame setContainer:container];
  [_left setDoubleValue:left];
  [_top setDoubleValue:top];
  [self changed];
}

#pragma mark Settings

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"Picture"];
  [settings addPopUp:@"Sample"
              titles:@[ @"A plate", @"A plate, pressed", @"A strip", @"A scroller's knob" ]
            selected:0
             changed:[self](NSInteger index) { [self openSample:index]; }];
  [settings addButton:@"Open…"
              pressed:[self] {
                NSOpenPanel *panel = [NSOpenPanel openPanel];
                if ([panel runModal] == NSOKButton) [self openFile:[panel filename]];
              }];
  [settings addColumn:@"Caps"];
  _left = [settings
      addSlider:@"Left cap"
           from:0
             to:40
          value:_leftCap
        changed:[self](double value) { [self setLeftCap:std::round(value) topCap:_topCap]; }];
  _top = [settings
      addSlider:@"Top cap"
           from:0
             to:40
          value:_topCap
        changed:[self](double value) { [self setLeftCap:_leftCap topCap:std::round(value)]; }];
  [settings addColumn:@"Frame"];
  [settings addCheckBox:@"y grows upward"
                     on:NO
                changed:[self](BOOL on) {
                  [_frame setUpsideUp:on];
                  [self changed];
                }];
  [settings addColumn:@"Strip"];
  [settings addSlider:@"States"
                 from:1
                   to:8
                value:3
              changed:[self](double value) {
                _states = static_cast<NSUInteger>(std::lround(value));
                [_tiles setImage:[_picture image] count:_states];
                [self changed];
              }];
}

- (NSArray *)statusLines {
  const NSSize size = [_frame composedSize];
  return @[
    [@"picture=" stringByAppendingString:_pictureName ?: @""],
    [NSString stringWithFormat:@"caps=%g %g", _leftCap, _topCap],
    [NSString stringWithFormat:@"frame=%g %g", size.width, size.height],
    [NSString stringWithFormat:@"states=%d", static_cast<int>(_states)],
    GalleryStatusLine(@"rect.leftcap", _caps, [_caps leftCapHandle], @""),
    GalleryStatusLine(@"rect.topcap", _caps, [_caps topCapHandle], @""),
    GalleryStatusLine(@"rect.corner", _frame, [_frame handle], @""),
    GalleryStatusLine(@"rect.frame", _frame, [_frame bounds], @""),
    GalleryStatusLine(@"grid", _stage, [_stage bounds], @"")
  ];
}

@end
