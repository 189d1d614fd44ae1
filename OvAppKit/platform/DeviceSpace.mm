#import "platform/DeviceSpace.h"

namespace ov {

Affine deviceTransform(NSGraphicsContext *context) {
  NSAffineTransform *transform = nil;
  @try {
    transform = [context GSCurrentCTM];
  } @catch (NSException *) {
  }
  if (transform == nil) return {};
  const NSAffineTransformStruct m = [transform transformStruct];
  return {m.m11, m.m12, m.m21, m.m22, m.tX, m.tY};
}

}  // namespace ov
