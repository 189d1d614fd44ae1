#import <OvAppKit/NSGraphicsContext+OvAppKit.h>

#include "extensions/PixelAlignment.h"
#import "platform/DeviceSpace.h"
#include "support/GeometryBridge.h"

@implementation NSGraphicsContext (HXAppKitExtensions)

- (NSPoint)alignPoint:(NSPoint)point {
  return ov::toNS(ov::alignPoint(ov::fromNS(point), ov::deviceTransform(self)));
}

- (NSSize)alignSize:(NSSize)size {
  return ov::toNS(ov::alignSize(ov::fromNS(size), ov::deviceTransform(self)));
}

- (NSRect)alignRect:(NSRect)rect {
  return ov::toNS(ov::alignRect(ov::fromNS(rect), ov::deviceTransform(self)));
}

@end
