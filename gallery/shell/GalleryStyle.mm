#import "shell/GalleryStyle.h"

NSColor *GalleryColor(unsigned rgb, CGFloat alpha) {
  return [NSColor colorWithCalibratedRed:((rgb >> 16) & 255) / 255.0
                                   green:((rgb >> 8) & 255) / 255.0
                                    blue:(rgb & 255) / 255.0
                                   alpha:alpha];
}

NSColor *GalleryWindowColor() { return GalleryColor(0xF6F7F9); }
NSColor *GallerySidebarColor() { return GalleryColor(0xEBEEF3); }
NSColor *GalleryPanelColor() { return GalleryColor(0xFFFFFF); }
NSColor *GalleryLineColor() { return GalleryColor(0xD9DEE6); }
NSColor *GalleryTextColor() { return GalleryColor(0x1F2633); }
NSColor *GalleryQuietTextColor() { return GalleryColor(0x667085); }
NSColor *GalleryAccentColor() { return GalleryColor(0x2F6FDE); }
NSColor *GalleryWarningColor() { return GalleryColor(0xB42318); }

void GalleryLightenPlatform() {
  NSColorList *list = [NSColorList colorListNamed:@"System"];
  NSDictionary *colors = @{
    @"controlBackgroundColor" : GalleryWindowColor(),
    @"controlColor" : GalleryWindowColor(),
    @"windowBackgroundColor" : GalleryWindowColor(),
    @"controlShadowColor" : GalleryLineColor(),
    @"controlDarkShadowColor" : GalleryColor(0xB6BECB),
    // White by default, which would make a rubber band on white invisible.
    @"selectedControlColor" : GalleryAccentColor(),
    @"selectedMenuItemColor" : GalleryAccentColor(),
    @"selectedMenuItemTextColor" : [NSColor whiteColor],
    @"selectedTextBackgroundColor" : GalleryColor(0xC9DBFA),
    @"toolTipColor" : GalleryColor(0xFFFDF2),
  };
  @try {
    for (NSString *name in colors) [list setColor:[colors objectForKey:name] forKey:name];
  } @catch (NSException *exception) {
    NSLog(@"The system's colours stay as they are: %@",
          [exception reason]);  // a list of the user's
  }
  [[NSNotificationCenter defaultCenter] postNotificationName:NSSystemColorsDidChangeNotification
                                                      object:nil];
}

NSFont *GalleryFont(CGFloat size) { return [NSFont systemFontOfSize:size]; }
NSFont *GalleryBoldFont(CGFloat size) { return [NSFont boldSystemFontOfSize:size]; }

NSBezierPath *GalleryRoundedPath(NSRect rect, CGFloat radius) {
  return [NSBezierPath bezierPathWithRoundedRect:rect xRadius:radius yRadius:radius];
}

void GalleryDrawText(NSString *text, NSRect rect, NSFont *font, NSColor *color,
                     NSTextAlignment alignment) {
  NSDictionary *attributes = @{NSFontAttributeName : font, NSForegroundColorAttributeName : color};
  const NSSize size = [text sizeWithAttributes:attributes];
  CGFloat x = NSMinX(rect);
  if (alignment == NSCenterTextAlignment) x += (NSWidth(rect) - size.width) / 2;
  if (alignment == NSRightTextAlignment) x += NSWidth(rect) - size.width;
  [text drawAtPoint:NSMakePoint(floor(x), floor(NSMidY(rect) - size.height / 2))
      withAttributes:attributes];
}

NSTextField *GalleryLabel(NSString *text, NSFont *font, NSColor *color) {
  NSTextField *label = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
  [label setStringValue:text];
  [label setFont:font];
  [label setTextColor:color];
  [label setBezeled:NO];
  [label setBordered:NO];
  [label setDrawsBackground:NO];
  [label setEditable:NO];
  [label setSelectable:NO];
  [label sizeToFit];
  return label;
}

@implementation GalleryBox

+ (GalleryBox *)boxWithFill:(NSColor *)fill border:(NSColor *)border {
  GalleryBox *box = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
  box->_fill = [fill retain];
  box->_border = [border retain];
  return box;
}

- (void)dealloc {
  [_fill release];
  [_border release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return _fill != nil;
}

- (void)drawRect:(NSRect)rect {
  if (_fill) {
    [_fill set];
    NSRectFill(rect);
  }
  if (_border) {
    [_border set];
    NSFrameRect([self bounds]);
  }
}

@end
