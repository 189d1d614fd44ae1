// Numbers that make no sense get an answer: no crash, no hang, no endless view.

#import "GridTest.h"

#include <cmath>
#include <limits>

using namespace ov::test;

namespace {

class GridHostile : public GridTest {
 protected:
  // Everything that computes with the layout.
  void askEverything(OvTestGrid *grid) {
    [grid itemIndexAtPoint:NSMakePoint(5, 5)];
    [grid itemIndexAtPoint:NSMakePoint(NAN, INFINITY)];
    [grid itemIndexAtPoint:NSMakePoint(-1e30, 1e30)];
    [grid columnsInRect:NSMakeRect(0, 0, 1e30, 1e30)];
    [grid rowsInRect:NSMakeRect(NAN, NAN, NAN, NAN)];
    [grid frameOfCellAtItemIndex:0];
    [grid frameOfCellAtColumn:NSNotFound row:NSNotFound];
    [grid itemIndexAtColumn:NSNotFound row:NSNotFound];
    [grid itemIndexAtColumn:NSUIntegerMax row:NSUIntegerMax];
    [grid setNeedsDisplayAtItemIndexes:indexes({0, 1, 5})];
    [grid scrollItemToVisible:1];
    [grid setBackgroundColor:[NSColor whiteColor]];
    [grid setGridStyleMask:3];
    if ([grid window]) {
      [grid lockFocus];
      [grid drawRect:NSMakeRect(0, 0, 50, 50)];
      [grid unlockFocus];
    }
    press(grid, NSMakePoint(5, 5));
    dragTo(grid, NSMakePoint(40, 40));
    release(grid, NSMakePoint(40, 40));
    EXPECT_FALSE(std::isnan([grid frame].size.width));
    EXPECT_FALSE(std::isnan([grid frame].size.height));
  }
};

TEST_F(GridHostile, SizesThatAreNoSizes) {
  const CGFloat none = NAN, endless = INFINITY;
  const NSSize cells[] = {{0, 0},           {-5, -5},     {none, none},   {endless, endless},
                          {-endless, none}, {1e30, 1e30}, {1e-30, 1e-30}, {64, none},
                          {none, 64}};
  const NSSize spacings[] = {{1, 1},       {0, 0},       {-64, -64},
                             {-200, -200}, {none, none}, {endless, endless}};
  for (bool horizontal : {false, true}) {
    OvTestGrid *grid = gridInWindow(20, NSMakeSize(200, 200), true);
    [grid setAutoFitHorizentally:horizontal];
    for (NSSize cell : cells) {
      for (NSSize spacing : spacings) {
        SCOPED_TRACE(testing::PrintToString(cell.width) + " spaced " +
                     testing::PrintToString(spacing.width));
        [grid setFrameSize:NSMakeSize(200, 200)];
        [grid setCellSize:cell];
        [grid setIntercellSpacing:spacing];
        askEverything(grid);
        EXPECT_EQ([grid numberOfItems], 20u);
        journal().clear();
      }
    }
    // And it works again.
    [grid setFrameSize:NSMakeSize(200, 200)];
    [grid setCellSize:NSMakeSize(64, 64)];
    [grid setIntercellSpacing:NSMakeSize(1, 1)];
    [grid setFrameSize:NSMakeSize(200, 200)];
    EXPECT_EQ([grid frameOfCellAtItemIndex:1], NSMakeRect(65, 0, 64, 64));
  }
}

TEST_F(GridHostile, CountsThatNoIndexCanReachAreRefusedWithALogLine) {
  // NSNotFound means "no item", so there cannot be so many.
  OvTestGrid *grid = makeGrid(7);
  for (NSUInteger count : {NSUInteger(NSNotFound), NSUIntegerMax}) {
    items->count = count;
    LogCapture log;
    [grid reloadData];
    EXPECT_EQ([grid numberOfItems], 0u);
    EXPECT_EQ([grid numberOfColumns], 0u);
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_THAT(log.lines()[0], testing::StartsWith("[HXMatrixView] "));
  }
}

constexpr NSUInteger kManyItems = NSUIntegerMax >> (sizeof(NSUInteger) == 8 ? 24 : 4);

TEST_F(GridHostile, HugeCountsTakeNoLonger) {
  OvTestGrid *grid = makeGrid(kManyItems);
  [[makeWindow(NSMakeSize(200, 200)) contentView] addSubview:grid];
  EXPECT_EQ([grid numberOfItems], kManyItems);
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(70, 70)], 4u);
  EXPECT_EQ([grid frameOfCellAtItemIndex:4], NSMakeRect(65, 65, 64, 64));
  journal().clear();
  [grid lockFocus];
  [grid drawRect:NSMakeRect(0, 0, 200, 130)];
  [grid unlockFocus];
  EXPECT_EQ(journal().count("drawCell"), 6u);
  [grid selectItem:kManyItems - 1 byExtendingSelection:NO];
  [grid selectItem:2 byExtendingSelection:YES];
  [grid deselectAll:nil];
  [grid setAutoFitHorizentally:YES];
  [grid setFrameSize:NSMakeSize(200, 200)];
  EXPECT_EQ([grid numberOfRows], 3u);
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(70, 10)], 1u);
}

TEST_F(GridHostile, SelectingEverythingOfAHugeGrid) {
  OvTestGrid *grid = makeGrid(kManyItems);
  [grid selectAll:nil];
  EXPECT_EQ([grid numberOfSelectedItems], kManyItems);
  EXPECT_TRUE([grid isItemSelected:12345678]);
  [grid selectAll:nil];
  [grid deselectAll:nil];
  EXPECT_EQ([grid numberOfSelectedItems], 0u);
}

TEST_F(GridHostile, FramesThatAreNoFrames) {
  OvTestGrid *grid = gridInWindow(20);
  LogCapture log;  // the platform complains of negative sizes
  for (NSSize size : {NSMakeSize(-5, -5), NSMakeSize(0, 0), NSMakeSize(1e9, 1e9)}) {
    [grid setFrameSize:size];
    EXPECT_GE([grid numberOfColumns], 1u);
    [grid setFrame:NSMakeRect(0, 0, size.width, size.height)];
    EXPECT_GE([grid numberOfColumns], 1u);
  }
  [grid setFrameSize:NSMakeSize(NAN, NAN)];
  EXPECT_FALSE(std::isnan([grid frame].size.height));
  [grid setFrameSize:NSMakeSize(200, 200)];
  EXPECT_EQ([grid numberOfColumns], 3u);
}

TEST_F(GridHostile, IndexesThatDoNotExist) {
  OvTestGrid *grid = gridInWindow(5, NSMakeSize(200, 200), true);
  for (NSUInteger index : {NSUInteger(5), NSUInteger(NSNotFound) - 1, NSUInteger(NSNotFound) / 2}) {
    [grid setNeedsDisplayAtItemIndex:index];
    [grid selectItem:index byExtendingSelection:YES];
    EXPECT_TRUE([grid isItemSelected:index]);
    [grid display];
  }
  EXPECT_EQ(journal().count("dirty"), 0u);
  click(grid, middle(grid, 2), kShift);
  EXPECT_TRUE([grid isItemSelected:2]);
}

TEST_F(GridHostile, AGridWithoutAnybody) {
  NSWindow *window = showWindow(NSMakeSize(200, 200));
  HXMatrixView *grid =
      [[[HXMatrixView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [[window contentView] addSubview:grid];
  [grid setGridStyleMask:3];
  [grid reloadData];
  [grid display];
  [grid setMouseTrackingEnabled:YES];
  click(grid, NSMakePoint(20, 20));
  press(grid, NSMakePoint(20, 20), 0, 2);
  dragTo(grid, NSMakePoint(90, 90));
  release(grid, NSMakePoint(90, 90));
  [grid selectAll:nil];
  [grid selectItem:3 byExtendingSelection:NO];
  [grid editItemAtIndex:3 withEvent:nil select:YES];
  [grid menuForEvent:mouseEvent(NSRightMouseDown, grid, NSMakePoint(5, 5))];
  EXPECT_EQ([grid numberOfItems], 0u);
}

TEST_F(GridHostile, ADataSourceThatShrinksWhileItemsAreSelectedAndEdited) {
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(200, 200), true);
  [grid selectItem:8 byExtendingSelection:NO];
  [grid editItemAtIndex:8 withEvent:nil select:YES];
  items->count = 2;
  [grid reloadData];
  [grid display];
  EXPECT_EQ([grid numberOfSelectedItems], 0u);
  [[grid window] makeFirstResponder:grid];
  EXPECT_EQ([grid editedItemIndex], (NSUInteger)NSNotFound);
}

TEST_F(GridHostile, MouseEventsOutOfOrder) {
  OvTestGrid *grid = gridInWindow(9, NSMakeSize(200, 200), true);
  [grid mouseUp:mouseEvent(NSLeftMouseUp, grid, NSMakePoint(10, 10))];
  [grid mouseDragged:mouseEvent(NSLeftMouseDragged, grid, NSMakePoint(10, 10))];
  [grid mouseUp:mouseEvent(NSLeftMouseUp, grid, NSMakePoint(10, 10))];
  EXPECT_EQ([grid numberOfSelectedItems], 0u);
  EXPECT_FALSE([grid inDragSelection]);
}

}  // namespace
