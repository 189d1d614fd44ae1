#import "scrolling/SampleScrollers.h"

@interface ScrollerWithArrows1 : HXScroller
@end
@interface ScrollerWithArrows2 : HXScroller
@end
@interface ScrollerWithArrows3 : HXScroller
@end
@interface ScrollerWithArrows4 : HXScroller
@end

@implementation ScrollerWithArrows1
+ (int)_arrowsConfig {
  return 1;
}
@end

@implementation ScrollerWithArrows2
+ (int)_arrowsConfig {
  return 2;
}
@end

@implementation ScrollerWithArrows3
+ (int)_arrowsConfig {
  return 3;
}
@end

@implementation ScrollerWithArrows4
+ (int)_arrowsConfig {
  return 4;
}
@end

Class GalleryScrollerClass(int configuration) {
  switch (configuration) {
    case 1:
      return [ScrollerWithArrows1 class];
    case 2:
      return [ScrollerWithArrows2 class];
    case 3:
      return [ScrollerWithArrows3 class];
    default:
      return [ScrollerWithArrows4 class];
  }
}
