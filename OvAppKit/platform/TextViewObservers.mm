#import "platform/TextViewObservers.h"

namespace ov {

void restoreTextViewObservers(NSTextView *view) {
  struct Observation {
    NSString *name;
    const char *selector;
  };
  const Observation observations[] = {
      {NSViewFrameDidChangeNotification, "_updateState:"},
      {NSTextDidChangeNotification, "_textDidChange:"},
  };
  NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
  for (const Observation &observation : observations) {
    const SEL selector = sel_registerName(observation.selector);
    if (![view respondsToSelector:selector]) continue;
    [center addObserver:view selector:selector name:observation.name object:view];
  }
}

}  // namespace ov
