#import "panes/Swatches.h"

#import "shell/GalleryStyle.h"

static const struct {
  unsigned color;
  NSString *name;
} kSwatches[] = {{0x2F6FDE, @"Blue"}, {0x1F9D6B, @"Green"},  {0xD97A1E, @"Orange"},
                 {0xC2364F, @"Red"},  {0x7A4BC2, @"Violet"}, {0x4A5568, @"Slate"}};
static const NSInteger kCount = sizeof kSwatches / sizeof kSwatches[0];

NSColor *SwatchColor(NSInteger index) { return GalleryColor(kSwatches[index].color); }
NSString *SwatchName(NSInteger index) { return kSwatches[index].name; }

@implementation Swatches

- (id)initWithFrame:(NSRect)frame changed:(std::function<void(NSInteger)>)changed {
  self = [super initWithFrame:frame];
  if (self) _changed = std::move(changed);
  return self;
}

- (NSRect)rectOfSwatch:(NSInteger)index {
  return NSMakeRect(index * 34, floor((NSHeight([self bounds]) - 26) / 2), 26, 26);
}

- (void)drawRect:(NSRect)rect {
  (void)rect;
  for (NSInteger i = 0; i < kCount; ++i) {
    [SwatchColor(i) set];
    [[NSBezierPath bezierPathWithOvalInRect:NSInsetRect([self rectOfSwatch:i], 4, 4)] fill];
    if (i != _chosen) continue;
    NSBezierPath *ring =
        [NSBezierPath bezierPathWithOvalInRect:NSInsetRect([self rectOfSwatch:i], 1, 1)];
    [ring setLineWidth:1.5];
    [ring stroke];
  }
}

- (void)mouseDown:(NSEvent *)event {
  const NSPoint point = [self convertPoint:[event locationInWindow] fromView:nil];
  for (NSInteger i = 0; i < kCount; ++i) {
    if (!NSPointInRect(point, [self rectOfSwatch:i])) continue;
    _chosen = i;
    [self setNeedsDisplay:YES];
    _changed(i);
  }
}

@end
