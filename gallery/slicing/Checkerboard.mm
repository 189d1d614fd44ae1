#import "slicing/Checkerboard.h"

#include <algorithm>

#import "shell/GalleryStyle.h"

static const CGFloat kSquare = 8;

void GalleryDrawCheckerboard(NSRect rect) {
  [GalleryColor(0xFFFFFF) set];
  NSRectFill(rect);
  [GalleryColor(0xE9ECF1) set];
  for (int row = 0; row * kSquare < NSHeight(rect); ++row) {
    for (int column = row % 2; column * kSquare < NSWidth(rect); column += 2) {
      NSRectFill(
          NSIntersectionRect(rect, NSMakeRect(NSMinX(rect) + column * kSquare,
                                              NSMinY(rect) + row * kSquare, kSquare, kSquare)));
    }
  }
}
