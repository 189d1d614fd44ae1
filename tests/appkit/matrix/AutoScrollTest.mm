// The shared manager that repeats a drag event while the pointer rests.

#import "GridTest.h"

using namespace ov::test;

@interface OvTestAutoScroller : HXAutoScrollManager
- (NSTimer *)timer;
- (NSEvent *)event;
@end

@implementation OvTestAutoScroller
- (NSTimer *)timer {
  return _timer;
}
- (NSEvent *)event {
  return _event;
}
@end

@interface OvTestDragTarget : NSView {
 @public
  std::vector<NSEvent *> drags;
}
@end

@implementation OvTestDragTarget
- (void)mouseDown:(NSEvent *)event {
  (void)event;
}
- (void)mouseDragged:(NSEvent *)event {
  drags.push_back(event);
}
@end

namespace {

class AutoScroll : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    window = showWindow(NSMakeSize(200, 200));
    view = [[[OvTestDragTarget alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
    [[window contentView] addSubview:view];
    manager = [[OvTestAutoScroller alloc] init];
  }
  void TearDown() override {
    [manager stop];
    [manager release];
    LiveTest::TearDown();
  }
  NSEvent *drag(CGFloat x) { return mouseEvent(NSLeftMouseDragged, view, NSMakePoint(x, 10)); }
  NSWindow *window = nil;
  OvTestDragTarget *view = nil;
  OvTestAutoScroller *manager = nil;
};

TEST_F(AutoScroll, OneManagerServesTheProcess) {
  HXAutoScrollManager *shared = [HXAutoScrollManager sharedManager];
  EXPECT_NE(shared, nil);
  EXPECT_EQ([HXAutoScrollManager sharedManager], shared);
  EXPECT_TRUE([shared isMemberOfClass:[HXAutoScrollManager class]]);
}

TEST_F(AutoScroll, StartsIdle) {
  EXPECT_EQ([manager timer], nil);
  EXPECT_EQ([manager event], nil);
}

TEST_F(AutoScroll, KeepsTheEventAndATimerThatRepeats) {
  NSEvent *event = drag(5);
  [manager start:event];
  EXPECT_EQ([manager event], event);
  NSTimer *timer = [manager timer];
  ASSERT_NE(timer, nil);
  EXPECT_TRUE([timer isValid]);
  EXPECT_DOUBLE_EQ([timer timeInterval], 0.05);
  EXPECT_EQ([timer userInfo], nil);
}

TEST_F(AutoScroll, ALaterEventReplacesTheEarlierAndKeepsTheTimer) {
  NSEvent *first = drag(5), *second = drag(6);
  [manager start:first];
  NSTimer *timer = [manager timer];
  NSUInteger firstCount = [first retainCount], secondCount = [second retainCount];
  [manager start:second];
  EXPECT_EQ([manager event], second);
  EXPECT_EQ([manager timer], timer);
  EXPECT_EQ([first retainCount], firstCount - 1);
  EXPECT_EQ([second retainCount], secondCount + 1);
}

TEST_F(AutoScroll, TheSameEventAgainChangesNothing) {
  NSEvent *event = drag(5);
  [manager start:event];
  NSUInteger count = [event retainCount];
  NSTimer *timer = [manager timer];
  NSDate *next = [[[timer fireDate] retain] autorelease];
  [manager start:event];
  EXPECT_EQ([event retainCount], count);
  EXPECT_EQ([manager timer], timer);
  EXPECT_EQ([timer fireDate], next);
}

TEST_F(AutoScroll, TheSameEventObjectComesBackAgainAndAgain) {
  NSEvent *event = drag(5);
  // The platform sends drags to the view of the last press.
  press(view, NSMakePoint(5, 10));
  [manager start:event];
  EXPECT_TRUE(pumpUntil([&] { return view->drags.size() >= 3; }));
  for (NSEvent *one : view->drags) EXPECT_EQ(one, event);
}

TEST_F(AutoScroll, TheEventIsPutBeforeThoseThatWait) {
  NSEvent *event = drag(5), *waiting = drag(6);
  press(view, NSMakePoint(5, 10));
  post(waiting);
  [manager start:event];
  [manager timerCallback:[manager timer]];
  NSEvent *next = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask
                                     untilDate:[NSDate distantPast]
                                        inMode:NSDefaultRunLoopMode
                                       dequeue:YES];
  EXPECT_EQ(next, event);
}

TEST_F(AutoScroll, StoppingForgetsBoth) {
  NSEvent *event = drag(5);
  NSUInteger count = [event retainCount];
  [manager start:event];
  NSTimer *timer = [[manager timer] retain];
  [manager stop];
  EXPECT_EQ([manager timer], nil);
  EXPECT_EQ([manager event], nil);
  EXPECT_FALSE([timer isValid]);
  EXPECT_EQ([event retainCount], count);
  [timer release];
  [manager stop];
  press(view, NSMakePoint(5, 10));
  pumpUntil([&] { return !view->drags.empty(); }, 0.2);
  EXPECT_TRUE(view->drags.empty());
}

TEST_F(AutoScroll, WithoutAnEventATickDoesNothing) {
  [manager timerCallback:nil];
  pumpPending();
  EXPECT_TRUE(view->drags.empty());
}

TEST_F(AutoScroll, AnEventWithoutAWindowGoesNowhere) {
  NSEvent *event = [NSEvent mouseEventWithType:NSLeftMouseDragged
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                   eventNumber:1
                                    clickCount:1
                                      pressure:1];
  ASSERT_EQ([event window], nil);
  [manager start:event];
  [manager timerCallback:[manager timer]];
  EXPECT_EQ([manager event], event);
}

TEST_F(AutoScroll, DyingStopsTheTimer) {
  // A running timer keeps its target, so a manager dies only after the timer was invalidated.
  OvTestAutoScroller *other = [[OvTestAutoScroller alloc] init];
  NSEvent *event = drag(5);
  NSUInteger count = [event retainCount];
  @autoreleasepool {
    [other start:event];
    [[other timer] invalidate];
  }
  [other release];
  EXPECT_EQ([event retainCount], count);
}

}  // namespace
