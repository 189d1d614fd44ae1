// What the grid retains, what it never releases, and that nothing calls a grid that is gone.

#import "GridTest.h"

using namespace ov::test;

namespace {

class GridOwnership : public GridTest {
 protected:
  // A grid that the test itself owns, with a cell that nobody else does.
  OvTestGrid *ownedGrid() {
    OvTestGrid *grid = [[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)];
    OvTestCell *cell = [[OvTestCell alloc] init];
    [grid setDataCell:cell];
    [cell release];
    return grid;
  }
};

TEST_F(GridOwnership, AppearanceObjectsAreRetainedOnceAndReleasedWhenReplaced) {
  OvTestGrid *grid = makeGrid(3);
  struct {
    const char *name;
    SEL set, get;
    id first, second;
  } rows[] = {
      {"background", @selector(setBackgroundColor:), @selector(backgroundColor),
       [NSColor colorWithCalibratedRed:.1 green:.2 blue:.3 alpha:1],
       [NSColor colorWithCalibratedRed:.1 green:.2 blue:.3 alpha:1]},
      {"grid colour", @selector(setGridColor:), @selector(gridColor),
       [NSColor colorWithCalibratedRed:.4 green:.2 blue:.3 alpha:1],
       [NSColor colorWithCalibratedRed:.4 green:.2 blue:.3 alpha:1]},
      {"shadow", @selector(setGridShadow:), @selector(gridShadow),
       [[[NSShadow alloc] init] autorelease], [[[NSShadow alloc] init] autorelease]},
  };
  for (auto &row : rows) {
    SCOPED_TRACE(row.name);
    NSUInteger first = [row.first retainCount], second = [row.second retainCount];
    [grid performSelector:row.set withObject:row.first];
    EXPECT_EQ([row.first retainCount], first + 1);
    [grid performSelector:row.set withObject:row.first];
    EXPECT_EQ([row.first retainCount], first + 1) << "the same object again";
    EXPECT_EQ([grid performSelector:row.get], row.first);
    // The two are equal and still different objects.
    [grid performSelector:row.set withObject:row.second];
    EXPECT_EQ([grid performSelector:row.get], row.second);
    EXPECT_EQ([row.first retainCount], first);
    EXPECT_EQ([row.second retainCount], second + 1);
    [grid performSelector:row.set withObject:nil];
    EXPECT_EQ([row.second retainCount], second);
    EXPECT_EQ([grid performSelector:row.get], nil);
  }
}

TEST_F(GridOwnership, NoAppearanceSetterRedisplays) {
  OvTestGrid *grid = gridInWindow(3);
  [grid setBackgroundColor:[NSColor redColor]];
  [grid setGridColor:[NSColor redColor]];
  [grid setGridShadow:[[[NSShadow alloc] init] autorelease]];
  [grid setGridStyleMask:3];
  [grid setGridLineWidth:4];
  EXPECT_THAT(journal().of({"dirty", "dirtyItem", "dirtyItems", "display"}), testing::IsEmpty());
  EXPECT_EQ([grid gridStyleMask], 3u);
  EXPECT_EQ([grid gridLineWidth], 4);
}

}  // namespace

// Equal to every other cell of its kind.
@interface OvTestEqualCell : OvTestCell
@end

@implementation OvTestEqualCell
- (BOOL)isEqual:(id)other {
  return [other isKindOfClass:[OvTestEqualCell class]];
}
- (NSUInteger)hash {
  return 1;
}
@end

namespace {

TEST_F(GridOwnership, AnEqualDataCellIsIgnored) {
  OvTestGrid *grid = makeGrid(3);
  OvTestEqualCell *first = [[[OvTestEqualCell alloc] init] autorelease];
  OvTestEqualCell *second = [[[OvTestEqualCell alloc] init] autorelease];
  [grid setDataCell:first];
  NSUInteger firstCount = [first retainCount], secondCount = [second retainCount];
  [grid setDataCell:second];
  EXPECT_EQ([grid dataCell], first);
  EXPECT_EQ([first retainCount], firstCount);
  EXPECT_EQ([second retainCount], secondCount);
}

TEST_F(GridOwnership, AReplacedDataCellIsReleased) {
  OvTestGrid *grid = ownedGrid();
  int deaths = [OvTestCell deaths];
  [grid setDataCell:[[[NSCell alloc] init] autorelease]];
  EXPECT_EQ([OvTestCell deaths], deaths + 1);
  [grid release];
}

TEST_F(GridOwnership, AReleasedGridKeepsWhatItOwnsAlive) {
  OvTestGrid *grid = ownedGrid();
  NSColor *color = [[NSColor colorWithCalibratedRed:.1 green:.2 blue:.3 alpha:1] retain];
  NSShadow *shadow = [[NSShadow alloc] init];
  [grid setBackgroundColor:color];
  [grid setGridColor:color];
  [grid setGridShadow:shadow];
  HXMatrixViewSelectionInfo *selection = [[grid _selectionInfo] retain];
  drainPool();
  NSUInteger colorCount = [color retainCount], shadowCount = [shadow retainCount];
  NSUInteger selectionCount = [selection retainCount];
  int deaths = [OvTestCell deaths];
  [grid release];
  drainPool();
  EXPECT_EQ([OvTestCell deaths], deaths);
  EXPECT_EQ([color retainCount], colorCount);
  EXPECT_EQ([shadow retainCount], shadowCount);
  EXPECT_EQ([selection retainCount], selectionCount);
}

TEST_F(GridOwnership, TheMisspeltMessageReleasesAllOfIt) {
  OvTestGrid *grid = ownedGrid();
  NSColor *background = [[NSColor colorWithCalibratedRed:.1 green:.2 blue:.3 alpha:1] retain];
  NSColor *lines = [[NSColor colorWithCalibratedRed:.4 green:.2 blue:.3 alpha:1] retain];
  NSShadow *shadow = [[NSShadow alloc] init];
  [grid setBackgroundColor:background];
  [grid setGridColor:lines];
  [grid setGridShadow:shadow];
  HXMatrixViewSelectionInfo *selection = [[grid _selectionInfo] retain];
  NSUInteger selectionCount = [selection retainCount];
  drainPool();
  int deaths = [OvTestCell deaths];
  [grid dealoc];
  [grid release];
  drainPool();
  EXPECT_EQ([OvTestCell deaths], deaths + 1);
  EXPECT_EQ([background retainCount], 1u);
  EXPECT_EQ([lines retainCount], 1u);
  EXPECT_EQ([shadow retainCount], 1u);
  EXPECT_EQ([selection retainCount], selectionCount - 1);
}

// --- A grid that is gone ---------------------------------------------------------------

TEST_F(GridOwnership, NothingCallsAReleasedGridThatFollowedThePointer) {
  NSWindow *window = showWindow(NSMakeSize(200, 200));
  items = newItems(9);
  [items has:{"matrixView:toolTipAtItemIndex:"}];
  @autoreleasepool {
    OvTestGrid *grid = [[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)];
    [grid setAutoFitHorizentally:NO];
    [grid setDataSource:items];
    [grid setDelegate:items];
    [[window contentView] addSubview:grid];
    [grid setMouseTrackingEnabled:YES];
    [grid removeFromSuperview];
    [grid release];
  }
  // Frames change and the pointer moves where the grid was.
  NSView *other = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [[window contentView] addSubview:other];
  [other setFrameSize:NSMakeSize(100, 100)];
  [window sendEvent:mouseEvent(NSMouseMoved, other, NSMakePoint(20, 20))];
  [window sendEvent:mouseEvent(NSMouseMoved, other, NSMakePoint(90, 90))];
  pumpPending();
  SUCCEED();
}

TEST_F(GridOwnership, NothingCallsAReleasedDocumentWhenItsScrollViewLivesOn) {
  NSWindow *window = showWindow(NSMakeSize(220, 200));
  items = newItems(60);
  [items has:{"matrixView:toolTipAtItemIndex:"}];
  NSScrollView *scroll = nil;
  NSClipView *clip = nil;
  id manager = nil;
  @autoreleasepool {
    OvTestGrid *grid = [[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)];
    [grid setAutoFitHorizentally:NO];
    [grid setDataSource:items];
    [grid setDelegate:items];
    scroll = [scrollView(window, grid) retain];
    clip = [scroll contentView];
    [grid setMouseTrackingEnabled:YES];
    manager = [[grid state].mouseTrackingManager retain];
    [grid release];
    [scroll
        setDocumentView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 200, 900)] autorelease]];
  }
  NSView *document = [scroll documentView];
  [clip scrollToPoint:NSMakePoint(0, 50)];
  [scroll reflectScrolledClipView:clip];
  [scroll setFrameSize:NSMakeSize(150, 150)];
  [document setFrameSize:NSMakeSize(100, 700)];
  [window sendEvent:mouseEvent(NSMouseMoved, document, NSMakePoint(20, 80))];
  [window sendEvent:mouseEvent(NSMouseMoved, document, NSMakePoint(60, 120))];
  [[NSNotificationCenter defaultCenter] postNotificationName:NSViewBoundsDidChangeNotification
                                                      object:clip];
  pumpPending();
  // The manager is never released by the grid; it may be asked and answers that nothing is.
  EXPECT_NO_FATAL_FAILURE([manager resetAllTrackingRegions]);
  [manager removeAllTrackingRegions];
  [scroll release];
}

TEST_F(GridOwnership, AManagerThatIsReleasedStopsObserving) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  [grid setMouseTrackingEnabled:YES];
  [grid setMouseTrackingEnabled:NO];
  EXPECT_EQ([grid state].mouseTrackingManager, nil);
  journal().clear();
  [grid scrollPoint:NSMakePoint(0, 100)];
  [grid setFrameSize:NSMakeSize(150, 300)];
  pumpPending();
  EXPECT_EQ(journal().count("region"), 0u);
}

TEST_F(GridOwnership, AWindowWithAGridMayGoAway) {
  for (int i = 0; i < 5; i++) {
    @autoreleasepool {
      NSWindow *window = [[NSWindow alloc] initWithContentRect:NSMakeRect(200, 200, 220, 200)
                                                     styleMask:NSTitledWindowMask
                                                       backing:NSBackingStoreBuffered
                                                         defer:NO];
      [window setReleasedWhenClosed:NO];
      OvTestItems *source = newItems(40);
      [source has:{"matrixView:toolTipAtItemIndex:"}];
      OvTestGrid *grid = [[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)];
      [grid setDataSource:source];
      [grid setDelegate:source];
      scrollView(window, grid);
      [grid setMouseTrackingEnabled:YES];
      [window makeKeyAndOrderFront:nil];
      pumpPending();
      [grid release];
      [window close];
      [window release];
    }
    pumpPending();
  }
  SUCCEED();
}

}  // namespace
