#import "support/DelegateSubscription.h"

namespace ov {

void unsubscribeDelegate(id delegate, id component, std::span<const DelegateEvent> events) {
  // To the notification center, no observer means every observer.
  if (delegate == nil) return;
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (const DelegateEvent &event : events) {
    [center removeObserver:delegate name:*event.name object:component];
  }
}

void subscribeDelegate(id delegate, id component, std::span<const DelegateEvent> events) {
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (const DelegateEvent &event : events) {
    SEL selector = sel_registerName(event.selector);
    if (![delegate respondsToSelector:selector]) continue;
    [center addObserver:delegate selector:selector name:*event.name object:component];
  }
}

}  // namespace ov
