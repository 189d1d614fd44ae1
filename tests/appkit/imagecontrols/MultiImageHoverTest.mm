// The tracking rectangle and what the pointer does, resting or not.

#import "MultiImageTest.h"

#import <GNUstepGUI/GSTrackingRect.h>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

@interface OvTestNextResponder : NSResponder {
 @public
  int entered;
  int exited;
}
@end
@implementation OvTestNextResponder
- (void)mouseEntered:(NSEvent *)event {
  (void)event;
  entered++;
}
- (void)mouseExited:(NSEvent *)event {
  (void)event;
  exited++;
}
@end

// Asks for tracking before it is awake, as one that remembers the answer does.
@interface OvTestAwakeningButton : OvTestMultiButton
- (void)ask;
@end
@implementation OvTestAwakeningButton
- (void)ask {
  _trackMouseMove = YES;
}
@end

// Goes, or moves, when the mouse comes.
@interface OvTestShyButton : HXMultiImageButton {
 @public
  std::function<void()> onEntry;
}
@end
@implementation OvTestShyButton
- (void)mouseEntered:(NSEvent *)event {
  [super mouseEntered:event];
  if (onEntry) onEntry();
}
@end

namespace {

long long tagOf(HXMultiImageButton *button) {
  return [[button valueForKey:@"_lastTrackingTag"] longLongValue];
}

size_t rectangles(NSView *view) { return [(NSArray *)[view valueForKey:@"tracking_rects"] count]; }

class MultiImageHover : public MultiImageTest {
 protected:
  OvTestMultiButton *makeTracking() {
    OvTestMultiButton *button = makeButton();
    [button setTrackingEnabled:YES];
    takeEvents();
    return button;
  }

  // As the platform reports it; the real pointer stays away.
  void tellOfPointer(NSView *view, NSPoint point) {
    [[view window] sendEvent:mouseEvent(NSMouseMoved, view, point)];
  }

  // The real pointer comes to rest in the button.
  void rest(OvTestMultiButton *button) {
    warpPointer(button, kInside);
    EXPECT_TRUE(pumpUntil([=, this] { return shown(button) == "mouse over"; }));
  }
  bool comesToRest(OvTestMultiButton *button, const char *state) {
    return pumpUntil([=, this] { return shown(button) == state; });
  }
};

TEST_F(MultiImageHover, HasOneRectangleOverItsBounds) {
  OvTestMultiButton *button = makeButton();
  EXPECT_FALSE([button trackingEnabled]);
  [button setTrackingEnabled:YES];
  EXPECT_TRUE([button trackingEnabled]);
  EXPECT_THAT(takeEvents(), ElementsAre("add {x = 0; y = 0; width = 30; height = 20}"));
  EXPECT_EQ(rectangles(button), 1u);
  GSTrackingRect *rect = [[button valueForKey:@"tracking_rects"] lastObject];
  EXPECT_NE(tagOf(button), 0);
  EXPECT_EQ(tagOf(button), [rect tag]);
  EXPECT_EQ([rect owner], button);
  [button setTrackingEnabled:YES];
  EXPECT_THAT(takeEvents(), IsEmpty());
  const std::string removal = "remove " + std::to_string(tagOf(button));
  [button setTrackingEnabled:NO];
  EXPECT_FALSE([button trackingEnabled]);
  EXPECT_THAT(takeEvents(), ElementsAre(removal));
  EXPECT_EQ(rectangles(button), 0u);
  EXPECT_EQ(tagOf(button), 0);
  [button setTrackingEnabled:NO];
  EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(MultiImageHover, TheRectangleFollowsTheFrames) {
  OvTestMultiButton *button = makeTracking();
  NSView *superview = [button superview];
  [button setFrameSize:NSMakeSize(40, 25)];
  std::vector<std::string> events = takeEvents();
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[1], "add {x = 0; y = 0; width = 40; height = 25}");
  EXPECT_EQ(rectangles(button), 1u);
  EXPECT_NE(tagOf(button), 0);
  [superview setFrameSize:NSMakeSize(190, 140)];
  EXPECT_EQ(takeEvents().size(), 2u) << "and the superview's";
  EXPECT_EQ(rectangles(button), 1u);
  [button frameDidChange:nil];
  EXPECT_EQ(takeEvents().size(), 2u);
}

TEST_F(MultiImageHover, TurnsTheNotificationsOnAndOff) {
  OvTestMultiButton *button = makeButton();
  NSView *superview = [button superview];
  [button setPostsFrameChangedNotifications:NO];
  [superview setPostsFrameChangedNotifications:NO];
  [button setTrackingEnabled:YES];
  EXPECT_TRUE([button postsFrameChangedNotifications]);
  EXPECT_TRUE([superview postsFrameChangedNotifications]);
  [button setTrackingEnabled:NO];
  EXPECT_FALSE([button postsFrameChangedNotifications]);
  EXPECT_FALSE([superview postsFrameChangedNotifications]);
  takeEvents();
  [button setPostsFrameChangedNotifications:YES];
  [superview setPostsFrameChangedNotifications:YES];
  [button setFrameSize:NSMakeSize(40, 25)];
  [superview setFrameSize:NSMakeSize(190, 140)];
  EXPECT_THAT(takeEvents(), IsEmpty()) << "nobody listens any more";
}

TEST_F(MultiImageHover, ListensToItsSuperviewAndNoOtherView) {
  OvTestMultiButton *button = newButton();
  [button setTrackingEnabled:YES];  // outside of everything
  takeEvents();
  NSWindow *window = makeWindow(NSMakeSize(200, 150));
  NSView *first = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 90, 90)] autorelease];
  NSView *second = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 90, 90)] autorelease];
  [[window contentView] addSubview:first];
  [[window contentView] addSubview:second];
  EXPECT_THAT(takeEvents(), IsEmpty());
  [first setFrameSize:NSMakeSize(95, 95)];
  EXPECT_THAT(takeEvents(), IsEmpty());
  [first addSubview:button];
  takeEvents();
  [first setFrameSize:NSMakeSize(100, 100)];
  EXPECT_EQ(takeEvents().size(), 2u);
  [second addSubview:button];
  takeEvents();
  [first setFrameSize:NSMakeSize(90, 90)];
  EXPECT_THAT(takeEvents(), IsEmpty());
  [second setFrameSize:NSMakeSize(100, 100)];
  EXPECT_EQ(takeEvents().size(), 2u);
}

TEST_F(MultiImageHover, StartsWhenItIsAwake) {
  OvTestAwakeningButton *button =
      [[[OvTestAwakeningButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)] autorelease];
  [button awakeFromNib];
  EXPECT_EQ(tagOf(button), 0) << "nobody asked";
  [button ask];
  [button awakeFromNib];
  EXPECT_NE(tagOf(button), 0);
  EXPECT_EQ(rectangles(button), 1u);
  const long long tag = tagOf(button);
  [button setFrameSize:NSMakeSize(40, 25)];
  EXPECT_EQ(rectangles(button), 1u);
  [button awakeFromNib];
  EXPECT_EQ(rectangles(button), 1u);
  EXPECT_NE(tag, 0);
  [button setTrackingEnabled:NO];
}

TEST_F(MultiImageHover, TheRectangleGoesWithTheWindow) {
  OvTestMultiButton *button = makeTracking();
  NSView *content = [[button window] contentView];
  const std::string removal = "remove " + std::to_string(tagOf(button));
  [button removeFromSuperview];
  EXPECT_THAT(takeEvents(), ElementsAre(removal));
  EXPECT_EQ(tagOf(button), 0);
  EXPECT_EQ(rectangles(button), 0u);
  EXPECT_TRUE([button trackingEnabled]);
  [content addSubview:button];
  EXPECT_THAT(takeEvents(), ElementsAre("add {x = 0; y = 0; width = 30; height = 20}"));
  EXPECT_EQ(rectangles(button), 1u);
  [button setFrameSize:NSMakeSize(40, 25)];
  EXPECT_EQ(takeEvents().size(), 2u) << "it listens as before";

  [button setTrackingEnabled:NO];
  takeEvents();
  [button removeFromSuperview];
  [content addSubview:button];
  EXPECT_THAT(takeEvents(), IsEmpty());
}

TEST_F(MultiImageHover, RestsOutsideOfWindows) {
  OvTestMultiButton *button = makeTracking();
  NSView *content = [[button window] contentView];
  [button mouseEntered:nil];
  [button removeFromSuperview];
  EXPECT_EQ(shown(button), "default");
  [content addSubview:button];
  [button setEnabled:NO];
  [[button multiImageCell] setImage:nil];
  [button removeFromSuperview];
  EXPECT_EQ(shown(button), "disabled");
}

TEST_F(MultiImageHover, GoesAwayWithItsRectangleAndWithoutTrace) {
  NSWindow *window = showWindow(NSMakeSize(200, 150));
  {
    @autoreleasepool {
      HXMultiImageButton *button =
          [[HXMultiImageButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
      [[window contentView] addSubview:button];
      [button setTrackingEnabled:YES];
      [[NSNotificationCenter defaultCenter] addObserver:button
                                               selector:@selector(frameDidChange:)
                                                   name:@"OvTestAnything"
                                                 object:nil];
      [button removeFromSuperview];
      [button release];
    }
  }
  [[NSNotificationCenter defaultCenter] postNotificationName:@"OvTestAnything" object:nil];
  [[window contentView] setFrameSize:NSMakeSize(190, 140)];
  [window sendEvent:mouseEvent(NSMouseMoved, [window contentView], NSMakePoint(60, 70))];
  pumpPending();
}

// MARK: The pointer moves

TEST_F(MultiImageHover, ShowsWhenTheMouseComesAndGoes) {
  OvTestMultiButton *button = makeTracking();
  OvTestNextResponder *next = [[[OvTestNextResponder alloc] init] autorelease];
  [button setNextResponder:next];
  tellOfPointer(button, kOutside);
  button->marks = 0;
  tellOfPointer(button, kInside);
  EXPECT_EQ(shown(button), "mouse over");
  EXPECT_GT(button->marks, 0);
  EXPECT_EQ(next->entered, 1);
  button->marks = 0;
  tellOfPointer(button, kOutside);
  EXPECT_EQ(shown(button), "default");
  EXPECT_GT(button->marks, 0);
  EXPECT_EQ(next->exited, 1);

  [button setEnabled:NO];
  tellOfPointer(button, kInside);
  EXPECT_EQ(shown(button), "disabled");
  tellOfPointer(button, kOutside);
  EXPECT_EQ(shown(button), "disabled");
  EXPECT_EQ(next->entered, 2);
  EXPECT_EQ(next->exited, 2);
  [button setCell:nil];
  [button mouseEntered:nil];
  [button mouseExited:nil];
  EXPECT_EQ(next->entered, 3);
  [button setNextResponder:[button superview]];
}

TEST_F(MultiImageHover, WithoutAMouseOverImageItIsBlankUnderTheMouse) {
  OvTestMultiButton *button = makeTracking();
  [button setMouseOverImage:nil];
  const NSRect all = [button bounds];
  tellOfPointer(button, kOutside);
  EXPECT_EQ(pictureOf(button).count(all, kGreen), 60);
  tellOfPointer(button, kInside);
  EXPECT_EQ([[button multiImageCell] image], nil);
  EXPECT_EQ(pictureOf(button).count(all, kGreen), 0);
  tellOfPointer(button, kOutside);
  EXPECT_EQ(pictureOf(button).count(all, kGreen), 60);
}

TEST_F(MultiImageHover, WithoutTrackingTheMouseDoesNotCount) {
  OvTestMultiButton *button = makeButton();
  tellOfPointer(button, kOutside);
  tellOfPointer(button, kInside);
  EXPECT_EQ(shown(button), "default");
  warpPointer(button, kInside);
  pumpPending();
  NSView *content = [[button window] contentView];
  [button removeFromSuperview];
  [content addSubview:button];
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageHover, MayMoveOrGoWhenTheMouseComes) {
  NSWindow *window = showWindow(NSMakeSize(200, 150));
  NSView *content = [window contentView];
  for (bool goes : {false, true}) {
    for (int i = 0; i < 20; i++) {
      OvTestShyButton *button = [[OvTestShyButton alloc] initWithFrame:NSMakeRect(50, 60, 30, 20)];
      // Further rectangles, which the platform is not done with.
      [button setToolTip:@"tip"];
      [button setTrackingEnabled:YES];
      [content addSubview:button];
      [button addTrackingRect:[button bounds] owner:button userData:NULL assumeInside:NO];
      int entries = 0;
      button->onEntry = [&entries, goes, button] {
        entries++;
        if (goes) {
          [button removeFromSuperview];
        } else {
          [button setFrameOrigin:NSMakePoint(10, 5)];
        }
      };
      [button release];
      [window sendEvent:mouseEvent(NSMouseMoved, content, NSMakePoint(1, 140))];
      [window sendEvent:mouseEvent(NSMouseMoved, content, NSMakePoint(60, 70))];
      EXPECT_GE(entries, 1);
      if (!goes) {
        button->onEntry = nullptr;
        [button removeFromSuperview];
      }
      drainPool();
    }
  }
}

// MARK: The pointer rests

TEST_F(MultiImageHover, ShowsTheMouseThatIsThereAlready) {
  OvTestMultiButton *button = makeTracking();
  NSView *content = [[button window] contentView];
  rest(button);
  [button removeFromSuperview];
  EXPECT_EQ(shown(button), "default");
  button->marks = 0;
  [content addSubview:button];
  EXPECT_EQ(shown(button), "mouse over");
  EXPECT_GT(button->marks, 0);
  [button removeFromSuperview];
  [button setEnabled:NO];
  [content addSubview:button];
  EXPECT_EQ(shown(button), "disabled");
}

TEST_F(MultiImageHover, IsNotStuckWhenItMoves) {
  OvTestMultiButton *button = makeTracking();
  rest(button);
  const NSPoint origin = [button frame].origin;
  [button setFrameOrigin:NSMakePoint(120, 100)];
  EXPECT_EQ(shown(button), "default");
  [button setFrameOrigin:origin];
  EXPECT_EQ(shown(button), "mouse over") << "and back under the pointer";
}

TEST_F(MultiImageHover, IsNotStuckWhenWhatItLiesInMoves) {
  OvTestMultiButton *button = makeTracking();
  NSView *content = [[button window] contentView];
  NSView *outer = [[[NSView alloc] initWithFrame:[content bounds]] autorelease];
  NSView *inner = [[[NSView alloc] initWithFrame:[content bounds]] autorelease];
  [content addSubview:outer];
  [outer addSubview:inner];
  [inner addSubview:button];
  rest(button);
  [outer setFrameOrigin:NSMakePoint(70, 0)];
  EXPECT_TRUE(comesToRest(button, "default"));
}

TEST_F(MultiImageHover, IsNotStuckWhenItIsScrolledAway) {
  OvTestMultiButton *button = newButton();
  NSWindow *window = makeWindow(NSMakeSize(200, 150));
  NSView *document = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 180, 900)] autorelease];
  [document addSubview:button];
  scrollView(window, document);
  show(window);
  [button setTrackingEnabled:YES];
  [document scrollPoint:NSMakePoint(0, 0)];
  rest(button);
  [document scrollPoint:NSMakePoint(0, 40)];
  EXPECT_EQ(shown(button), "default") << "at once, the pointer resting";
  [document scrollPoint:NSMakePoint(0, 0)];
  EXPECT_EQ(shown(button), "mouse over");
  [document scrollPoint:NSMakePoint(0, 700)];
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageHover, IsNotStuckWhenItIsHidden) {
  OvTestMultiButton *button = makeTracking();
  rest(button);
  [button setHidden:YES];
  EXPECT_TRUE(comesToRest(button, "default"));
  [button setHidden:NO];
  EXPECT_TRUE(comesToRest(button, "mouse over"));
  [[button superview] setHidden:YES];
  EXPECT_TRUE(comesToRest(button, "default"));
  [[button superview] setHidden:NO];
  EXPECT_TRUE(comesToRest(button, "mouse over"));
}

TEST_F(MultiImageHover, IsNotStuckWhenItsWindowGoes) {
  OvTestMultiButton *button = makeTracking();
  NSWindow *window = [button window];
  rest(button);
  [window orderOut:nil];
  EXPECT_TRUE(comesToRest(button, "default"));
  show(window);
  EXPECT_TRUE(comesToRest(button, "mouse over"));
  [window setFrameOrigin:NSMakePoint(600, 500)];
  EXPECT_TRUE(comesToRest(button, "default"));
}

TEST_F(MultiImageHover, IsNotStuckWhenItIsDisabled) {
  OvTestMultiButton *button = makeTracking();
  rest(button);
  [button setEnabled:NO];
  EXPECT_EQ(shown(button), "disabled");
  [button setFrameOrigin:NSMakePoint(120, 100)];
  pumpPending();
  EXPECT_EQ(shown(button), "disabled");
  [button setEnabled:YES];
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageHover, IsNotStuckWhenTrackingEnds) {
  OvTestMultiButton *button = makeTracking();
  tellOfPointer(button, kOutside);
  tellOfPointer(button, kInside);
  [button setTrackingEnabled:NO];
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageHover, IsNotStuckWhenThePointerLeavesInAMenu) {
  OvTestMultiButton *button = makeTracking();
  OvTestMenuDelegate *delegate = [[[OvTestMenuDelegate alloc] init] autorelease];
  delegate->menu = [[[NSMenu alloc] initWithTitle:@"menu"] autorelease];
  [delegate->menu addItemWithTitle:@"item" action:NULL keyEquivalent:@""];
  [button setDelegate:delegate];
  NSWindow *window = [button window];
  rest(button);
  // The pointer ends outside of all windows.
  EXPECT_TRUE(runWithSteps({[=] { warpPointer(button, NSMakePoint(-200, -150)); }, [] {},
                            [=] { post(keyEvent(window, @"\33")); }},
                           [=] { press(button, kInside); }));
  EXPECT_EQ(shown(button), "default");
}

TEST_F(MultiImageHover, APressIsNotDisturbedByScrolling) {
  OvTestMultiButton *button = makeTracking();
  rest(button);
  std::string during;
  EXPECT_TRUE(runWithSteps({[=] { [button setFrameOrigin:NSMakePoint(120, 100)]; },
                            [&] {
                              during = shown(button);
                              post(mouseEvent(NSLeftMouseUp, button, kOutside));
                            }},
                           [=] { press(button, kInside); }));
  discardPending();
  EXPECT_EQ(during, "alternate");
  EXPECT_EQ(shown(button), "default");
  EXPECT_TRUE(std::ranges::count(takeEvents(), "act") == 0);
}

}  // namespace
