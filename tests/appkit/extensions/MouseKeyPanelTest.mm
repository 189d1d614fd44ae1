// A panel whose delegate sees events first.

#import <OvAppKit/OvMouseKeyPanel.h>

#include <string>
#include <vector>

#import "LiveTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

/* Notes what comes to the panel's content. */
@interface OvTestPanelView : NSView {
 @public
  std::vector<std::string> events;
}
@end

@implementation OvTestPanelView
- (BOOL)acceptsFirstResponder {
  return YES;
}
- (BOOL)acceptsFirstMouse:(NSEvent *)event {
  (void)event;
  return YES;
}
- (void)mouseDown:(NSEvent *)event {
  (void)event;
  events.push_back("mouse down");
}
- (void)mouseUp:(NSEvent *)event {
  (void)event;
  events.push_back("mouse up");
}
- (void)rightMouseDown:(NSEvent *)event {
  (void)event;
  events.push_back("right mouse down");
}
- (void)otherMouseDown:(NSEvent *)event {
  (void)event;
  events.push_back("other mouse down");
}
- (void)keyDown:(NSEvent *)event {
  events.push_back("key " + std::string([[event characters] UTF8String]));
}
- (void)keyUp:(NSEvent *)event {
  (void)event;
  events.push_back("key up");
}
@end

@interface OvTestPanelDelegate : NSObject {
 @public
  BOOL takes;
  std::vector<std::string> asked;
  NSWindow *window;
  NSEvent *event;
}
@end

@implementation OvTestPanelDelegate
- (void)note:(const char *)what event:(NSEvent *)theEvent window:(NSWindow *)theWindow {
  asked.push_back(what);
  event = theEvent;
  window = theWindow;
}
@end

@interface OvTestMouseDelegate : OvTestPanelDelegate
@end
@implementation OvTestMouseDelegate
- (BOOL)mouseDown:(NSEvent *)theEvent inWindow:(NSWindow *)theWindow {
  [self note:[theEvent type] == NSLeftMouseDown ? "left" : "right" event:theEvent window:theWindow];
  return takes;
}
@end

@interface OvTestMouseKeyDelegate : OvTestMouseDelegate
@end
@implementation OvTestMouseKeyDelegate
- (BOOL)keyDown:(NSEvent *)theEvent inWindow:(NSWindow *)theWindow {
  [self note:"key" event:theEvent window:theWindow];
  return takes;
}
@end

namespace {

class MouseKeyPanel : public LiveTest {
 protected:
  void SetUp() override {
    LiveTest::SetUp();
    panel = [[OvMouseKeyPanel alloc] initWithContentRect:NSMakeRect(200, 200, 120, 90)
                                               styleMask:NSBorderlessWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:NO];
    [panel setReleasedWhenClosed:NO];
    view = [[[OvTestPanelView alloc] initWithFrame:NSMakeRect(0, 0, 120, 90)] autorelease];
    [[panel contentView] addSubview:view];
    delegate = [[[OvTestMouseKeyDelegate alloc] init] autorelease];
    [panel setDelegate:static_cast<id>(delegate)];
    ASSERT_TRUE(bringToFront(panel));
    [panel makeFirstResponder:view];
    pumpPending();
    view->events.clear();
  }
  void TearDown() override {
    [panel setDelegate:nil];
    [panel orderOut:nil];
    [panel release];
    LiveTest::TearDown();
  }
  // The events that a panel is asked about, through the queue.
  void postDowns() {
    post(mouseEvent(NSLeftMouseDown, view, NSMakePoint(20, 20)));
    post(mouseEvent(NSRightMouseDown, view, NSMakePoint(20, 20)));
    post(keyEvent(panel, @"k"));
    pumpPending();
  }

  OvMouseKeyPanel *panel = nil;
  OvTestPanelView *view = nil;
  OvTestPanelDelegate *delegate = nil;
};

TEST_F(MouseKeyPanel, ABorderlessPanelTakesTheKeyboard) {
  EXPECT_TRUE([panel canBecomeKeyWindow]);
  EXPECT_TRUE([panel canBecomeMainWindow]);
  EXPECT_TRUE([panel isKeyWindow]);
  EXPECT_TRUE([panel isMainWindow]);
  NSPanel *plain = [[[NSPanel alloc] initWithContentRect:NSMakeRect(0, 0, 10, 10)
                                               styleMask:NSBorderlessWindowMask
                                                 backing:NSBackingStoreBuffered
                                                   defer:YES] autorelease];
  [plain setReleasedWhenClosed:NO];
  EXPECT_FALSE([plain canBecomeMainWindow]);
}

TEST_F(MouseKeyPanel, WhatTheDelegateTakesGoesNoFurther) {
  delegate->takes = YES;
  postDowns();
  EXPECT_THAT(delegate->asked, ElementsAre("left", "right", "key"));
  EXPECT_THAT(view->events, IsEmpty());
  EXPECT_EQ(delegate->window, panel);
}

TEST_F(MouseKeyPanel, WhatTheDelegateDeclinesIsHandledAsUsual) {
  postDowns();
  EXPECT_THAT(delegate->asked, ElementsAre("left", "right", "key"));
  EXPECT_THAT(view->events, ElementsAre("mouse down", "right mouse down", "key k"));
}

TEST_F(MouseKeyPanel, TheDelegateGetsTheEventItself) {
  delegate->takes = YES;
  NSEvent *event = mouseEvent(NSRightMouseDown, view, NSMakePoint(20, 20));
  [panel sendEvent:event];
  EXPECT_EQ(delegate->event, event);
  event = keyEvent(panel, @"q");
  [panel sendEvent:event];
  EXPECT_EQ(delegate->event, event);
}

TEST_F(MouseKeyPanel, OtherEventsAreNotAskedAbout) {
  delegate->takes = YES;
  [panel sendEvent:mouseEvent(NSOtherMouseDown, view, NSMakePoint(9, 9))];
  [panel sendEvent:mouseEvent(NSLeftMouseUp, view, NSMakePoint(9, 9))];
  [panel sendEvent:mouseEvent(NSRightMouseUp, view, NSMakePoint(9, 9))];
  [panel sendEvent:[NSEvent keyEventWithType:NSKeyUp
                                          location:NSZeroPoint
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:[panel windowNumber]
                                           context:[panel graphicsContext]
                                        characters:@"k"
                       charactersIgnoringModifiers:@"k"
                                         isARepeat:NO
                                           keyCode:0]];
  EXPECT_THAT(delegate->asked, IsEmpty());
  EXPECT_THAT(view->events, testing::Contains("other mouse down"));
  EXPECT_THAT(view->events, testing::Contains("key up"));
}

TEST_F(MouseKeyPanel, EachQuestionIsOptional) {
  OvTestMouseDelegate *mouse = [[[OvTestMouseDelegate alloc] init] autorelease];
  mouse->takes = YES;
  [panel setDelegate:static_cast<id>(mouse)];
  postDowns();
  EXPECT_THAT(mouse->asked, ElementsAre("left", "right"));
  EXPECT_THAT(view->events, ElementsAre("key k"));
  view->events.clear();
  OvTestPanelDelegate *none = [[[OvTestPanelDelegate alloc] init] autorelease];
  [panel setDelegate:static_cast<id>(none)];
  postDowns();
  EXPECT_EQ(view->events.size(), 3u);
  view->events.clear();
  [panel setDelegate:nil];
  postDowns();
  EXPECT_EQ(view->events.size(), 3u);
  [panel sendEvent:nil];
}

}  // namespace
