#import "windows/AlignmentSample.h"

#import <OvAppKit/OvAppKit.h>

#import "shell/GalleryStyle.h"

static const CGFloat kLabelWidth = 68;
static const CGFloat kRowHeight = 26;
static const CGFloat kRowGap = 6;
static const CGFloat kHintHeight = 18;

@implementation AlignmentSample

+ (CGFloat)height {
  return 2 * kRowHeight + 2 * kRowGap + kHintHeight;
}

- (BOOL)isFlipped {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  for (int row = 0; row < 2; ++row) {
    const BOOL aligned = row == 1;
    const CGFloat y = row * (kRowHeight + kRowGap);
    GalleryDrawText(aligned ? @"alignRect:" : @"as given",
                    NSMakeRect(0, y, kLabelWidth, kRowHeight), GalleryFont(11),
                    GalleryQuietTextColor(), NSLeftTextAlignment);
    [GalleryTextColor() set];
    // Each a tenth of a pixel further from its neighbour's place between the pixels.
    for (CGFloat x = kLabelWidth; x + 8 < NSWidth([self bounds]); x += 7.1) {
      NSRect bar = NSMakeRect(x, y + 3.4, 3.3, kRowHeight - 6.2);
      if (aligned) bar = [[NSGraphicsContext currentContext] alignRect:bar];
      [[NSBezierPath bezierPathWithRect:bar] fill];
    }
  }
  GalleryDrawText(@"Bars 3.3 wide and 7.1 apart: between the pixels they blur.",
                  NSMakeRect(0, 2 * (kRowHeight + kRowGap), NSWidth([self bounds]), kHintHeight),
                  GalleryFont(11), GalleryQuietTextColor(), NSLeftTextAlignment);
}

@end
