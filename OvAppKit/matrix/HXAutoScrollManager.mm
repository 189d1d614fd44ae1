#import <OvAppKit/HXAutoScrollManager.h>

#include "support/Retained.h"

static const NSTimeInterval OvAutoScrollInterval = 0.05;

@implementation HXAutoScrollManager

+ (HXAutoScrollManager *)sharedManager {
  static HXAutoScrollManager *manager = nil;
  if (manager == nil) manager = [[HXAutoScrollManager alloc] init];
  return manager;
}

- (void)dealloc {
  [self stop];
  [super dealloc];
}

- (void)start:(NSEvent *)event {
  if (event == _event) return;
  OvReplaceRetained(&_event, event);
  if (_timer == nil) {
    _timer = [[NSTimer scheduledTimerWithTimeInterval:OvAutoScrollInterval
                                               target:self
                                             selector:@selector(timerCallback:)
                                             userInfo:nil
                                              repeats:YES] retain];
  }
}

- (void)stop {
  [_timer invalidate];
  OvReplaceRetained<NSTimer *>(&_timer, nil);
  OvReplaceRetained<NSEvent *>(&_event, nil);
}

- (void)timerCallback:(NSTimer *)timer {
  (void)timer;
  if (_event != nil) [[_event window] postEvent:_event atStart:YES];
}

@end
