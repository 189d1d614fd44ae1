// The live tests rely on these; when one of them fails, look here first.

#import "LiveTest.h"
#import "Supervisor.h"

using namespace ov::test;

@interface HarnessView : NSView {
 @public
  std::vector<std::pair<NSEventType, NSPoint>> events;
}
@end

@implementation HarnessView
- (BOOL)isFlipped {
  return YES;
}
- (void)drawRect:(NSRect)rect {
  (void)rect;
  [[NSColor redColor] set];
  NSRectFill(NSMakeRect(0, 0, 10, 10));
  [[NSColor blueColor] set];
  NSRectFill(NSMakeRect(10, 0, 10, 10));
}
- (void)note:(NSEvent *)event {
  events.push_back({[event type], [self convertPoint:[event locationInWindow] fromView:nil]});
}
- (void)mouseDown:(NSEvent *)event {
  [self note:event];
}
- (void)mouseDragged:(NSEvent *)event {
  [self note:event];
}
- (void)mouseUp:(NSEvent *)event {
  [self note:event];
}
@end

namespace {

class Harness : public LiveTest {
 protected:
  HarnessView *viewInWindow(NSWindow *window) {
    HarnessView *view = [[[HarnessView alloc] initWithFrame:NSMakeRect(0, 0, 100, 80)] autorelease];
    [[window contentView] addSubview:view];
    return view;
  }
};

TEST_F(Harness, ReadsPixelsFromTheTopLeft) {
  HarnessView *view = viewInWindow(makeWindow(NSMakeSize(200, 100)));
  Picture picture = pictureOf(view);
  EXPECT_EQ(picture.at(5, 5), kRed);
  EXPECT_EQ(picture.at(15, 5), kBlue);
  EXPECT_NE(picture.at(5, 15), kRed);
  EXPECT_EQ(picture.count(NSMakeRect(0, 0, 100, 80), kRed), 100);
}

TEST_F(Harness, DeliversMouseEventsToTheViewUnderThem) {
  HarnessView *view = viewInWindow(showWindow(NSMakeSize(200, 100)));
  press(view, NSMakePoint(5, 6));
  dragTo(view, NSMakePoint(7, 8));
  release(view, NSMakePoint(9, 10));
  ASSERT_EQ(view->events.size(), 3u);
  EXPECT_EQ(view->events[0].first, NSLeftMouseDown);
  EXPECT_EQ(view->events[0].second, NSMakePoint(5, 6));
  EXPECT_EQ(view->events[1].first, NSLeftMouseDragged);
  EXPECT_EQ(view->events[2].first, NSLeftMouseUp);
  EXPECT_EQ(view->events[2].second, NSMakePoint(9, 10));
}

TEST_F(Harness, KeepsTheUsersDefaultsAlone) {
  NSString *library =
      [NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES) lastObject];
  NSString *folder = [NSString stringWithUTF8String:privateFolder().c_str()];
  EXPECT_TRUE([library hasPrefix:folder]) << [library UTF8String];
  [[NSUserDefaults standardUserDefaults] setObject:@"x" forKey:@"HarnessProbe"];
  [[NSUserDefaults standardUserDefaults] synchronize];
  NSArray *files = [[NSFileManager defaultManager]
      contentsOfDirectoryAtPath:[folder stringByAppendingPathComponent:@"Defaults"]
                          error:NULL];
  EXPECT_GT([files count], 0u);
}

TEST_F(Harness, CountsNotificationsLogLinesAndBeeps) {
  NotificationCount count(@"HarnessNotification", nil);
  [[NSNotificationCenter defaultCenter] postNotificationName:@"HarnessNotification" object:@"a"];
  EXPECT_EQ(count.take(), 1);
  EXPECT_EQ(count.take(), 0);
  {
    LogCapture log;
    NSLog(@"harness %d", 3);
    EXPECT_THAT(log.lines(), ::testing::ElementsAre("harness 3"));
  }
  int before = beepCount();
  NSBeep();
  EXPECT_EQ(beepCount() - before, 1);
}

TEST_F(Harness, InterceptsPopUpMenus) {
  HarnessView *view = viewInWindow(showWindow(NSMakeSize(200, 100)));
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"m"] autorelease];
  MenuInterceptor interceptor;
  [NSMenu popUpContextMenu:menu
                 withEvent:mouseEvent(NSRightMouseDown, view, NSMakePoint(3, 3))
                   forView:view];
  EXPECT_EQ(interceptor.count(), 1);
  EXPECT_EQ(interceptor.menu(), menu);
}

TEST_F(Harness, WaitsForAConditionAndGivesUpAtItsLimit) {
  EXPECT_FALSE(pumpUntil([] { return false; }, 0.05));
  int calls = 0;
  EXPECT_TRUE(pumpUntil([&] { return ++calls > 3; }));
}

}  // namespace
