#import "helpers/HelperSamples.h"

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryStyle.h"

static const CGFloat kColorRow = 26;
static const CGFloat kFontRow = 20;

@implementation ColorList

+ (CGFloat)height {
  return 4 * kColorRow;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const struct {
    NSColor *color;
    NSString *name;
  } colors[] = {{[NSColor orvaneSelectedColor], @"Selected"},
                {[NSColor orvaneReferenceColor], @"Reference"},
                {[NSColor orvaneFrameColor], @"Frame"},
                {[NSColor orvaneBackgroundColor], @"Background"}};
  NSRect row = NSMakeRect(0, 0, NSWidth([self bounds]), kColorRow);
  for (const auto &[color, name] : colors) {
    NSRect swatch = NSInsetRect(row, 0, 2);
    swatch.size.width = 48;
    [color set];
    [GalleryRoundedPath(swatch, 4) fill];
    NSRect text = row;
    text.origin.x += 58;
    GalleryDrawText(name, text, GalleryFont(12), GalleryTextColor(), NSLeftTextAlignment);
    row.origin.y += kColorRow;
  }
}

@end

@implementation FontList

+ (CGFloat)height {
  return 3 * kFontRow;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const struct {
    NSFont *font;
    NSString *name;
  } fonts[] = {{[NSFont regularSystemFont], @"Regular"},
               {[NSFont smallSystemFont], @"Small"},
               {[NSFont miniSystemFont], @"Mini"}};
  NSRect row = NSMakeRect(0, 0, NSWidth([self bounds]), kFontRow);
  for (const auto &[font, name] : fonts) {
    NSString *text = [NSString stringWithFormat:@"%@, %g points", name, [font pointSize]];
    GalleryDrawText(text, row, font, GalleryTextColor(), NSLeftTextAlignment);
    row.origin.y += kFontRow;
  }
}

@end

// A wide landscape, in which stretching shows.
static NSImage *makeLandscape() {
  NSImage *image = [[NSImage alloc] initWithSize:NSMakeSize(100, 50)];
  [image lockFocus];
  [GalleryColor(0x8EC5FC) set];
  NSRectFill(NSMakeRect(0, 0, 100, 50));
  [GalleryColor(0xF7C873) set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(62, 24, 18, 18)] fill];
  [GalleryColor(0x3E7F5A) set];
  NSRectFill(NSMakeRect(0, 0, 100, 14));
  [image unlockFocus];
  return image;
}

@implementation PlacedImage

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _position = 1;
  _scaled = YES;
  _image = makeLandscape();
  return self;
}

- (void)dealloc {
  [_image release];
  [super dealloc];
}

- (void)setPosition:(int)position {
  _position = position;
  [self setNeedsDisplay:YES];
}

- (void)setScaled:(BOOL)flag {
  _scaled = flag;
  [self setNeedsDisplay:YES];
}

- (NSRect)drawnRect {
  return _drawn;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSRect bounds = [self bounds];
  [GalleryWindowColor() set];
  NSRectFill(bounds);
  _drawn = [_image drawInRect:bounds
                   atPosition:_position
                       scaled:_scaled
                    operation:NSCompositeSourceOver
                     fraction:1];
  [GalleryLineColor() set];
  NSFrameRect(bounds);
}

@end
