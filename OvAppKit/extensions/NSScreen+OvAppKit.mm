#import <OvAppKit/NSScreen+OvAppKit.h>

namespace {

constexpr CGFloat kMenuBarHeight = 22;

}  // namespace

@implementation NSScreen (HXAppKitExtensions)

- (NSRect)frameByExcludingMenuBar {
  NSRect frame = [self frame];
  if ([self isEqualTo:[NSScreen mainScreen]] && [NSMenu menuBarVisible]) {
    frame.size.height -= kMenuBarHeight;
  }
  return frame;
}

@end
