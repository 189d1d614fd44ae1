// How many columns and rows there are, and how large the view is.

#import "GridTest.h"

using namespace ov::test;

namespace {

class GridLayout : public GridTest {};

struct LayoutRow {
  const char *name;
  bool horizontal;
  NSSize view, cell, spacing;
  NSUInteger items;
  NSUInteger columns, rows;
  NSSize size;
};

void PrintTo(const LayoutRow &row, std::ostream *out) { *out << row.name; }

const NSSize k64 = {64, 64}, k1 = {1, 1};

const LayoutRow kLayouts[] = {
    // Fill the width, grow downward.
    {"threeColumnsInTwoHundred", false, {200, 10}, k64, k1, 7, 3, 3, {200, 194}},
    {"exactlyThreeColumns", false, {194, 10}, k64, k1, 7, 3, 3, {194, 194}},
    {"onePointTooNarrowForThree", false, {193, 10}, k64, k1, 7, 2, 4, {193, 259}},
    {"exactlyOneCellWide", false, {64, 10}, k64, k1, 3, 1, 3, {64, 194}},
    {"narrowerThanACell", false, {10, 10}, k64, k1, 3, 1, 3, {10, 194}},
    {"noWidth", false, {0, 10}, k64, k1, 3, 1, 3, {0, 194}},
    {"widerThanAllItems", false, {2000, 10}, k64, k1, 7, 7, 1, {2000, 64}},
    {"noItems", false, {200, 10}, k64, k1, 0, 0, 0, {200, 0}},
    {"oneItem", false, {200, 10}, k64, k1, 1, 1, 1, {200, 64}},
    {"fullLastRow", false, {200, 10}, k64, k1, 9, 3, 3, {200, 194}},
    {"wideSpacing", false, {200, 10}, k64, {10, 20}, 7, 2, 4, {200, 316}},
    {"noSpacing", false, {192, 10}, k64, {0, 0}, 7, 3, 3, {192, 192}},
    {"fractions", false, {101, 10}, {10.25, 8}, {0.5, 0.25}, 25, 9, 3, {101, 24.5}},
    {"overlappingCells", false, {100, 10}, {64, 20}, {-32, -10}, 5, 2, 3, {100, 40}},
    // Fill the height, grow sideways.
    {"sidewaysThreeRows", true, {10, 200}, k64, k1, 7, 3, 3, {194, 200}},
    {"sidewaysFiveInFourRows", true, {10, 259}, k64, k1, 5, 2, 4, {129, 259}},
    {"sidewaysOneCellHigh", true, {10, 64}, k64, k1, 3, 3, 1, {194, 64}},
    {"sidewaysLowerThanACell", true, {10, 9}, k64, k1, 3, 3, 1, {194, 9}},
    {"sidewaysHigherThanAllItems", true, {10, 2000}, k64, k1, 7, 1, 7, {64, 2000}},
    {"sidewaysNoItems", true, {10, 200}, k64, k1, 0, 0, 0, {0, 200}},
    {"sidewaysWideSpacing", true, {10, 200}, k64, {10, 20}, 7, 4, 2, {286, 200}},
};

class GridLayoutRows : public GridTest, public testing::WithParamInterface<LayoutRow> {};

TEST_P(GridLayoutRows, FollowFromTheViewsSize) {
  const LayoutRow &row = GetParam();
  OvTestGrid *grid = [[[OvTestGrid alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
  items = newItems(row.items);
  [grid setAutoFitHorizentally:row.horizontal];
  [grid setCellSize:row.cell];
  [grid setIntercellSpacing:row.spacing];
  [grid setDataSource:items];
  [grid setFrameSize:row.view];
  EXPECT_EQ([grid numberOfColumns], row.columns);
  EXPECT_EQ([grid numberOfRows], row.rows);
  EXPECT_EQ([grid frame].size, row.size);
  // Each way to lay out comes to the same.
  [grid sizeToFit];
  EXPECT_EQ([grid frame].size, row.size);
  [grid reloadData];
  EXPECT_EQ([grid frame].size, row.size);
  EXPECT_EQ([grid numberOfColumns], row.columns);
  EXPECT_EQ([grid numberOfRows], row.rows);
}

INSTANTIATE_TEST_SUITE_P(Table, GridLayoutRows, testing::ValuesIn(kLayouts),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(GridLayout, SettingTheCellSizeLaysOutResizesAndRedisplays) {
  OvTestGrid *grid = gridInWindow(7);
  [grid setCellSize:NSMakeSize(32, 20)];
  EXPECT_EQ([grid cellSize], NSMakeSize(32, 20));
  EXPECT_EQ([grid numberOfColumns], 6u);
  EXPECT_EQ([grid numberOfRows], 2u);
  EXPECT_EQ([grid frame], NSMakeRect(0, 0, 200, 41));
  EXPECT_EQ(journal().count("sizeToFit"), 1u);
  EXPECT_TRUE(journal().has("dirty " + text([grid bounds])));
}

TEST_F(GridLayout, SettingTheSpacingLaysOutResizesAndRedisplays) {
  OvTestGrid *grid = gridInWindow(7);
  [grid setIntercellSpacing:NSMakeSize(40, 2)];
  EXPECT_EQ([grid intercellSpacing], NSMakeSize(40, 2));
  EXPECT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([grid frame], NSMakeRect(0, 0, 200, 4 * 64 + 3 * 2));
  EXPECT_EQ(journal().count("sizeToFit"), 1u);
  EXPECT_TRUE(journal().has("dirty " + text([grid bounds])));
}

TEST_F(GridLayout, SettingTheSameSizesAgainLaysOutAgain) {
  OvTestGrid *grid = gridInWindow(7);
  [grid setCellSize:[grid cellSize]];
  EXPECT_EQ(journal().count("sizeToFit"), 1u);
  EXPECT_GE(journal().count("dirty"), 1u);
  journal().clear();
  [grid setIntercellSpacing:[grid intercellSpacing]];
  EXPECT_EQ(journal().count("sizeToFit"), 1u);
  EXPECT_GE(journal().count("dirty"), 1u);
}

TEST_F(GridLayout, ColumnsComeFromTheWidthOrRowsFromTheHeight) {
  // A subclass may override either computation.
  OvTestGrid *grid = makeGrid(7);
  [grid setFrameSize:NSMakeSize(150, 90)];
  EXPECT_THAT(journal().of({"calcWidth", "calcHeight"}), testing::Contains("calcWidth 150"));
  EXPECT_EQ(journal().count("calcHeight"), 0u);
  [grid setAutoFitHorizentally:YES];
  journal().clear();
  [grid setFrameSize:NSMakeSize(150, 90)];
  EXPECT_THAT(journal().of({"calcWidth", "calcHeight"}), testing::Contains("calcHeight 90"));
  EXPECT_EQ(journal().count("calcWidth"), 0u);
}

TEST_F(GridLayout, SettingTheWholeFrameLaysOutToo) {
  OvTestGrid *grid = gridInWindow(7);
  [grid setFrame:NSMakeRect(5, 6, 140, 999)];
  EXPECT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([grid frame], NSMakeRect(5, 6, 140, 4 * 64 + 3));
}

TEST_F(GridLayout, ResizingTheSuperviewReflows) {
  NSWindow *window = makeWindow(NSMakeSize(300, 300));
  NSView *outer = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 200, 200)] autorelease];
  [[window contentView] addSubview:outer];
  OvTestGrid *grid = makeGrid(7, NSMakeSize(200, 200));
  [grid setAutoresizingMask:NSViewWidthSizable];
  [outer addSubview:grid];
  [outer setFrameSize:NSMakeSize(140, 200)];
  EXPECT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([grid frame].size, NSMakeSize(140, 259));
}

TEST_F(GridLayout, MovingTheViewDoesNotChangeIt) {
  OvTestGrid *grid = gridInWindow(7);
  [grid setFrameOrigin:NSMakePoint(10, 20)];
  EXPECT_EQ([grid frame], NSMakeRect(10, 20, 200, 194));
  EXPECT_EQ([grid numberOfColumns], 3u);
}

TEST_F(GridLayout, OutsideAScrollViewTheFitChangesWithTheNextLayout) {
  OvTestGrid *grid = makeGrid(7);
  NSRect before = [grid frame];
  [grid setAutoFitHorizentally:YES];
  EXPECT_TRUE([grid autoFitHorizentally]);
  EXPECT_EQ([grid frame], before);
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid numberOfRows], 3u);
  [grid setFrameSize:NSMakeSize(10, 130)];
  EXPECT_EQ([grid numberOfRows], 2u);
  EXPECT_EQ([grid numberOfColumns], 4u);
  [grid setAutoFitHorizentally:NO];
  EXPECT_EQ([grid numberOfRows], 2u);
  [grid reloadData];
  EXPECT_EQ([grid numberOfColumns], 4u) << "it was left 259 wide";
}

TEST_F(GridLayout, LeftoverSpaceStaysAtTheEnd) {
  OvTestGrid *grid = makeGrid(7, NSMakeSize(250, 10));
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid frameOfCellAtItemIndex:2], NSMakeRect(130, 0, 64, 64));
}

TEST_F(GridLayout, SizeToFitKeepsTheFilledAxis) {
  OvTestGrid *grid = makeGrid(7, NSMakeSize(200, 10));
  [grid setBoundsSize:[grid frame].size];
  [grid sizeToFit];
  EXPECT_EQ([grid frame].size, NSMakeSize(200, 194));
}

TEST_F(GridLayout, AnEmptyGridHitsNothing) {
  OvTestGrid *grid = makeGrid(0);
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(5, 5)], (NSUInteger)NSNotFound);
  EXPECT_EQ([grid itemIndexAtPoint:NSZeroPoint], (NSUInteger)NSNotFound);
  EXPECT_EQ([grid columnsInRect:NSMakeRect(0, 0, 100, 100)], NSMakeRange(0, 0));
  EXPECT_EQ([grid rowsInRect:NSMakeRect(0, 0, 100, 100)], NSMakeRange(0, 0));
}

// --- In a scroll view --------------------------------------------------------------------

class GridInScrollView : public GridTest {};

TEST_F(GridInScrollView, FillsAtLeastTheVisibleArea) {
  OvTestGrid *grid = gridInScrollView(4);
  NSSize visible = [[grid enclosingScrollView] contentSize];
  EXPECT_EQ([grid frame].size, visible) << "four items need less";
  items->count = 40;
  [grid reloadData];
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid frame].size, NSMakeSize(visible.width, 14 * 65 - 1));
  items->count = 0;
  [grid reloadData];
  EXPECT_EQ([grid frame].size, visible) << "an empty grid fills it too";
}

TEST_F(GridInScrollView, FillsTheVisibleWidthWhenItGrowsSideways) {
  OvTestGrid *grid = gridInScrollView(4);
  [grid setAutoFitHorizentally:YES];
  NSSize visible = [[grid enclosingScrollView] contentSize];
  EXPECT_EQ([grid numberOfRows], 3u);
  EXPECT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([grid frame].size, visible);
  items->count = 30;
  [grid reloadData];
  EXPECT_EQ([grid numberOfColumns], 10u);
  EXPECT_EQ([grid frame].size.width, 10 * 65 - 1);
}

TEST_F(GridInScrollView, ChangingTheFitLaysOutAtOnceForTheVisibleArea) {
  OvTestGrid *grid = gridInScrollView(30);
  EXPECT_EQ([grid numberOfColumns], 3u);
  NSSize visible = [[grid enclosingScrollView] contentSize];
  [grid setAutoFitHorizentally:YES];
  EXPECT_EQ([grid numberOfRows], 3u);
  EXPECT_EQ([grid frame].size, NSMakeSize(649, visible.height));
  [grid setAutoFitHorizentally:NO];
  EXPECT_EQ([grid numberOfColumns], 3u);
  EXPECT_EQ([grid frame].size, NSMakeSize(visible.width, 649));
}

TEST_F(GridInScrollView, FollowsTheScrollViewsWidth) {
  OvTestGrid *grid = gridInScrollView(30);
  NSScrollView *scroll = [grid enclosingScrollView];
  [scroll setFrameSize:NSMakeSize(155, 200)];
  EXPECT_EQ([grid numberOfColumns], 2u);
  EXPECT_EQ([grid frame].size, NSMakeSize([scroll contentSize].width, 15 * 65 - 1));
  [scroll setFrameSize:NSMakeSize(220, 200)];
  EXPECT_EQ([grid numberOfColumns], 3u);
}

TEST_F(GridInScrollView, OnlyTheDocumentViewItselfCounts) {
  NSWindow *window = makeWindow(NSMakeSize(220, 200));
  NSView *document = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 200, 500)] autorelease];
  NSScrollView *scroll = scrollView(window, document);
  OvTestGrid *grid = makeGrid(4, NSMakeSize(200, 10));
  [document addSubview:grid];
  [grid setFrameSize:NSMakeSize(200, 10)];
  EXPECT_NE([grid enclosingScrollView], nil);
  EXPECT_EQ([grid frame].size.height, 129) << "not as high as the visible area";
  EXPECT_GT([scroll contentSize].height, 129);
}

TEST_F(GridInScrollView, ScrollingToAnItemSaysWhetherItScrolled) {
  OvTestGrid *grid = gridInScrollView(60, NSMakeSize(220, 200), true);
  EXPECT_FALSE([grid scrollItemToVisible:60]);
  EXPECT_FALSE([grid scrollItemToVisible:NSNotFound]);
  EXPECT_FALSE([grid scrollItemToVisible:0]) << "it is visible already";
  EXPECT_TRUE([grid scrollItemToVisible:59]);
  EXPECT_TRUE(NSContainsRect([grid visibleRect], [grid frameOfCellAtItemIndex:59]));
  EXPECT_FALSE(NSContainsRect([grid visibleRect], [grid frameOfCellAtItemIndex:0]));
}

TEST_F(GridInScrollView, ThereIsNothingToScrollWithoutOne) {
  EXPECT_FALSE([gridInWindow(60) scrollItemToVisible:59]);
}

}  // namespace
