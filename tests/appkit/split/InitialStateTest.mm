// What a new split view is, and what it owns.

#import "SplitTest.h"

using namespace ov::test;

namespace {

class SplitInitialState : public SplitTest {};

TEST_F(SplitInitialState, IsHorizontalUnlockedAndEmpty) {
  OvSplitView *split = [[[OvSplitView alloc] initWithFrame:NSMakeRect(1, 2, 30, 40)] autorelease];
  EXPECT_FALSE([split isVertical]);
  EXPECT_FALSE([split mouseLocked]);
  EXPECT_EQ([split toolTip], nil);
  EXPECT_EQ([split layoutAutosaveName], nil);
  EXPECT_EQ([split delegate], nil);
  EXPECT_EQ([split frame], NSMakeRect(1, 2, 30, 40));
  EXPECT_TRUE(dividers(split).empty());
  EXPECT_EQ([[split valueForKey:@"collapsedSubviews"] count], 0U);
  EXPECT_EQ(currentCursor(split), [NSCursor resizeUpDownCursor]);
}

TEST_F(SplitInitialState, VariablesAreThoseOfTheInterface) {
  EXPECT_TRUE([OvSplitView isSubclassOfClass:[NSSplitView class]]);
  EXPECT_EQ([HXSplitView superclass], [NSSplitView class]);
  OvSplitView *split = makeSplit({147, 147});
  EXPECT_EQ([split valueForKey:@"verticalCursor"], [NSCursor resizeLeftRightCursor]);
  EXPECT_EQ([split valueForKey:@"horizontalCursor"], [NSCursor resizeUpDownCursor]);
  EXPECT_FALSE([[split valueForKey:@"mouseLocked"] boolValue]);
  [split setToolTip:@"tip"];
  EXPECT_EQ([split valueForKey:@"tooltip"], @"tip");
  EXPECT_TRUE([split setLayoutAutosaveName:@"SplitInitialState"]);
  EXPECT_TRUE([[split valueForKey:@"autosaveName"] isEqual:@"SplitInitialState"]);
  [split setLayoutAutosaveName:nil];
}

TEST_F(SplitInitialState, NotificationNamesEqualTheirConstants) {
  EXPECT_TRUE([OvSplitViewSubviewWillExpandNotification
      isEqual:@"OvSplitViewSubviewWillExpandNotification"]);
  EXPECT_TRUE(
      [OvSplitViewSubviewDidExpandNotification isEqual:@"OvSplitViewSubviewDidExpandNotification"]);
  EXPECT_TRUE([OvSplitViewSubviewWillCollapseNotification
      isEqual:@"OvSplitViewSubviewWillCollapseNotification"]);
  EXPECT_TRUE([OvSplitViewSubviewDidCollapseNotification
      isEqual:@"OvSplitViewSubviewDidCollapseNotification"]);
}

TEST_F(SplitInitialState, OldSystemsGetTheLibrarysOwnCursors) {
  OvSplitView *split = makeSplit({147, 147});
  [split _ovSetupCursorsForSystemVersion:0x1028];
  [split setVertical:YES];
  NSCursor *leftRight = currentCursor(split);
  EXPECT_NE(leftRight, [NSCursor resizeLeftRightCursor]);
  EXPECT_EQ([leftRight hotSpot], NSMakePoint(7, 7));
  EXPECT_EQ([[leftRight image] size], NSMakeSize(16, 16));
  [split setVertical:NO];
  NSCursor *upDown = currentCursor(split);
  EXPECT_EQ([upDown hotSpot], NSMakePoint(7, 7));

  // Black bars left and right of a white line through the hot spot; the other one lies.
  const Picture standing = pictureOfImage([leftRight image]);
  EXPECT_TRUE(near(standing.at(6, 3), kBlack));
  EXPECT_TRUE(near(standing.at(7, 3), kWhite));
  EXPECT_TRUE(near(standing.at(8, 3), kBlack));
  EXPECT_EQ(standing.at(0, 0).a, 0);
  const Picture lying = pictureOfImage([upDown image]);
  EXPECT_TRUE(near(lying.at(3, 6), kBlack));
  EXPECT_TRUE(near(lying.at(3, 7), kWhite));
  EXPECT_TRUE(near(lying.at(3, 8), kBlack));

  [split _ovSetupCursorsForSystemVersion:0x1030];
  [split setVertical:YES];
  EXPECT_EQ(currentCursor(split), [NSCursor resizeLeftRightCursor]);
}

TEST_F(SplitInitialState, ReleasesWhatItOwns) {
  const int before = [OvTestDeathCounter deaths];
  {
    OvSplitView *split = [[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)];
    NSMutableString *tip = [NSMutableString stringWithString:@"tip"];
    const NSUInteger count = [tip retainCount];
    [split setToolTip:tip];
    EXPECT_EQ([tip retainCount], count + 1);
    [split setToolTip:tip];
    EXPECT_EQ([tip retainCount], count + 1) << "set again";
    OvTestDeathCounter *other = [[OvTestDeathCounter alloc] init];
    [split setDelegate:other];
    [other release];
    EXPECT_EQ([OvTestDeathCounter deaths], before + 1) << "the delegate is not retained";
    [split setDelegate:nil];
    EXPECT_TRUE([split setLayoutAutosaveName:@"SplitInitialState dies"]);
    [split release];
    EXPECT_EQ([tip retainCount], count);
  }
  OvSplitView *next = makeSplit({147, 147});
  EXPECT_TRUE([next setLayoutAutosaveName:@"SplitInitialState dies"]) << "the name is free again";
  [next setLayoutAutosaveName:@""];
}

TEST_F(SplitInitialState, TellsADeadViewsDelegateNothing) {
  delegate->has = {"splitViewDidResizeSubviews:", "splitViewWillCollapseSubview:"};
  OvSplitView *split = [[OvSplitView alloc] initWithFrame:NSMakeRect(0, 0, 300, 200)];
  [split setDelegate:delegate];
  [split release];
  journal().clear();
  [[NSNotificationCenter defaultCenter]
      postNotificationName:NSSplitViewDidResizeSubviewsNotification
                    object:nil];
  EXPECT_TRUE(journal().empty());
}

}  // namespace
