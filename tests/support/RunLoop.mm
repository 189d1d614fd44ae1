#import "RunLoop.h"

namespace {

void deliverOneEvent(NSDate *until) {
  @autoreleasepool {
    NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                        untilDate:until
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES];
    if (event) [NSApp sendEvent:event];
    [NSApp updateWindows];
  }
}

}  // namespace

@interface OvTestStepper : NSObject {
 @public
  const std::vector<std::function<void()>> *steps;
  size_t done;
}
@end

@implementation OvTestStepper
- (void)tick:(NSTimer *)timer {
  (void)timer;
  if (steps->empty()) return;
  size_t index = done < steps->size() ? done : steps->size() - 1;
  done++;
  (*steps)[index]();
}
@end

namespace ov::test {

bool pumpUntil(const std::function<bool()> &condition, double limitSeconds) {
  NSDate *limit = [NSDate dateWithTimeIntervalSinceNow:limitSeconds];
  while (!condition()) {
    if ([limit timeIntervalSinceNow] <= 0) return false;
    deliverOneEvent([NSDate dateWithTimeIntervalSinceNow:0.01]);
  }
  return true;
}

void pumpPending() {
  // The run loop looks at the display's connection only when it is given a moment.
  for (int quiet = 0; quiet < 3;) {
    @autoreleasepool {
      NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                          untilDate:[NSDate dateWithTimeIntervalSinceNow:0.002]
                                             inMode:NSDefaultRunLoopMode
                                            dequeue:YES];
      if (event) {
        [NSApp sendEvent:event];
      } else {
        quiet++;
      }
    }
  }
}

void discardPending() {
  while ([NSApp nextEventMatchingMask:NSAnyEventMask
                            untilDate:[NSDate distantPast]
                               inMode:NSDefaultRunLoopMode
                              dequeue:YES]) {
  }
}

bool runWithSteps(const std::vector<std::function<void()>> &steps,
                  const std::function<void()> &blockingCall, double interval) {
  OvTestStepper *stepper = [[OvTestStepper alloc] init];
  stepper->steps = &steps;
  NSTimer *timer = [NSTimer timerWithTimeInterval:interval
                                           target:stepper
                                         selector:@selector(tick:)
                                         userInfo:nil
                                          repeats:YES];
  [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSEventTrackingRunLoopMode];
  [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
  blockingCall();
  [timer invalidate];
  bool all = stepper->done >= steps.size();
  [stepper release];
  return all;
}

}  // namespace ov::test
