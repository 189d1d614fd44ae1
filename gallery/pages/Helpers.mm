// The small helpers: house colours, fonts, an image placed in a rectangle, what the workspace
// knows, sounds.

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryControls.h"
#import "shell/GalleryPage.h"
#import "shell/GallerySettings.h"
#import "shell/GalleryStyle.h"

static const CGFloat kColumn = 300;

@interface HelpersView : NSView {
 @public
  NSImage *_image;
  int _position;
  BOOL _scaled;
  NSRect _drawn;
}
@end

@implementation HelpersView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _position = 1;
  _scaled = YES;
  _image = [[NSImage alloc] initWithSize:NSMakeSize(100, 50)];
  [_image lockFocus];
  [GalleryColor(0x8EC5FC) set];
  NSRectFill(NSMakeRect(0, 0, 100, 50));
  [GalleryColor(0xF7C873) set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(62, 24, 18, 18)] fill];
  [GalleryColor(0x3E7F5A) set];
  NSRectFill(NSMakeRect(0, 0, 100, 14));
  [_image unlockFocus];
  return self;
}

- (void)dealloc {
  [_image release];
  [super dealloc];
}

- (void)drawTitle:(NSString *)title x:(CGFloat)x y:(CGFloat)y {
  GalleryDrawText(title, NSMakeRect(x, y, kColumn, 20), GalleryBoldFont(12),
                  GalleryQuietTextColor(), NSLeftTextAlignment);
}

- (void)drawColorsAt:(NSPoint)place {
  [self drawTitle:@"House colours" x:place.x y:place.y];
  NSArray *colors = @[
    [NSColor orvaneSelectedColor], [NSColor orvaneReferenceColor], [NSColor orvaneFrameColor],
    [NSColor orvaneBackgroundColor]
  ];
  NSArray *names = @[ @"Selected", @"Reference", @"Frame", @"Background" ];
  for (NSUInteger i = 0; i < [colors count]; ++i) {
    const CGFloat y = place.y - 36 - 34 * static_cast<CGFloat>(i);
    const NSRect swatch = NSMakeRect(place.x, y, 48, 26);
    [[colors objectAtIndex:i] set];
    [GalleryRoundedPath(swatch, 4) fill];
    GalleryDrawText([names objectAtIndex:i], NSMakeRect(place.x + 60, y, 150, 26), GalleryFont(12),
                    GalleryTextColor(), NSLeftTextAlignment);
  }
}

- (void)drawFontsAt:(NSPoint)place {
  [self drawTitle:@"System fonts" x:place.x y:place.y];
  NSArray *fonts =
      @[ [NSFont regularSystemFont], [NSFont smallSystemFont], [NSFont miniSystemFont] ];
  NSArray *names = @[ @"Regular", @"Small", @"Mini" ];
  CGFloat y = place.y - 32;
  for (NSUInteger i = 0; i < [fonts count]; ++i) {
    NSFont *font = [fonts objectAtIndex:i];
    NSString *text = [NSString
        stringWithFormat:@"%@, %g points", [names objectAtIndex:i], [font pointSize]];
    NSMutableAttributedString *line =
        [[[NSMutableAttributedString alloc] initWithString:text font:font] autorelease];
    [line addAttribute:NSForegroundColorAttributeName
                 value:GalleryTextColor()
                 range:NSMakeRange(0, [line length])];
    [line drawAtPoint:NSMakePoint(place.x, y)];
    y -= 26;
  }
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  [GalleryPanelColor() set];
  NSRectFill([self bounds]);
  const CGFloat top = NSMaxY([self bounds]) - 34;
  [self drawColorsAt:NSMakePoint(24, top)];
  [self drawFontsAt:NSMakePoint(24, top - 200)];
  [self drawTitle:@"An image in a rectangle" x:24 + kColumn y:top];
  const NSRect frame = NSMakeRect(24 + kColumn, top - 216, 210, 210);
  [GalleryWindowColor() set];
  NSRectFill(frame);
  [GalleryLineColor() set];
  NSFrameRect(frame);
  _drawn = [_image drawInRect:frame
                   atPosition:_position
                       scaled:_scaled
                    operation:NSCompositeSourceOver
                     fraction:1];
}

@end

@interface HelpersPage : GalleryPage {
  HelpersView *_canvas;
  NSTextView *_facts;
  NSPopUpButton *_soundNames;
  NSArray *_sounds;
  NSSound *_playing;
  NSInteger _soundIndex;
}
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
  [_playing stop];
  [_playing release];
  [_sounds release];
  [_canvas release];
  [super dealloc];
}

- (NSView *)makeView {
  _sounds = [[[HXSoundRepository sharedSoundRepository] soundFilePaths] retain];
  _canvas = [[HelpersView alloc] initWithFrame:NSMakeRect(0, 0, 942, 420)];
  _facts = [[[NSTextView alloc] initWithFrame:NSMakeRect(24 + 2 * kColumn, 20, 300, 380)]
      autorelease];
  [_facts setAutoresizingMask:NSViewHeightSizable];
  [_facts setEditable:NO];
  [_facts setDrawsBackground:NO];
  [_facts setFont:GalleryFont(12)];
  [_facts setTextColor:GalleryTextColor()];
  [_canvas addSubview:_facts];
  [self showFacts];
  return _canvas;
}

- (void)didShow {
  [self showFacts];
}

- (void)showFacts {
  NSWorkspace *workspace = [NSWorkspace sharedWorkspace];
  NSMutableString *text = [NSMutableString stringWithString:@"Running applications\n"];
  for (NSDictionary *application in [workspace launchedApplications]) {
    [text appendFormat:@"   %@\n", [application objectForKey:@"NSApplicationName"]];
  }
  [text appendString:@"\nVolumes\n"];
  for (NSString *path in [workspace mountedLocalVolumePaths]) {
    const BOOL ejectable = [workspace isUnmountableDeviceOrNetworkVolumeAtPath:path];
    [text appendFormat:@"   %@%@\n", path, ejectable ? @" (can be ejected)" : @""];
  }
  [text appendFormat:@"\nSounds\n   %lu found\n", static_cast<unsigned long>([_sounds count])];
  [_facts setString:text];
}

- (void)fillSettings:(GallerySettings *)settings {
  [settings addColumn:@"The image"];
  [settings addPopUp:@"Position"
              titles:@[ @"0: stretched", @"1: centred", @"2: at the top" ]
            selected:1
             changed:[self](NSInteger index) {
               _canvas->_position = static_cast<int>(index);
               [self redraw];
             }];
  [settings addCheckBox:@"Scaled"
                     on:YES
                changed:[self](BOOL on) {
                  _canvas->_scaled = on;
                  [self redraw];
                }];
  [settings addColumn:@"Sounds"];
  NSMutableArray *names = [NSMutableArray array];
  for (NSString *path in _sounds) {
    [names addObject:[[path lastPathComponent] stringByDeletingPathExtension]];
  }
  if ([names count] == 0) [names addObject:@"None installed"];
  _soundNames = [settings addPopUp:@"Sound"
                            titles:names
                          selected:0
                           changed:[self](NSInteger index) { _soundIndex = index; }];
  [settings addButton:@"Play" pressed:[self] { [self play]; }];
}

- (void)redraw {
  [_canvas display];
  [self setMessage:[@"Drawn into " stringByAppendingString:NSStringFromRect(_canvas->_drawn)]
           warning:NO];
}

- (void)play {
  if (_soundIndex >= static_cast<NSInteger>([_sounds count])) {
    [self setMessage:@"There is no sound to play." warning:YES];
    return;
  }
  NSString *path = [_sounds objectAtIndex:_soundIndex];
  [_playing stop];
  [_playing release];
  _playing = [[NSSound alloc] initWithContentsOfFile:path byReference:YES];
  const BOOL plays = [_playing play];
  [self setMessage:plays ? [@"Playing " stringByAppendingString:path]
                         : @"The platform has no way to play it here."
           warning:!plays];
}

- (NSArray *)statusLines {
  return @[
    [@"drawn=" stringByAppendingString:NSStringFromRect(_canvas->_drawn)],
    [NSString stringWithFormat:@"sounds=%lu", static_cast<unsigned long>([_sounds count])],
    GalleryStatusLine(@"grid", _canvas, [_canvas bounds], @"")
  ];
}

@end
