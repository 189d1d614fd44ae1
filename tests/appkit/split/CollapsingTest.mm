// Panes collapse and expand, and everybody hears of it.

#import "SplitTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SplitCollapsing : public SplitTest {
 protected:
  void listen(OvSplitView *split) {
    delegate->has = {"splitViewWillExpandSubview:",   "splitViewDidExpandSubview:",
                     "splitViewWillCollapseSubview:", "splitViewDidCollapseSubview:",
                     "splitViewWillResizeSubviews:",  "splitViewDidResizeSubviews:"};
    [split setDelegate:delegate];
    journal().clear();
  }
};

TEST_F(SplitCollapsing, GivesTheSpaceToTheOthers) {
  OvSplitView *split = makeSplit({96, 96, 96});
  [split setSubview:pane(split, 1) isCollapsed:YES];
  EXPECT_TRUE([split isSubviewCollapsed:pane(split, 1)]);
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 144, 200));
  EXPECT_EQ([pane(split, 2) frame], NSMakeRect(156, 0, 144, 200));
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(kParked, kParked, 96, 200)) << "keeps its size";
  // The dividers around it lie side by side.
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(144, 0, 6, 200), NSMakeRect(150, 0, 6, 200)));
}

TEST_F(SplitCollapsing, StackedPanes) {
  OvSplitView *split = makeSplit({96, 96, 96}, false);
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(kParked, kParked, 200, 96));
  EXPECT_EQ([pane(split, 1) frame], NSMakeRect(0, 6, 200, 144));
  EXPECT_EQ([pane(split, 2) frame], NSMakeRect(0, 156, 200, 144));
  EXPECT_THAT(dividers(split), ElementsAre(NSMakeRect(0, 0, 200, 6), NSMakeRect(0, 150, 200, 6)));
}

TEST_F(SplitCollapsing, ExpandedPaneComesBackInProportion) {
  OvSplitView *split = makeSplit({48, 96, 144});
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_EQ(spans(split), "0+72 1e+06+96 84+216");
  [split setSubviewAtIndex:1 isCollapsed:NO];
  // 72, 96 and 216 are 3/16, 4/16 and 9/16 of 384; there are 288.
  EXPECT_EQ(spans(split), "0+54 60+72 138+162");
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:1]);
}

TEST_F(SplitCollapsing, TellsBeforeAndAfter) {
  OvSplitView *split = makeSplit({147, 147});
  listen(split);
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_THAT(journal(), ElementsAre("willCollapse 1", "willResize", "didResize", "didCollapse 1"));
  journal().clear();
  [split setSubviewAtIndex:1 isCollapsed:NO];
  EXPECT_THAT(journal(), ElementsAre("willExpand 1", "willResize", "didResize", "didExpand 1"));
}

TEST_F(SplitCollapsing, StateIsNewAndLayoutOldWhenItTellsBefore) {
  OvSplitView *split = makeSplit({147, 147});
  listen(split);
  int seen = 0;
  delegate->onLine = [&](const std::string &line) {
    if (line == "willCollapse 1") {
      ++seen;
      EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
      EXPECT_EQ(spans(split), "0+147 153+147");
    } else if (line == "didCollapse 1") {
      ++seen;
      EXPECT_EQ(spans(split), "0+294 1e+06+147");
    } else if (line == "willExpand 1") {
      ++seen;
      EXPECT_FALSE([split isSubviewCollapsedAtIndex:1]);
      EXPECT_EQ(spans(split), "0+294 1e+06+147");
    } else if (line == "didExpand 1") {
      ++seen;
      EXPECT_EQ(spans(split), "0+196 202+98");
    }
  };
  [split setSubviewAtIndex:1 isCollapsed:YES];
  [split setSubviewAtIndex:1 isCollapsed:NO];
  EXPECT_EQ(seen, 4);
}

TEST_F(SplitCollapsing, NotificationNamesThePane) {
  OvSplitView *split = makeSplit({96, 96, 96});
  NotificationCount will(OvSplitViewSubviewWillCollapseNotification, nil);
  NotificationCount did(OvSplitViewSubviewDidCollapseNotification, nil);
  [split setSubviewAtIndex:2 isCollapsed:YES];
  for (const NotificationCount *count : {&will, &did}) {
    EXPECT_EQ(count->count(), 1);
    EXPECT_EQ(count->lastObject(), split);
    EXPECT_EQ([count->lastUserInfo() count], 2U);
    EXPECT_EQ([count->lastUserInfo() objectForKey:@"OvSubview"], pane(split, 2));
    NSNumber *index = [count->lastUserInfo() objectForKey:@"OvSubviewIndex"];
    EXPECT_EQ([index unsignedIntValue], 2U);
  }
}

TEST_F(SplitCollapsing, SameStateAgainTellsNothing) {
  OvSplitView *split = makeSplit({147, 147});
  listen(split);
  [split setSubviewAtIndex:0 isCollapsed:NO];
  EXPECT_THAT(journal(), IsEmpty());
  [split setSubviewAtIndex:0 isCollapsed:YES];
  journal().clear();
  const std::string before = spans(split);
  [split setSubviewAtIndex:0 isCollapsed:YES];
  EXPECT_THAT(journal(), IsEmpty());
  EXPECT_EQ(spans(split), before);
}

TEST_F(SplitCollapsing, NilForeignViewsAndMissingIndexesAreIgnored) {
  OvSplitView *split = makeSplit({147, 147});
  listen(split);
  NSView *stranger = [[[NSView alloc] initWithFrame:NSMakeRect(1, 2, 3, 4)] autorelease];
  [split setSubview:nil isCollapsed:YES];
  [split setSubview:stranger isCollapsed:YES];
  [split setSubviewAtIndex:2 isCollapsed:YES];
  [split setSubviewAtIndex:4294967295U isCollapsed:YES];
  EXPECT_THAT(journal(), IsEmpty());
  EXPECT_EQ([stranger frame], NSMakeRect(1, 2, 3, 4));
  EXPECT_FALSE([split isSubviewCollapsed:nil]);
  EXPECT_FALSE([split isSubviewCollapsed:stranger]);
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:2]);
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:4294967295U]);
}

TEST_F(SplitCollapsing, WithEveryPaneCollapsedAResizeExpandsTheFirst) {
  OvSplitView *split = makeSplit({96, 96, 96});
  listen(split);
  [split setSubviewAtIndex:0 isCollapsed:YES];
  [split setSubviewAtIndex:1 isCollapsed:YES];
  journal().clear();
  // The layout of the last collapse finds nobody else for the space.
  [split setSubviewAtIndex:2 isCollapsed:YES];
  EXPECT_FALSE([split isSubviewCollapsedAtIndex:0]);
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:1]);
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:2]);
  EXPECT_EQ([pane(split, 0) frame], NSMakeRect(0, 0, 288, 200));
  EXPECT_THAT(journal(), ElementsAre("willCollapse 2", "willResize", "willExpand 0", "willResize",
                                     "didResize", "didExpand 0", "didResize", "didCollapse 2"));
}

TEST_F(SplitCollapsing, ADelegateThatCollapsesTheFirstAgainEndsSomewhere) {
  OvSplitView *split = makeSplit({147, 147});
  delegate->has = {"splitViewDidExpandSubview:", "splitViewWillExpandSubview:"};
  int expansions = 0;
  delegate->onLine = [&](const std::string &line) {
    ++expansions;
    [split setSubviewAtIndex:0 isCollapsed:YES];
    (void)line;
  };
  [split setDelegate:delegate];
  [split setSubviewAtIndex:0 isCollapsed:YES];
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_GT(expansions, 0);
  EXPECT_LT(expansions, 10);
  EXPECT_EQ(dividers(split).size(), 1U);
}

TEST_F(SplitCollapsing, AnObserverMayRemoveThePane) {
  OvSplitView *split = makeSplit({96, 96, 96});
  delegate->has = {"splitViewWillCollapseSubview:"};
  delegate->onLine = [&](const std::string &line) {
    if (line == "willCollapse 1") [pane(split, 1) removeFromSuperview];
  };
  [split setDelegate:delegate];
  [split setSubviewAtIndex:1 isCollapsed:YES];
  EXPECT_EQ([[split subviews] count], 2U);
  EXPECT_EQ(spans(split), "0+147 153+147");
}

TEST_F(SplitCollapsing, ARemovedPaneIsNotParkedWhereItGoes) {
  OvSplitView *split = makeSplit({147, 147});
  NSView *moved = pane(split, 1);
  [split setSubview:moved isCollapsed:YES];
  NSView *elsewhere = [[split window] contentView];
  [elsewhere addSubview:moved];
  [moved setFrame:NSMakeRect(1, 2, 3, 4)];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_EQ([moved frame], NSMakeRect(1, 2, 3, 4));
  EXPECT_FALSE([split isSubviewCollapsed:moved]);
}

TEST_F(SplitCollapsing, AReorderedPaneStaysCollapsed) {
  OvSplitView *split = makeSplit({96, 96, 96});
  NSView *moved = pane(split, 0);
  [split setSubview:moved isCollapsed:YES];
  [split addSubview:moved positioned:NSWindowAbove relativeTo:nil];
  [split resizeSubviewsWithOldSize:[split bounds].size];
  EXPECT_TRUE([split isSubviewCollapsedAtIndex:2]);
  EXPECT_EQ(spans(split), "0+144 150+144 1e+06+96");
}

}  // namespace
