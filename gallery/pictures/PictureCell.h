// Draws one picture of the grid: its thumbnail as a small print, its name below, and
// whether it is selected, hovered over, or about to receive a drop.
//
//   +------------------+
//   |    +--------+    |
//   |    | print  |    |   the box is four wide and three high
//   |    +--------+    |
//   |   IMG_1…23.jpg   |
//   +------------------+
#import <AppKit/AppKit.h>

@class ThumbnailCache;

@interface PictureCell : NSTextFieldCell {
  ThumbnailCache *_cache;
  BOOL _hovered;
  NSDragOperation _dropOperation;
}

// The cache is retained.
- (id)initWithCache:(ThumbnailCache *)cache;

// The cell's size for a width, and the box that thumbnails are fitted into.
+ (NSSize)cellSizeForWidth:(CGFloat)width;
+ (NSSize)thumbnailBoxForWidth:(CGFloat)width;

// Asked of the cell by the grid before it draws each item. (The names are the grid's.)
- (void)setMouseOrvered:(BOOL)flag;
- (void)setProposedDragOperation:(NSDragOperation)operation;

@end
