// Panes and dividers in a view that is resized, shown and filled.

#import "SplitTest.h"

#include <cmath>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Counts the layouts.
@interface OvTestCountingSplit : OvSplitView {
 @public
  int layouts;
  int dividersDrawn;
}
@end

@implementation OvTestCountingSplit
- (void)adjustSubviews {
  layouts++;
  [super adjustSubviews];
}
- (void)drawDividerInRect:(NSRect)rect {
  dividersDrawn++;
  [[NSColor redColor] set];
  NSRectFill(rect);
}
@end

namespace {

class SplitLayout : public SplitTest {
 protected:
  OvTestCountingSplit *counting(NSWindow *window) {
    OvTestCountingSplit *split =
        [[[OvTestCountingSplit alloc] initWithFrame:NSMakeRect(10, 20, 300, 200)] autorelease];
    [split setVertical:YES];
    for (int i = 0; i < 2; ++i) {
      [split addSubview:[[[OvTestPane alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease]];
    }
    [[window contentView] addSubview:split];
    return split;
  }
};

TEST_F(SplitLayout, SharesSpaceInProportion) {
  EXPECT_EQ(spans(makeSplit({49, 98})), "0+98 104+196");
  EXPECT_EQ(spans(makeSplit({49, 98}, false)), "0+98 104+196");
  OvSplitView *split = makeSplit({96, 96, 96});
  [split setFrameSize:NSMakeSize(588, 120)];
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 192, 120));
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(198, 0, 192, 120));
  EXPECT_EQ([pane(split, 2) frame], NSMakeRect(396, 0, 192, 120));
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(192, 0, 6, 120), NSMakeRect(390, 0, 6, 120)));
}

TEST_F(SplitLayout, ExtraPointsGoToDifferentPanes) {
  std::set<std::string> seen;
  for (int i = 0; i < 200; ++i) {
    OvSplitView *split = makeSplit({100, 100, 101}, true, 313);
    ASSERT_EQ(spans(split), "0+100 106+100 212+101");
    [split setFrameSize:NSMakeSize(315, 200)];
    seen.insert(spans(split));
  }
  EXPECT_THAT(
      seen, ElementsAre("0+100 106+101 213+102", "0+101 107+100 213+102", "0+101 107+101 214+101"));
}

TEST_F(SplitLayout, LastShownPaneAbsorbsFractions) {
  OvSplitView *split = makeSplit({147, 147});
  [split setFrameSize:NSMakeSize(300.75, 200)];
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(153, 0, 147.75, 200));
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 294.75, 200));
}

TEST_F(SplitLayout, NoShownPaneWithAThicknessGivesAllToTheFirstShown) {
  OvSplitView *split = makeSplit({0, 0, 0});
  EXPECT_EQ(spans(split), "0+288 0+0 0+0");
  OvSplitView *other = makeSplit({96, 96, 96});
  [other setSubviewAtIndex:0 isCollapsed:YES];
  [pane(other, 1) setFrame:NSMakeRect(0, 0, 0, 10)];
  [pane(other, 2) setFrame:NSMakeRect(0, 0, 0.5, 10)];
  [other resizeSubviewsWithOldSize:[other bounds].size];
  EXPECT_EQ([pane(other, 1) frame], NSMakeRect(6, 0, 288, 200));
  EXPECT_TRUE([other isSubviewCollapsedAtIndex:0]);
}

TEST_F(SplitLayout, APaneWithoutThicknessIsLeftAlone) {
  OvSplitView *split = makeSplit({144, 0, 144});
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(0, 0, 0, 200));
  EXPECT_EQ(spans(split), "0+144 0+0 156+144");
}

TEST_F(SplitLayout, TooSmallAViewLeavesThePanesAlone) {
  OvSplitView *split = makeSplit({96, 96, 96});
  [split setFrameSize:NSMakeSize(10, 200)];
  EXPECT_EQ(spans(split), "0+96 102+96 204+96");
  [split setFrameSize:NSMakeSize(0, 0)];
  [split setFrameSize:NSMakeSize(588, 200)];
  EXPECT_EQ(spans(split), "0+192 198+192 396+192");
}

TEST_F(SplitLayout, WithoutPanesOrWithOne) {
  OvSplitView *none = makeSplit({});
  [none setFrameSize:NSMakeSize(10, 10)];
  [none adjustSubviews];
  EXPECT_THAT(dividers(none), IsEmpty());
  OvSplitView *one = makeSplit({10});
  EXPECT_EQ(spans(one), "0+300");
  EXPECT_THAT(dividers(one), IsEmpty());
}

TEST_F(SplitLayout, AdjustingAloneMovesNoDividerAndPostsNothing) {
  OvSplitView *split = makeSplit({147, 147});
  NotificationCount did(NSSplitViewDidResizeSubviewsNotification, split);
  [pane(split, 0) setFrame:NSMakeRect(0, 0, 49, 200)];
  [pane(split, 1) setFrame:NSMakeRect(0, 0, 98, 200)];
  [split adjustSubviews];
  EXPECT_EQ(spans(split), "0+98 104+196");
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(147, 0, 6, 200)));
  EXPECT_EQ(did.count(), 0);
}

TEST_F(SplitLayout, ResizePostsWillAndDidWithoutUserInfo) {
  OvSplitView *split = makeSplit({147, 147});
  NotificationCount will(NSSplitViewWillResizeSubviewsNotification, split);
  NotificationCount did(NSSplitViewDidResizeSubviewsNotification, split);
  [split setFrame:NSMakeRect(0, 0, 500, 100)];
  EXPECT_EQ(will.count(), 1);
  EXPECT_EQ(did.count(), 1);
  EXPECT_EQ(will.lastUserInfo(), nil);
  EXPECT_EQ(did.lastUserInfo(), nil);
}

TEST_F(SplitLayout, AMoveLaysNothingOut) {
  OvTestCountingSplit *split = counting(makeWindow(NSMakeSize(400, 300)));
  [split resizeSubviewsWithOldSize:[split bounds].size];
  split->layouts = 0;
  [split setFrame:NSMakeRect(30, 40, 300, 200)];
  [split setFrameOrigin:NSMakePoint(1, 2)];
  EXPECT_EQ(split->layouts, 0);
  EXPECT_EQ([split frame], NSMakeRect(1, 2, 300, 200));
  [split setFrame:NSMakeRect(30, 40, 301, 200)];
  EXPECT_EQ(split->layouts, 1);
}

TEST_F(SplitLayout, FirstDisplayLaysNothingOutAgain) {
  NSWindow *window = makeWindow(NSMakeSize(400, 300));
  OvTestCountingSplit *split = counting(window);
  [split resizeSubviewsWithOldSize:[split bounds].size];
  split->layouts = 0;
  show(window);
  [window display];
  EXPECT_EQ(split->layouts, 0);
  EXPECT_GT(split->dividersDrawn, 0);
}

TEST_F(SplitLayout, PanesAddedInCodeHaveTheirDividersOnceShown) {
  NSWindow *window = makeWindow(NSMakeSize(400, 300));
  OvTestCountingSplit *split = counting(window);
  EXPECT_THAT(dividers(split), IsEmpty()) << "adding lays nothing out";
  show(window);
  [window display];
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(50, 0, 6, 200)));
  EXPECT_EQ(split->layouts, 0);
  [pane(split, 1) removeFromSuperview];
  [window display];
  EXPECT_THAT(dividers(split), IsEmpty());
}

TEST_F(SplitLayout, AwakeFromNibPlacesTheDividers) {
  OvTestCountingSplit *split = counting(makeWindow(NSMakeSize(400, 300)));
  [split awakeFromNib];
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(50, 0, 6, 200)));
  EXPECT_EQ(split->layouts, 0);
}

TEST_F(SplitLayout, RemovedPanesTakeTheirDividersAlong) {
  OvSplitView *split = makeSplit({96, 96, 96});
  [pane(split, 2) removeFromSuperview];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(147, 0, 6, 200)));
}

TEST_F(SplitLayout, UnchangedPanesAreNotTouched) {
  OvSplitView *split = makeSplit({147, 147});
  OvTestPane *first = (OvTestPane *)pane(split, 0);
  first->framesSet = 0;
  first->marked = 0;
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_EQ(first->framesSet, 0);
  EXPECT_EQ(first->marked, 0);
  [split setFrameSize:NSMakeSize(594, 200)];
  EXPECT_EQ(first->framesSet, 1);
  EXPECT_GE(first->marked, 1);
}

TEST_F(SplitLayout, ShareListsAreAppliedAsTheyStand) {
  OvSplitView *split = makeSplit({96, 96, 96});
  [split _updateSubviewsWithThicknesses:nil];
  [split _updateSubviewsWithThicknesses:@[]];
  EXPECT_EQ(spans(split), "0+96 102+96 204+96");
  [split setSubviewAtIndex:0 isCollapsed:YES];
  NotificationCount expanded(OvSplitViewSubviewDidExpandNotification, split);
  [split _updateSubviewsWithThicknesses:@[ @10, @20, @30 ]];
  EXPECT_EQ(expanded.count(), 1);
  EXPECT_EQ(spans(split), "0+10 16+20 42+258");
}

TEST_F(SplitLayout, AnotherOrientationWaitsForTheNextResize) {
  OvSplitView *split = makeSplit({147, 147});
  [split setVertical:NO];
  EXPECT_FALSE([split isVertical]);
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 147, 200));
  EXPECT_EQ(currentCursor(split), [NSCursor resizeUpDownCursor]);
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 300, 97));
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(0, 103, 300, 97));
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(0, 97, 300, 6)));
}

TEST_F(SplitLayout, ImpossibleFramesAreSurvived) {
  for (CGFloat odd : {CGFloat(NAN), CGFloat(INFINITY), CGFloat(1e30), CGFloat(4294967296.0)}) {
    OvSplitView *split = makeSplit({147, 147});
    [pane(split, 0) setFrame:NSMakeRect(0, 0, odd, 200)];
    [split setFrameSize:NSMakeSize(400, 200)];
    [split setFrameSize:NSMakeSize(300, 200)];
    EXPECT_THAT(dividers(split), SizeIs(1));
    EXPECT_GE([pane(split, 1) frame].size.width, 1) << odd;
  }
}

TEST_F(SplitLayout, HundredPanesFillTheView) {
  OvSplitView *split = makeSplit(std::vector<CGFloat>(100, 20), true, 3000);
  EXPECT_THAT(dividers(split), SizeIs(99));
  CGFloat position = 0;
  for (NSUInteger i = 0; i < 100; ++i) {
    const NSRect frame = [pane(split, i) frame];
    EXPECT_EQ(frame.origin.x, position);
    EXPECT_GE(frame.size.width, 24);
    position += frame.size.width + 6;
  }
  EXPECT_EQ(position - 6, 3000);
}

TEST_F(SplitLayout, FindsTheDividerUnderAPoint) {
  OvSplitView *split = makeSplit({96, 96, 96});
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(95.9, 10)], NSNotFound);
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(96, 10)], 0);
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(101.9, 10)], 0);
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(102, 10)], NSNotFound);
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(198, 9999)], 1) << "across counts nothing";
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(149.9, 10)], 0);
  EXPECT_EQ([split _dividerIndexUnderMouse:NSMakePoint(150, 10)], 1);
}

TEST_F(SplitLayout, DrawsTheDividersInTheDirtyRectangleAndNothingElse) {
  NSWindow *window = makeWindow(NSMakeSize(400, 300));
  OvTestCountingSplit *split = counting(window);
  [split addSubview:[[[OvTestPane alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease]];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  show(window);
  const Picture picture = pictureOf(split);
  const NSRect first = dividers(split).at(0);
  EXPECT_TRUE(near(picture.at((int)NSMinX(first), 100), kRed));
  EXPECT_TRUE(near(picture.at((int)NSMinX(first) - 1, 100), kWhite));
  EXPECT_TRUE(near(picture.at((int)NSMaxX(first) - 1, 100), kRed));
  EXPECT_TRUE(near(picture.at((int)NSMaxX(first), 100), kWhite));
  [split lockFocus];
  split->dividersDrawn = 0;
  [split drawRect:NSMakeRect(NSMinX(first) - 5, 0, 7, 10)];
  EXPECT_EQ(split->dividersDrawn, 1);
  [split drawRect:NSMakeRect(0, 0, 10, 200)];
  EXPECT_EQ(split->dividersDrawn, 1);
  [split unlockFocus];
}

}  // namespace
