// What a scroll view tells its delegate, and when it tells nothing.

#include <cstring>

#import "ScrollViewTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *kWill = "scroller:inScrollView:willTrackPart:";
constexpr const char *kDid = "scroller:inScrollView:didTrackPart:";
constexpr const char *kScroll = "scrollViewDidScrollContent:";

class ScrollViewDelegate : public ScrollViewTest {
 protected:
  std::vector<std::string> lines() { return [delegate summary]; }
};

// MARK: Scrolling by hand

TEST_F(ScrollViewDelegate, ADragOfTheKnobIsToldFromBeginningToEnd) {
  HXScrollView *scroll = makeRelayingScroll();
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll...", "did v 2"));
  EXPECT_GE([delegate scrolls], 2);
  EXPECT_EQ(delegate->lastScroller, [scroll verticalScroller]);
  EXPECT_EQ(delegate->lastView, scroll);
}

TEST_F(ScrollViewDelegate, HorizontallyToo) {
  HXScrollView *scroll = makeRelayingScroll();
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10, 20, 30 }));
  EXPECT_THAT(lines(), ElementsAre("will h 2", "scroll...", "did h 2"));
  EXPECT_EQ(delegate->lastScroller, [scroll horizontalScroller]);
}

TEST_F(ScrollViewDelegate, OneLineForEachChangeOfTheBounds) {
  HXScrollView *scroll = makeRelayingScroll();
  NotificationCount changes(NSViewBoundsDidChangeNotification, [scroll contentView]);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30, 20 }));
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10 }));
  EXPECT_GT(changes.count(), 2);
  EXPECT_EQ([delegate scrolls], changes.count());
}

TEST_F(ScrollViewDelegate, AKnobThatDoesNotMoveScrollsNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { -10, -20 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "did v 2"));
}

TEST_F(ScrollViewDelegate, ArrowsAndPagesAreToldWithTheirParts) {
  HXScrollView *scroll = makeRelayingScroll();
  struct Row {
    NSScrollerPart part;
    bool forward;
  };
  for (Row row : {Row{NSScrollerIncrementLine, true}, Row{NSScrollerDecrementLine, false},
                  Row{NSScrollerIncrementPage, true}, Row{NSScrollerDecrementPage, false}}) {
    [[scroll documentView] scrollPoint:NSMakePoint(200, 175)];
    for (bool vertical : {true, false}) {
      SCOPED_TRACE(std::to_string(row.part) + (vertical ? " vertical" : " horizontal"));
      NSScroller *scroller = vertical ? [scroll verticalScroller] : [scroll horizontalScroller];
      const CGFloat before = vertical ? scrolledDown(scroll) : scrolledRight(scroll);
      delegate->lines.clear();
      EXPECT_TRUE(pressPart(scroller, row.part));
      const CGFloat after = vertical ? scrolledDown(scroll) : scrolledRight(scroll);
      EXPECT_EQ(after > before, row.forward);
      EXPECT_NE(after, before);
      const std::string part = std::string(vertical ? "v " : "h ") + std::to_string(row.part);
      ASSERT_EQ(lines().size(), 3u);
      EXPECT_EQ(lines().front(), "will " + part);
      EXPECT_EQ(lines().back(), "did " + part);
      EXPECT_GT([delegate scrolls], 0);
    }
  }
}

TEST_F(ScrollViewDelegate, WhileAScrollerIsTrackedItSaysSo) {
  HXScrollView *scroll = makeRelayingScroll();
  std::vector<std::string> tracked;
  delegate->onLine = [&](const std::string &line) {
    tracked.push_back(line + ([scroll isVerticalScrollerTraking] ? " v" : "") +
                      ([scroll isHorizontalScrollerTraking] ? " h" : ""));
  };
  EXPECT_FALSE([scroll isVerticalScrollerTraking]);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 30 }));
  EXPECT_FALSE([scroll isVerticalScrollerTraking]);
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 30 }));
  EXPECT_FALSE([scroll isHorizontalScrollerTraking]);
  delegate->onLine = nullptr;
  EXPECT_THAT(tracked, ElementsAre("will v 2 v", "scroll v", "did v 2 v", "will h 2 h", "scroll h",
                                   "did h 2 h"));
}

TEST_F(ScrollViewDelegate, ADisabledScrollerIsNotTracked) {
  HXScrollView *scroll = makeRelayingScroll();
  [[scroll documentView] setFrameSize:NSMakeSize(10, 10)];
  NSScroller *scroller = [scroll verticalScroller];
  ASSERT_FALSE([scroller isEnabled]);
  press(scroller, NSMakePoint(9, 60));
  release(scroller, NSMakePoint(9, 60));
  EXPECT_THAT(lines(), IsEmpty());
}

// MARK: Which scrollers tell

TEST_F(ScrollViewDelegate, ScrollersItMadeTellOfTheContentOnly) {
  HXScrollView *scroll = makeScroll();
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10, 20 }));
  EXPECT_TRUE(pressPart([scroll verticalScroller], NSScrollerIncrementLine));
  EXPECT_THAT(lines(), ElementsAre("scroll..."));
}

TEST_F(ScrollViewDelegate, OneLineHasThemTellOfTheirTracking) {
  HXScrollView *scroll = makeScroll();
  [(HXScroller *)[scroll verticalScroller] setDelegate:scroll];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll...", "did v 2"));
}

TEST_F(ScrollViewDelegate, AScrollerOfThePlatformTellsOfTheContentOnly) {
  HXScrollView *scroll = makeScroll();
  [scroll setVerticalScroller:[[NSScroller new] autorelease]];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_THAT(lines(), ElementsAre("scroll..."));
}

TEST_F(ScrollViewDelegate, AScrollerInstalledLaterTellsOfTheContentOnly) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll setVerticalScroller:[[HXScroller new] autorelease]];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_THAT(lines(), ElementsAre("scroll..."));
  delegate->lines.clear();
  EXPECT_TRUE(dragKnob([scroll horizontalScroller], { 10 }));
  EXPECT_THAT(lines(), ElementsAre("will h 2", "scroll", "did h 2"));
}

TEST_F(ScrollViewDelegate, AContentViewInstalledLaterIsNotObserved) {
  HXScrollView *scroll = makeRelayingScroll();
  const auto first = [[[scroll contentView] retain] autorelease];
  NSClipView *other = [[[NSClipView alloc] initWithFrame:[[scroll contentView] frame]] autorelease];
  [other setDocumentView:[[[OvTestDocument alloc] initWithFrame:NSMakeRect(0, 0, 600, 500)]
                             autorelease]];
  [scroll setContentView:other];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_GT(scrolledDown(scroll), 0);
  EXPECT_THAT(lines(), ElementsAre("will v 2", "did v 2"));
  // Not even one that was there before.
  delegate->lines.clear();
  [scroll setContentView:first];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20 }));
  EXPECT_GT(scrolledDown(scroll), 0);
  EXPECT_THAT(lines(), ElementsAre("will v 2", "did v 2"));
}

TEST_F(ScrollViewDelegate, TheSameContentViewAgainIsStillObserved) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll setContentView:[scroll contentView]];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll", "did v 2"));
}

TEST_F(ScrollViewDelegate, AnotherDocumentIsContentAsWell) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll setDocumentView:nil];
  [scroll setDocumentView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 900, 900)] autorelease]];
  // This one is not flipped, and shows its end.
  [[scroll documentView] scrollPoint:NSMakePoint(0, 900)];
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 20, 40 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll...", "did v 2"));
}

TEST_F(ScrollViewDelegate, TwoScrollViewsTellWhichOfThemItIs) {
  HXScrollView *one = makeRelayingScroll();
  HXScrollView *other = makeRelayingScroll();
  EXPECT_TRUE(dragKnob([one verticalScroller], { 10 }));
  EXPECT_EQ(delegate->lastView, one);
  EXPECT_TRUE(dragKnob([other verticalScroller], { 10 }));
  EXPECT_EQ(delegate->lastView, other);
}

TEST_F(ScrollViewDelegate, AScrollViewInAnotherTellsForItselfOnly) {
  HXScrollView *outer = makeScroll();
  HXScrollView *inner =
      [[[HXScrollView alloc] initWithFrame:NSMakeRect(0, 0, 120, 100)] autorelease];
  [inner setHasVerticalScroller:YES];
  [inner setDocumentView:[[[OvTestDocument alloc] initWithFrame:NSMakeRect(0, 0, 50, 500)]
                             autorelease]];
  OvTestScrollDelegate *innerDelegate = [[OvTestScrollDelegate new] autorelease];
  [inner setDelegate:innerDelegate];
  [[outer documentView] addSubview:inner];
  EXPECT_TRUE(dragKnob([inner verticalScroller], { 10 }));
  EXPECT_GT([innerDelegate scrolls], 0);
  EXPECT_THAT(lines(), IsEmpty());
  innerDelegate->lines.clear();
  EXPECT_TRUE(dragKnob([outer verticalScroller], { 10 }));
  EXPECT_GT([delegate scrolls], 0);
  EXPECT_THAT(innerDelegate->lines, IsEmpty());
}

// MARK: What tells nothing

TEST_F(ScrollViewDelegate, ScrollingByCodeTellsNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  NotificationCount changes(NSViewBoundsDidChangeNotification, [scroll contentView]);
  NSView *document = [scroll documentView];
  [document scrollPoint:NSMakePoint(100, 100)];
  EXPECT_EQ(changes.take(), 1);
  EXPECT_TRUE([document scrollRectToVisible:NSMakeRect(500, 400, 10, 10)]);
  EXPECT_GT(changes.take(), 0);
  [[scroll contentView] scrollToPoint:NSMakePoint(10, 10)];
  EXPECT_EQ(changes.take(), 1);
  [[scroll contentView] setBoundsOrigin:NSMakePoint(20, 20)];
  EXPECT_EQ(changes.take(), 1);
  [document setFrameSize:NSMakeSize(100, 100)];
  EXPECT_GT(changes.take(), 0);
  [document setFrameSize:NSMakeSize(600, 500)];
  [scroll pageDown:nil];
  EXPECT_EQ(changes.take(), 1);
  [[scroll verticalScroller] setFloatValue:0.5];
  [[scroll verticalScroller] sendAction:[[scroll verticalScroller] action] to:scroll];
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ScrollViewDelegate, KeysTellNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  [[scroll window] makeFirstResponder:[scroll documentView]];
  const unichar keys[] = {NSPageDownFunctionKey, NSDownArrowFunctionKey};
  type([scroll window], [NSString stringWithCharacters:keys length:1]);
  const CGFloat page = scrolledDown(scroll);
  EXPECT_GT(page, 20);
  type([scroll window], [NSString stringWithCharacters:keys + 1 length:1]);
  EXPECT_GT(scrolledDown(scroll), page);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ScrollViewDelegate, TheWheelTellsNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  const auto turn = [&](NSView *view) {
    const NSPoint point = [view convertPoint:NSMakePoint(9, 9) toView:nil];
    [NSApp sendEvent:[NSEvent mouseEventWithType:NSScrollWheel
                                        location:point
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:[[scroll window] windowNumber]
                                         context:[[scroll window] graphicsContext]
                                     eventNumber:1
                                      clickCount:0
                                        pressure:0
                                    buttonNumber:0
                                          deltaX:0
                                          deltaY:-3
                                          deltaZ:0]];
  };
  turn([scroll documentView]);
  const CGFloat once = scrolledDown(scroll);
  EXPECT_GT(once, 0);
  turn([scroll verticalScroller]);
  EXPECT_GT(scrolledDown(scroll), once);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ScrollViewDelegate, AutomaticScrollingTellsNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  NSEvent *below = mouseEvent(NSLeftMouseDragged, scroll, NSMakePoint(50, 180));
  EXPECT_TRUE([[scroll documentView] autoscroll:below]);
  EXPECT_GT(scrolledDown(scroll), 0);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ScrollViewDelegate, SettingUpTellsNothing) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll setFrameSize:NSMakeSize(100, 100)];
  [scroll setHasVerticalScroller:NO];
  [scroll setHasVerticalScroller:YES];
  [scroll setDocumentView:nil];
  EXPECT_THAT(lines(), IsEmpty());
}

// MARK: Delegates

TEST_F(ScrollViewDelegate, EachMethodIsOptional) {
  HXScrollView *scroll = makeRelayingScroll();
  delegate->lacks = {kWill};
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(lines(), ElementsAre("scroll", "did v 2"));
  delegate->lines.clear();
  delegate->lacks = {kDid};
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll"));
  delegate->lines.clear();
  delegate->lacks = {kScroll};
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(lines(), ElementsAre("will v 2", "did v 2"));
  delegate->lines.clear();
  delegate->lacks = {kWill, kDid, kScroll};
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ScrollViewDelegate, ItIsAskedAtEachCall) {
  HXScrollView *scroll = makeRelayingScroll();
  delegate->lacks = {kScroll, kDid};
  delegate->onLine = [this](const std::string &line) {
    if (line == "will v 2") delegate->lacks = {kDid};
    if (line == "scroll") delegate->lacks = {kScroll};
  };
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30 }));
  delegate->onLine = nullptr;
  EXPECT_THAT(delegate->lines, ElementsAre("will v 2", "scroll", "did v 2"));
}

TEST_F(ScrollViewDelegate, WithoutDelegateItScrollsAllTheSame) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll setDelegate:nil];
  EXPECT_EQ([scroll delegate], nil);
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 30 }));
  EXPECT_GT(scrolledDown(scroll), 50);
}

TEST_F(ScrollViewDelegate, ItIsNotRetained) {
  HXScrollView *scroll = makeScroll();
  const NSUInteger before = [delegate retainCount];
  [scroll setDelegate:nil];
  [scroll setDelegate:delegate];
  EXPECT_EQ([delegate retainCount], before);
  EXPECT_EQ([scroll delegate], delegate);
}

TEST_F(ScrollViewDelegate, ItMayChangeWhileAScrollerIsTracked) {
  HXScrollView *scroll = makeRelayingScroll();
  OvTestScrollDelegate *other = [[OvTestScrollDelegate new] autorelease];
  delegate->onLine = [&](const std::string &) { [scroll setDelegate:other]; };
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  delegate->onLine = nullptr;
  EXPECT_THAT(delegate->lines, ElementsAre("will v 2"));
  EXPECT_THAT(other->lines, ElementsAre("scroll", "did v 2"));
}

TEST_F(ScrollViewDelegate, WhatItScrollsIsToldAgain) {
  HXScrollView *scroll = makeRelayingScroll();
  bool done = false;
  delegate->onLine = [&](const std::string &line) {
    if (line != "scroll" || done) return;
    done = true;
    [[scroll documentView] scrollPoint:NSMakePoint(77, scrolledDown(scroll))];
  };
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10 }));
  delegate->onLine = nullptr;
  EXPECT_EQ([delegate scrolls], 2);
  EXPECT_EQ(scrolledRight(scroll), 77);
}

// A list that loads more when its end comes near, with scrollers that come when they are needed.
TEST_F(ScrollViewDelegate, TheDocumentMayGrowWhileTheKnobIsDragged) {
  HXScrollView *scroll = makeRelayingScroll();
  [[scroll documentView] setFrameSize:NSMakeSize(100, 500)];
  [scroll setAutohidesScrollers:YES];
  [scroll reflectScrolledClipView:[scroll contentView]];
  ASSERT_FALSE([scroll hasHorizontalScroller]);
  int before = 0;
  delegate->onLine = [&](const std::string &line) {
    if (line != "scroll" || [scroll hasHorizontalScroller]) return;
    [[scroll documentView] setFrameSize:NSMakeSize(600, 900)];
    before = [delegate scrolls];
  };
  EXPECT_TRUE(dragKnob([scroll verticalScroller], { 10, 20, 30, 40 }));
  delegate->onLine = nullptr;
  ASSERT_TRUE([scroll hasHorizontalScroller]);
  EXPECT_EQ(layoutFault(scroll), "");
  EXPECT_GE([delegate scrolls], before + 2) << "the drag goes on";
  EXPECT_THAT(lines(), ElementsAre("will v 2", "scroll...", "did v 2"));
}

TEST_F(ScrollViewDelegate, OddMessagesAreSurvived) {
  HXScrollView *scroll = makeRelayingScroll();
  [scroll contentBoundsDidChange:nil];
  EXPECT_THAT(lines(), IsEmpty()) << "nothing is tracked";
  [scroll scroller:nil willTrackPart:static_cast<NSScrollerPart>(99)];
  [scroll scroller:nil didTrackPart:NSScrollerNoPart];
  EXPECT_THAT(lines(), ElementsAre("will ? 99", "did ? 0"));
}

}  // namespace
