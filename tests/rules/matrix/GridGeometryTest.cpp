#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Random.h"
#include "RulePrinting.h"
#include "matrix/GridGeometry.h"

namespace ov {

void PrintTo(const GridShape& s, std::ostream* out) {
  *out << s.columns << " columns, " << s.rows << " rows";
}

namespace {

constexpr Scalar kInfinity = std::numeric_limits<Scalar>::infinity();
constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();
constexpr Scalar kHuge = std::numeric_limits<Scalar>::max() / 4;
constexpr Scalar kTiny = std::numeric_limits<Scalar>::min() * 4;

// The definitions, one cell at a time. What they say is what the grid promises; the rules
// must say the same without the loops.

Index slowHit(const GridAxis& axis, Scalar x) {
  Index found = kNoIndex;
  for (Index c = 0; c < axis.count; c++) {
    Scalar origin = static_cast<Scalar>(c) * (axis.cell + axis.spacing);
    if (origin <= x && x < origin + axis.cell) found = c;
  }
  return found;
}

IndexRange slowCovering(const GridAxis& axis, Scalar min, Scalar max) {
  Scalar pitch = axis.cell + axis.spacing;
  Index first = 0;
  while (first < axis.count && !(static_cast<Scalar>(first) * pitch + axis.cell > min)) first++;
  if (first == axis.count) return {};
  Index end = axis.count;
  while (end > 0 && !(static_cast<Scalar>(end - 1) * pitch < max)) end--;
  return first < end ? IndexRange{first, end - first} : IndexRange{};
}

Scalar slowContentLength(const GridAxis& axis) {
  if (axis.count == 0) return 0;
  Scalar cells = static_cast<Scalar>(axis.count), gaps = static_cast<Scalar>(axis.count - 1);
  return cells * axis.cell + gaps * axis.spacing;
}

Index slowCountFitting(const GridAxis& axis, Scalar length, Index items) {
  if (items == 0) return 0;
  if (!(length > axis.cell)) return 1;
  Scalar fitting = std::trunc((length - axis.cell) / (axis.cell + axis.spacing) + 1);
  if (fitting >= static_cast<Scalar>(items)) return items;
  return fitting >= 1 ? static_cast<Index>(fitting) : 1;
}

// --- Rows of a table -----------------------------------------------------------------

struct HitRow {
  const char* name;
  GridAxis axis;
  Scalar x;
  Index expected;
};

void PrintTo(const HitRow& row, std::ostream* out) { *out << row.name; }

class GridHit : public testing::TestWithParam<HitRow> {};

TEST_P(GridHit, FindsTheCell) {
  EXPECT_EQ(GetParam().axis.hit(GetParam().x), GetParam().expected);
  EXPECT_EQ(slowHit(GetParam().axis, GetParam().x), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, GridHit,
                         testing::Values(HitRow{"leftEdgeBelongsToTheCell", {64, 1, 3}, 0, 0},
                                         HitRow{"justInsideTheRightEdge", {64, 1, 3}, 63.999, 0},
                                         HitRow{"rightEdgeIsInTheGap", {64, 1, 3}, 64, kNoIndex},
                                         HitRow{"secondCellStartsAtThePitch", {64, 1, 3}, 65, 1},
                                         HitRow{"beforeTheGrid", {64, 1, 3}, -0.001, kNoIndex},
                                         HitRow{"beyondTheLastCell", {64, 1, 3}, 194, kNoIndex},
                                         HitRow{"lastCell", {64, 1, 3}, 193.5, 2},
                                         HitRow{"noCells", {64, 1, 0}, 10, kNoIndex},
                                         HitRow{"noSpacingNoGap", {64, 0, 3}, 64, 1},
                                         // Overlapping cells: the one on top is the last one.
                                         HitRow{"overlapHitsTheLast", {64, -32, 3}, 40, 1},
                                         HitRow{"allInOnePlaceHitsTheLast", {64, -64, 3}, 10, 2},
                                         HitRow{"backwardGrid", {64, -100, 3}, -30, 2},
                                         HitRow{"cellsWithoutWidth", {0, 10, 3}, 10, kNoIndex},
                                         HitRow{"cellsOfNegativeWidth", {-5, 10, 3}, 2, kNoIndex},
                                         HitRow{"notANumber", {64, 1, 3}, kNaN, kNoIndex},
                                         HitRow{"infinitelyFar", {64, 1, 3}, kInfinity, kNoIndex},
                                         HitRow{"pitchNotANumber", {kNaN, 1, 3}, 10, kNoIndex}),
                         testing::PrintToStringParamName());

struct CoverRow {
  const char* name;
  GridAxis axis;
  Scalar min, max;
  IndexRange expected;
};

void PrintTo(const CoverRow& row, std::ostream* out) { *out << row.name; }

class GridCover : public testing::TestWithParam<CoverRow> {};

TEST_P(GridCover, FindsTheCells) {
  const CoverRow& row = GetParam();
  EXPECT_EQ(row.axis.covering(row.min, row.max), row.expected);
  EXPECT_EQ(slowCovering(row.axis, row.min, row.max), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GridCover,
    testing::Values(CoverRow{"whole", {64, 1, 3}, 0, 194, {0, 3}},
                    CoverRow{"startsOnARightEdge", {64, 1, 3}, 64, 100, {1, 1}},
                    CoverRow{"endsOnALeftEdge", {64, 1, 3}, 0, 65, {0, 1}},
                    CoverRow{"withinAGap", {64, 10, 3}, 66, 72, {}},
                    CoverRow{"acrossAGap", {64, 10, 3}, 63, 75, {0, 2}},
                    CoverRow{"beyondTheEnd", {64, 1, 3}, 194, 300, {}},
                    CoverRow{"beforeTheStart", {64, 1, 3}, -50, 0, {}},
                    CoverRow{"noCells", {64, 1, 0}, 0, 100, {}},
                    CoverRow{"everythingFromHereOn", {64, 1, 3}, 70, kInfinity, {1, 2}},
                    CoverRow{"overlappingCells", {64, -32, 4}, 40, 70, {0, 3}},
                    CoverRow{"notANumber", {64, 1, 3}, kNaN, kNaN, {}}),
    testing::PrintToStringParamName());

struct FitRow {
  const char* name;
  GridAxis axis;
  Scalar length;
  Index items;
  Index expected;
};

void PrintTo(const FitRow& row, std::ostream* out) { *out << row.name; }

class GridFitting : public testing::TestWithParam<FitRow> {};

TEST_P(GridFitting, CountsTheCells) {
  const FitRow& row = GetParam();
  EXPECT_EQ(row.axis.countFitting(row.length, row.items), row.expected);
  EXPECT_EQ(slowCountFitting(row.axis, row.length, row.items), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GridFitting,
    testing::Values(FitRow{"twoHundredWide", {64, 1, 0}, 200, 7, 3},
                    FitRow{"exactlyThree", {64, 1, 0}, 194, 7, 3},
                    FitRow{"aTraceTooNarrowForThree", {64, 1, 0}, 193.999, 7, 2},
                    FitRow{"exactlyOneCell", {64, 1, 0}, 64, 7, 1},
                    FitRow{"lessThanACell", {64, 1, 0}, 10, 7, 1},
                    FitRow{"nothing", {64, 1, 0}, 0, 7, 1},
                    FitRow{"negative", {64, 1, 0}, -50, 7, 1},
                    FitRow{"widerThanAllItems", {64, 1, 0}, 10000, 7, 7},
                    FitRow{"noItems", {64, 1, 0}, 200, 0, 0},
                    FitRow{"endlessLength", {64, 1, 0}, kInfinity, 7, 7},
                    FitRow{"pitchZero", {64, -64, 0}, 200, 7, 7},
                    FitRow{"negativePitch", {64, -100, 0}, 200, 7, 1},
                    FitRow{"notANumber", {kNaN, 1, 0}, 200, 7, 1},
                    FitRow{"lengthNotANumber", {64, 1, 0}, kNaN, 7, 1},
                    FitRow{"moreThanAnIndexHolds", {kTiny, 0, 0}, kHuge, kNoIndex, kNoIndex}),
    testing::PrintToStringParamName());

// --- Random rows against the definitions ---------------------------------------------

GridAxis randomAxis(test::Random& random) {
  static const std::vector<Scalar> lengths = {64,   1,   0.1, 0.3,  33.3, 100,
                                              1e-3, 1e6, 7.7, 0.25, 12,   1.0 / 3};
  GridAxis axis;
  switch (random.integer(0, 5)) {
    case 0:  // any real number
      axis.cell = random.real(-5, 100);
      axis.spacing = random.real(-40, 20);
      break;
    case 1:  // nothing sensible
      axis.cell = random.pick<Scalar>({0, -3, kNaN, kInfinity, kHuge, kTiny, 64});
      axis.spacing = random.pick<Scalar>({0, 1, -64, kNaN, -kInfinity, kHuge, kTiny});
      break;
    default:
      axis.cell = random.pick(lengths);
      axis.spacing = random.pick<Scalar>({0, 1, 0.5, 10, 0.1, -0.1, 3});
  }
  axis.count =
      static_cast<Index>(random.oneIn(10) ? random.integer(0, 300) : random.integer(0, 12));
  return axis;
}

// Mostly on or beside an edge of some cell.
Scalar randomPlace(test::Random& random, const GridAxis& axis) {
  Scalar place = 0;
  switch (random.integer(0, 6)) {
    case 0:
      place = random.real(-200, 2000);
      break;
    case 1:
      return random.pick<Scalar>({kNaN, kInfinity, -kInfinity, kHuge, -kHuge, 0, Scalar(-0.0)});
    case 2:
      place = static_cast<Scalar>(random.integer(-2, 15)) * axis.pitch();
      break;
    default: {
      Scalar c = static_cast<Scalar>(random.integer(0, static_cast<int64_t>(axis.count) + 1));
      place = c * axis.pitch() + (random.oneIn(2) ? axis.cell : 0);
    }
  }
  if (random.oneIn(3)) place = std::nextafter(place, random.oneIn(2) ? kInfinity : -kInfinity);
  return place;
}

std::string describe(const GridAxis& axis) {
  std::ostringstream out;
  out.precision(17);
  out << "cell " << axis.cell << ", spacing " << axis.spacing << ", count " << axis.count;
  return out.str();
}

TEST(GridAxisProperty, HitAnswersAsTestingEachCell) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 100000; i++) {
    GridAxis axis = randomAxis(random);
    Scalar x = randomPlace(random, axis);
    ASSERT_EQ(axis.hit(x), slowHit(axis, x)) << describe(axis) << ", x " << x;
  }
}

TEST(GridAxisProperty, CoveringAnswersAsCountingUpAndDown) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 100000; i++) {
    GridAxis axis = randomAxis(random);
    Scalar min = randomPlace(random, axis), max = randomPlace(random, axis);
    if (min > max) std::swap(min, max);
    ASSERT_EQ(axis.covering(min, max), slowCovering(axis, min, max))
        << describe(axis) << ", from " << min << " to " << max;
  }
}

TEST(GridAxisProperty, CountFittingAnswersAsTheFormula) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 100000; i++) {
    GridAxis axis = randomAxis(random);
    Scalar length = randomPlace(random, axis);
    Index items = static_cast<Index>(random.integer(0, 50));
    ASSERT_EQ(axis.countFitting(length, items), slowCountFitting(axis, length, items))
        << describe(axis) << ", length " << length << ", items " << items;
  }
}

TEST(GridAxisProperty, ContentReachesFromTheFirstCellToTheEndOfTheLast) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    GridAxis axis = randomAxis(random);
    Scalar expected = slowContentLength(axis);
    Scalar got = axis.contentLength();
    if (!std::isfinite(expected)) continue;
    ASSERT_EQ(got, expected) << describe(axis);
  }
}

TEST(GridAxisProperty, HugeCountsAreAnsweredAtOnce) {
  // Each would take years one cell at a time.
  GridAxis axis{64, 1, kNoIndex};
  EXPECT_EQ(axis.hit(0), 0u);
  // As far out as the scalar tells one point from the next.
  const Index far = sizeof(Scalar) == sizeof(double) ? 1000000000 : 200000;
  const Scalar place = 65 * static_cast<Scalar>(far);
  EXPECT_EQ(axis.hit(place), far);
  EXPECT_EQ(axis.hit(place + 64), kNoIndex);
  EXPECT_EQ(axis.covering(65e6, 65e6 + 65), (IndexRange{1000000, 1}));
  EXPECT_EQ(axis.covering(0, 65), (IndexRange{0, 1}));
  EXPECT_EQ((GridAxis{64, -64, kNoIndex}.hit(5)), kNoIndex - 1);
  EXPECT_EQ((GridAxis{64, -64, kNoIndex}.covering(5, 6)), (IndexRange{0, kNoIndex}));
  EXPECT_EQ((GridAxis{kNaN, kNaN, kNoIndex}.hit(5)), kNoIndex);
  EXPECT_EQ((GridAxis{64, 1, kNoIndex}.hit(kNaN)), kNoIndex);
}

// --- Whole grids ----------------------------------------------------------------------

GridGeometry grid(Index items, Index columns, Index rows) {
  return {{64, 64}, {1, 1}, items, {columns, rows}};
}

TEST(GridShape, FillsTheWidthAndGrowsDownward) {
  GridGeometry g = grid(7, 0, 0);
  EXPECT_EQ(g.shapeFor(GridFit::width, 200), (GridShape{3, 3}));
  EXPECT_EQ(g.shapeFor(GridFit::width, 64), (GridShape{1, 7}));
  EXPECT_EQ(g.shapeFor(GridFit::width, 100000), (GridShape{7, 1}));
  EXPECT_EQ(grid(0, 0, 0).shapeFor(GridFit::width, 200), (GridShape{0, 0}));
}

TEST(GridShape, FillsTheHeightAndGrowsSideways) {
  // Five items in four rows make two columns; the last row stays empty, and still counts.
  EXPECT_EQ(grid(5, 0, 0).shapeFor(GridFit::height, 4 * 64 + 3), (GridShape{2, 4}));
  EXPECT_EQ(grid(7, 0, 0).shapeFor(GridFit::height, 200), (GridShape{3, 3}));
  EXPECT_EQ(grid(7, 0, 0).shapeFor(GridFit::height, 10), (GridShape{7, 1}));
  EXPECT_EQ(grid(0, 0, 0).shapeFor(GridFit::height, 200), (GridShape{0, 0}));
}

TEST(GridShape, HoldsEveryItemAndNoMoreThanOneSpareLine) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    GridGeometry g;
    g.cell = {Scalar(random.integer(1, 90)), Scalar(random.integer(1, 90))};
    g.spacing = {Scalar(random.real(0, 9)), Scalar(random.real(0, 9))};
    g.items = static_cast<Index>(random.integer(1, 500));
    Scalar length = random.real(-10, 2000);
    GridShape down = g.shapeFor(GridFit::width, length);
    ASSERT_GE(down.columns * down.rows, g.items);
    ASSERT_LT(down.columns * (down.rows - 1), g.items);
    GridShape sideways = g.shapeFor(GridFit::height, length);
    ASSERT_GE(sideways.columns * sideways.rows, g.items);
    ASSERT_LT((sideways.columns - 1) * sideways.rows, g.items);
  }
}

TEST(GridShape, HugeItemCountsDoNotOverflow) {
  GridShape shape = grid(kNoIndex, 0, 0).shapeFor(GridFit::width, 200);
  EXPECT_EQ(shape.columns, 3u);
  EXPECT_EQ(shape.rows, kNoIndex / 3 + (kNoIndex % 3 ? 1 : 0));
  Index all = std::numeric_limits<Index>::max();
  shape = grid(all, 0, 0).shapeFor(GridFit::width, 200);
  EXPECT_EQ(shape.rows, all / 3 + (all % 3 ? 1 : 0));
}

TEST(GridSize, FollowsTheFilledAxisAndTheContentOfTheOther) {
  GridGeometry g = grid(7, 3, 3);
  EXPECT_EQ(g.sizeFor(GridFit::width, {200, 10}, {0, 0}), (Size{200, 194}));
  EXPECT_EQ(g.sizeFor(GridFit::height, {10, 200}, {0, 0}), (Size{194, 200}));
}

TEST(GridSize, IsAtLeastTheVisibleSizeAlongTheGrowingAxisOnly) {
  GridGeometry g = grid(7, 3, 3);
  EXPECT_EQ(g.sizeFor(GridFit::width, {200, 10}, {999, 500}), (Size{200, 500}));
  EXPECT_EQ(g.sizeFor(GridFit::width, {200, 10}, {999, 50}), (Size{200, 194}));
  EXPECT_EQ(g.sizeFor(GridFit::height, {10, 200}, {500, 999}), (Size{500, 200}));
  EXPECT_EQ(grid(0, 0, 0).sizeFor(GridFit::width, {200, 10}, {0, 0}), (Size{200, 0}));
}

TEST(GridItems, StandRowByRow) {
  GridGeometry g = grid(7, 3, 3);
  EXPECT_EQ(g.itemAt(0, 0), 0u);
  EXPECT_EQ(g.itemAt(2, 1), 5u);
  EXPECT_EQ(g.itemAt(1, 2), kNoIndex) << "the empty tail of the last row";
  EXPECT_EQ(g.itemAt(4, 0), 4u) << "columns are not checked";
  EXPECT_EQ(g.columnOf(5), 2u);
  EXPECT_EQ(g.rowOf(5), 1u);
  EXPECT_EQ(g.columnOf(1000), 1u) << "nor is the index";
  EXPECT_EQ(grid(0, 0, 0).columnOf(5), kNoIndex);
  EXPECT_EQ(grid(0, 0, 0).rowOf(5), kNoIndex);
}

TEST(GridItems, PlacesBeyondWhatAnIndexHoldsHaveNone) {
  GridGeometry g = grid(7, 3, 3);
  Index big = std::numeric_limits<Index>::max();
  EXPECT_EQ(g.itemAt(big, 0), kNoIndex);
  EXPECT_EQ(g.itemAt(0, big), kNoIndex);
  EXPECT_EQ(g.itemAt(big, big), kNoIndex);
  // Products that come out small again once the high bits are lost.
  EXPECT_EQ(g.itemAt(1, big / 3 + 1), kNoIndex);
  EXPECT_EQ(grid(7, 4, 2).itemAt(0, Index{1} << (sizeof(Index) * 8 - 2)), kNoIndex);
  EXPECT_EQ(g.itemAt(kNoIndex, kNoIndex), kNoIndex);
}

TEST(GridItems, HaveTheFrameOfTheirCell) {
  GridGeometry g = grid(7, 3, 3);
  EXPECT_EQ(g.frameAt(2, 1), (Rect{130, 65, 64, 64}));
  EXPECT_EQ(g.frameAt(20, 10), (Rect{1300, 650, 64, 64})) << "places hold a frame without items";
  EXPECT_EQ(g.frameOf(5), (Rect{130, 65, 64, 64}));
  EXPECT_EQ(g.frameOf(7), (Rect{0, 0, 0, 0}));
  EXPECT_EQ(g.frameOf(kNoIndex), (Rect{0, 0, 0, 0}));
  EXPECT_EQ(g.frameOf({0, 2}, {1, 2}), (Rect{0, 65, 129, 129}));
  EXPECT_EQ(g.frameOf({1, 1}, {1, 1}), (Rect{65, 65, 64, 64}));
  EXPECT_EQ(g.frameOf({1, 0}, {1, 0}), (Rect{65, 65, 64, 64}));
}

TEST(GridItems, AreFoundInTheirFrame) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    GridGeometry g;
    g.cell = {Scalar(random.integer(1, 90)), Scalar(random.integer(1, 90))};
    g.spacing = {Scalar(random.integer(0, 9)), Scalar(random.integer(0, 9))};
    g.items = static_cast<Index>(random.integer(1, 100000));
    g.shape = g.shapeFor(random.oneIn(2) ? GridFit::width : GridFit::height, random.real(0, 5000));
    Index item = static_cast<Index>(random.integer(0, static_cast<int64_t>(g.items) - 1));
    Rect frame = g.frameOf(item);
    ASSERT_EQ(g.itemAt(Point{frame.x, frame.y}), item);
    ASSERT_EQ(g.itemAt(Point{frame.maxX() - Scalar(0.5), frame.maxY() - Scalar(0.5)}), item);
    ASSERT_EQ(g.itemAt(g.columnOf(item), g.rowOf(item)), item);
  }
}

TEST(GridItems, RectanglesAskBothAxes) {
  GridGeometry g = grid(7, 3, 3);
  EXPECT_EQ(g.columnsIn({64, 0, 10, 10}), (IndexRange{1, 1}));
  EXPECT_EQ(g.rowsIn({0, 64, 10, 200}), (IndexRange{1, 2}));
  EXPECT_EQ(g.columnsIn({10, 10, 0, 10}), (IndexRange{})) << "an empty rectangle";
  EXPECT_EQ(g.rowsIn({10, 10, 10, 0}), (IndexRange{}));
  EXPECT_EQ(g.rowsIn({10, 10, 0, 10}), (IndexRange{})) << "empty in the other direction";
  EXPECT_EQ(grid(0, 0, 0).columnsIn({0, 0, 100, 100}), (IndexRange{}));
}

TEST(GridItems, ABlocksRowEndsWithTheLastItemInTheLastRowOnly) {
  GridGeometry g = grid(8, 3, 3);
  EXPECT_EQ(g.itemsInRow(0, {1, 2}), (IndexRange{1, 2}));
  EXPECT_EQ(g.itemsInRow(0, {1, 5}), (IndexRange{1, 5})) << "columns are not checked";
  EXPECT_EQ(g.itemsInRow(2, {0, 3}), (IndexRange{6, 2}));
  EXPECT_EQ(g.itemsInRow(2, {2, 1}), (IndexRange{})) << "its first item does not exist";
  // Four rows were computed, three hold items: the third is not the layout's last one.
  EXPECT_EQ(grid(5, 2, 4).itemsInRow(2, {0, 2}), (IndexRange{4, 2}));
}

TEST(GridItems, ARangesColumnsReachFromTheLeftmostToTheRightmost) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    GridGeometry g = grid(static_cast<Index>(random.integer(1, 60)), 0, 0);
    g.shape.columns = static_cast<Index>(random.integer(1, 9));
    g.shape.rows = (g.items + g.shape.columns - 1) / g.shape.columns;
    IndexRange range{static_cast<Index>(random.integer(0, 40)),
                     static_cast<Index>(random.integer(1, 20))};
    Index low = kNoIndex, high = 0;
    for (Index item = range.location; item < range.end(); item++) {
      low = std::min(low, item % g.shape.columns);
      high = std::max(high, item % g.shape.columns);
    }
    ASSERT_EQ(g.columnsOf(range), (IndexRange{low, high - low + 1}))
        << g.shape.columns << " columns, items from " << range.location << ", " << range.length;
  }
}

}  // namespace
}  // namespace ov
