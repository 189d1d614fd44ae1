#import <OvAppKit/NSFont+OvAppKit.h>

#import "support/SystemFont.h"

@implementation NSFont (QEBasicExtensions)

+ (NSFont *)regularSystemFont {
  return ov::systemFont(NSRegularControlSize);
}

+ (NSFont *)smallSystemFont {
  return ov::systemFont(NSSmallControlSize);
}

+ (NSFont *)miniSystemFont {
  return ov::systemFont(NSMiniControlSize);
}

@end
