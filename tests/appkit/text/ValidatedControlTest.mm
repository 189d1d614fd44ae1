#import "ValidatedControlTest.h"

#include <algorithm>

@implementation OvTestFieldDelegate

- (BOOL)respondsToSelector:(SEL)selector {
  return methods.contains(sel_getName(selector)) || [super respondsToSelector:selector];
}

- (NSMethodSignature *)methodSignatureForSelector:(SEL)selector {
  if (!methods.contains(sel_getName(selector))) return [super methodSignatureForSelector:selector];
  const std::string name = sel_getName(selector);
  std::string types = name.find("Should") != std::string::npos ? "C@:" : "v@:";
  types.append(std::count(name.begin(), name.end(), ':'), '@');
  return [NSMethodSignature signatureWithObjCTypes:types.c_str()];
}

- (void)forwardInvocation:(NSInvocation *)invocation {
  heard.push_back(sel_getName([invocation selector]));
  if ([[invocation methodSignature] methodReturnLength] > 0) [invocation setReturnValue:&answer];
  if (removesControl) {
    NSNotification *notification = nil;
    [invocation getArgument:&notification atIndex:2];
    [[notification object] removeFromSuperview];
  }
}

@end

@implementation OvTestFieldObserver

- (void)note:(NSNotification *)notification {
  const std::string name = [[notification name] UTF8String];
  heard.push_back(name.substr(prefix, name.size() - prefix - strlen("Notification")));
  if ([notification userInfo] != nil) withUserInfo = YES;
}

@end
