#import <OvAppKit/NSDrawer+OvAppKit.h>

#include <algorithm>

@implementation NSDrawer (QEAlphaExtensions)

- (void)setAlphaValue:(CGFloat)alpha {
  if (alpha != alpha) return;
  NSWindow *window = nil;
  @try {
    // The drawer keeps it to itself.
    window = [self valueForKey:@"drawerWindow"];
  } @catch (NSException *) {
  }
  [window setAlphaValue:std::clamp<CGFloat>(alpha, 0, 1)];
}

@end
