// Where items are, and which item is where. The arithmetic has its own tests; these are
// about the view's methods and their odd corners.

#import "GridTest.h"

using namespace ov::test;

namespace {

class GridQueries : public GridTest {
 protected:
  void SetUp() override {
    GridTest::SetUp();
    grid = makeGrid(7);  // 3 columns, 3 rows, one item in the last
  }
  OvTestGrid *grid = nil;
};

TEST_F(GridQueries, FramesOfPlacesNeedNoItem) {
  EXPECT_EQ([grid frameOfCellAtColumn:0 row:0], NSMakeRect(0, 0, 64, 64));
  EXPECT_EQ([grid frameOfCellAtColumn:2 row:2], NSMakeRect(130, 130, 64, 64));
  EXPECT_EQ([grid frameOfCellAtColumn:10 row:20], NSMakeRect(650, 1300, 64, 64));
}

TEST_F(GridQueries, FramesOfItems) {
  EXPECT_EQ([grid frameOfCellAtItemIndex:5], NSMakeRect(130, 65, 64, 64));
  EXPECT_EQ([grid frameOfCellAtItemIndex:6], NSMakeRect(0, 130, 64, 64));
  EXPECT_EQ([grid frameOfCellAtItemIndex:7], NSZeroRect);
  EXPECT_EQ([grid frameOfCellAtItemIndex:NSNotFound], NSZeroRect);
  EXPECT_EQ([makeGrid(0) frameOfCellAtItemIndex:0], NSZeroRect);
}

TEST_F(GridQueries, FramesOfBlocks) {
  auto frame = [&](NSRange columns, NSRange rows) {
    return [grid frameOfCellsAtColumns:columns rows:rows];
  };
  EXPECT_EQ(frame({0, 3}, {0, 3}), NSMakeRect(0, 0, 194, 194));
  EXPECT_EQ(frame({1, 2}, {1, 1}), NSMakeRect(65, 65, 129, 64));
  EXPECT_EQ(frame({1, 1}, {0, 2}), NSMakeRect(65, 0, 64, 129));
  EXPECT_EQ(frame({1, 1}, {1, 1}), NSMakeRect(65, 65, 64, 64));
  EXPECT_EQ(frame({5, 2}, {7, 2}), NSMakeRect(325, 455, 129, 129)) << "beyond the layout";
}

TEST_F(GridQueries, FramesOfSets) {
  EXPECT_EQ([grid frameOfCellsAtItemIndexes:[NSIndexSet indexSet]], NSZeroRect);
  EXPECT_EQ([grid frameOfCellsAtItemIndexes:indexes({4})], NSMakeRect(65, 65, 64, 64));
  EXPECT_EQ([grid frameOfCellsAtItemIndexes:indexes({1, 6})], NSMakeRect(0, 0, 129, 194));
  EXPECT_EQ([grid frameOfCellsAtItemIndexes:indexes({2, 99})], NSMakeRect(130, 0, 64, 64))
      << "an invalid item adds nothing";
}

TEST_F(GridQueries, PointsInCells) {
  auto at = [&](CGFloat x, CGFloat y) { return [grid itemIndexAtPoint:NSMakePoint(x, y)]; };
  const NSUInteger none = NSNotFound;
  EXPECT_EQ(at(0, 0), 0u);
  EXPECT_EQ(at(63.999, 63.999), 0u);
  EXPECT_EQ(at(64, 10), none) << "the right edge is in the gap";
  EXPECT_EQ(at(64.5, 10), none);
  EXPECT_EQ(at(65, 10), 1u);
  EXPECT_EQ(at(10, 64.5), none);
  EXPECT_EQ(at(10, 65), 3u);
  EXPECT_EQ(at(-0.5, 10), none);
  EXPECT_EQ(at(10, -0.5), none);
  EXPECT_EQ(at(10, 140), 6u);
  EXPECT_EQ(at(70, 140), none) << "the empty tail of the last row";
  EXPECT_EQ(at(194, 10), none);
  EXPECT_EQ(at(1e9, 1e9), none);
}

TEST_F(GridQueries, InOverlappingCellsTheLastOneIsHit) {
  [grid setIntercellSpacing:NSMakeSize(-32, 1)];
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(10, 10)], 0u);
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(40, 10)], 1u);
  EXPECT_EQ([grid itemIndexAtPoint:NSMakePoint(70, 10)], 2u);
}

TEST_F(GridQueries, PlacesAndIndexes) {
  const NSUInteger none = NSNotFound;
  EXPECT_EQ([grid itemIndexAtColumn:2 row:1], 5u);
  EXPECT_EQ([grid itemIndexAtColumn:0 row:2], 6u);
  EXPECT_EQ([grid itemIndexAtColumn:1 row:2], none);
  EXPECT_EQ([grid itemIndexAtColumn:4 row:0], 4u) << "columns are not checked";
  EXPECT_EQ([grid columnAtItemIndex:5], 2u);
  EXPECT_EQ([grid rowAtItemIndex:5], 1u);
  EXPECT_EQ([grid columnAtItemIndex:1000], 1u) << "nor is the index";
  EXPECT_EQ([grid rowAtItemIndex:1000], 333u);
  OvTestGrid *empty = makeGrid(7);
  [empty setDataSource:nil];
  EXPECT_EQ([empty columnAtItemIndex:0], none);
  EXPECT_EQ([empty rowAtItemIndex:0], none);
}

TEST_F(GridQueries, ValidityIsBelowTheCount) {
  EXPECT_TRUE([grid _isValidItemIndex:0]);
  EXPECT_TRUE([grid _isValidItemIndex:6]);
  EXPECT_FALSE([grid _isValidItemIndex:7]);
  EXPECT_FALSE([grid _isValidItemIndex:NSNotFound]);
}

TEST_F(GridQueries, ColumnsAndRowsInRectangles) {
  auto columns = [&](CGFloat x, CGFloat width) {
    return [grid columnsInRect:NSMakeRect(x, 0, width, 10)];
  };
  auto rows = [&](CGFloat y, CGFloat height) {
    return [grid rowsInRect:NSMakeRect(0, y, 10, height)];
  };
  EXPECT_EQ(columns(0, 200), NSMakeRange(0, 3));
  EXPECT_EQ(columns(64, 10), NSMakeRange(1, 1)) << "begins at a right edge";
  EXPECT_EQ(columns(0, 65), NSMakeRange(0, 1)) << "ends where the next begins";
  EXPECT_EQ(columns(0, 65.001), NSMakeRange(0, 2));
  EXPECT_EQ(columns(64.2, 0.5), NSMakeRange(0, 0)) << "in a gap";
  EXPECT_EQ(columns(194, 50), NSMakeRange(0, 0));
  EXPECT_EQ(columns(-50, 50), NSMakeRange(0, 0));
  EXPECT_EQ(rows(0, 500), NSMakeRange(0, 3));
  EXPECT_EQ(rows(64, 10), NSMakeRange(1, 1));
  EXPECT_EQ(rows(0, 65), NSMakeRange(0, 1));
  EXPECT_EQ([grid columnsInRect:NSMakeRect(10, 10, 0, 50)], NSMakeRange(0, 0));
  EXPECT_EQ([grid columnsInRect:NSMakeRect(10, 10, 50, 0)], NSMakeRange(0, 0))
      << "empty in the other direction";
  EXPECT_EQ([grid rowsInRect:NSMakeRect(10, 10, 0, 50)], NSMakeRange(0, 0));
}

TEST_F(GridQueries, BlocksOfItems) {
  OvTestGrid *nine = makeGrid(8);
  auto block = [&](NSRange columns, NSRange rows) {
    return text([nine itemIndexesAtColumns:columns rows:rows]);
  };
  EXPECT_EQ(block({0, 2}, {0, 2}), "0 1 3 4");
  EXPECT_EQ(block({1, 2}, {1, 2}), "4 5 7") << "item 8 does not exist";
  EXPECT_EQ(block({2, 1}, {0, 3}), "2 5");
  EXPECT_EQ(block({0, 0}, {0, 3}), "");
  EXPECT_EQ(block({0, 3}, {0, 0}), "");
  EXPECT_EQ(block({0, 3}, {5, 2}), "");
  EXPECT_EQ(block({1, 5}, {0, 1}), "1 2 3 4 5") << "only the last row is cut off";
  EXPECT_EQ(block({1, 5}, {2, 1}), "7");
}

TEST_F(GridQueries, ABlockMayReachPastTheItemsInARowThatIsNotTheLayoutsLast) {
  OvTestGrid *sideways = makeGrid(5);
  [sideways setAutoFitHorizentally:YES];
  [sideways setFrameSize:NSMakeSize(10, 259)];
  ASSERT_EQ([sideways numberOfColumns], 2u);
  ASSERT_EQ([sideways numberOfRows], 4u);
  EXPECT_EQ(text([sideways itemIndexesAtColumns:NSMakeRange(0, 2) rows:NSMakeRange(2, 1)]), "4 5");
  EXPECT_EQ(text([sideways itemIndexesAtColumns:NSMakeRange(0, 2) rows:NSMakeRange(0, 4)]),
            "0 1 2 3 4 5");
}

TEST_F(GridQueries, ABlockIsAnImmutableCopy) {
  NSIndexSet *block = [grid itemIndexesAtColumns:NSMakeRange(0, 1) rows:NSMakeRange(0, 1)];
  EXPECT_FALSE([block isKindOfClass:[NSMutableIndexSet class]]);
  EXPECT_FALSE([[grid selectedItemIndexes] isKindOfClass:[NSMutableIndexSet class]]);
}

TEST_F(GridQueries, AnAbsentGridAnswersZero) {
  HXMatrixView *absent = nil;
  EXPECT_EQ([absent frameOfCellAtItemIndex:3], NSZeroRect);
  EXPECT_EQ([absent cellSize], NSZeroSize);
  EXPECT_EQ([absent columnsInRect:NSMakeRect(0, 0, 5, 5)], NSMakeRange(0, 0));
}

}  // namespace
