#import <OvAppKit/NSBitmapImageRep+OvAppKit.h>
#import <OvAppKit/NSView+OvAppKit.h>

#include <algorithm>
#include <cmath>

#include "support/Retained.h"

namespace {

// What the view shows in the square of one point above and to the right of the point, rounded
// down; nothing where it shows nothing.
ov::Retained<NSBitmapImageRep *> captured(NSView *view, NSPoint point) {
  ov::Retained<NSBitmapImageRep *> none;
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return none;
  // Focus cannot be locked without a window, and outside the visible part there is no pixel.
  if (![view canDraw]) return none;
  NSRect square = NSMakeRect(std::floor(point.x), std::floor(point.y), 1, 1);
  if (NSIsEmptyRect(NSIntersectionRect(square, [view visibleRect]))) return none;
  // Where points are smaller than pixels, one pixel; of less the platform makes no bitmap.
  const NSSize pixel = [view convertSize:NSMakeSize(1, 1) fromView:nil];
  square.size.width = std::max(square.size.width, std::abs(pixel.width));
  square.size.height = std::max(square.size.height, std::abs(pixel.height));
  [view lockFocus];
  auto bitmap = ov::adopt([[NSBitmapImageRep alloc] initWithFocusedViewRect:square]);
  [view unlockFocus];
  return bitmap;
}

}  // namespace

@implementation NSView (HXAppKitExtensions)

- (void)removeAllSubviews {
  // A list of its own, which keeps views that another one takes along.
  NSArray *views = [NSArray arrayWithArray:[self subviews]];
  for (NSView *view in views) [view removeFromSuperview];
}

- (void)removeAllSubviewsWithoutNeedingDisplay {
  NSArray *views = [NSArray arrayWithArray:[self subviews]];
  for (NSView *view in views) [view removeFromSuperviewWithoutNeedingDisplay];
}

- (void)removeSubviewsKindOfClass:(Class)aClass {
  NSArray *views = [NSArray arrayWithArray:[self subviews]];
  for (NSView *view in views) {
    if ([view isKindOfClass:aClass]) [view removeFromSuperview];
  }
}

- (NSColor *)colorAtPoint:(NSPoint)point {
  return HXGetColorFromBitmapImageRep(captured(self, point).get(), 0, 0);
}

- (void)getRed:(uint32_t *)red
         green:(uint32_t *)green
          blue:(uint32_t *)blue
         alpha:(uint32_t *)alpha
       atPoint:(NSPoint)point {
  // Room for more samples than red, green, blue and alpha, should a display have them.
  uint32_t samples[8] = {0};
  const auto bitmap = captured(self, point);
  if ([bitmap.get() samplesPerPixel] <= 8) {
    HXGetPixelFromBitmapImageRep(bitmap.get(), samples, 0, 0);
  }
  uint32_t *const targets[] = {red, green, blue, alpha};
  for (size_t i = 0; i < 4; i++) {
    if (targets[i] != NULL) *targets[i] = samples[i];
  }
}

@end
