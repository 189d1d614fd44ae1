#import "slicing/PieceViews.h"

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "shell/GalleryStyle.h"
#import "slicing/Checkerboard.h"

static const CGFloat kMargin = 14;
static const CGFloat kGap = 8;
static const CGFloat kHandle = 10;

static void drawPanel(NSView *view) {
  [GalleryPanelColor() set];
  NSRectFill([view bounds]);
  [GalleryLineColor() set];
  NSFrameRect([view bounds]);
}

@implementation PiecesView

- (void)dealloc {
  [_container release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setContainer:(HXImageControlImageContainer *)container {
  [container retain];
  [_container release];
  _container = container;
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  drawPanel(self);
  // By row and column, as they lie in the picture.
  static const HXImageControlImagePart grid[3][3] = {
      {HXImageControlImagePartLeftTop, HXImageControlImagePartTop, HXImageControlImagePartRightTop},
      {HXImageControlImagePartLeft, HXImageControlImagePartCenter, HXImageControlImagePartRight},
      {HXImageControlImagePartLeftBottom, HXImageControlImagePartBottom,
       HXImageControlImagePartRightBottom}};
  CGFloat widths[3] = {}, heights[3] = {};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      const NSSize size = [_container imageSizeForImagePart:grid[row][column]];
      widths[column] = std::max(widths[column], size.width);
      heights[row] = std::max(heights[row], size.height);
    }
  }
  const CGFloat width = widths[0] + widths[1] + widths[2];
  const CGFloat height = heights[0] + heights[1] + heights[2];
  if (!(width > 0) || !(height > 0)) return;
  const NSSize room = NSMakeSize(NSWidth([self bounds]) - 2 * (kMargin + kGap),
                                 NSHeight([self bounds]) - 2 * (kMargin + kGap));
  const CGFloat fits = std::min(room.width / width, room.height / height);
  const CGFloat scale = fits >= 1 ? std::floor(fits) : std::max(fits, CGFloat(0.01));
  const CGFloat left = std::floor((NSWidth([self bounds]) - width * scale) / 2 - kGap);
  CGFloat y = std::floor((NSHeight([self bounds]) - height * scale) / 2 - kGap);
  for (int row = 0; row < 3; ++row) {
    CGFloat x = left;
    for (int column = 0; column < 3; ++column) {
      const HXImageControlImagePart part = grid[row][column];
      const NSSize size = [_container imageSizeForImagePart:part];
      const NSRect place = NSMakeRect(x, y, size.width * scale, size.height * scale);
      x += widths[column] * scale + kGap;
      if (NSIsEmptyRect(place)) continue;
      GalleryDrawCheckerboard(place);
      [_container drawImageInRect:place
                        isFlipped:YES
                        imagePart:part
                   imageVariation:HXImageControlImageVariationDefault];
    }
    y += heights[row] * scale + kGap;
  }
}

@end

@implementation ComposedFrameView

- (void)dealloc {
  [_container release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return !_upsideUp;
}

- (void)setContainer:(HXImageControlImageContainer *)container {
  [container retain];
  [_container release];
  _container = container;
  [self setNeedsDisplay:YES];
}

- (void)setComposedSize:(NSSize)size {
  _size = size;
  [self setNeedsDisplay:YES];
}

- (NSSize)composedSize {
  return _size;
}

- (void)setUpsideUp:(BOOL)flag {
  _upsideUp = flag;
  [self setNeedsDisplay:YES];
}

- (void)setResized:(std::function<void(NSSize)>)resized {
  _resized = std::move(resized);
}

// At the top left corner, wherever y grows to.
- (NSRect)frameRect {
  const CGFloat y = _upsideUp ? NSHeight([self bounds]) - kMargin - _size.height : kMargin;
  return NSMakeRect(kMargin, y, _size.width, _size.height);
}

- (NSRect)handle {
  const NSRect frame = [self frameRect];
  const CGFloat y = _upsideUp ? NSMinY(frame) - kHandle : NSMaxY(frame);
  return NSMakeRect(NSMaxX(frame), y, kHandle, kHandle);
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  drawPanel(self);
  GalleryDrawCheckerboard([self frameRect]);
  // The bottom of a picture is at the smaller y where y grows upward.
  [_container drawImageInRect:[self frameRect]
                    isFlipped:[self isFlipped]
               imageVariation:HXImageControlImageVariationDefault];
  [GalleryAccentColor() set];
  NSRectFill(NSInsetRect([self handle], 1, 1));
}

- (void)mouseDown:(NSEvent *)event {
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  _resizing = NSPointInRect(point, NSInsetRect([self handle], -4, -4));
}

- (void)mouseDragged:(NSEvent *)event {
  if (!_resizing) return;
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  const NSSize room = [self bounds].size;
  const CGFloat y = _upsideUp ? room.height - point.y : point.y;
  [self setComposedSize:NSMakeSize(std::clamp(std::round(point.x - kMargin), CGFloat(0),
                                              room.width - 2 * kMargin),
                                   std::clamp(std::round(y - kMargin), CGFloat(0),
                                              room.height - 2 * kMargin))];
  if (_resized) _resized(_size);
}

- (void)mouseUp:(NSEvent *)event {
  (void)event;
  _resizing = NO;
}

@end

@implementation TilesView

- (void)dealloc {
  [_tiles release];
  [_keys release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setImage:(NSImage *)image count:(NSUInteger)count {
  NSMutableArray *keys = [NSMutableArray array];
  for (NSUInteger i = 0; i < count; ++i) {
    [keys addObject:[NSString stringWithFormat:@"%d", static_cast<int>(i + 1)]];
  }
  [_tiles release];
  [_keys release];
  _tiles = [[HXDictionaryImageContainer alloc] initWithImage:image keyArray:keys];
  _keys = [keys copy];
  [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  drawPanel(self);
  const NSUInteger count = [_keys count];
  if (count == 0) return;
  const NSSize tile = [_tiles imageSizeForKey:[_keys objectAtIndex:0]];
  if (!(tile.width > 0) || !(tile.height > 0)) return;
  const NSSize room = [self bounds].size;
  const CGFloat fits =
      std::min((room.width - 2 * kMargin - kGap * (count - 1)) / (tile.width * count),
               (room.height - 2 * kMargin) / tile.height);
  const CGFloat scale = fits >= 1 ? std::floor(fits) : std::max(fits, CGFloat(0.01));
  const CGFloat width = tile.width * scale, height = tile.height * scale;
  CGFloat x = std::floor((room.width - width * count - kGap * (count - 1)) / 2);
  for (NSString *key in _keys) {
    const NSRect place = NSMakeRect(x, std::floor((room.height - height) / 2), width, height);
    GalleryDrawCheckerboard(place);
    [_tiles drawImageInRect:place isFlipped:YES forKey:key];
    x += width + kGap;
  }
}

@end
