// Shows the last key that it got, and whether its delegate let it be processed.
#import <OvAppKit/OvAppKit.h>

#include <functional>

@interface KeyView : NSView {
  HXKeyEventIntercepter *_intercepter;
  std::function<void()> _changed;
  NSString *_lastKey;
  BOOL _processed;
  int _count;
}
- (id)initWithChange:(std::function<void()>)changed;
- (HXKeyEventIntercepter *)intercepter;
// The key's name; empty before the first one.
- (NSString *)lastKey;
- (BOOL)lastWasProcessed;
// Of all keys so far.
- (int)count;
@end
