#include "platform/ShadowedLine.h"

#include "support/GraphicsGuards.h"

void OvStrokeShadowedLine(NSPoint from, NSPoint to, CGFloat width, NSColor *color, NSShadow *shadow,
                          BOOL flipped) {
  if (shadow != nil) {
    const NSSize offset = [shadow shadowOffset];
    const CGFloat dx = offset.width;
    const CGFloat dy = flipped ? -offset.height : offset.height;
    NSColor *shadowColor =
        [[shadow shadowColor] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    for (int layer = 3; layer >= 1; --layer) {
      ov::DefaultLineWidthScope lineWidth(width + [shadow shadowBlurRadius] * layer * 0.5);
      [[shadowColor colorWithAlphaComponent:[shadowColor alphaComponent] / (layer + 1)] set];
      [NSBezierPath strokeLineFromPoint:NSMakePoint(from.x + dx, from.y + dy)
                                toPoint:NSMakePoint(to.x + dx, to.y + dy)];
    }
  }
  [color set];
  [NSBezierPath strokeLineFromPoint:from toPoint:to];
}
