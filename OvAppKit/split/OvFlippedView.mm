#import <OvAppKit/OvFlippedView.h>

@implementation OvFlippedView

- (BOOL)isFlipped {
  return YES;
}

@end
