#import "scrolling/ScrolledSheet.h"

#include <cmath>

#import "shell/GalleryStyle.h"

static const CGFloat kSquare = 60;

@implementation ScrolledSheet

- (BOOL)isFlipped {
  return YES;
}

- (BOOL)isOpaque {
  return YES;
}

- (void)drawRect:(NSRect)rect {
  static const unsigned colors[] = {0xEAF1FB, 0xFFFFFF, 0xFDF3E4, 0xFFFFFF, 0xEAF7EF, 0xFFFFFF};
  const int columns = int(std::ceil(NSWidth([self bounds]) / kSquare));
  for (int row = int(NSMinY(rect) / kSquare); row * kSquare < NSMaxY(rect); ++row) {
    for (int column = int(NSMinX(rect) / kSquare); column * kSquare < NSMaxX(rect); ++column) {
      const NSRect square = NSMakeRect(column * kSquare, row * kSquare, kSquare, kSquare);
      [GalleryColor(colors[(row + column) % 6]) set];
      NSRectFill(square);
      GalleryDrawText([NSString stringWithFormat:@"%d", row * columns + column + 1], square,
                      GalleryFont(13), GalleryQuietTextColor(), NSCenterTextAlignment);
    }
  }
}

@end
