// The small helpers: house colours, fonts, an image placed in a rectangle, what the workspace
// knows, sounds.

#import <OvAppKit/OvAppKit.h>

#include <unistd.h>

#include <algorithm>

#import "helpers/HelperSamples.h"
#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStage.h"

static const CGFloat kColumn = 210;
static const CGFloat kTitle = 22;

@interface HelpersPage : GalleryPage {
  ColorList *_colors;
  FontList *_fonts;
  PlacedImage *_image;
  NSTextView *_facts;
  NSArray *_titles;
  NSPopUpButton *_position;
  NSPopUpButton *_soundNames;
  NSButton *_scaled;
  NSButton *_play;
  NSArray *_sounds;
  NSSound *_playing;
}
- (void)layOut:(NSSize)size;
@end

@implementation HelpersPage

+ (void)load {
  [GalleryPage addPageClass:self];
}

+ (int)position {
  return 98;
}

+ (NSString *)name {
  return @"helpers";
}

+ (NSString *)title {
  return @"Helpers";
}

+ (NSString *)summary {
  return @"Colours, fonts and images; running applications, volumes and sounds.";
}

- (void)dealloc {
  if (_view) [static_cast<GalleryStage *>(_view) setLayout:nullptr];
  [_playing stop];
  [_playing release];
  [_sounds release];
  [_titles release];
  [super dealloc];
}

- (NSView *)makeView {
  GalleryStage *stage = [GalleryStage stageWithLayout:[self](NSSize size) { [self layOut:size]; }];
  _sounds = [[[HXSoundRepository sharedSoundRepository] soundFilePaths] retain];
  _colors = [[[ColorList alloc] initWithFrame:NSZeroRect] autorelease];
  _fonts = [[[FontList alloc] initWithFrame:NSZeroRect] autorelease];
  _image = [[[PlacedImage alloc] initWithFrame:NSZeroRect] autorelease];
  _facts = [[[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
  [_facts setEditable:NO];
  [_facts setDrawsBackground:NO];
  [_facts setVerticallyResizable:NO];
  [[_facts textContainer] setLineFragmentPadding:0];
  NSMutableArray *titles = [NSMutableArray array];
  for (NSString *title in @[ @"House colours", @"System fonts", @"An image in a rectangle" ]) {
    [titles addObject:GalleryLabel(title, GalleryBoldFont(12), GalleryTextColor())];
  }
  _titles = [titles copy];
  for (NSView *view in @[ _colors, _fonts, _image, _facts ]) [stage addSubview:view];
  for (NSView *title in _titles) [stage addSubview:title];
  return stage;
}

// Colours and fonts, then the image, then what the workspace knows.
- (void)layOut:(NSSize)size {
  const CGFloat top = GalleryMargin;
  CGFloat x = GalleryLargeMargin;
  [[_titles objectAtIndex:0] setFrameOrigin:NSMakePoint(x, top)];
  [_colors setFrame:NSMakeRect(x, top + kTitle, kColumn, [ColorList height])];
  const CGFloat fonts = top + kTitle + [ColorList height] + GalleryMargin;
  [[_titles objectAtIndex:1] setFrameOrigin:NSMakePoint(x, fonts)];
  [_fonts setFrame:NSMakeRect(x, fonts + kTitle, kColumn, [FontList height])];

  x += kColumn + GalleryLargeMargin;
  const CGFloat side =
      std::clamp<CGFloat>(size.height - top - kTitle - GalleryLargeMargin, 60, 320);
  [[_titles objectAtIndex:2] setFrameOrigin:NSMakePoint(x, top)];
  [_image setFrame:NSMakeRect(x, top + kTitle, side, side)];
  x += side + 2 * GalleryLargeMargin;
  [_facts setFrame:NSMakeRect(x, top, std::max<CGFloat>(0, size.width - x - GalleryLargeMargin),
                              std::max<CGFloat>(0, size.height - top - GalleryMargin))];
}

- (void)didShow {
  [self showFacts];
  [self describeImage];
}

- (void)append:(NSString *)line to:(NSMutableAttributedString *)text bold:(BOOL)bold {
  NSMutableAttributedString *part = [[[NSMutableAttributedString alloc]
      initWithString:[line stringByAppendingString:@"\n"]
                font:bold ? GalleryBoldFont(12) : GalleryFont(12)] autorelease];
  [part addAttribute:NSForegroundColorAttributeName
               value:bold ? GalleryTextColor() : GalleryQuietTextColor()
               range:NSMakeRange(0, [part length])];
  [text appendAttributedString:part];
}

- (void)showFacts {
  NSWorkspace *workspace = [NSWorkspace sharedWorkspace];
  NSMutableAttributedString *text = [[[NSMutableAttributedString alloc] init] autorelease];
  [self append:@"Running applications" to:text bold:YES];
  for (NSDictionary *application in [workspace launchedApplications]) {
    [self append:[application objectForKey:@"NSApplicationName"] to:text bold:NO];
  }
  [self append:@"" to:text bold:NO];
  [self append:@"Volumes" to:text bold:YES];
  // The platform reads this file without looking whether it is there.
  const bool hasMounts = access("/etc/mtab", R_OK) == 0;
  NSArray *volumes = hasMounts ? [workspace mountedLocalVolumePaths] : @[ @"/" ];
  for (NSString *path in volumes) {
    const BOOL ejectable = [workspace isUnmountableDeviceOrNetworkVolumeAtPath:path];
    [self append:ejectable ? [path stringByAppendingString:@" (can be ejected)"] : path
              to:text
            bold:NO];
  }
  [self append:@"" to:text bold:NO];
  [self append:@"Sounds" to:text bold:YES];
  [self append:[NSString stringWithFormat:@"%lu in the Sounds folders",
                                          static_cast<unsigned long>([_sounds count])]
            to:text
          bold:NO];
  [[_facts textStorage] setAttributedString:text];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"The image"];
  _position = [settings addPopUp:@"Position"
                          titles:@[ @"0: stretched", @"1: centred", @"2: at the top" ]
                        selected:1
                         changed:[self](NSInteger index) {
                           [_image setPosition:static_cast<int>(index)];
                           [self describeImage];
                         }];
  _scaled = [settings addCheckBox:@"Scaled to the rectangle"
                               on:YES
                          changed:[self](BOOL on) {
                            [_image setScaled:on];
                            [self describeImage];
                          }];
  [settings addColumn:@"Sounds"];
  NSMutableArray *names = [NSMutableArray array];
  for (NSString *path in _sounds) {
    [names addObject:[[path lastPathComponent] stringByDeletingPathExtension]];
  }
  if ([names count] == 0) [names addObject:@"None installed"];
  _soundNames = [settings addPopUp:@"Sound" titles:names selected:0 changed:[](NSInteger) {}];
  _play = [settings addButton:@"Play" pressed:[self] { [self play]; }];
}

- (void)describeImage {
  [_image display];
  const NSRect drawn = [_image drawnRect];
  [self setMessage:[NSString stringWithFormat:@"The image is drawn at %g, %g, %g × %g.",
                                              NSMinX(drawn), NSMinY(drawn), NSWidth(drawn),
                                              NSHeight(drawn)]
           warning:NO];
}

- (void)play {
  const NSInteger index = [_soundNames indexOfSelectedItem];
  if (index < 0 || index >= static_cast<NSInteger>([_sounds count])) {
    [self setMessage:@"There is no sound to play." warning:YES];
    return;
  }
  NSString *path = [_sounds objectAtIndex:index];
  [_playing stop];
  [_playing release];
  _playing = [[NSSound alloc] initWithContentsOfFile:path byReference:YES];
  const BOOL plays = [_playing play];
  [self setMessage:plays ? [@"Playing " stringByAppendingString:path]
                         : @"The platform has no way to play it here."
           warning:!plays];
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  const NSRect drawn = [_image drawnRect], whole = [_image bounds];
  [lines addObject:[NSString stringWithFormat:@"drawn=%g %g %g %g", NSMinX(drawn), NSMinY(drawn),
                                              NSWidth(drawn), NSHeight(drawn)]];
  [lines addObject:[NSString stringWithFormat:@"side=%g", NSWidth(whole)]];
  [lines addObject:[NSString stringWithFormat:@"sounds=%lu",
                                              static_cast<unsigned long>([_sounds count])]];
  [lines addObject:[@"facts=" stringByAppendingString:[_facts string]]];
  for (NSView *view in @[ _position, _scaled, _play ]) {
    NSString *key = view == _position ? @"rect.position"
                    : view == _scaled ? @"rect.scaled"
                                      : @"rect.play";
    [lines addObject:GalleryStatusLine(key, view, [view bounds], @"")];
  }
  return lines;
}

@end
