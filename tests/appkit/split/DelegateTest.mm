// Who hears of a split view's events, and for how long.

#import "SplitTest.h"

using namespace ov::test;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace {

class SplitDelegate : public SplitTest {};

TEST_F(SplitDelegate, HearsWhatItHasMethodsForWhenItIsSet) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitViewDidCollapseSubview:"};
  [split setDelegate:delegate];
  EXPECT_EQ([split delegate], delegate);
  delegate->has.insert("splitViewDidExpandSubview:");  // too late
  [split setSubviewAtIndex:0 isCollapsed:YES];
  [split setSubviewAtIndex:0 isCollapsed:NO];
  EXPECT_EQ(journal(), Lines{"didCollapse 0"});
}

TEST_F(SplitDelegate, HearsOfThisViewOnly) {
  OvSplitView *split = makeSplit({147, 147});
  OvSplitView *other = makeSplit({147, 147});
  delegate->has = {"splitViewDidCollapseSubview:"};
  [split setDelegate:delegate];
  [other setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_THAT(journal(), IsEmpty());
}

TEST_F(SplitDelegate, OldOneHearsNothingMore) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitViewDidCollapseSubview:", "splitViewDidResizeSubviews:"};
  [split setDelegate:delegate];
  [split setDelegate:nil];
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_THAT(journal(), IsEmpty());
}

TEST_F(SplitDelegate, SetTwiceHearsOnce) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitViewDidCollapseSubview:"};
  [split setDelegate:delegate];
  [split setDelegate:delegate];
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_EQ(journal(), Lines{"didCollapse 0"});
}

TEST_F(SplitDelegate, KeepsWhatItObservesByItself) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitViewDidCollapseSubview:"};
  [[NSNotificationCenter defaultCenter] addObserver:delegate
                                           selector:@selector(ownNotice:)
                                               name:NSViewFrameDidChangeNotification
                                             object:split];
  [split setDelegate:delegate];
  [split setDelegate:nil];
  [split setFrameSize:NSMakeSize(200, 100)];
  EXPECT_EQ(journal(), Lines{"own"});
  [[NSNotificationCenter defaultCenter] removeObserver:delegate];
}

TEST_F(SplitDelegate, ReplacesTheLayoutOfAResize) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitView:resizeSubviewsWithOldSize:"};
  [split setDelegate:delegate];
  [split setFrameSize:NSMakeSize(600, 200)];
  EXPECT_EQ(journal(), Lines{"resize 300 x 200"});
  EXPECT_EQ(spans(split), "0+147 153+147") << "nobody moved the panes";
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_EQ(journal().back(), "resize 600 x 200");
  EXPECT_EQ([pane(split, 0) frame].origin, NSMakePoint(kParked, kParked));
}

TEST_F(SplitDelegate, MayBeTheViewItselfWithAnAutosaveName) {
  [OvSplitView removeLayoutUsingName:@"SplitDelegate self"];
  OvSplitView *split = makeSplit({147, 147});
  [split setLayoutAutosaveName:@"SplitDelegate self"];
  [split setDelegate:split];
  [split setDelegate:nil];
  [split setFrameSize:NSMakeSize(600, 200)];
  EXPECT_NE(
      [[NSUserDefaults standardUserDefaults] objectForKey:@"OvSplitView layout SplitDelegate self"],
      nil);
  [split setLayoutAutosaveName:nil];
  [OvSplitView removeLayoutUsingName:@"SplitDelegate self"];
}

}  // namespace
