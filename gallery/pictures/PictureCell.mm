#import "pictures/PictureCell.h"

#import "pictures/PictureItem.h"
#import "pictures/ThumbnailCache.h"
#import "shell/GalleryStyle.h"

static const CGFloat kSide = 14;  // between the cell's edge and the box
static const CGFloat kTop = 12;
static const CGFloat kNameGap = 7;  // between the box and the name
static const CGFloat kNameHeight = 18;
static const CGFloat kBottom = 7;
static const CGFloat kPrintBorder = 4;  // the white edge of the print
static const int kThumbnailStep = 24;   // thumbnails are made for every so many points

@implementation PictureCell

+ (NSSize)boxForWidth:(CGFloat)width {
  const CGFloat inner = MAX(16, width - 2 * kSide);
  return NSMakeSize(inner, floor(inner * 0.75));
}

+ (NSSize)cellSizeForWidth:(CGFloat)width {
  return NSMakeSize(width,
                    kTop + [self boxForWidth:width].height + kNameGap + kNameHeight + kBottom);
}

// Rounded up, so that a slider does not have every picture read again at every point.
+ (NSSize)thumbnailBoxForWidth:(CGFloat)width {
  const NSSize box = [self boxForWidth:width];
  const CGFloat inner = box.width - 2 * kPrintBorder;
  const CGFloat step = ceil(inner / kThumbnailStep) * kThumbnailStep;
  return NSMakeSize(step, ceil(step * 0.75));
}

- (id)initWithCache:(ThumbnailCache *)cache {
  self = [super initTextCell:@""];
  if (!self) return nil;
  _cache = [cache retain];
  [self setEditable:YES];
  [self setFont:GalleryFont(11)];
  [self setAlignment:NSCenterTextAlignment];
  return self;
}

- (id)copyWithZone:(NSZone *)zone {
  PictureCell *copy = [super copyWithZone:zone];
  [copy->_cache retain];
  return copy;
}

- (void)dealloc {
  [_cache release];
  [super dealloc];
}

- (void)setMouseOrvered:(BOOL)flag {
  _hovered = flag;
}

- (void)setProposedDragOperation:(NSDragOperation)operation {
  _dropOperation = operation;
}

- (PictureItem *)item {
  id value = [self objectValue];
  return [value isKindOfClass:[PictureItem class]] ? value : nil;
}

#pragma mark Drawing

static NSRect nameRect(NSRect frame) {
  return NSMakeRect(NSMinX(frame) + 6, NSMaxY(frame) - kBottom - kNameHeight, NSWidth(frame) - 12,
                    kNameHeight);
}

static NSRect boxRect(NSRect frame) {
  const NSSize box = [PictureCell boxForWidth:NSWidth(frame)];
  return NSMakeRect(NSMinX(frame) + kSide, NSMinY(frame) + kTop, box.width, box.height);
}

// A shadow that fades out below and beside a print.
static void drawSoftShadow(NSRect print) {
  for (int k = 3; k >= 1; --k) {
    [GalleryColor(0x1F2633, 0.05) set];
    [GalleryRoundedPath(NSOffsetRect(NSInsetRect(print, -k, -k), 0, 1), k + 1) fill];
  }
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView *)view {
  PictureItem *item = [self item];
  if (!item) return;
  [self drawBackgroundInFrame:frame];
  NSImage *image = [_cache imageForItem:item];
  if (image) {
    [self drawPrint:image inBox:boxRect(frame)];
  } else if ([_cache problemOfItem:item]) {
    [self drawBrokenPictureInBox:boxRect(frame)];
  } else {
    [GalleryColor(0xEEF1F5) set];
    [GalleryRoundedPath(NSInsetRect(boxRect(frame), 4, 4), 3) fill];
  }
  [self drawName:item inFrame:frame];
  (void)view;
}

- (void)drawBackgroundInFrame:(NSRect)frame {
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect(frame, 1.5, 1.5), 7);
  if ([self isHighlighted]) {
    [GalleryColor(0x2F6FDE, 0.13) set];
    [path fill];
  } else if (_hovered) {
    [GalleryColor(0x1F2633, 0.05) set];
    [path fill];
  }
  if (_dropOperation != NSDragOperationNone) {
    [GalleryAccentColor() set];
    [path setLineWidth:2.5];
    [path stroke];
  }
}

- (void)drawPrint:(NSImage *)image inBox:(NSRect)box {
  const NSRect inner = NSInsetRect(box, kPrintBorder, kPrintBorder);
  const NSSize size = [image size];
  CGFloat scale = MIN(NSWidth(inner) / size.width, NSHeight(inner) / size.height);
  // A small picture keeps its size; the thumbnail of another cell size is scaled meanwhile.
  const NSSize natural = [_cache pixelSizeOfItem:[self item]];
  if (natural.width > 0)
    scale = MIN(scale, MAX(natural.width, natural.height) / MAX(size.width, size.height));
  const CGFloat width = MAX(1, round(size.width * scale));
  const CGFloat height = MAX(1, round(size.height * scale));
  const NSRect picture = NSMakeRect(floor(NSMidX(inner) - width / 2),
                                    floor(NSMidY(inner) - height / 2), width, height);
  const NSRect print = NSInsetRect(picture, -kPrintBorder, -kPrintBorder);
  drawSoftShadow(print);
  [[NSColor whiteColor] set];
  NSRectFill(print);
  [image drawInRect:picture
            fromRect:NSZeroRect
           operation:NSCompositeSourceOver
            fraction:1
      respectFlipped:YES
               hints:nil];
}

// A grey sheet with a dog-ear and a crack, drawn in a flipped view.
- (void)drawBrokenPictureInBox:(NSRect)box {
  const CGFloat height = floor(MIN(NSHeight(box) * 0.7, 72)), width = floor(height * 0.8);
  const CGFloat x = floor(NSMidX(box) - width / 2) + 0.5, y = floor(NSMidY(box) - height / 2) + 0.5;
  const CGFloat ear = floor(width * 0.28);
  NSBezierPath *sheet = [NSBezierPath bezierPath];
  [sheet moveToPoint:NSMakePoint(x, y)];
  [sheet lineToPoint:NSMakePoint(x + width - ear, y)];
  [sheet lineToPoint:NSMakePoint(x + width, y + ear)];
  [sheet lineToPoint:NSMakePoint(x + width, y + height)];
  [sheet lineToPoint:NSMakePoint(x, y + height)];
  [sheet closePath];
  [GalleryColor(0xF2F4F7) set];
  [sheet fill];
  [GalleryColor(0xA8B1C0) set];
  [sheet setLineWidth:1];
  [sheet stroke];

  NSBezierPath *crack = [NSBezierPath bezierPath];
  [crack moveToPoint:NSMakePoint(x, y + height * 0.62)];
  [crack lineToPoint:NSMakePoint(x + width * 0.28, y + height * 0.48)];
  [crack lineToPoint:NSMakePoint(x + width * 0.46, y + height * 0.66)];
  [crack lineToPoint:NSMakePoint(x + width * 0.72, y + height * 0.44)];
  [crack lineToPoint:NSMakePoint(x + width, y + height * 0.58)];
  [GalleryColor(0xC4554D) set];
  [crack setLineWidth:1.5];
  [crack setLineJoinStyle:NSRoundLineJoinStyle];
  [crack stroke];
}

- (void)drawName:(PictureItem *)item inFrame:(NSRect)frame {
  const NSRect rect = nameRect(frame);
  NSString *name = [item nameForWidth:NSWidth(rect) - 12 font:[self font]];
  NSColor *color = GalleryTextColor();
  if ([self isHighlighted]) {
    const CGFloat width =
        ceil([name sizeWithAttributes:@{NSFontAttributeName : [self font]}].width) + 12;
    [GalleryAccentColor() set];
    [GalleryRoundedPath(
        NSMakeRect(floor(NSMidX(rect) - width / 2), NSMinY(rect), width, NSHeight(rect)),
        NSHeight(rect) / 2) fill];
    color = [NSColor whiteColor];
  }
  GalleryDrawText(name, rect, [self font], color, NSCenterTextAlignment);
}

#pragma mark Editing

- (NSText *)setUpFieldEditorAttributes:(NSText *)text {
  NSText *editor = [super setUpFieldEditorAttributes:text];
  [editor setDrawsBackground:YES];
  [editor setBackgroundColor:[NSColor whiteColor]];
  [editor setFont:[self font]];
  [editor setAlignment:NSCenterTextAlignment];
  return editor;
}

// Only the stem is edited: the extension says what the file is, and stays.
- (void)editWithFrame:(NSRect)frame
               inView:(NSView *)view
               editor:(NSText *)editor
             delegate:(id)delegate
                event:(NSEvent *)event {
  PictureItem *item = [self item];
  if (item) [self setStringValue:[item stem]];
  [super editWithFrame:NSInsetRect(nameRect(frame), 0, -1)
                inView:view
                editor:editor
              delegate:delegate
                 event:event];
}

@end
