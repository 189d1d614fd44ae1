#import "slicing/CapsView.h"

#import <OvAppKit/OvAppKit.h>

#include <algorithm>
#include <cmath>

#import "shell/GalleryStyle.h"
#import "slicing/Checkerboard.h"

static const CGFloat kMargin = 14;
static const CGFloat kReach = 5;

// The lines, each cap's first.
enum Line { kNoLine, kLeftLine, kRightLine, kTopLine, kBottomLine };

@implementation CapsView

- (id)initWithFrame:(NSRect)frame {
  self = [super initWithFrame:frame];
  if (self) [self registerForDraggedTypes:@[ NSFilenamesPboardType ]];
  return self;
}

- (void)dealloc {
  [_image release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)setImage:(NSImage *)image leftCap:(CGFloat)leftCap topCap:(CGFloat)topCap {
  [image retain];
  [_image release];
  _image = image;
  _leftCap = leftCap;
  _topCap = topCap;
  [self setNeedsDisplay:YES];
  [[self window] invalidateCursorRectsForView:self];
}

- (void)setCapsMoved:(std::function<void(CGFloat, CGFloat)>)moved {
  _capsMoved = std::move(moved);
}

- (void)setFileDropped:(std::function<void(NSString *)>)dropped {
  _fileDropped = std::move(dropped);
}

#pragma mark Geometry

// Whole pixels for each of the picture's, unless it is larger than the view.
- (CGFloat)magnification {
  const NSSize size = [_image size], room = [self bounds].size;
  if (!(size.width > 0) || !(size.height > 0)) return 1;
  const CGFloat fits =
      std::min((room.width - 2 * kMargin) / size.width, (room.height - 2 * kMargin) / size.height);
  return fits >= 1 ? std::floor(fits) : std::max(fits, CGFloat(0.01));
}

- (NSRect)pictureRect {
  const CGFloat scale = [self magnification];
  const NSSize size =
      NSMakeSize(std::floor([_image size].width * scale), std::floor([_image size].height * scale));
  const NSSize room = [self bounds].size;
  return NSMakeRect(std::floor((room.width - size.width) / 2),
                    std::floor((room.height - size.height) / 2), size.width, size.height);
}

- (NSRect)lineRect:(int)line {
  const NSRect picture = [self pictureRect];
  const CGFloat scale = [self magnification];
  const CGFloat x =
      line == kRightLine ? NSMaxX(picture) - _leftCap * scale : NSMinX(picture) + _leftCap * scale;
  const CGFloat y =
      line == kBottomLine ? NSMaxY(picture) - _topCap * scale : NSMinY(picture) + _topCap * scale;
  if (line == kLeftLine || line == kRightLine) {
    return NSMakeRect(std::floor(x), NSMinY(picture) - 6, 1, NSHeight(picture) + 12);
  }
  return NSMakeRect(NSMinX(picture) - 6, std::floor(y), NSWidth(picture) + 12, 1);
}

- (NSRect)leftCapHandle {
  return NSInsetRect([self lineRect:kLeftLine], -kReach, 0);
}

- (NSRect)topCapHandle {
  return NSInsetRect([self lineRect:kTopLine], 0, -kReach);
}

- (int)lineAt:(NSPoint)point {
  for (int line : {kLeftLine, kTopLine, kRightLine, kBottomLine}) {
    if (NSPointInRect(point, NSInsetRect([self lineRect:line], -kReach, -kReach))) return line;
  }
  return kNoLine;
}

#pragma mark Drawing

- (void)drawRect:(NSRect)rect {
  (void)rect;
  [GalleryPanelColor() set];
  NSRectFill([self bounds]);
  [(_dropping ? GalleryAccentColor() : GalleryLineColor()) set];
  NSFrameRectWithWidth([self bounds], _dropping ? 2 : 1);
  if (_image == nil) {
    GalleryDrawText(@"Drop a picture here", [self bounds], GalleryFont(13), GalleryQuietTextColor(),
                    NSCenterTextAlignment);
    return;
  }
  const NSRect picture = [self pictureRect];
  GalleryDrawCheckerboard(picture);
  [_image drawInRect:picture atPosition:0 scaled:NO operation:NSCompositeSourceOver fraction:1];
  [GalleryAccentColor() set];
  if (_leftCap > 0) {
    NSRectFill([self lineRect:kLeftLine]);
    NSRectFill([self lineRect:kRightLine]);
  }
  if (_topCap > 0) {
    NSRectFill([self lineRect:kTopLine]);
    NSRectFill([self lineRect:kBottomLine]);
  }
}

- (void)resetCursorRects {
  [self addCursorRect:[self leftCapHandle] cursor:[NSCursor resizeLeftRightCursor]];
  [self addCursorRect:[self topCapHandle] cursor:[NSCursor resizeUpDownCursor]];
}

#pragma mark Dragging the lines

- (void)mouseDown:(NSEvent *)event {
  _dragged = [self lineAt:[self convertPoint:[event locationInWindow] fromView:nil]];
}

- (void)mouseDragged:(NSEvent *)event {
  if (_dragged == kNoLine || !_capsMoved) return;
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  const NSRect picture = [self pictureRect];
  const CGFloat scale = [self magnification];
  const NSSize size = [_image size];
  CGFloat left = _leftCap, top = _topCap;
  if (_dragged == kLeftLine) left = (point.x - NSMinX(picture)) / scale;
  if (_dragged == kRightLine) left = (NSMaxX(picture) - point.x) / scale;
  if (_dragged == kTopLine) top = (point.y - NSMinY(picture)) / scale;
  if (_dragged == kBottomLine) top = (NSMaxY(picture) - point.y) / scale;
  _capsMoved(std::clamp(std::round(left), CGFloat(0), std::floor(size.width / 2)),
             std::clamp(std::round(top), CGFloat(0), std::floor(size.height / 2)));
}

- (void)mouseUp:(NSEvent *)event {
  (void)event;
  _dragged = kNoLine;
}

#pragma mark Dropping a file

- (void)showDropping:(BOOL)dropping {
  _dropping = dropping;
  [self setNeedsDisplay:YES];
}

- (NSDragOperation)draggingEntered:(id<NSDraggingInfo>)info {
  if (![[[info draggingPasteboard] types] containsObject:NSFilenamesPboardType]) {
    return NSDragOperationNone;
  }
  [self showDropping:YES];
  return NSDragOperationCopy;
}

- (void)draggingExited:(id<NSDraggingInfo>)info {
  (void)info;
  [self showDropping:NO];
}

- (BOOL)performDragOperation:(id<NSDraggingInfo>)info {
  [self showDropping:NO];
  id paths = [[info draggingPasteboard] propertyListForType:NSFilenamesPboardType];
  if (![paths isKindOfClass:[NSArray class]] || [paths count] == 0 || !_fileDropped) return NO;
  _fileDropped([paths objectAtIndex:0]);
  return YES;
}

@end
