#import "imagecontrols/StateBoard.h"

#import <OvAppKit/OvAppKit.h>

#include <cmath>

#import "shell/GalleryStyle.h"

static const CGFloat kButtonHeight = 40;
static const CGFloat kGap = 16;

@implementation StateBoard

+ (CGFloat)height {
  return kButtonHeight + 24;
}

- (void)dealloc {
  [_artwork release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setArtwork:(HXImageControlImageContainer *)artwork {
  [artwork retain];
  [_artwork release];
  _artwork = artwork;
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  NSString *const names[] = {@"default", @"highlighted", @"mouse pushed", @"mouse over",
                             @"disabled"};
  const CGFloat width = std::floor((NSWidth([self bounds]) - 4 * kGap) / 5);
  for (HXImageControlImageVariation variation = 0; variation < 5; ++variation) {
    const NSRect frame = NSMakeRect(variation * (width + kGap), 0, width, kButtonHeight);
    [_artwork drawImageInRect:frame isFlipped:YES imageVariation:variation];
    const HXImageControlImagePart overlays[] = {HXImageControlImagePartIcon,
                                                HXImageControlImagePartAccessory};
    for (HXImageControlImagePart part : overlays) {
      const NSSize size = [_artwork imageSizeForImagePart:part];
      const CGFloat margin = std::floor((kButtonHeight - size.height) / 2);
      const CGFloat x = part == HXImageControlImagePartIcon
                            ? std::floor(NSMidX(frame) - size.width / 2)
                            : NSMaxX(frame) - size.width - margin;
      [_artwork drawImageInRect:NSMakeRect(x, NSMinY(frame) + margin, size.width, size.height)
                      isFlipped:YES
                      imagePart:part
                 imageVariation:variation];
    }
    GalleryDrawText(names[variation], NSMakeRect(NSMinX(frame), kButtonHeight + 4, width, 18),
                    GalleryFont(12), GalleryQuietTextColor(), NSCenterTextAlignment);
  }
}

@end
