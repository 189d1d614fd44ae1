#import <OvAppKit/NSColor+OvAppKit.h>

static NSColor *Calibrated(CGFloat red, CGFloat green, CGFloat blue) {
  return [NSColor colorWithCalibratedRed:red green:green blue:blue alpha:1];
}

@implementation NSColor (OrvaneColor)

+ (NSColor *)orvaneSelectedColor {
  return Calibrated(0.96, 0.89, 0.22);
}

+ (NSColor *)orvaneReferenceColor {
  return Calibrated(0.25, 0.25, 0.39);
}

+ (NSColor *)orvaneFrameColor {
  return Calibrated(0.86, 0.86, 0.86);
}

+ (NSColor *)orvaneBackgroundColor {
  return Calibrated(0.5, 0.5, 0.5);
}

@end
