// Following the pointer: which regions are installed where, and what the hover state does.

#import "GridTest.h"

#import <GNUstepGUI/GSTrackingRect.h>

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// A manager whose hook can be used, as a subclass may.
@interface OvTestTracker : HXMatrixViewMouseTrackingManager {
 @public
  int changes;
  std::function<void()> onChange;
}
- (NSUInteger)tagCount;
@end

@implementation OvTestTracker
- (void)_mouseOveredItemDidChange {
  changes++;
  if (onChange) onChange();
}
- (NSUInteger)tagCount {
  return NSCountHashTable(_trackingTagTable);
}
@end

namespace {

size_t installed(NSView *view, id owner) {
  size_t count = 0;
  for (GSTrackingRect *rect in [[[view valueForKey:@"tracking_rects"] copy] autorelease]) {
    count += [rect owner] == owner;
  }
  return count;
}

class GridTracking : public GridTest {
 protected:
  HXMatrixViewMouseTrackingManager *managerOf(OvTestGrid *grid) {
    return [grid state].mouseTrackingManager;
  }
  void TearDown() override {
    // A manager that is not the grid's own must go before the grid.
    for (OvTestTracker *tracker : trackers_) [tracker release];
    trackers_.clear();
    GridTest::TearDown();
  }
  OvTestTracker *trackerOf(OvTestGrid *grid) {
    OvTestTracker *tracker = [[OvTestTracker alloc] initWithMatrixView:grid];
    trackers_.push_back(tracker);
    return tracker;
  }
  // As the platform reports the pointer.
  void movePointer(NSView *view, NSPoint point) {
    [[view window] sendEvent:mouseEvent(NSMouseMoved, view, point)];
  }

 private:
  std::vector<OvTestTracker *> trackers_;
};

TEST_F(GridTracking, IsOffUntilItIsEnabled) {
  OvTestGrid *grid = gridInWindow(4);
  EXPECT_FALSE([grid mouseTrackingEnabled]);
  [grid setMouseTrackingEnabled:YES];
  EXPECT_TRUE([grid mouseTrackingEnabled]);
  id manager = managerOf(grid);
  EXPECT_TRUE([manager isMemberOfClass:[HXMatrixViewMouseTrackingManager class]]);
  [grid setMouseTrackingEnabled:YES];
  EXPECT_EQ(managerOf(grid), manager);
  [grid setMouseTrackingEnabled:NO];
  EXPECT_FALSE([grid mouseTrackingEnabled]);
  EXPECT_EQ(managerOf(grid), nil);
  EXPECT_EQ([[grid valueForKey:@"tracking_rects"] count], 0u);
  [grid setMouseTrackingEnabled:NO];
}

TEST_F(GridTracking, InstallsOneRegionPerItem) {
  OvTestGrid *grid = gridInWindow(4);
  [grid setMouseTrackingEnabled:YES];
  EXPECT_THAT(journal().of({"region"}),
              ElementsAre("region 0 {0, 0, 64 x 64}", "region 1 {65, 0, 64 x 64}",
                          "region 2 {130, 0, 64 x 64}", "region 3 {0, 65, 64 x 64}"));
  for (id owner : grid->regionOwners) EXPECT_EQ(owner, managerOf(grid));
  for (BOOL assumes : grid->regionAssumesInside) EXPECT_TRUE(assumes);
  EXPECT_EQ(installed(grid, managerOf(grid)), 4u);
  EXPECT_EQ([managerOf(grid) mouseOveredItemIndex], (NSUInteger)NSNotFound);
}

TEST_F(GridTracking, InstallsNoneOutsideAWindow) {
  OvTestGrid *grid = makeGrid(4);
  [grid setMouseTrackingEnabled:YES];
  EXPECT_EQ(journal().count("region"), 0u);
  [[makeWindow(NSMakeSize(200, 200)) contentView] addSubview:grid];
  EXPECT_EQ(journal().count("region"), 4u) << "but when it moves into one";
  [[grid retain] autorelease];
  [grid removeFromSuperview];
  EXPECT_EQ([[grid valueForKey:@"tracking_rects"] count], 0u) << "and removes them again";
}

TEST_F(GridTracking, CellsWithoutAreaHaveNoRegion) {
  OvTestGrid *grid = gridInWindow(4);
  [grid setCellSize:NSMakeSize(0, 64)];
  journal().clear();
  [grid setMouseTrackingEnabled:YES];
  EXPECT_EQ(journal().count("region"), 0u);
}

TEST_F(GridTracking, InAScrollViewOnlyTheVisiblePartsHaveRegions) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200));
  [grid scrollPoint:NSMakePoint(0, 100)];
  NSRect visible = [[grid enclosingScrollView] documentVisibleRect];
  ASSERT_EQ(visible.origin.y, 100);
  journal().clear();
  [grid setMouseTrackingEnabled:YES];
  Lines expected;
  for (NSUInteger i = 0; i < 60; i++) {
    NSRect part = NSIntersectionRect([grid frameOfCellAtItemIndex:i], visible);
    if (NSIsEmptyRect(part)) continue;
    expected.push_back("region " + std::to_string(i) + " " + text(part));
  }
  ASSERT_GT(expected.size(), 6u);
  EXPECT_EQ(journal().of({"region"}), expected);
  EXPECT_EQ(expected.front(), "region 3 {0, 100, 64 x 29}");
}

TEST_F(GridTracking, EveryLayoutInstallsTheRegionsAnew) {
  OvTestGrid *grid = gridInWindow(4);
  [grid setMouseTrackingEnabled:YES];
  id manager = managerOf(grid);
  std::function<void()> changes[] = {
      [&] { [grid setCellSize:NSMakeSize(40, 40)]; },
      [&] { [grid setIntercellSpacing:NSMakeSize(5, 5)]; },
      [&] { [grid setFrameSize:NSMakeSize(90, 300)]; },
      [&] { [grid setFrame:NSMakeRect(0, 0, 150, 300)]; },
      [&] {
        items->count = 6;
        [grid reloadData];
      },
  };
  for (auto &change : changes) {
    journal().clear();
    change();
    Lines regions = journal().of({"region"});
    ASSERT_GE(regions.size(), items->count);
    // Whatever was installed on the way, these are there in the end.
    EXPECT_EQ(installed(grid, manager), items->count);
    Lines last(regions.end() - static_cast<long>(items->count), regions.end());
    for (NSUInteger i = 0; i < items->count; i++) {
      EXPECT_EQ(last[i],
                "region " + std::to_string(i) + " " + text([grid frameOfCellAtItemIndex:i]));
    }
  }
}

TEST_F(GridTracking, ScrollingInstallsTheRegionsAnew) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200));
  [grid setMouseTrackingEnabled:YES];
  journal().clear();
  [grid scrollPoint:NSMakePoint(0, 130)];
  EXPECT_EQ(journal().of({"region"}).front(), "region 6 {0, 130, 64 x 64}");
}

TEST_F(GridTracking, AManagerMadeOutsideAScrollViewDoesNotFollowScrolling) {
  // It looks for a scroll view once, when it is made.
  OvTestGrid *grid = makeGrid(60);
  [grid setMouseTrackingEnabled:YES];
  NSWindow *window = makeWindow(NSMakeSize(220, 200));
  scrollView(window, grid);
  journal().clear();
  [grid scrollPoint:NSMakePoint(0, 130)];
  EXPECT_EQ(journal().count("region"), 0u);
}

TEST_F(GridTracking, TheManagerTurnsTheNotificationsOnThatItNeeds) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200));
  NSClipView *clip = [[grid enclosingScrollView] contentView];
  [grid setPostsFrameChangedNotifications:NO];
  [clip setPostsBoundsChangedNotifications:NO];
  [grid setMouseTrackingEnabled:YES];
  EXPECT_TRUE([grid postsFrameChangedNotifications]);
  EXPECT_TRUE([clip postsBoundsChangedNotifications]);
}

TEST_F(GridTracking, RemembersTheTagsItInstalled) {
  OvTestGrid *grid = gridInWindow(4);
  OvTestTracker *tracker = [[OvTestTracker alloc] initWithMatrixView:grid];
  EXPECT_EQ([tracker tagCount], 4u);
  EXPECT_EQ(installed(grid, tracker), 4u);
  NSTrackingRectTag other = [grid addTrackingRect:NSMakeRect(0, 0, 9, 9)
                                            owner:grid
                                         userData:NULL
                                     assumeInside:NO];
  [tracker removeAllTrackingRegions];
  EXPECT_EQ([tracker tagCount], 0u);
  EXPECT_EQ(installed(grid, tracker), 0u);
  EXPECT_EQ(installed(grid, grid), 1u) << "a host's own region stays";
  [grid removeTrackingRect:other];
  [tracker resetAllTrackingRegions];
  [tracker resetAllTrackingRegions];
  EXPECT_EQ([tracker tagCount], 4u);
  EXPECT_EQ(installed(grid, tracker), 4u);
  [tracker release];
  EXPECT_EQ([[grid valueForKey:@"tracking_rects"] count], 0u);
}

TEST_F(GridTracking, DoesNotRetainTheGrid) {
  OvTestGrid *grid = gridInWindow(4);
  NSUInteger before = [grid retainCount];
  OvTestTracker *tracker = [[OvTestTracker alloc] initWithMatrixView:grid];
  EXPECT_EQ([grid retainCount], before);
  [tracker release];
}

// --- Hovering -------------------------------------------------------------------------------

TEST_F(GridTracking, AChangeOfTheItemRedisplaysBothAndCallsTheHook) {
  OvTestGrid *grid = gridInWindow(4);
  OvTestTracker *tracker = trackerOf(grid);
  journal().clear();
  [tracker _setMouseOveredItemIndex:NSNotFound];
  EXPECT_EQ(tracker->changes, 0);
  [tracker _setMouseOveredItemIndex:2];
  EXPECT_EQ([tracker mouseOveredItemIndex], 2u);
  EXPECT_EQ(tracker->changes, 1);
  EXPECT_THAT(journal().of({"dirtyItem"}), ElementsAre("dirtyItem 2"));
  journal().clear();
  [tracker _setMouseOveredItemIndex:2];
  EXPECT_EQ(tracker->changes, 1);
  EXPECT_THAT(journal().of({"dirtyItem"}), IsEmpty());
  [tracker _setMouseOveredItemIndex:3];
  EXPECT_EQ(tracker->changes, 2);
  EXPECT_THAT(journal().of({"dirtyItem"}), ElementsAre("dirtyItem 2", "dirtyItem 3"));
  journal().clear();
  [tracker _setMouseOveredItemIndex:NSNotFound];
  EXPECT_THAT(journal().of({"dirtyItem"}), ElementsAre("dirtyItem 3"));
}

TEST_F(GridTracking, ThePointerComesOntoItemsAndLeavesThem) {
  OvTestGrid *grid = gridInWindow(4, NSMakeSize(200, 200), true);
  OvTestTracker *tracker = trackerOf(grid);
  movePointer(grid, NSMakePoint(150, 150));
  movePointer(grid, middle(grid, 0));
  EXPECT_EQ([tracker mouseOveredItemIndex], 0u);
  movePointer(grid, middle(grid, 1));
  EXPECT_EQ([tracker mouseOveredItemIndex], 1u);
  movePointer(grid, middle(grid, 3));
  EXPECT_EQ([tracker mouseOveredItemIndex], 3u);
  movePointer(grid, NSMakePoint(64.5, 100));
  EXPECT_EQ([tracker mouseOveredItemIndex], (NSUInteger)NSNotFound);
  [tracker removeAllTrackingRegions];
}

TEST_F(GridTracking, LeavingAnItemThatIsNotTheCurrentOneIsIgnored) {
  OvTestGrid *grid = gridInWindow(4, NSMakeSize(200, 200), true);
  OvTestTracker *tracker = trackerOf(grid);
  auto event = [&](NSEventType type, NSUInteger item) {
    return [NSEvent enterExitEventWithType:type
                                  location:NSZeroPoint
                             modifierFlags:0
                                 timestamp:0
                              windowNumber:[[grid window] windowNumber]
                                   context:[[grid window] graphicsContext]
                               eventNumber:0
                            trackingNumber:1
                                  userData:reinterpret_cast<void *>(item)];
  };
  [tracker mouseEntered:event(NSMouseEntered, 2)];
  EXPECT_EQ([tracker mouseOveredItemIndex], 2u);
  [tracker mouseEntered:event(NSMouseEntered, 3)];
  [tracker mouseExited:event(NSMouseExited, 2)];
  EXPECT_EQ([tracker mouseOveredItemIndex], 3u);
  [tracker mouseExited:event(NSMouseExited, 3)];
  EXPECT_EQ([tracker mouseOveredItemIndex], (NSUInteger)NSNotFound);
  [tracker mouseEntered:event(NSMouseEntered, 0)];
  EXPECT_EQ([tracker mouseOveredItemIndex], 0u) << "item 0 is an item";
}

TEST_F(GridTracking, TheCellIsToldOfTheHoverStateWhenItIsDrawn) {
  OvTestGrid *grid = gridInWindow(3, NSMakeSize(200, 200), true);
  [grid setDataCell:[[[OvTestHoverCell alloc] init] autorelease]];
  [grid setMouseTrackingEnabled:YES];
  [managerOf(grid) _setMouseOveredItemIndex:1];
  journal().clear();
  [grid display];
  EXPECT_THAT(journal().of({"hover"}), ElementsAre("hover 0", "hover 1", "hover 0"));
  [grid setMouseTrackingEnabled:NO];
  journal().clear();
  [grid display];
  EXPECT_THAT(journal().of({"hover"}), ElementsAre("hover 0", "hover 0", "hover 0"));
}

TEST_F(GridTracking, ALayoutUnderARestingPointerFindsTheItemAnew) {
  OvTestGrid *grid = gridInScrollView(9, NSMakeSize(220, 200), true);
  NSScrollView *scroll = [grid enclosingScrollView];
  warpPointer(grid, middle(grid, 4));
  [grid setMouseTrackingEnabled:YES];
  ASSERT_TRUE(pumpUntil([&] {
    NSPoint p = [[grid window] mouseLocationOutsideOfEventStream];
    return [grid itemIndexAtPoint:[grid convertPoint:p fromView:nil]] == 4;
  }));
  [scroll setFrameSize:NSMakeSize(155, 200)];
  ASSERT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([managerOf(grid) mouseOveredItemIndex], 3u);
  [scroll setFrameSize:NSMakeSize(220, 200)];
  EXPECT_EQ([managerOf(grid) mouseOveredItemIndex], 4u);
}

TEST_F(GridTracking, ScrollingUnderARestingPointerFindsTheItemAnew) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  warpPointer(grid, middle(grid, 4));
  [grid setMouseTrackingEnabled:YES];
  ASSERT_TRUE(pumpUntil([&] {
    NSPoint p = [[grid window] mouseLocationOutsideOfEventStream];
    return [grid itemIndexAtPoint:[grid convertPoint:p fromView:nil]] == 4;
  }));
  [grid scrollPoint:NSMakePoint(0, 65)];
  EXPECT_EQ([managerOf(grid) mouseOveredItemIndex], 7u);
  [grid scrollPoint:NSMakePoint(0, 130)];
  EXPECT_EQ([managerOf(grid) mouseOveredItemIndex], 10u);
}

TEST_F(GridTracking, WithoutAWindowNoItemIsHovered) {
  OvTestGrid *grid = makeGrid(9);
  OvTestTracker *tracker = trackerOf(grid);
  [tracker _setMouseOveredItemIndex:3];
  [tracker matrixViewFrameDidChange:nil];
  EXPECT_EQ([tracker mouseOveredItemIndex], (NSUInteger)NSNotFound);
  [tracker _setMouseOveredItemIndex:3];
  [tracker scrollViewContentBoundsDidChange:nil];
  EXPECT_EQ([tracker mouseOveredItemIndex], (NSUInteger)NSNotFound);
}

TEST_F(GridTracking, AHookMayLayTheGridOutWhileThePointerEnters) {
  // The platform goes on through its list of regions after the hook has removed them all.
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(200, 200), true);
  [items has:{"matrixView:toolTipAtItemIndex:"}];
  [grid setDelegate:items];
  [grid setMouseTrackingEnabled:YES];
  OvTestTracker *tracker = trackerOf(grid);
  tracker->onChange = [&] {
    [tracker resetAllTrackingRegions];
    [grid reloadData];
  };
  for (int round = 0; round < 5; round++) {
    for (NSUInteger i : {0, 4, 8, 2, 5, 1}) {
      movePointer(grid, middle(grid, i));
      EXPECT_EQ([grid itemIndexAtPoint:middle(grid, i)], i);
    }
    movePointer(grid, NSMakePoint(64.5, 64.5));
  }
  EXPECT_GT(tracker->changes, 5);
  tracker->onChange = nullptr;
}

}  // namespace
