#import "MultiImageTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Journals what it is asked to do.
@interface OvTestSelectable : OvSelectableButton {
 @public
  std::vector<std::string> *events;
  NSEvent *dragged;
  int marks;
}
- (void)act:(id)sender;
@end
@implementation OvTestSelectable
- (void)act:(id)sender {
  events->push_back(sender == self ? "act" : "act of another");
}
- (void)mouseDragged:(NSEvent *)event {
  dragged = event;
  events->push_back("drag");
}
- (void)highlight:(BOOL)flag {
  if (events != nullptr) events->push_back(flag ? "highlight" : "no highlight");
  [super highlight:flag];
}
- (void)setNeedsDisplay:(BOOL)flag {
  if (flag) marks++;
  [super setNeedsDisplay:flag];
}
@end

// Knows another message only.
@interface OvTestDeafTarget : NSObject
@end
@implementation OvTestDeafTarget
@end

@interface OvTestRaisingMenuTarget : NSObject {
 @public
  std::function<void()> action;
}
- (void)choose:(id)sender;
@end
@implementation OvTestRaisingMenuTarget
- (void)choose:(id)sender {
  (void)sender;
  if (action) action();
}
@end

namespace {

class SelectableButton : public LiveTest {
 protected:
  void TearDown() override {
    for (OvTestSelectable *button : buttons_) {
      [button removeFromSuperview];
      button->events = nullptr;
      [button release];
    }
    buttons_.clear();
    LiveTest::TearDown();
  }

  OvTestSelectable *makeButton(bool withMenu, bool pushIn) {
    NSWindow *window = makeWindow(NSMakeSize(200, 150));
    OvTestSelectable *button = [[OvTestSelectable alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
    buttons_.push_back(button);
    [[window contentView] addSubview:button];
    show(window);
    [window makeFirstResponder:nil];  // which would be framed
    button->events = &events_;
    if (withMenu) {
      NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
      [menu addItemWithTitle:@"item" action:NULL keyEquivalent:@""];
      [button setMenu:menu];
    }
    [button setAllowPushIn:pushIn];
    [button setTarget:button];
    [button setAction:@selector(act:)];
    return button;
  }
  std::vector<std::string> takeEvents() { return std::exchange(events_, {}); }
  NSPoint inWindow(NSView *view, CGFloat x, CGFloat y) {
    return [view convertPoint:NSMakePoint(x, y) toView:nil];
  }

  static constexpr NSPoint kInside = {15, 10};

 private:
  std::vector<std::string> events_;
  std::vector<OvTestSelectable *> buttons_;
};

TEST_F(SelectableButton, IsAnIconButtonThatMayNotBePushedIn) {
  OvSelectableButton *button =
      [[[OvSelectableButton alloc] initWithFrame:NSMakeRect(0, 0, 30, 20)] autorelease];
  EXPECT_FALSE([button allowPushIn]);
  EXPECT_TRUE([button isKindOfClass:[OvIconButton class]]);
  EXPECT_TRUE([[button cell] isMemberOfClass:[OvIconButtonCell class]]);
  EXPECT_TRUE([OvSelectableButton conformsToProtocol:NSProtocolFromString(@"OvIconButton")]);
  [button setAllowPushIn:YES];
  EXPECT_TRUE([button allowPushIn]);
}

TEST_F(SelectableButton, WithoutAMenuItIsAnOrdinaryButton) {
  for (bool pushIn : {false, true}) {
    OvTestSelectable *button = makeButton(false, pushIn);
    post(mouseEvent(NSLeftMouseDown, button, kInside));
    post(mouseEvent(NSLeftMouseUp, button, kInside));
    EXPECT_TRUE(pumpUntil([&] { return ![[button cell] isHighlighted]; }));
    pumpPending();
    EXPECT_THAT(takeEvents(), ElementsAre("highlight", "act", "no highlight"));
    // Released elsewhere, it does nothing.
    post(mouseEvent(NSLeftMouseDown, button, kInside));
    post(mouseEvent(NSLeftMouseDragged, button, NSMakePoint(90, 90)));
    post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(90, 90)));
    pumpPending();
    EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
  }
}

TEST_F(SelectableButton, ShowsItsMenuAtOnce) {
  OvTestSelectable *button = makeButton(true, false);
  MenuInterceptor menus;
  NSEvent *event = mouseEvent(NSLeftMouseDown, button, kInside, NSShiftKeyMask, 2);
  [button mouseDown:event];
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.menu(), [button menu]);
  EXPECT_EQ(menus.view(), button);
  EXPECT_EQ(menus.location(), inWindow(button, 0, 10)) << "the middle of the left edge";
  expectLike(event, menus.event());
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
  [button setBounds:NSMakeRect(100, 200, 30, 20)];
  [button mouseDown:event];
  EXPECT_EQ(menus.location(), inWindow(button, 100, 210));
}

TEST_F(SelectableButton, TheEventIsOfTheSameTypeAsThePress) {
  OvTestSelectable *button = makeButton(true, false);
  MenuInterceptor menus;
  [button mouseDown:mouseEvent(NSRightMouseDown, button, kInside)];
  EXPECT_EQ([menus.event() type], NSRightMouseDown);
}

TEST_F(SelectableButton, AQuickClickActsWhereItMayBePushedIn) {
  OvTestSelectable *button = makeButton(true, true);
  MenuInterceptor menus;
  button->marks = 0;
  post(mouseEvent(NSLeftMouseUp, button, kInside));
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(menus.count(), 0);
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "act", "no highlight"));
  EXPECT_GT(button->marks, 0);
  EXPECT_EQ([NSApp nextEventMatchingMask:NSLeftMouseUpMask
                               untilDate:[NSDate distantPast]
                                  inMode:NSDefaultRunLoopMode
                                 dequeue:YES],
            nil)
      << "the release was taken";
}

TEST_F(SelectableButton, AReleaseAnywhereIsAQuickClick) {
  OvTestSelectable *button = makeButton(true, true);
  post(mouseEvent(NSLeftMouseUp, button, NSMakePoint(300, 300)));
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "act", "no highlight"));
}

TEST_F(SelectableButton, OnlyTheTargetIsActedUpon) {
  OvTestSelectable *button = makeButton(true, true);
  ASSERT_TRUE([[button window] makeFirstResponder:button]) << "which has the method";
  id targets[] = {nil, [[[OvTestDeafTarget alloc] init] autorelease]};
  for (id target : targets) {
    [button setTarget:target];
    post(mouseEvent(NSLeftMouseUp, button, kInside));
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
    EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
  }
  [button setTarget:button];
  [button setAction:NULL];
  post(mouseEvent(NSLeftMouseUp, button, kInside));
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
}

TEST_F(SelectableButton, ADragIsPassedOn) {
  OvTestSelectable *button = makeButton(true, true);
  MenuInterceptor menus;
  NSEvent *drag = mouseEvent(NSLeftMouseDragged, button, NSMakePoint(18, 10));
  post(drag);
  button->marks = 0;
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(menus.count(), 0);
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "drag", "no highlight"));
  EXPECT_EQ(button->dragged, drag);
  EXPECT_GT(button->marks, 0);
}

TEST_F(SelectableButton, HeldStillItShowsItsMenu) {
  OvTestSelectable *button = makeButton(true, true);
  MenuInterceptor menus;
  // The wait is the real one.
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.menu(), [button menu]);
  EXPECT_EQ(menus.view(), button);
  EXPECT_EQ(menus.location(), inWindow(button, 0, 20)) << "the left end of the max y edge";
  EXPECT_EQ([menus.event() type], NSLeftMouseDown);
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
}

TEST_F(SelectableButton, OtherEventsDoNotEndTheWait) {
  OvTestSelectable *button = makeButton(true, true);
  MenuInterceptor menus;
  post(mouseEvent(NSMouseMoved, button, kInside));
  post(keyEvent([button window], @"x"));
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(menus.count(), 1);
  EXPECT_THAT(takeEvents(), ElementsAre("highlight", "no highlight"));
}

TEST_F(SelectableButton, IsHighlightedWhileTheMenuIsOpen) {
  OvTestSelectable *button = makeButton(true, false);
  [button setImage:filledImage(kImageSize, [NSColor greenColor])];
  [button setHighlightImage:filledImage(kImageSize, [NSColor redColor])];
  OvTestRaisingMenuTarget *target = [[[OvTestRaisingMenuTarget alloc] init] autorelease];
  [[[button menu] itemAtIndex:0] setTarget:target];
  [[[button menu] itemAtIndex:0] setAction:@selector(choose:)];
  bool chosen = false;
  target->action = [&] { chosen = true; };
  bool highlighted = false;
  int red = 0;
  NSWindow *window = [button window];
  NSString *down = [NSString stringWithFormat:@"%C", (unichar)NSDownArrowFunctionKey];
  EXPECT_TRUE(
      runWithSteps({[&] {
                      highlighted = [[button cell] isHighlighted];
                      red = pictureOf(button).count([button bounds], kRed);
                    },
                    [=] { post(keyEvent(window, down)); }, [=] { post(keyEvent(window, @"\r")); }},
                   [=] { press(button, kInside); }));
  discardPending();
  EXPECT_TRUE(highlighted);
  EXPECT_EQ(red, 600);
  EXPECT_TRUE(chosen);
  EXPECT_FALSE([[button cell] isHighlighted]);
  EXPECT_EQ(pictureOf(button).count([button bounds], kRed), 0);
}

TEST_F(SelectableButton, IsNotLeftHighlightedByWhatRaises) {
  OvTestSelectable *button = makeButton(true, false);
  OvTestRaisingMenuTarget *target = [[[OvTestRaisingMenuTarget alloc] init] autorelease];
  [[[button menu] itemAtIndex:0] setTarget:target];
  [[[button menu] itemAtIndex:0] setAction:@selector(choose:)];
  target->action = [] { [NSException raise:@"OvTest" format:@"on purpose"]; };
  NSWindow *window = [button window];
  NSString *down = [NSString stringWithFormat:@"%C", (unichar)NSDownArrowFunctionKey];
  bool raised = false;
  runWithSteps({[=] { post(keyEvent(window, down)); }, [=] { post(keyEvent(window, @"\r")); }},
               [&] {
                 @try {
                   press(button, kInside);
                 } @catch (NSException *exception) {
                   raised = true;
                 }
               });
  discardPending();
  EXPECT_TRUE(raised);
  EXPECT_FALSE([[button cell] isHighlighted]);
}

TEST_F(SelectableButton, ADisabledButtonDoesNothing) {
  for (bool pushIn : {false, true}) {
    OvTestSelectable *button = makeButton(true, pushIn);
    [button setEnabled:NO];
    takeEvents();
    MenuInterceptor menus;
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
    [button keyDown:keyEvent([button window], @" ")];
    EXPECT_EQ(menus.count(), 0);
    EXPECT_THAT(takeEvents(), IsEmpty());
  }
}

TEST_F(SelectableButton, KeysOpenTheMenuOrClick) {
  NSString *down = [NSString stringWithFormat:@"%C", (unichar)NSDownArrowFunctionKey];
  const struct {
    const char *name;
    bool menu, pushIn;
    NSString *key;
    int menus;
    bool acts;
  } rows[] = {{"Space, without menu", false, false, @" ", 0, true},
              {"Space, menu at once", true, false, @" ", 1, false},
              {"Space, pushed in", true, true, @" ", 0, true},
              {"down, without menu", false, false, down, 0, false},
              {"down, menu at once", true, false, down, 1, false},
              {"down, pushed in", true, true, down, 1, false},
              {"another key", true, false, @"x", 0, false}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    OvTestSelectable *button = makeButton(row.menu, row.pushIn);
    ASSERT_TRUE([[button window] makeFirstResponder:button]);
    takeEvents();
    MenuInterceptor menus;
    [button keyDown:keyEvent([button window], row.key)];
    EXPECT_EQ(menus.count(), row.menus);
    if (row.menus) {
      EXPECT_EQ(menus.location(), inWindow(button, 0, row.pushIn ? 20 : 10));
      EXPECT_EQ([menus.event() type], NSLeftMouseDown);
    }
    const std::vector<std::string> events = takeEvents();
    EXPECT_EQ(std::ranges::count(events, "act"), row.acts ? 1 : 0);
  }
}

TEST_F(SelectableButton, MayDieOfItsMenu) {
  NSWindow *window = showWindow(NSMakeSize(200, 150));
  for (bool pushIn : {false, true}) {
    OvSelectableButton *button =
        [[OvSelectableButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
    OvTestRaisingMenuTarget *target = [[[OvTestRaisingMenuTarget alloc] init] autorelease];
    [button setAllowPushIn:pushIn];
    [button setTarget:target];
    [button setAction:@selector(choose:)];
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
    id<NSMenuItem> item = [menu addItemWithTitle:@"item"
                                          action:@selector(choose:)
                                   keyEquivalent:@""];
    [item setTarget:target];
    [button setMenu:menu];
    [[window contentView] addSubview:button];
    [button release];
    bool done = false;
    target->action = [&, button] {
      done = true;
      [window makeFirstResponder:nil];
      [button removeFromSuperview];
    };
    if (pushIn) {
      post(mouseEvent(NSLeftMouseUp, button, kInside));
      press(button, kInside);
    } else {
      NSString *down = [NSString stringWithFormat:@"%C", (unichar)NSDownArrowFunctionKey];
      runWithSteps({[=] { post(keyEvent(window, down)); }, [=] { post(keyEvent(window, @"\r")); }},
                   [=] { press(button, kInside); });
    }
    EXPECT_TRUE(done);
    drainPool();
  }
}

TEST_F(SelectableButton, OutsideOfWindowsAPressDoesNoHarm) {
  OvSelectableButton *button =
      [[[OvSelectableButton alloc] initWithFrame:NSMakeRect(0, 0, 30, 20)] autorelease];
  NSWindow *window = showWindow(NSMakeSize(100, 80));
  NSEvent *event = mouseEvent(NSLeftMouseDown, [window contentView], kInside);
  NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
  [menu addItemWithTitle:@"item" action:NULL keyEquivalent:@""];
  [button setMenu:menu];
  MenuInterceptor menus;
  [button mouseDown:event];
  EXPECT_EQ(menus.count(), 1);
}

}  // namespace
