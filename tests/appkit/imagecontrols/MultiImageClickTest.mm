// Clicks, menus and keys.

#import "MultiImageTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Runs something when it is acted upon.
@interface OvTestActionTarget : NSObject {
 @public
  std::function<void()> action;
  int count;
}
- (void)act:(id)sender;
@end
@implementation OvTestActionTarget
- (void)act:(id)sender {
  (void)sender;
  count++;
  if (action) action();
}
@end

@interface OvTestFlippedContent : NSView
@end
@implementation OvTestFlippedContent
- (BOOL)isFlipped {
  return YES;
}
@end

namespace {

class MultiImageClick : public MultiImageTest {
 protected:
  NSMenu *makeMenu() {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
    [menu addItemWithTitle:@"item" action:NULL keyEquivalent:@""];
    return menu;
  }

  // A place in the content, from its lower left corner, which need not be the window's.
  NSPoint inWindow(NSView *view, NSPoint point) {
    NSView *content = [[view window] contentView];
    const NSPoint corner = NSMakePoint(0, [content isFlipped] ? NSHeight([content bounds]) : 0);
    const NSPoint origin = [content convertPoint:corner toView:nil];
    return NSMakePoint(origin.x + point.x, origin.y + point.y);
  }

  // Presses, does each of the steps in the button's own loop and releases the mouse at the place.
  void pressAndRelease(OvTestMultiButton *button, NSPoint place,
                       std::vector<std::function<void()>> steps) {
    steps.push_back([=] { post(mouseEvent(NSLeftMouseUp, button, place)); });
    EXPECT_TRUE(runWithSteps(steps, [=] { press(button, kInside); }, 0.02));
    discardPending();
  }
};

TEST_F(MultiImageClick, SendsTheActionOnReleaseInside) {
  OvTestMultiButton *button = makeButton();
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageClick, SendsNothingOnReleaseOutside) {
  OvTestMultiButton *button = makeButton();
  for (bool tracking : {false, true}) {
    [button setTrackingEnabled:tracking];
    takeEvents();
    postDrag(button, kOutside);
    postRelease(button, kOutside);
    press(button, kInside);
    EXPECT_THAT(takeEvents(), IsEmpty());
    EXPECT_EQ(shown(button), "default");
  }
}

TEST_F(MultiImageClick, ShowsTheMouseOverImageAfterAReleaseInsideWhileItTracksTheMouse) {
  OvTestMultiButton *button = makeButton();
  [button setTrackingEnabled:YES];
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_EQ(shown(button), "mouse over");
}

TEST_F(MultiImageClick, FollowsTheMouseWhileItIsPressed) {
  OvTestMultiButton *button = makeButton();
  std::vector<std::string> seen;
  auto look = [&, button] { seen.push_back(shown(button)); };
  // What a step posts arrives a step later.
  std::vector<std::function<void()>> steps = {look};
  for (NSPoint point : {kOutside, kInside, kOutside, kInside}) {
    steps.push_back([=] { post(mouseEvent(NSLeftMouseDragged, button, point)); });
    steps.push_back([] {});
    steps.push_back(look);
  }
  pressAndRelease(button, kInside, steps);
  EXPECT_THAT(seen, ElementsAre("alternate", "default", "alternate", "default", "alternate"));
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
}

TEST_F(MultiImageClick, IsDrawnPressedWhileItWaits) {
  OvTestMultiButton *button = makeButton();
  int drawings = 0;
  bool stillNeeded = true;
  pressAndRelease(button, kInside,
                  {[=] { button->drawings = 0; },
                   [=] { post(mouseEvent(NSLeftMouseDragged, button, kOutside)); }, [] {},
                   [&] {
                     drawings = button->drawings;
                     stillNeeded = [button needsDisplay];
                   }});
  EXPECT_GT(drawings, 0);
  EXPECT_FALSE(stillNeeded);
}

TEST_F(MultiImageClick, MarksNothingWhileTheMouseStaysOnOneSide) {
  OvTestMultiButton *button = makeButton();
  auto drag = [=](CGFloat x, CGFloat y) {
    return [=] { post(mouseEvent(NSLeftMouseDragged, button, NSMakePoint(x, y))); };
  };
  int inside = -1, outside = -1;
  pressAndRelease(button, kOutside,
                  {[=] { button->marks = 0; }, drag(1, 1), drag(29, 19), drag(3, 4), [] {},
                   [&] { inside = button->marks; }, drag(60, 0), [] {}, [=] { button->marks = 0; },
                   drag(70, 5), drag(-3, 4), [] {}, [&] { outside = button->marks; }});
  EXPECT_EQ(inside, 0);
  EXPECT_EQ(outside, 0);
}

TEST_F(MultiImageClick, TheFrameDecidesWhatIsInside) {
  const struct {
    const char *name;
    NSPoint point;
    bool inside;
  } rows[] = {{"the origin", {0, 0}, true},
              {"the last point", {29.5, 19.5}, true},
              {"the right edge", {30, 10}, false},
              {"the upper edge", {15, 20}, false},
              {"left of it", {-0.5, 10}, false}};
  OvTestMultiButton *button = makeButton();
  [button setBounds:NSMakeRect(0, 0, 30, 20)];
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    postRelease(button, row.point);
    press(button, kInside);
    EXPECT_EQ(takeEvents().size(), row.inside ? 1u : 0u);
  }
}

TEST_F(MultiImageClick, ADisabledButtonDoesNothing) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  [button setDelegate:delegate];
  [button setEnabled:NO];
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  [button performClick:nil];
  EXPECT_EQ(delegate->asked, nil);
  EXPECT_THAT(takeEvents(), IsEmpty());
  EXPECT_EQ(shown(button), "disabled");
}

TEST_F(MultiImageClick, ActsThroughItsTargetOrTheResponders) {
  OvTestMultiButton *button = makeButton();
  [button setTarget:nil];
  postRelease(button, kInside);
  press(button, kInside);
  // The button is the first responder now, which is where an action without target begins.
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
  [button setAction:NULL];
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(MultiImageClick, MayBeDisabledOrRemovedByWhatHappens) {
  OvTestMultiButton *button = makeButton();
  NSView *content = [[button window] contentView];
  OvTestActionTarget *target = [[[OvTestActionTarget alloc] init] autorelease];
  [button setTarget:target];
  [button setTrackingEnabled:YES];

  target->action = [=] { [button setEnabled:NO]; };
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_EQ(shown(button), "disabled");
  [button setEnabled:YES];

  target->action = [=] { [button removeFromSuperview]; };
  postRelease(button, kInside);
  press(button, kInside);
  EXPECT_EQ(shown(button), "default");
  EXPECT_EQ(target->count, 2);
  [content addSubview:button];

  target->action = nullptr;
  pressAndRelease(button, kInside, {[=] { [button setEnabled:NO]; }});
  EXPECT_EQ(target->count, 2) << "disabled while it was pressed";
  EXPECT_EQ(shown(button), "disabled");
  [button setEnabled:YES];

  pressAndRelease(button, kInside, {[=] { [button removeFromSuperview]; }});
  EXPECT_EQ(target->count, 2) << "removed while it was pressed";
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageClick, MayDieOfItsAction) {
  NSWindow *window = showWindow(NSMakeSize(200, 150));
  HXMultiImageButton *button =
      [[HXMultiImageButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
  [[window contentView] addSubview:button];
  [button setTrackingEnabled:YES];
  [button release];
  OvTestActionTarget *target = [[[OvTestActionTarget alloc] init] autorelease];
  target->action = [=] {
    [window makeFirstResponder:nil];
    [button removeFromSuperview];
  };
  [button setTarget:target];
  [button setAction:@selector(act:)];
  post(mouseEvent(NSLeftMouseUp, button, kInside));
  press(button, kInside);
  EXPECT_EQ(target->count, 1);
  drainPool();
}

TEST_F(MultiImageClick, OutsideOfWindowsAPressEndsAtOnce) {
  OvTestMultiButton *button = newButton();
  takeEvents();
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(shown(button), "default");
  EXPECT_THAT(takeEvents(), IsEmpty());
}

// MARK: Menus

TEST_F(MultiImageClick, PopsUpTheDelegatesMenu) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  [button setDelegate:delegate];
  EXPECT_EQ([button delegate], delegate);
  for (bool tracking : {false, true}) {
    [button setTrackingEnabled:tracking];
    takeEvents();
    MenuInterceptor menus;
    NSEvent *event = mouseEvent(NSLeftMouseDown, button, kInside, NSShiftKeyMask, 2);
    [button mouseDown:event];
    EXPECT_EQ(delegate->asked, button);
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus.menu(), delegate->menu);
    EXPECT_EQ(menus.view(), button);
    EXPECT_EQ(menus.location(), inWindow(button, NSMakePoint(50, 57)));
    expectLike(event, menus.event());
    EXPECT_THAT(takeEvents(), IsEmpty()) << "the action is not sent";
    EXPECT_EQ(shown(button), tracking ? "mouse over" : "default");
  }
}

TEST_F(MultiImageClick, TheMenuLiesBelowTheOriginOfTheFrame) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  [button setDelegate:delegate];
  NSWindow *window = [button window];
  [button removeFromSuperview];
  NSView *box =
      [[[OvTestFlippedContent alloc] initWithFrame:NSMakeRect(10, 20, 150, 100)] autorelease];
  [[window contentView] addSubview:box];
  [box addSubview:button];
  {
    MenuInterceptor menus;
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
    EXPECT_EQ(menus.location(), inWindow(button, NSMakePoint(60, 20 + 100 - 60 - 3)))
        << "of a flipped superview, the upper left corner";
  }
  [button removeFromSuperview];
  [window setContentView:[[[OvTestFlippedContent alloc] initWithFrame:NSMakeRect(0, 0, 200, 150)]
                             autorelease]];
  [[window contentView] addSubview:button];
  {
    MenuInterceptor menus;
    [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
    EXPECT_EQ(menus.location(), inWindow(button, NSMakePoint(50, 150 - 60 + 3)))
        << "of a flipped content view";
  }
}

TEST_F(MultiImageClick, TheMenuIsShownForTheDelegatesView) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuViewDelegate *delegate = [[[OvTestMenuViewDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  delegate->view = [[button window] contentView];
  [button setDelegate:delegate];
  MenuInterceptor menus;
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(menus.view(), delegate->view);
  delegate->view = nil;
  [button mouseDown:mouseEvent(NSLeftMouseDown, button, kInside)];
  EXPECT_EQ(menus.view(), button);
}

TEST_F(MultiImageClick, WithoutAMenuItIsAnOrdinaryClick) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  for (id each in @[ delegate, @"without methods" ]) {
    [button setDelegate:each];
    MenuInterceptor menus;
    postRelease(button, kInside);
    press(button, kInside);
    EXPECT_EQ(menus.count(), 0);
    EXPECT_THAT(takeEvents(), ElementsAre("act"));
  }
  EXPECT_EQ(delegate->asked, button);
}

TEST_F(MultiImageClick, TheDelegateIsNotRetained) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[OvTestMenuDelegate alloc] init];
  const NSUInteger before = [delegate retainCount];
  [button setDelegate:delegate];
  EXPECT_EQ([delegate retainCount], before);
  [button setDelegate:nil];
  [delegate release];
}

TEST_F(MultiImageClick, ARealMenuClosesAndTheActionIsNotSent) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  OvTestActionTarget *target = [[[OvTestActionTarget alloc] init] autorelease];
  [[delegate->menu itemAtIndex:0] setTarget:target];
  [[delegate->menu itemAtIndex:0] setAction:@selector(act:)];
  [button setDelegate:delegate];
  std::string during;
  NSWindow *window = [button window];
  const NSString *down = [NSString stringWithFormat:@"%C", (unichar)NSDownArrowFunctionKey];
  EXPECT_TRUE(runWithSteps(
      {[&] { during = shown(button); }, [=] { post(keyEvent(window, (NSString *)down)); },
       [=] { post(keyEvent(window, @"\r")); }},
      [=] { press(button, kInside); }));
  discardPending();
  EXPECT_EQ(during, "alternate");
  EXPECT_EQ(target->count, 1) << "the item's own action";
  EXPECT_THAT(takeEvents(), IsEmpty());
  EXPECT_EQ(shown(button), "default");
}

// MARK: Keys

TEST_F(MultiImageClick, KeysPressIt) {
  OvTestMultiButton *button = makeButton();
  NSWindow *window = [button window];
  ASSERT_TRUE([button acceptsFirstResponder]);
  ASSERT_TRUE([window makeFirstResponder:button]);
  for (NSString *key in @[ @" ", @"\r", @"\3" ]) {
    const int drawings = button->drawings;
    type(window, key);
    EXPECT_THAT(takeEvents(), ElementsAre("act"));
    EXPECT_GT(button->drawings, drawings) << "it is seen";
    EXPECT_EQ(shown(button), "default");
  }
  type(window, @"x");
  type(window, @" ", NSCommandKeyMask);
  EXPECT_THAT(takeEvents(), IsEmpty());
  [button setEnabled:NO];
  [button keyDown:keyEvent(window, @" ")];
  EXPECT_THAT(takeEvents(), IsEmpty());
  EXPECT_FALSE([button acceptsFirstResponder]);
}

TEST_F(MultiImageClick, AKeyPressKeepsWhatTheMouseDoes) {
  OvTestMultiButton *button = makeButton();
  [button setTrackingEnabled:YES];
  [button mouseEntered:nil];
  [button performClick:nil];
  EXPECT_EQ(shown(button), "mouse over");
  [button mouseExited:nil];
  [button performClick:nil];
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageClick, KeysOpenTheMenu) {
  OvTestMultiButton *button = makeButton();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = makeMenu();
  [button setDelegate:delegate];
  NSWindow *window = [button window];
  ASSERT_TRUE([window makeFirstResponder:button]);
  takeEvents();
  MenuInterceptor menus;
  type(window, @" ");
  EXPECT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.location(), inWindow(button, NSMakePoint(50, 57)));
  EXPECT_EQ([menus.event() type], NSLeftMouseDown);
  EXPECT_EQ([menus.event() window], window);
  EXPECT_THAT(takeEvents(), IsEmpty());
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageClick, IsFramedOnlyWhenTheKeyboardCameByKey) {
  OvTestMultiButton *button = makeButton();
  NSWindow *window = [button window];
  ASSERT_TRUE([window makeFirstResponder:nil]);
  const Picture plain = pictureOf(button);
  auto frameShown = [&] {
    const Picture picture = pictureOf(button);
    int different = 0;
    for (int y = 0; y < 20; y++) {
      for (int x = 0; x < 30; x++) different += !(picture.at(x, y) == plain.at(x, y));
    }
    std::cerr << "different " << different << " " << int([[button cell] showsFirstResponder])
              << ([window firstResponder] == button) << " type " << [[NSApp currentEvent] type]
              << std::endl;
    picture.writePNG("/tmp/multi/p" + std::to_string(different) + ".png");
    return different > 10;
  };
  EXPECT_FALSE(frameShown());
  postRelease(button, kInside);
  press(button, kInside);
  ASSERT_EQ([window firstResponder], button);
  EXPECT_FALSE(frameShown()) << "a click";

  NSButton *other = [[[NSButton alloc] initWithFrame:NSMakeRect(100, 10, 40, 20)] autorelease];
  [[window contentView] addSubview:other];
  [window setInitialFirstResponder:other];
  [other setNextKeyView:button];
  [button setNextKeyView:other];
  ASSERT_TRUE([window makeFirstResponder:other]);
  type(window, @"\t");
  ASSERT_EQ([window firstResponder], button);
  EXPECT_TRUE(frameShown()) << "a key";
  ASSERT_TRUE([window makeFirstResponder:other]);
  EXPECT_FALSE(frameShown());
}

TEST_F(MultiImageClick, ClicksOutsideOfWindowsActByCode) {
  OvTestMultiButton *button = newButton();
  takeEvents();
  [button performClick:nil];
  EXPECT_THAT(takeEvents(), ElementsAre("act"));
}

}  // namespace
