#import "windows/ColorSample.h"

#import <OvAppKit/OvAppKit.h>

#include <algorithm>

#import "shell/GalleryPage.h"
#import "shell/GalleryStyle.h"

static const CGFloat kReadingHeight = 50;
static const unsigned kPatches[] = {0xD64545, 0xE3A008, 0x3F9142, 0x2F6FDE, 0x7C4DBE, 0x1F2633};
static const int kPatchCount = 6;

// Tells its owner where the pointer is.
@interface SampleView : NSView {
 @public
  ColorSample *_owner;
}
- (NSRect)patchRect:(int)index;
@end

@interface ColorSample ()
- (void)pointerIsAt:(NSPoint)point;
@end

@implementation SampleView

- (BOOL)isOpaque {
  return YES;
}

- (NSRect)patchRect:(int)index {
  const NSRect bounds = [self bounds];
  const CGFloat left = floor(NSWidth(bounds) * index / kPatchCount);
  const CGFloat right = floor(NSWidth(bounds) * (index + 1) / kPatchCount);
  const CGFloat bottom = floor(NSHeight(bounds) / 2);
  return NSMakeRect(left, bottom, right - left, NSHeight(bounds) - bottom);
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  for (int i = 0; i < kPatchCount; ++i) {
    [GalleryColor(kPatches[i]) set];
    NSRectFill([self patchRect:i]);
  }
  const NSRect bounds = [self bounds];
  const CGFloat rows = floor(NSHeight(bounds) / 2);
  for (CGFloat x = 0; x < NSWidth(bounds); x += 2) {
    for (CGFloat y = 0; y < rows; y += 2) {
      [[NSColor colorWithCalibratedHue:x / NSWidth(bounds)
                            saturation:0.15 + 0.85 * y / rows
                            brightness:0.96
                                 alpha:1] set];
      NSRectFill(NSMakeRect(x, y, 2, std::min<CGFloat>(2, rows - y)));
    }
  }
}

- (void)mouseMoved:(NSEvent *)event {
  [_owner pointerIsAt:[self convertPoint:[event locationInWindow] fromView:nil]];
}

@end

@implementation ColorSample

- (id)initWithChange:(std::function<void()>)changed {
  self = [super initWithFrame:NSZeroRect];
  if (!self) return nil;
  _changed = std::move(changed);
  _sample = [[[SampleView alloc] initWithFrame:NSZeroRect] autorelease];
  _sample->_owner = self;
  [self addSubview:_sample];
  return self;
}

- (void)dealloc {
  _sample->_owner = nil;
  [_color release];
  [super dealloc];
}

- (BOOL)isFlipped {
  return YES;
}

- (void)viewDidMoveToWindow {
  [[self window] setAcceptsMouseMovedEvents:YES];
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize {
  (void)oldSize;
  const NSSize size = [self bounds].size;
  [_sample
      setFrame:NSMakeRect(0, 0, size.width, std::max<CGFloat>(0, size.height - kReadingHeight))];
}

- (void)pointerIsAt:(NSPoint)point {
  if (!NSPointInRect(point, [_sample bounds])) return;
  [_color release];
  _color =
      [[[_sample colorAtPoint:point] colorUsingColorSpaceName:NSCalibratedRGBColorSpace] retain];
  [_sample getRed:&_pixel[0] green:&_pixel[1] blue:&_pixel[2] alpha:&_pixel[3] atPoint:point];
  [self setNeedsDisplay:YES];
  _changed();
}

static int byteOf(CGFloat component) { return static_cast<int>(lround(component * 255)); }

- (NSString *)hex {
  return
      [NSString stringWithFormat:@"%02X%02X%02X", byteOf([_color redComponent]),
                                 byteOf([_color greenComponent]), byteOf([_color blueComponent])];
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  const NSRect bounds = [self bounds];
  const CGFloat y = NSMaxY(bounds) - kReadingHeight + 10;
  const NSRect swatch = NSMakeRect(0, y, 40, 40);
  NSBezierPath *path = GalleryRoundedPath(NSInsetRect(swatch, 0.5, 0.5), 5);
  [_color ?: GalleryWindowColor() set];
  [path fill];
  [GalleryColor(0xB6BECB) set];
  [path stroke];
  NSRect line = NSMakeRect(52, y, NSWidth(bounds) - 52, 20);
  if (!_color) {
    line.size.height = 40;
    GalleryDrawText(@"Move the pointer over the colours", line, GalleryFont(12),
                    GalleryQuietTextColor(), NSLeftTextAlignment);
    return;
  }
  GalleryDrawText([@"#" stringByAppendingString:[self hex]], line, GalleryBoldFont(13),
                  GalleryTextColor(), NSLeftTextAlignment);
  line.origin.y += 20;
  NSString *samples = [NSString stringWithFormat:@"red %u   green %u   blue %u   alpha %u",
                                                 _pixel[0], _pixel[1], _pixel[2], _pixel[3]];
  GalleryDrawText(samples, line, GalleryFont(11), GalleryQuietTextColor(), NSLeftTextAlignment);
}

- (NSArray *)statusLines {
  NSMutableArray *lines = [NSMutableArray array];
  if (_color) {
    [lines addObject:[@"color=" stringByAppendingString:[self hex]]];
    [lines addObject:[NSString stringWithFormat:@"pixel=%u %u %u %u", _pixel[0], _pixel[1],
                                                _pixel[2], _pixel[3]]];
  }
  for (int i = 0; i < kPatchCount; ++i) {
    [lines addObject:GalleryStatusLine([NSString stringWithFormat:@"rect.patch%d", i], _sample,
                                       [_sample patchRect:i],
                                       [NSString stringWithFormat:@"%06X", kPatches[i]])];
  }
  return lines;
}

@end
