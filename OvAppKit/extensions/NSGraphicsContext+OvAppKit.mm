#import <OvAppKit/NSGraphicsContext+OvAppKit.h>

#include "extensions/PixelAlignment.h"
#include "support/GeometryBridge.h"

namespace {

// The platform has no graphics port that converts; the context knows its transformation.
// Without one (nothing is drawn to, or only to a printer's stream), user space is the device.
ov::Affine toDevice(NSGraphicsContext *context) {
  NSAffineTransform *transform = nil;
  @try {
    transform = [context GSCurrentCTM];
  } @catch (NSException *) {
  }
  if (transform == nil) return {};
  const NSAffineTransformStruct m = [transform transformStruct];
  return {m.m11, m.m12, m.m21, m.m22, m.tX, m.tY};
}

}  // namespace

@implementation NSGraphicsContext (HXAppKitExtensions)

- (NSPoint)alignPoint:(NSPoint)point {
  return ov::toNS(ov::alignPoint(ov::fromNS(point), toDevice(self)));
}

- (NSSize)alignSize:(NSSize)size {
  return ov::toNS(ov::alignSize(ov::fromNS(size), toDevice(self)));
}

- (NSRect)alignRect:(NSRect)rect {
  return ov::toNS(ov::alignRect(ov::fromNS(rect), toDevice(self)));
}

@end
