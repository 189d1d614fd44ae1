// Presses on the parts of a scroller: what is told to whom, and what is shown meanwhile.

#import "ScrollerTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// Journal: "action 4" with the part that the scroller tells then. Moves what it would scroll: a
// line or a page in 20, unless that is the knob's matter.
@interface OvTestScrolled : NSView {
 @public
  double line;
  double page;
  bool raises;
  int presses;
  std::function<void(HXScroller *)> onAction;
}
@end

@implementation OvTestScrolled

- (void)scrolled:(HXScroller *)scroller {
  const NSScrollerPart part = [scroller hitPart];
  journal().push_back("action " + std::to_string(part));
  const double steps[] = {0, -page, 0, page, -line, line, 0};
  if (steps[part] != 0) [scroller setDoubleValue:[scroller doubleValue] + steps[part]];
  if (onAction) onAction(scroller);
  if (raises) [NSException raise:NSGenericException format:@"an action that fails"];
}

- (void)mouseDown:(NSEvent *)event {
  (void)event;
  ++presses;
}

@end

namespace {

using Steps = std::vector<std::function<void()>>;

Steps operator+(Steps a, const Steps &b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// 128 long with one arrow at each end: 14, a slot of 100 with a knob of 50, 14. At the start.
class ScrollerTracking : public ScrollerTest, public testing::WithParamInterface<bool> {
 protected:
  void SetUp() override {
    ScrollerTest::SetUp();
    window = showWindow(NSMakeSize(240, 240));
    scrolled = [[[OvTestScrolled alloc] initWithFrame:[[window contentView] bounds]] autorelease];
    [window setContentView:scrolled];
    scrolled->line = 0.01;
    scrolled->page = 0.2;
    delegate = [[[OvTestScrollerDelegate alloc] init] autorelease];
    scroller = make(GetParam());
  }

  void TearDown() override {
    [scroller setDelegate:nil];
    ScrollerTest::TearDown();
  }

  OvTestScroller *make(bool horizontal) {
    OvTestScroller *made = makeScroller(window, horizontal, 128);
    [made setAppearance:HXScrollerAppearanceMetal];
    setRecordingParts(made);
    [made setTarget:scrolled];
    [made setAction:@selector(scrolled:)];
    [made setDelegate:delegate];
    [made setFloatValue:0];
    [window display];
    journal().clear();
    return made;
  }

  NSPoint at(CGFloat place) const {
    return GetParam() ? NSMakePoint(place, 9) : NSMakePoint(9, place);
  }

  void postDrag(CGFloat place) { post(mouseEvent(NSLeftMouseDragged, scroller, at(place))); }
  void postUp(CGFloat place) { post(mouseEvent(NSLeftMouseUp, scroller, at(place))); }

  // Runs the steps in the platform's loop, the last one until that ends.
  bool pressAt(CGFloat place, const Steps &steps, double interval = 0.05) {
    const bool all = runWithSteps(steps, [&] { press(scroller, at(place)); }, interval);
    discardPending();
    return all;
  }

  // So many steps in which nothing is done, then one.
  static Steps after(int ticks, const std::function<void()> &step) {
    Steps steps(static_cast<size_t>(ticks), [] {});
    steps.push_back(step);
    return steps;
  }

  // A last step that lets go once the condition holds, or will not any more.
  std::function<void()> upWhen(CGFloat place, const std::function<bool()> &condition) {
    return [this, place, condition, ticks = 0]() mutable {
      if (condition() || ++ticks > 100) postUp(place);
    };
  }

  // Of the journal, those that begin with one of the words.
  static Lines only(std::initializer_list<std::string> words) {
    Lines lines;
    for (const std::string &line : journal()) {
      for (const std::string &word : words) {
        if (line.starts_with(word)) lines.push_back(line);
      }
    }
    return lines;
  }

  int count(const std::string &line) const {
    return static_cast<int>(std::ranges::count(journal(), line));
  }

  // Presses the part and lets go after the action has come so often.
  void pressUntil(CGFloat place, const std::string &action, int times, NSUInteger flags = 0) {
    scrolled->onAction = [&, this](HXScroller *) {
      // Before a repetition that is due already; an action that never comes is not waited for.
      if (count(action) < times && journal().size() < 200) return;
      [NSApp postEvent:mouseEvent(NSLeftMouseUp, scroller, at(place)) atStart:YES];
    };
    press(scroller, at(place), flags);
    scrolled->onAction = nullptr;
  }

  NSWindow *window;
  OvTestScrolled *scrolled;
  OvTestScrollerDelegate *delegate;
  OvTestScroller *scroller;
};

INSTANTIATE_TEST_SUITE_P(Both, ScrollerTracking, testing::Bool(),
                         [](const auto &info) { return info.param ? "horizontal" : "vertical"; });

TEST_P(ScrollerTracking, AnArrowRepeatsItsAction) {
  pressUntil(120, "action 5", 4);
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 5", "action 5", "action 5", "action 5", "action 5", "did 5"));
  EXPECT_NEAR([scroller doubleValue], 0.04, 1e-6);
  EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(NSScrollerNoPart));
  journal().clear();
  pressUntil(5, "action 4", 2);
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 4", "action 4", "action 4", "did 4"));
}

TEST_P(ScrollerTracking, AShortPressSendsOneAction) {
  postUp(120);
  press(scroller, at(120));
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("will 5", "action 5", "did 5"));
}

TEST_P(ScrollerTracking, APressedArrowShowsSo) {
  Lines pressed, away, back;
  const auto arrows = [&] {
    Lines states;
    for (const std::string &line : takeJournal()) {
      if (line.starts_with("IncrementArrow") || line.starts_with("DecrementArrow")) {
        const size_t state = line.find(' ') + 1;
        states.push_back(line.substr(0, 9) + " " +
                         line.substr(state, line.find(' ', state) - state));
      }
    }
    return states;
  };
  ASSERT_TRUE(pressAt(120, {
                               [&] { pressed = arrows(), postDrag(60); },
                               [&] {},
                               [&] { away = arrows(), postDrag(121); },
                               [&] {},
                               [&] { back = arrows(); },
                               [&] { postUp(121); },
                           }));
  EXPECT_THAT(pressed, ElementsAre("Decrement default", "Increment alternate"));
  EXPECT_THAT(away, ElementsAre("Decrement default", "Increment default"));
  EXPECT_THAT(back, ElementsAre("Decrement default", "Increment alternate"));
  journal().clear();
  [window display];
  EXPECT_THAT(arrows(), ElementsAre("Decrement default", "Increment default"));
}

TEST_P(ScrollerTracking, NothingRepeatsWhileThePointerIsAway) {
  int before = 0;
  const Steps steps =
      Steps{[&] { postDrag(60); }} +
      after(2,
            [&] {
              before = count("action 5");
              EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(NSScrollerIncrementLine));
            }) +
      // Longer than the delay before a repetition.
      after(6, [&] {
        EXPECT_EQ(count("action 5"), before);
        postDrag(120);
      });
  ASSERT_TRUE(
      pressAt(120, steps + Steps{upWhen(120, [&] { return count("action 5") > before; })}, 0.1));
  EXPECT_GT(count("action 5"), before);
}

TEST_P(ScrollerTracking, WithOptionAnArrowTurnsPages) {
  pressUntil(120, "action 3", 2, NSAlternateKeyMask);
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 5", "action 3", "action 3", "did 5"));
  EXPECT_NEAR([scroller doubleValue], 0.4, 1e-6);
  journal().clear();
  pressUntil(5, "action 1", 1, NSAlternateKeyMask);
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("will 4", "action 1", "did 4"));
}

TEST_P(ScrollerTracking, WithOptionThePressedArrowShowsSo) {
  bool shown = false;
  ASSERT_TRUE(runWithSteps(
      {
          [&] {
            EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(NSScrollerIncrementLine));
            journal().clear();
            [window display];
            for (const std::string &line : journal()) {
              shown |= line.starts_with("IncrementArrow_MaxEnd_EndCap alternate");
            }
          },
          [&] { postUp(120); },
      },
      [&] { press(scroller, at(120), NSAlternateKeyMask); }));
  EXPECT_TRUE(shown);
  discardPending();
}

TEST_P(ScrollerTracking, TheKnobFollowsThePointer) {
  // The platform's loop acts on the last of the moves that wait: one at a time.
  scrolled->onAction = [&](HXScroller *) {
    if (count("action 2") == 1) postDrag(40);
    if (count("action 2") == 2) postDrag(45);
  };
  bool shownPushed = false;
  ASSERT_TRUE(pressAt(20, {
                              [&] {
                                for (const std::string &line : journal()) {
                                  shownPushed |= line.starts_with("KnobBody alternate");
                                }
                                postDrag(30);
                              },
                              upWhen(45, [&] { return count("action 2") == 3; }),
                          }));
  EXPECT_TRUE(shownPushed) << "before the pointer moved";
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 2", "action 2", "action 2", "action 2", "did 2"));
  EXPECT_NEAR([scroller doubleValue], 0.5, 0.011);
  EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(NSScrollerNoPart));
}

// Each step of a drag draws the stretch that the knob has left and taken, no arrow.
TEST_P(ScrollerTracking, ADragDrawsLittle) {
  Lines drawn;
  scroller->isMarking = true;
  ASSERT_TRUE(pressAt(20, {
                              [&] { takeJournal(), postDrag(30); },
                              [&] {},
                              [&] {},
                              [&] { drawn = takeJournal(); },
                              [&] { postUp(30); },
                          }));
  std::erase_if(drawn, [](const std::string &line) { return line.starts_with("action"); });
  const NSRect marked = GetParam() ? NSMakeRect(14, 0, 60, 18) : NSMakeRect(0, 14, 18, 60);
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn.front(), "marked " + text(marked));
  for (const std::string &line : drawn) EXPECT_EQ(line.find("Arrow"), std::string::npos) << line;
}

TEST_P(ScrollerTracking, TheEndIsToldAsTheBeginning) {
  // Whatever the part has become; it was asked for once.
  delegate->onWill = [&] {
    EXPECT_EQ(scroller->hitPartReads, 1);
    [scroller setValue:@0 forKey:@"hitPart"];
  };
  postUp(20);
  scroller->hitPartReads = 0;
  press(scroller, at(20));
  EXPECT_THAT(only({"will", "did"}), ElementsAre("will 2", "did 2"));
  journal().clear();
  postUp(100);
  scroller->hitPartReads = 0;
  press(scroller, at(100));
  EXPECT_THAT(only({"will", "did"}), ElementsAre("will 3", "did 3"));
  journal().clear();
  postUp(120);
  scroller->hitPartReads = 0;
  press(scroller, at(120));
  EXPECT_THAT(only({"will", "did"}), ElementsAre("will 5", "did 5"));
}

TEST_P(ScrollerTracking, PagesAreTurnedUntilTheKnobIsAtThePointer) {
  // Two pages bring the knob, 50 long, from 14 to 34: it covers 80 then.
  const Steps steps =
      after(8, [&] { EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(3)); });
  ASSERT_TRUE(pressAt(80, steps + Steps{[&] { postUp(80); }}, 0.1));
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 3", "action 3", "action 3", "did 3"));
  EXPECT_EQ([scroller rectForPart:NSScrollerKnob],
            GetParam() ? NSMakeRect(34, 0, 50, 18) : NSMakeRect(0, 34, 18, 50));
}

TEST_P(ScrollerTracking, PagesAreTurnedBackToo) {
  [scroller setDoubleValue:1];
  pressUntil(20, "action 1", 2);
  EXPECT_THAT(only({"will", "action", "did"}),
              ElementsAre("will 1", "action 1", "action 1", "did 1"));
}

// A page longer than the way to the pointer brings the knob beyond it; it does not come back.
TEST_P(ScrollerTracking, AKnobBeyondThePointerStays) {
  [scroller setKnobProportion:0];
  scrolled->page = 1;
  ASSERT_TRUE(pressAt(60, after(5, [&] { postUp(60); }), 0.1));
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("will 3", "action 3", "did 3"));
  EXPECT_EQ([scroller doubleValue], 1);
}

TEST_P(ScrollerTracking, PagingGoesOnWhereThePointerGoes) {
  const Steps steps = after(4, [&] {
    EXPECT_EQ(count("action 3"), 1);
    postDrag(113);
  });
  ASSERT_TRUE(pressAt(66, steps + Steps{upWhen(113, [&] { return count("action 3") >= 5; })}, 0.1));
  EXPECT_EQ(count("action 3"), 5);
  EXPECT_EQ([scroller doubleValue], 1);
}

TEST_P(ScrollerTracking, TheDefaultAppearanceTellsTheSame) {
  [scroller setAppearance:HXScrollerAppearanceDefault];
  [scroller setDoubleValue:0];
  [window display];
  const auto middle = [&](NSScrollerPart part) {
    const NSRect rect = [scroller rectForPart:part];
    return GetParam() ? NSMidX(rect) : NSMidY(rect);
  };
  journal().clear();
  // The platform's button takes what is posted before its own loop only while that runs.
  const CGFloat arrow = middle(NSScrollerIncrementLine);
  const NSRect button = [scroller rectForPart:NSScrollerIncrementLine];
  const auto shown = [&] {
    [scroller lockFocus];
    NSBitmapImageRep *rep = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:button] autorelease];
    [scroller unlockFocus];
    return Picture(rep).at(1, 1);
  };
  const Pixel released = shown();
  Pixel pressed = released;
  ASSERT_TRUE(pressAt(arrow, {[&] {}, [&] { pressed = shown(); }, [&] { postUp(arrow); }}));
  EXPECT_NE(pressed, released) << "the platform's own button";
  EXPECT_EQ(journal().front(), "will 5");
  EXPECT_EQ(journal().back(), "did 5");
  journal().clear();
  const CGFloat knob = middle(NSScrollerKnob);
  scrolled->onAction = [&](HXScroller *) {
    if (count("action 2") == 1) postDrag(knob + 16);
  };
  ASSERT_TRUE(pressAt(knob, {
                                [&] { postDrag(knob + 8); },
                                upWhen(knob + 16, [&] { return count("action 2") == 2; }),
                            }));
  scrolled->onAction = nullptr;
  EXPECT_THAT(journal(), ElementsAre("will 2", "action 2", "action 2", "did 2"));
  journal().clear();
  [scroller setDoubleValue:0];
  const NSRect slot = [scroller rectForPart:NSScrollerKnobSlot];
  pressUntil(GetParam() ? NSMaxX(slot) - 2 : NSMaxY(slot) - 2, "action 3", 2);
  EXPECT_THAT(journal(), ElementsAre("will 3", "action 3", "action 3", "did 3"));
  journal().clear();
  [scroller setDoubleValue:1];
  pressUntil(GetParam() ? NSMinX(slot) + 2 : NSMinY(slot) + 2, "action 1", 1);
  EXPECT_THAT(journal(), ElementsAre("will 1", "action 1", "did 1"));
}

TEST_P(ScrollerTracking, TheDefaultAppearanceWithoutKnobIsThePlatforms) {
  [scroller setAppearance:HXScrollerAppearanceDefault];
  [scroller setFrameSize:GetParam() ? NSMakeSize(45, 18) : NSMakeSize(18, 45)];
  ASSERT_EQ([scroller rectForPart:NSScrollerKnob], NSZeroRect);
  const NSRect slot = [scroller rectForPart:NSScrollerKnobSlot];
  const NSPoint middle = NSMakePoint(NSMidX(slot), NSMidY(slot));
  EXPECT_EQ([scroller testPart:[scroller convertPoint:middle toView:nil]],
            static_cast<NSScrollerPart>(NSScrollerKnobSlot));
}

TEST_P(ScrollerTracking, DisabledItPassesThePressOn) {
  for (const int appearance : {1, 0}) {
    [scroller setAppearance:appearance];
    [scroller setEnabled:NO];
    scrolled->presses = 0;
    for (const CGFloat place : {5, 20, 100, 120}) press(scroller, at(place));
    EXPECT_EQ(scrolled->presses, 4);
    EXPECT_THAT(only({"will", "action", "did"}), IsEmpty());
    EXPECT_EQ([scroller hitPart], static_cast<NSScrollerPart>(NSScrollerNoPart));
  }
}

TEST_P(ScrollerTracking, APressOnNoPartDoesNothing) {
  // Too short for a knob; between the arrows.
  [scroller setFrameSize:GetParam() ? NSMakeSize(44, 18) : NSMakeSize(18, 44)];
  press(scroller, at(22));
  EXPECT_THAT(only({"will", "action", "did"}), IsEmpty());
  [scroller setFrameSize:GetParam() ? NSMakeSize(20, 18) : NSMakeSize(18, 20)];
  press(scroller, at(3));
  EXPECT_THAT(only({"will", "action", "did"}), IsEmpty());
}

TEST_P(ScrollerTracking, PartsLieWhereTheirImagesAre) {
  struct {
    int configuration;
    CGFloat decrement, increment;  // a place on each
  } const rows[] = {{1, 13, 114}, {2, 9, 23}, {3, 105, 118}, {4, 9, 118}, {4, 105, 23}};
  for (const auto &row : rows) {
    [OvTestScroller setArrows:row.configuration];
    [window display];
    for (const int arrow : {1, 0}) {
      journal().clear();
      const CGFloat place = arrow == 1 ? row.decrement : row.increment;
      postUp(place);
      press(scroller, at(place));
      const std::string part = arrow == 1 ? "4" : "5";
      EXPECT_THAT(only({"will", "action", "did"}),
                  ElementsAre("will " + part, "action " + part, "did " + part))
          << row.configuration << " at " << place;
    }
  }
}

// From one of its two places to the other: it is the same arrow.
TEST_P(ScrollerTracking, AnArrowThatStandsTwiceIsOne) {
  [OvTestScroller setArrows:4];
  [window display];
  int before = 0;
  const Steps steps =
      after(2, [&] { postDrag(105); }) + after(1, [&] { before = count("action 4"); });
  ASSERT_TRUE(
      pressAt(5, steps + Steps{upWhen(105, [&] { return count("action 4") > before; })}, 0.15));
  EXPECT_GT(count("action 4"), before);
}

TEST_P(ScrollerTracking, WithoutDelegateItScrolls) {
  [scroller setDelegate:nil];
  pressUntil(120, "action 5", 2);
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("action 5", "action 5"));
  [scroller setDelegate:[[[NSObject alloc] init] autorelease]];
  pressUntil(5, "action 4", 1);
  pressUntil(100, "action 3", 1);
  [scroller setDelegate:nil];
}

TEST_P(ScrollerTracking, ADelegateThatLeavesHearsNoMore) {
  delegate->onWill = [&] { [scroller setDelegate:nil]; };
  postUp(20);
  press(scroller, at(20));
  EXPECT_THAT(only({"will", "did"}), ElementsAre("will 2"));
}

TEST_P(ScrollerTracking, WithoutTargetNothingHappens) {
  [scroller setTarget:nil];
  [scroller setAction:NULL];
  postUp(120);
  press(scroller, at(120));
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("will 5", "did 5"));
}

TEST_P(ScrollerTracking, AScrollerThatItsActionTakesAwayEndsQuietly) {
  scrolled->onAction = [&](HXScroller *sender) { [sender removeFromSuperview]; };
  NSEvent *up = mouseEvent(NSLeftMouseUp, scroller, at(120));
  ASSERT_TRUE(pressAt(120, after(5, [&] { post(up); }), 0.1));
  EXPECT_THAT(only({"will", "action", "did"}), ElementsAre("will 5", "action 5", "did 5"));
  scroller = nil;
}

TEST_P(ScrollerTracking, AScrollerThatItsActionDisablesIsStill) {
  scrolled->onAction = [&](HXScroller *sender) { [sender setEnabled:NO]; };
  ASSERT_TRUE(pressAt(120, after(5, [&] { postUp(120); }), 0.1));
  EXPECT_EQ(count("action 5"), 1);
}

TEST_P(ScrollerTracking, AnActionThatFailsLeavesNoTimer) {
  scrolled->raises = true;
  for (const CGFloat place : {120, 100}) {
    bool raised = false;
    @try {
      press(scroller, at(place));
    } @catch (NSException *) {
      raised = true;
    }
    EXPECT_TRUE(raised);
    // The platform has one at most, and complains about another.
    [NSEvent startPeriodicEventsAfterDelay:10 withPeriod:10];
    [NSEvent stopPeriodicEvents];
  }
}

TEST_P(ScrollerTracking, NoEventIsNoPress) {
  [scroller trackPagingArea:nil];
  [scroller trackScrollButtons:nil];
  EXPECT_THAT(only({"action"}), IsEmpty());
}

// The platform's scroll view does with the parts what their names say.
TEST_P(ScrollerTracking, InAScrollView) {
  NSScrollView *view =
      [[[NSScrollView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [view setHasVerticalScroller:YES];
  [view setHasHorizontalScroller:YES];
  [view setDocumentView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 2000, 2000)] autorelease]];
  [scrolled addSubview:view];
  const bool horizontal = GetParam();
  scroller =
      [[[OvTestScroller alloc] initWithFrame:horizontal ? NSMakeRect(0, 0, 180, 18)
                                                        : NSMakeRect(0, 0, 18, 180)] autorelease];
  if (horizontal) {
    [view setHorizontalScroller:scroller];
  } else {
    [view setVerticalScroller:scroller];
  }
  [view addSubview:scroller];
  [view tile];
  [scroller setAppearance:HXScrollerAppearanceMetal];
  setRecordingParts(scroller);
  [scroller setDelegate:delegate];
  [view setLineScroll:10];
  [view setPageScroll:20];
  [[view contentView] scrollToPoint:NSMakePoint(900, 900)];
  [view reflectScrolledClipView:[view contentView]];
  [window display];
  ASSERT_TRUE([scroller isEnabled]);
  NSClipView *clip = [view contentView];
  // Down and to the right; the clip view is not flipped.
  const auto place = [&] {
    return horizontal ? NSMinX([clip bounds]) : 2000 - NSMaxY([clip bounds]);
  };
  const CGFloat seen = horizontal ? NSWidth([clip bounds]) : NSHeight([clip bounds]);
  const auto pressPart = [&](NSScrollerPart part) {
    const NSRect rect = [scroller rectForPart:part];
    const CGFloat middle = horizontal ? NSMidX(rect) : NSMidY(rect);
    const CGFloat before = place();
    postUp(middle);
    press(scroller, at(middle));
    return place() - before;
  };
  EXPECT_EQ(pressPart(NSScrollerIncrementLine), 10);
  EXPECT_EQ(pressPart(NSScrollerDecrementLine), -10);
  EXPECT_EQ(pressPart(NSScrollerIncrementPage), seen - 20);
  EXPECT_EQ(pressPart(NSScrollerDecrementPage), 20 - seen);
  EXPECT_THAT(only({"will", "did"}), ElementsAre("will 5", "did 5", "will 4", "did 4", "will 3",
                                                 "did 3", "will 1", "did 1"));
}

}  // namespace
