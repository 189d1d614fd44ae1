#import <AppKit/AppKit.h>

/** Keeps a view scrolling while the mouse button is held and the pointer stands still
    outside it: puts the last drag event back at the head of its window's queue every 0.05
    seconds, so that the view receives it, and scrolls, again.

      - (void)mouseDragged:(NSEvent *)event {
        [[HXAutoScrollManager sharedManager] start:event];
        [self autoscroll:event];
        …
      }
      - (void)mouseUp:(NSEvent *)event {
        [[HXAutoScrollManager sharedManager] stop];
        …
      }

    It does not stop by itself. */
@interface HXAutoScrollManager : NSObject {
  NSTimer *_timer;
  NSEvent *_event;
}

/** The one manager of the process, created on the first call and never destroyed. */
+ (HXAutoScrollManager *)sharedManager;

/** Begin, or go on with another event, which is retained. The rhythm of a running timer is
    kept. The event already saved changes nothing. */
- (void)start:(NSEvent *)event;
/** End; harmless when idle. */
- (void)stop;
/** The timer's action: re-posts the saved event. */
- (void)timerCallback:(NSTimer *)timer;

@end
