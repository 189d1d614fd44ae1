// Tool tips: one rectangle per item, and the text that a person sees.

#import "GridTest.h"

#import "XTest.h"

using namespace ov::test;
using testing::ElementsAre;
using testing::IsEmpty;

// The owner of a host's own tool tip.
@interface OvTestTipOwner : NSObject
@end

@implementation OvTestTipOwner
- (NSString *)view:(NSView *)view
    stringForToolTip:(NSToolTipTag)tag
               point:(NSPoint)point
            userData:(void *)data {
  (void)view, (void)tag, (void)point, (void)data;
  journal().add("hostsToolTip");
  return @"a host's";
}
@end

namespace {

class GridToolTips : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    host = [[OvTestTipOwner alloc] init];
  }
  void TearDown() override {
    GridTest::TearDown();
    [host release];
  }

  void giveToolTips(HXMatrixView *grid) {
    [items has:{"matrixView:toolTipAtItemIndex:"}];
    [grid setDelegate:items];
  }

  Lines expectedTips(HXMatrixView *grid) {
    Lines lines;
    for (NSUInteger i = 0; i < [grid numberOfItems]; i++) {
      lines.push_back("tip " + std::to_string(i) + " " + text([grid frameOfCellAtItemIndex:i]));
    }
    return lines;
  }

  // The tips that were added last, after whatever came on the way.
  Lines lastTips() {
    Lines all = journal().of({"tip", "removeTips"});
    while (!all.empty() && all.back() == "removeTips") all.pop_back();
    auto start = std::find(all.rbegin(), all.rend(), "removeTips").base();
    return {start, all.end()};
  }

  static void movePointer(NSView *view, NSPoint point) {
    [[view window] sendEvent:mouseEvent(NSMouseMoved, view, point)];
  }

  // Which texts are asked for when the pointer comes onto a place from outside the view. The
  // platform asks at once and shows the tip later.
  static Lines askedAt(NSView *view, NSPoint point) {
    movePointer(view, NSMakePoint(-500, -500));
    journal().clear();
    movePointer(view, point);
    Lines asked = journal().of({"toolTip", "hostsToolTip"});
    movePointer(view, NSMakePoint(-500, -500));
    return asked;
  }

  // Every item that is visible answers with itself and once; gaps answer nothing.
  static void expectEachItemAsked(HXMatrixView *grid) {
    NSRect visible = [grid visibleRect];
    int checked = 0;
    for (NSUInteger i = 0; i < [grid numberOfItems]; i++) {
      NSPoint point = middle(grid, i);
      if (!NSPointInRect(point, visible)) continue;
      EXPECT_EQ(askedAt(grid, point), Lines{"toolTip " + std::to_string(i)});
      checked++;
    }
    EXPECT_GT(checked, 0);
    NSRect first = [grid frameOfCellAtItemIndex:0];
    if (NSMinY(visible) == 0 && [grid intercellSpacing].width > 0) {
      EXPECT_EQ(askedAt(grid, NSMakePoint(NSMaxX(first) + [grid intercellSpacing].width / 2, 5)),
                Lines{});
    }
  }

  // A grid that overrides nothing, in a scroll view on screen.
  HXMatrixView *plainGrid(NSUInteger count) {
    items = newItems(count);
    HXMatrixView *grid =
        [[[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
    [grid setAutoFitHorizentally:NO];
    [grid setAutoresizingMask:NSViewWidthSizable];
    [grid setDataSource:items];
    NSScrollView *scroll = scrollView(showWindow(NSMakeSize(420, 300)), grid);
    [scroll setFrameSize:NSMakeSize(220, 300)];
    [grid setFrameSize:[scroll contentSize]];
    pumpPending();
    return grid;
  }

  // The text of the platform's tip window, "" while it is not there.
  static std::string shownTip() {
    for (NSWindow *window in [NSApp windows]) {
      if (![window isKindOfClass:NSClassFromString(@"GSTTPanel")] || ![window isVisible]) continue;
      return [[[[window contentView] valueForKey:@"text"] string] UTF8String] ?: "";
    }
    return "";
  }

  OvTestTipOwner *host = nil;
};

TEST_F(GridToolTips, EveryItemHasOne) {
  OvTestGrid *grid = gridInWindow(5, NSMakeSize(200, 200), true);
  giveToolTips(grid);
  EXPECT_THAT(
      journal().of({"tip"}),
      ElementsAre("tip 0 {0, 0, 64 x 64}", "tip 1 {65, 0, 64 x 64}", "tip 2 {130, 0, 64 x 64}",
                  "tip 3 {0, 65, 64 x 64}", "tip 4 {65, 65, 64 x 64}"));
  for (id owner : grid->tipOwners) EXPECT_EQ(owner, [grid state].toolTipManager);
  expectEachItemAsked(grid);
}

TEST_F(GridToolTips, InvisibleItemsHaveThemToo) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  giveToolTips(grid);
  EXPECT_EQ(lastTips(), expectedTips(grid));
  for (CGFloat y : {0, 300, 1000}) {
    [grid scrollPoint:NSMakePoint(0, y)];
    expectEachItemAsked(grid);
  }
}

TEST_F(GridToolTips, NoItemsHaveNone) {
  OvTestGrid *grid = gridInWindow(0, NSMakeSize(200, 200), true);
  giveToolTips(grid);
  EXPECT_THAT(journal().of({"tip"}), IsEmpty());
  EXPECT_EQ(askedAt(grid, NSMakePoint(10, 10)), Lines{});
}

TEST_F(GridToolTips, FollowEveryLayout) {
  OvTestGrid *grid = gridInScrollView(5, NSMakeSize(220, 200), true);
  giveToolTips(grid);
  std::function<void()> changes[] = {
      [&] { [grid setCellSize:NSMakeSize(40, 40)]; },
      [&] { [grid setIntercellSpacing:NSMakeSize(5, 5)]; },
      [&] { [grid setFrameSize:NSMakeSize(90, 300)]; },
      [&] { [grid setFrame:NSMakeRect(0, 0, 150, 300)]; },
      [&] { [grid setFrame:NSMakeRect(0, 0, 50, 10)]; },
      [&] {
        items->count = 40;  // beyond the bounds that the view had
        [grid reloadData];
      },
      [&] {
        items->count = 2;
        [grid noteNumberOfItemsChanged];
      },
      [&] {
        items->count = 400;
        [grid reloadData];
      },
      [&] {
        [grid setAutoFitHorizentally:YES];
        [grid setFrameSize:NSMakeSize(10, 150)];
      },
  };
  int number = 0;
  for (auto &change : changes) {
    SCOPED_TRACE(number++);
    journal().clear();
    change();
    EXPECT_EQ(lastTips(), expectedTips(grid));
    expectEachItemAsked(grid);
  }
}

TEST_F(GridToolTips, FollowEveryLayoutOfAGridThatOverridesNothing) {
  HXMatrixView *grid = plainGrid(30);
  giveToolTips(grid);
  expectEachItemAsked(grid);
  [[grid enclosingScrollView] setFrameSize:NSMakeSize(400, 300)];
  ASSERT_GT([grid numberOfColumns], 3u);
  expectEachItemAsked(grid);
  [grid setCellSize:NSMakeSize(30, 20)];
  expectEachItemAsked(grid);
  [grid scrollPoint:NSMakePoint(0, 50)];
  expectEachItemAsked(grid);
  items->count = 1000;
  [grid reloadData];
  [grid scrollPoint:NSMakePoint(0, 500)];
  expectEachItemAsked(grid);
  items->count = 3;
  [grid reloadData];
  expectEachItemAsked(grid);
  EXPECT_EQ(askedAt(grid, NSMakePoint(100, 100)), Lines{}) << "where an item was";
}

TEST_F(GridToolTips, AreThereAfterTheGridMovesIntoAWindow) {
  OvTestGrid *grid = makeGrid(5);
  giveToolTips(grid);
  [[showWindow(NSMakeSize(200, 200)) contentView] addSubview:grid];
  expectEachItemAsked(grid);
}

TEST_F(GridToolTips, GoWithTheDelegateThatHadThem) {
  for (bool plain : {false, true}) {
    HXMatrixView *grid = plain ? plainGrid(5) : gridInWindow(5, NSMakeSize(200, 200), true);
    giveToolTips(grid);
    [grid addToolTipRect:NSMakeRect(140, 80, 30, 30) owner:host userData:NULL];
    EXPECT_EQ(askedAt(grid, NSMakePoint(150, 90)), Lines{"hostsToolTip"});
    [grid setDelegate:newItems(5)];
    EXPECT_EQ(askedAt(grid, NSMakePoint(150, 90)), Lines{}) << "the host's own too";
    EXPECT_EQ(askedAt(grid, middle(grid, 0)), Lines{});
    EXPECT_EQ(askedAt(grid, middle(grid, 4)), Lines{});
  }
}

TEST_F(GridToolTips, RemoveTheHostsOwnAtEveryLayout) {
  HXMatrixView *grid = plainGrid(5);
  giveToolTips(grid);
  [grid addToolTipRect:NSMakeRect(140, 80, 30, 30) owner:host userData:NULL];
  [grid reloadData];
  EXPECT_EQ(askedAt(grid, NSMakePoint(150, 90)), Lines{});
  expectEachItemAsked(grid);
}

TEST_F(GridToolTips, AHostsOwnStayOnAGridWithoutThem) {
  HXMatrixView *grid = plainGrid(5);
  NSToolTipTag one = [grid addToolTipRect:NSMakeRect(140, 80, 30, 30) owner:host userData:NULL];
  NSToolTipTag two = [grid addToolTipRect:NSMakeRect(10, 140, 30, 30) owner:host userData:NULL];
  EXPECT_NE(one, two);
  [grid reloadData];
  [grid setDelegate:items];
  EXPECT_EQ(askedAt(grid, NSMakePoint(150, 90)), Lines{"hostsToolTip"});
  [grid removeToolTip:one];
  EXPECT_EQ(askedAt(grid, NSMakePoint(150, 90)), Lines{});
  EXPECT_EQ(askedAt(grid, NSMakePoint(20, 150)), Lines{"hostsToolTip"});
  [grid removeAllToolTips];
  EXPECT_EQ(askedAt(grid, NSMakePoint(20, 150)), Lines{});
}

TEST_F(GridToolTips, AViewsOwnToolTipWorksOnAGrid) {
  HXMatrixView *grid = plainGrid(5);
  [grid setToolTip:@"the view's"];
  EXPECT_STREQ([[grid toolTip] UTF8String], "the view's");
  movePointer(grid, NSMakePoint(-500, -500));
  movePointer(grid, NSMakePoint(150, 90));
  EXPECT_TRUE(pumpUntil([] { return shownTip() == "the view's"; })) << shownTip();
  movePointer(grid, NSMakePoint(-500, -500));
  [grid setToolTip:nil];
}

TEST_F(GridToolTips, TheManagerAsksTheDelegateForTheText) {
  OvTestGrid *grid = gridInWindow(5);
  giveToolTips(grid);
  HXMatrixViewToolTipManager *manager = [grid state].toolTipManager;
  items->toolTip = [](NSUInteger i) { return i == 2 ? std::string() : "t" + std::to_string(i); };
  auto answer = [&](NSUInteger i) {
    return [manager view:grid
        stringForToolTip:99
                   point:NSMakePoint(500, 500)
                userData:reinterpret_cast<void *>(i)];
  };
  EXPECT_STREQ([answer(3) UTF8String], "t3");
  EXPECT_STREQ([answer(0) UTF8String], "t0");
  EXPECT_EQ(answer(2), nil);
  EXPECT_EQ(items->view, grid);
}

TEST_F(GridToolTips, AManagerRemovesThemWhenItGoes) {
  HXMatrixView *grid = plainGrid(5);
  [grid setDelegate:items];
  [items has:{"matrixView:toolTipAtItemIndex:"}];
  NSUInteger before = [grid retainCount];
  HXMatrixViewToolTipManager *manager =
      [[HXMatrixViewToolTipManager alloc] initWithMatrixView:grid];
  EXPECT_EQ([grid retainCount], before);
  EXPECT_EQ(askedAt(grid, middle(grid, 3)), Lines{"toolTip 3"});
  [manager removeAllToolTips];
  EXPECT_EQ(askedAt(grid, middle(grid, 3)), Lines{});
  [manager resetAllToolTips];
  EXPECT_EQ(askedAt(grid, middle(grid, 3)), Lines{"toolTip 3"});
  [manager release];
  EXPECT_EQ(askedAt(grid, middle(grid, 3)), Lines{});
}

TEST_F(GridToolTips, SurviveATipOfAnotherViewThatIsAboutToShow) {
  NSWindow *window = showWindow(NSMakeSize(300, 200));
  NSView *other = [[[NSView alloc] initWithFrame:NSMakeRect(210, 0, 80, 200)] autorelease];
  [[window contentView] addSubview:other];
  [other addToolTipRect:[other bounds] owner:@"another" userData:NULL];
  OvTestGrid *grid = makeGrid(5);
  [[window contentView] addSubview:grid];
  giveToolTips(grid);
  movePointer(other, NSMakePoint(500, 50));
  movePointer(other, NSMakePoint(40, 50));
  [grid reloadData];
  expectEachItemAsked(grid);
  [other removeAllToolTips];
}

TEST_F(GridToolTips, MayBeResetWhileTheTextIsAsked) {
  // A delegate that learns of a change only now.
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  items->toolTip = [&](NSUInteger i) {
    items->count = 5 + i % 3;
    [grid reloadData];
    return std::string("late");
  };
  for (int round = 0; round < 3; round++) {
    for (NSUInteger i : {0, 1, 2, 4, 3}) {
      movePointer(grid, middle(grid, i));
      EXPECT_EQ([grid numberOfItems], items -> count);
    }
  }
  items->toolTip = nullptr;
  movePointer(grid, NSMakePoint(-500, -500));
}

// --- What a person sees --------------------------------------------------------------------------

TEST_F(GridToolTips, RestingOnAnItemShowsItsText) {
  HXMatrixView *grid = plainGrid(5);
  giveToolTips(grid);
  warpPointer(grid, middle(grid, 4));
  movePointer(grid, NSMakePoint(64.5, 64.5));
  movePointer(grid, middle(grid, 4));
  EXPECT_TRUE(pumpUntil([] { return shownTip() == "tip 4"; })) << shownTip();
  movePointer(grid, NSMakePoint(64.5, 64.5));
  EXPECT_TRUE(pumpUntil([] { return shownTip().empty(); }));
}

TEST_F(GridToolTips, AfterAReflowAnItemShowsItsOwnText) {
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  NSPoint place = middle(grid, 4);
  [[grid enclosingScrollView] setFrameSize:NSMakeSize(155, 300)];
  ASSERT_EQ([grid numberOfColumns], 2u);
  movePointer(grid, NSMakePoint(64.5, 64.5));
  movePointer(grid, place);
  EXPECT_TRUE(pumpUntil([] { return shownTip() == "tip 3"; })) << shownTip();
  movePointer(grid, NSMakePoint(64.5, 64.5));
}

TEST_F(GridToolTips, ARealPointerShowsThem) {
  ASSERT_TRUE(xtest::isAvailable());
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  auto moveTo = [&](NSPoint point) {
    NSPoint p = screenPoint(grid, point);
    xtest::movePointer(static_cast<int>(p.x), xtest::screenHeight() - static_cast<int>(p.y));
    pumpPending();
  };
  moveTo(NSMakePoint(64.5, 64.5));
  moveTo(middle(grid, 5));
  EXPECT_TRUE(pumpUntil([] { return shownTip() == "tip 5"; })) << shownTip();
  moveTo(middle(grid, 1));
  EXPECT_TRUE(pumpUntil([] { return shownTip() == "tip 1"; })) << shownTip();
  moveTo(NSMakePoint(100, 250));
  EXPECT_TRUE(pumpUntil([] { return shownTip().empty(); })) << shownTip();
}

TEST_F(GridToolTips, NoTextShowsNothing) {
  HXMatrixView *grid = plainGrid(5);
  items->toolTip = [](NSUInteger) { return std::string(); };
  giveToolTips(grid);
  movePointer(grid, NSMakePoint(64.5, 64.5));
  movePointer(grid, middle(grid, 4));
  EXPECT_TRUE(journal().has("toolTip 4"));
  EXPECT_FALSE(pumpUntil([] { return !shownTip().empty(); }, 0.8)) << shownTip();
  movePointer(grid, NSMakePoint(64.5, 64.5));
}

TEST_F(GridToolTips, HoverAndToolTipsLiveTogether) {
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  [grid setMouseTrackingEnabled:YES];
  expectEachItemAsked(grid);
  [grid reloadData];
  expectEachItemAsked(grid);
  [grid setMouseTrackingEnabled:NO];
  expectEachItemAsked(grid);
  [grid setMouseTrackingEnabled:YES];
  [grid setDelegate:nil];
  EXPECT_EQ(askedAt(grid, middle(grid, 4)), Lines{});
}

TEST_F(GridToolTips, NoneShowsWhileTheButtonIsDown) {
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  [grid mouseDown:mouseEvent(NSLeftMouseDown, grid, middle(grid, 0), NSShiftKeyMask, 1)];
  EXPECT_EQ(askedAt(grid, middle(grid, 1)), Lines{});
  [grid mouseDragged:mouseEvent(NSLeftMouseDragged, grid, middle(grid, 4), NSShiftKeyMask)];
  EXPECT_EQ(askedAt(grid, middle(grid, 4)), Lines{});
  [grid mouseUp:mouseEvent(NSLeftMouseUp, grid, middle(grid, 4), NSShiftKeyMask)];
  EXPECT_EQ(askedAt(grid, middle(grid, 4)), Lines{"toolTip 4"});
}

TEST_F(GridToolTips, ShowAgainAfterADoubleClickWhoseReleaseWentElsewhere) {
  HXMatrixView *grid = plainGrid(9);
  giveToolTips(grid);
  [grid mouseDown:mouseEvent(NSLeftMouseDown, grid, middle(grid, 0), 0, 2)];
  EXPECT_EQ(askedAt(grid, middle(grid, 4)), Lines{"toolTip 4"});
}

}  // namespace
