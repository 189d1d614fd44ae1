#import "panes/PicturePreview.h"

#include <algorithm>

#import "shell/GalleryStyle.h"

static const CGFloat kWidest = 480;
static const CGFloat kNameHeight = 40;

// An evening at the sea, in a rectangle of a flipped view.
static void drawEvening(NSRect rect) {
  static const unsigned sky[] = {0x3B4B7A, 0x6A5D8F, 0xA76F8E, 0xDD8A79, 0xF5B57A, 0xFBD9A0};
  static const int kBands = sizeof sky / sizeof sky[0];
  const CGFloat horizon = floor(NSHeight(rect) * 0.66);
  for (int i = 0; i < kBands; ++i) {
    const CGFloat top = floor(horizon * i / kBands), bottom = floor(horizon * (i + 1) / kBands);
    [GalleryColor(sky[i]) set];
    NSRectFill(NSMakeRect(NSMinX(rect), NSMinY(rect) + top, NSWidth(rect), bottom - top));
  }
  const CGFloat sun = NSWidth(rect) * 0.13;
  [GalleryColor(0xFFF3D0) set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(NSMinX(rect) + NSWidth(rect) * 0.6,
                                                     NSMinY(rect) + horizon - sun * 0.75, sun, sun)]
      fill];
  [GalleryColor(0x2C3F63) set];
  NSRectFill(
      NSMakeRect(NSMinX(rect), NSMinY(rect) + horizon, NSWidth(rect), NSHeight(rect) - horizon));
  [GalleryColor(0xFBD9A0, 0.7) set];
  for (int i = 0; i < 6; ++i) {
    const CGFloat width = sun * (1.1 - 0.12 * i);
    NSRectFill(NSMakeRect(NSMinX(rect) + NSWidth(rect) * 0.6 + (sun - width) / 2,
                          NSMinY(rect) + horizon + 6 + i * 9, width, 2));
  }
}

@implementation PicturePreview

- (id)initWithName:(NSString *)name labelColor:(NSColor *)color {
  self = [super initWithFrame:NSZeroRect];
  if (!self) return nil;
  _name = [name copy];
  _labelColor = [color retain];
  return self;
}

- (void)dealloc {
  [_name release];
  [_labelColor release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (void)setLabelColor:(NSColor *)color {
  [color retain];
  [_labelColor release];
  _labelColor = color;
  [self setNeedsDisplay:YES];
}

// The picture is three wide and two high.
- (void)drawRect:(NSRect)rect {
  [GalleryWindowColor() set];
  NSRectFill(rect);
  const NSSize size = [self bounds].size;
  const CGFloat width =
      floor(std::min({kWidest, size.width - 2 * GalleryLargeMargin,
                      (size.height - kNameHeight - 2 * GalleryLargeMargin) * 3 / 2}));
  if (width < 30) return;
  const CGFloat height = floor(width / 1.5);
  const NSRect picture = NSMakeRect(floor((size.width - width) / 2),
                                    floor((size.height - height - kNameHeight) / 2), width, height);
  [GalleryPanelColor() set];
  NSRectFill(NSInsetRect(picture, -8, -8));
  [GalleryLineColor() set];
  NSFrameRect(NSInsetRect(picture, -9, -9));
  drawEvening(picture);

  NSDictionary *attributes = @{NSFontAttributeName : GalleryFont(13)};
  const CGFloat text = [_name sizeWithAttributes:attributes].width;
  const CGFloat x = floor(NSMidX(picture) - text / 2), y = NSMaxY(picture) + 20;
  [_labelColor set];
  [[NSBezierPath bezierPathWithOvalInRect:NSMakeRect(x - 18, y + 5, 10, 10)] fill];
  GalleryDrawText(_name, NSMakeRect(x, y, text, 20), GalleryFont(13), GalleryTextColor(),
                  NSLeftTextAlignment);
}

@end
