// A divider is dragged: what the delegate is asked, what collapses, who hears of it.

#import "SplitTest.h"

#include <chrono>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

// Takes its time whenever its frame is set.
@interface OvTestSlowPane : OvTestPane {
 @public
  bool slow;
}
@end

@implementation OvTestSlowPane
- (void)setFrame:(NSRect)frame {
  [super setFrame:frame];
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(60);
  while (slow && std::chrono::steady_clock::now() < end) {
  }
}
@end

namespace {

// All rows are run for panes side by side and stacked: the numbers are those on the axis.
class SplitDrag : public SplitTest, public testing::WithParamInterface<bool> {
 protected:
  bool vertical() const { return GetParam(); }
  OvSplitView *make(std::initializer_list<CGFloat> thicknesses) {
    return makeSplit(thicknesses, vertical());
  }
  NSPoint onDividerAt(NSPoint start, CGFloat distance) const {
    return vertical() ? NSMakePoint(start.x + distance, start.y)
                      : NSMakePoint(start.x, start.y + distance);
  }
  NSSize size(CGFloat along) const {
    return vertical() ? NSMakeSize(along, 200) : NSMakeSize(200, along);
  }
};

INSTANTIATE_TEST_SUITE_P(Orientations, SplitDrag, testing::Bool(),
                         [](const auto &info) { return info.param ? "vertical" : "horizontal"; });

TEST_P(SplitDrag, MovesTheDividerAndTwoPanesOnly) {
  OvSplitView *split = make({96, 96, 96});
  OvTestPane *third = (OvTestPane *)pane(split, 2);
  third->framesSet = 0;
  drag(split, 0, {20});
  EXPECT_EQ(spans(split), "0+116 122+76 204+96");
  EXPECT_EQ(third->framesSet, 0);
  const NSRect divider = dividers(split).at(0);
  EXPECT_EQ(vertical() ? divider.origin.x : divider.origin.y, 116);
  EXPECT_EQ([pane(split, 0) frame].size, size(116));
  drag(split, 1, {-10.5});
  EXPECT_EQ(spans(split), "0+116 122+65.5 193.5+106.5");
}

TEST_P(SplitDrag, PressAloneIsAStepToWhereTheDividerIs) {
  OvSplitView *split = make({147, 147});
  NotificationCount will(NSSplitViewWillResizeSubviewsNotification, split);
  NotificationCount did(NSSplitViewDidResizeSubviewsNotification, split);
  drag(split, 0, {});
  EXPECT_EQ(spans(split), "0+147 153+147");
  EXPECT_EQ(will.count(), 1);
  EXPECT_EQ(did.count(), 1);
}

TEST_P(SplitDrag, EachNewPlaceIsAnnouncedAndTheSameOneIsNot) {
  OvSplitView *split = make({147, 147});
  NotificationCount will(NSSplitViewWillResizeSubviewsNotification, split);
  NotificationCount did(NSSplitViewDidResizeSubviewsNotification, split);
  drag(split, 0, {5, 5, 5, 7, 0});
  EXPECT_EQ(will.count(), 4) << "press, 5, 7, 0";
  EXPECT_EQ(did.count(), 4);
  EXPECT_EQ(did.lastUserInfo(), nil);
}

TEST_P(SplitDrag, KeepsToTheEdgesOfItsPanes) {
  OvSplitView *split = make({96, 96, 96});
  drag(split, 1, {-5000});
  EXPECT_EQ(spans(split), "0+96 102+0 108+192");
  drag(split, 1, {50});
  EXPECT_EQ(spans(split), "0+96 102+50 158+142");
}

TEST_P(SplitDrag, AtTheFarEdgeNothingIsLeftBehind) {
  LogCapture log;  // the platform complains of the negative thickness
  OvSplitView *split = make({96, 96, 96});
  drag(split, 0, {5000});
  EXPECT_EQ(spans(split), "0+198 204+0 204+96") << "the divider covers the edge";
}

TEST_P(SplitDrag, AsksInOrder) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitView:canCollapseSubview:",
                   "splitView:constrainMinCoordinate:ofSubviewAt:",
                   "splitView:constrainMaxCoordinate:ofSubviewAt:",
                   "splitView:constrainSplitPosition:ofSubviewAt:",
                   "splitView:constrainMinSize:ofSubviewAt:",
                   "splitView:constrainMaxSize:ofSubviewAt:",
                   "splitViewWillResizeSubviews:",
                   "splitViewDidResizeSubviews:"};
  delegate->minCoordinate = 142;
  delegate->maxCoordinate = 260;
  delegate->minSize = 145;
  delegate->maxSize = 255;
  [split setDelegate:delegate];
  journal().clear();
  drag(split, 1, {-70, 1, 80});
  EXPECT_THAT(journal(),
              ElementsAre("can 1", "can 2", "min 1 102", "max 1 300", "position 1 198",
                          "willResize", "didResize", "position 1 128", "minSize 1 142",
                          "willResize", "didResize", "position 1 199", "willResize", "didResize",
                          "position 1 278", "maxSize 1 260", "willResize", "didResize"));
  EXPECT_EQ(spans(split), "0+96 102+153 261+39");
}

TEST_P(SplitDrag, LimitsOutsideThePanesCountForNothing) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitView:constrainMinCoordinate:ofSubviewAt:",
                   "splitView:constrainMaxCoordinate:ofSubviewAt:"};
  delegate->minCoordinate = 20;
  delegate->maxCoordinate = 160;
  [split setDelegate:delegate];
  drag(split, 1, {-200});
  EXPECT_EQ(spans(split), "0+96 102+0 108+192");
  // Limits that cross: both are forgotten.
  delegate->minCoordinate = 280;
  drag(split, 1, {30});
  EXPECT_EQ(spans(split), "0+96 102+30 138+162");
}

TEST_P(SplitDrag, AnswersThatAreNoNumbersCountForNothing) {
  OvSplitView *split = make({147, 147});
  delegate->has = {
      "splitView:constrainMinCoordinate:ofSubviewAt:",
      "splitView:constrainMaxCoordinate:ofSubviewAt:",
      "splitView:constrainSplitPosition:ofSubviewAt:", "splitView:constrainMinSize:ofSubviewAt:"};
  delegate->minCoordinate = NAN;
  delegate->maxCoordinate = INFINITY;
  delegate->minSize = NAN;
  delegate->positions = {NAN, 100, -INFINITY};
  [split setDelegate:delegate];
  drag(split, 0, {10, -60});
  EXPECT_EQ(spans(split), "0+87 93+207") << "the last one is the pointer's";
  drag(split, 0, {-600});
  EXPECT_EQ(spans(split), "0+0 6+294");
}

TEST_P(SplitDrag, PositionMayBeConstrained) {
  OvSplitView *split = make({147, 147});
  delegate->has = {"splitView:constrainSplitPosition:ofSubviewAt:"};
  delegate->positions = {150, 200};
  [split setDelegate:delegate];
  drag(split, 0, {3});
  EXPECT_EQ(spans(split), "0+200 206+94");
}

TEST_P(SplitDrag, FloatAnswersAreUnderstood) {
  OvSplitView *split = make({147, 147});
  OvTestFloatDelegate *floats = [[[OvTestFloatDelegate alloc] init] autorelease];
  [split setDelegate:floats];
  drag(split, 0, {-500});
  EXPECT_EQ(spans(split), "0+40 46+254");
  drag(split, 0, {500});
  EXPECT_EQ(spans(split), "0+260 266+34");
  [split setDelegate:nil];
}

// Pane 1 spans 102 to 198 with a minimum at 142: half way is 122.
TEST_P(SplitDrag, CollapsesAndReturnsWithinOneDrag) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitView:canCollapseSubview:", "splitView:constrainMinCoordinate:ofSubviewAt:",
                   "splitViewWillExpandSubview:",   "splitViewDidExpandSubview:",
                   "splitViewWillCollapseSubview:", "splitViewDidCollapseSubview:"};
  delegate->collapsible = {1};
  delegate->minCoordinate = 142;
  [split setDelegate:delegate];
  journal().clear();
  drag(split, 1, {-75, -76.5});  // 123, 121.5
  EXPECT_THAT(journalOf({"willCollapse", "didCollapse", "willExpand", "didExpand"}),
              ElementsAre("willCollapse 1", "didCollapse 1"));
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
  EXPECT_EQ([pane(split, 1) frame].origin, NSMakePoint(kParked, kParked));
  EXPECT_EQ(vertical() ? [pane(split, 2) frame].origin.x : [pane(split, 2) frame].origin.y, 108);
  EXPECT_EQ(vertical() ? NSMaxX([pane(split, 2) frame]) : NSMaxY([pane(split, 2) frame]), 300);

  // The next one goes there and back.
  [split setSubviewAtIndex:1 isCollapsed:NO];
  for (NSUInteger i = 0; i < 3; ++i) {
    [pane(split, i) setFrame:vertical() ? NSMakeRect(0, 0, 96, 200) : NSMakeRect(0, 0, 200, 96)];
  }
  [split resizeSubviewsWithOldSize:[split bounds].size];
  journal().clear();
  drag(split, 1, {-90, -75, -20});
  EXPECT_THAT(journalOf({"willCollapse", "didCollapse", "willExpand", "didExpand"}),
              ElementsAre("willCollapse 1", "didCollapse 1", "willExpand 1", "didExpand 1"));
  EXPECT_EQ([pane(split, 1) frame],
            vertical() ? NSMakeRect(102, 0, 76, 200) : NSMakeRect(0, 102, 200, 76))
      << "the divider's place, not the remembered size";
}

TEST_P(SplitDrag, CollapsesThePaneBehind) {
  OvSplitView *split = make({147, 147});
  delegate->has = {"splitView:canCollapseSubview:",
                   "splitView:constrainMaxCoordinate:ofSubviewAt:"};
  delegate->collapsible = {1};
  delegate->maxCoordinate = 260;
  [split setDelegate:delegate];
  drag(split, 0, {132.5});  // 279.5
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:1]);
  EXPECT_EQ(spans(split), "0+260 266+34");
  drag(split, 0, {20});  // 280
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
  EXPECT_EQ([pane(split, 0) frame].size, size(300));
  EXPECT_EQ([pane(split, 1) frame].origin, NSMakePoint(kParked, kParked));
}

TEST_P(SplitDrag, CollapsedPaneIsDraggedOutAgain) {
  OvSplitView *split = make({147, 147});
  delegate->has = {"splitView:canCollapseSubview:"};
  delegate->collapsible = {0};
  [split setDelegate:delegate];
  [split setSubviewAtIndex:0 isCollapsed:YES];
  drag(split, 0, {60});
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_EQ(spans(split), "0+60 66+234");
}

TEST_P(SplitDrag, ExpandsBehindBeforeItCollapsesBefore) {
  OvSplitView *split = make({147, 147});
  delegate->has = {"splitView:canCollapseSubview:", "splitViewWillExpandSubview:",
                   "splitViewWillCollapseSubview:"};
  delegate->collapsible = {0, 1};
  [split setDelegate:delegate];
  [split setSubviewAtIndex:1 isCollapsed:YES];
  journal().clear();
  // In one step from one end to the other.
  drag(split, 0, {-5000});
  EXPECT_THAT(journalOf({"willExpand", "willCollapse"}),
              ElementsAre("willExpand 1", "willCollapse 0"));
}

TEST_P(SplitDrag, BetweenTwoPanesWithoutSpaceBothCollapse) {
  OvSplitView *split = make({96, 96, 96});
  // Panes 0 and 1 have no extent and no divider between them that is seen.
  delegate->has = {"splitView:canCollapseSubview:"};
  delegate->collapsible = {0, 1};
  [pane(split, 0) setFrame:NSMakeRect(0, 0, 0, 0)];
  [pane(split, 1) setFrame:NSMakeRect(0, 0, 0, 0)];
  [split setDelegate:delegate];
  drag(split, 0, {0});
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
}

TEST_P(SplitDrag, DoubleClickIsAskedAndNeverDrags) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitView:didDoubleClickInDivider:withModifierFlag:",
                   "splitView:canCollapseSubview:"};
  [split setDelegate:delegate];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, onDivider(split, 1),
                              NSShiftKeyMask | NSAlternateKeyMask, 2)];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, onDivider(split, 0), 0, 3)];
  EXPECT_THAT(journal(), ElementsAre("double 1 655360", "double 0 0"));
  delegate->has.clear();
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, onDivider(split, 0), 0, 2)];
  EXPECT_EQ(spans(split), "0+96 102+96 204+96");
}

TEST_P(SplitDrag, MouseBesideTheDividersIsIgnored) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitView:canCollapseSubview:"};
  [split setDelegate:delegate];
  [split mouseDown:mouseEvent(NSLeftMouseDown, split, NSMakePoint(50, 50))];
  EXPECT_THAT(journal(), IsEmpty());
}

TEST_P(SplitDrag, MayRemoveAPaneOnTheWay) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitViewDidResizeSubviews:"};
  delegate->onLine = [&](const std::string &) {
    if ([[split subviews] count] == 3) [pane(split, 2) removeFromSuperview];
  };
  [split setDelegate:delegate];
  drag(split, 1, {10, 20, 30});
  discardPending();
  EXPECT_EQ([[split subviews] count], 2U);
  delegate->onLine = nullptr;
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_EQ(dividers(split).size(), 1U);
}

TEST_P(SplitDrag, MayTakeTheViewOutOfItsWindowOnTheWay) {
  OvSplitView *split = make({96, 96, 96});
  delegate->has = {"splitViewDidResizeSubviews:"};
  delegate->onLine = [&](const std::string &) { [split removeFromSuperview]; };
  [split setDelegate:delegate];
  [[split retain] autorelease];
  drag(split, 1, {10, 20, 30});
  discardPending();
  EXPECT_EQ([split window], nil);
  [split setDelegate:nil];
}

TEST_P(SplitDrag, FollowsAPointerThatMovesWhileTheLoopRuns) {
  OvSplitView *split = make({96, 96, 96});
  show([split window]);
  OvTestPane *first = (OvTestPane *)pane(split, 0);
  const NSPoint start = onDivider(split, 0);
  const auto move = [&](CGFloat distance) {
    return [=, this] { post(mouseEvent(NSLeftMouseDragged, split, onDividerAt(start, distance))); };
  };
  std::vector<std::string> seen;
  delegate->has = {"splitViewDidResizeSubviews:"};
  delegate->onLine = [&](const std::string &) { seen.push_back(spans(split)); };
  [split setDelegate:delegate];
  [[split window] display];
  first->drawn = 0;
  int drawnOnTheWay = 0;
  const auto wait = [] {};
  EXPECT_TRUE(runWithSteps({move(10), wait, move(20), wait, move(-30), wait, wait,
                            [&] {
                              drawnOnTheWay = first->drawn;
                              post(mouseEvent(NSLeftMouseUp, split, start));
                            }},
                           [&] { [split mouseDown:mouseEvent(NSLeftMouseDown, split, start)]; }));
  EXPECT_THAT(seen, ElementsAre("0+96 102+96 204+96", "0+106 112+86 204+96", "0+116 122+76 204+96",
                                "0+66 72+126 204+96"));
  EXPECT_GE(drawnOnTheWay, 2) << "the screen follows, too";
}

// Positions that pile up while a pane lays itself out are left out, unless a limit lies
// between; the delegate is asked about each.
TEST_P(SplitDrag, SlowPanesDoNotLagBehind) {
  OvSplitView *split = make({300});
  OvTestSlowPane *slow =
      [[[OvTestSlowPane alloc] initWithFrame:vertical() ? NSMakeRect(0, 0, 300, 200)
                                                        : NSMakeRect(0, 0, 200, 300)] autorelease];
  [split addSubview:slow];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  ASSERT_EQ(spans(split), "0+147 153+147");
  slow->slow = true;
  delegate->has = {"splitView:canCollapseSubview:", "splitView:constrainSplitPosition:ofSubviewAt:",
                   "splitView:constrainMinCoordinate:ofSubviewAt:", "splitViewWillCollapseSubview:",
                   "splitViewDidResizeSubviews:"};
  delegate->collapsible = {0};
  delegate->minCoordinate = 40;
  [split setDelegate:delegate];
  journal().clear();
  std::vector<CGFloat> distances;
  for (int i = 1; i <= 50; ++i) distances.push_back(i);
  drag(split, 0, distances);
  EXPECT_EQ(spans(split), "0+197 203+97");
  EXPECT_EQ(journalOf({"position"}).size(), 51U);
  // The press is where the divider was, so the first step that takes its time is the second.
  EXPECT_EQ(journalOf({"didResize"}).size(), 3U);

  journal().clear();
  drag(split, 0, {-10, -20, -30, -195, -30, -20, -10});
  EXPECT_EQ(journalOf({"willCollapse"}).size(), 1U) << "the short visit to the edge counts";
  EXPECT_EQ(spans(split), "0+187 193+107");
}

TEST_P(SplitDrag, CursorAndToolTipsAreAtTheNewPlaceAfterwards) {
  OvSplitView *split = make({147, 147});
  drag(split, 0, {20});
  ASSERT_EQ(cursorRects(split).size(), 1U);
  EXPECT_EQ(cursorRects(split).at(0).second, dividers(split).at(0));
}

TEST_P(SplitDrag, AmongHundredPanes) {
  OvSplitView *split = makeSplit(std::vector<CGFloat>(100, 24), vertical(), 2994);
  for (NSUInteger i = 0; i < 100; ++i) ((OvTestPane *)pane(split, i))->framesSet = 0;
  std::vector<CGFloat> distances;
  for (int i = 0; i < 40; ++i) distances.push_back(i % 2 ? 10 : -10);
  drag(split, 50, distances);
  for (NSUInteger i = 0; i < 100; ++i) {
    EXPECT_EQ(((OvTestPane *)pane(split, i))->framesSet, i == 50 || i == 51 ? 40 : 0) << i;
  }
}

}  // namespace
