#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "Random.h"
#include "RulePrinting.h"
#include "matrix/GridLines.h"

namespace ov {
namespace {

constexpr Scalar kInfinity = std::numeric_limits<Scalar>::infinity();
constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();

// The definition, one line at a time from the first gap on. Lines that end before the
// dirty area are then left out: they would draw nothing.
struct SlowLines {
  std::vector<Scalar> positions;
  Scalar start, end;
};

SlowLines slowLines(const GridLineAxis& axis, Scalar width, const GridShadowReach* reach,
                    Scalar min, Scalar max, Scalar acrossMin, Scalar acrossMax) {
  Scalar offset = axis.spacing > 0 ? -std::ceil(axis.spacing * Scalar(0.5)) : 0;
  if (width > 0) offset += width * Scalar(0.5);
  Scalar before = -width / 2, after = width / 2;
  SlowLines lines{{}, acrossMin, acrossMax};
  if (reach) {
    before = std::min(before, reach->offset.width - reach->blur);
    after = std::max(after, reach->offset.width + reach->blur);
    lines.start = acrossMin + (reach->offset.height - reach->blur);
    lines.end = acrossMax + (reach->offset.height + reach->blur);
  }
  for (Index k = 1;; k++) {
    if (axis.insideOnly && k >= axis.count) break;
    Scalar x = static_cast<Scalar>(k) * axis.pitch + offset;
    if (x + before > max) break;
    if (x + after > min) lines.positions.push_back(x);
  }
  return lines;
}

std::vector<Scalar> positions(const GridLineRun& run) {
  std::vector<Scalar> all;
  for (Index k = run.first; k <= run.last; k++) all.push_back(run.position(k));
  return all;
}

std::vector<Scalar> positionsFor(const GridLineAxis& axis, Scalar width, Scalar min, Scalar max) {
  return positions(gridLinesIn(axis, width, nullptr, min, max, 0, 100));
}

using Places = std::vector<Scalar>;

TEST(GridLines, AnInsideGridHasOneFewerLinesThanCells) {
  EXPECT_EQ(positionsFor({65, 1, 3, true}, 1, 0, 1000), (Places{64.5, 129.5}));
  EXPECT_EQ(positionsFor({65, 1, 1, true}, 1, 0, 1000), Places{});
  EXPECT_EQ(positionsFor({65, 1, 0, true}, 1, 0, 1000), Places{});
}

TEST(GridLines, AnOpenGridGoesOnToTheEndOfTheArea) {
  EXPECT_EQ(positionsFor({65, 1, 3, false}, 1, 0, 300), (Places{64.5, 129.5, 194.5, 259.5}));
  EXPECT_EQ(positionsFor({65, 1, 0, false}, 1, 0, 100), (Places{64.5}));
}

TEST(GridLines, ALineLiesInTheMiddleOfItsGap) {
  EXPECT_EQ(positionsFor({65, 1, 2, true}, 1, 0, 100), (Places{64.5})) << "1 in 1";
  EXPECT_EQ(positionsFor({66, 2, 2, true}, 2, 0, 100), (Places{66})) << "2 in 2";
  EXPECT_EQ(positionsFor({67, 3, 2, true}, 1, 0, 100), (Places{65.5})) << "half of 3 rounds up";
  EXPECT_EQ(positionsFor({64, 0, 2, true}, 1, 0, 100), (Places{64.5})) << "no gap";
  EXPECT_EQ(positionsFor({63, -1, 2, true}, 1, 0, 100), (Places{63.5})) << "overlap";
  EXPECT_EQ(positionsFor({65, 1, 2, true}, 0, 0, 100), (Places{64})) << "no width";
}

TEST(GridLines, RunAcrossTheAreaAndAsFarAsTheirShadow) {
  GridLineRun plain = gridLinesIn({65, 1, 3, true}, 1, nullptr, 0, 300, 10, 90);
  EXPECT_EQ(plain.start, 10);
  EXPECT_EQ(plain.end, 90);
  GridShadowReach reach{{3, 4}, 2};
  GridLineRun shadowed = gridLinesIn({65, 1, 3, true}, 1, &reach, 0, 300, 10, 90);
  EXPECT_EQ(shadowed.start, 10 + (4 - 2));
  EXPECT_EQ(shadowed.end, 90 + (4 + 2));
}

TEST(GridLines, AShadowToTheLeftBringsInALineBeyondTheArea) {
  GridShadowReach reach{{-10, 0}, 3};
  EXPECT_EQ(positionsFor({65, 1, 3, true}, 1, 0, 60), Places{});
  EXPECT_EQ(positions(gridLinesIn({65, 1, 3, true}, 1, &reach, 0, 60, 0, 9)), (Places{64.5}));
  EXPECT_EQ(positions(gridLinesIn({65, 1, 3, true}, 1, &reach, 0, 51, 0, 9)), Places{});
}

TEST(GridLines, AnswerAsDrawingOneAfterTheOther) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 100000; i++) {
    GridLineAxis axis;
    axis.spacing = random.pick<Scalar>({0, 1, 2, 3, 0.5, 10, -1, -4});
    axis.pitch = random.pick<Scalar>({5, 7.5, 64, 33.25}) + axis.spacing;
    axis.count = static_cast<Index>(random.integer(0, 20));
    axis.insideOnly = random.oneIn(2);
    Scalar width = random.pick<Scalar>({0, 0.5, 1, 2, 3, 8});
    Scalar min = random.pick<Scalar>({0, 10, 64, -20, 100.5, 500});
    Scalar max = min + random.pick<Scalar>({0, 1, 64, 200, 0.5});
    GridShadowReach reach{{Scalar(random.integer(-20, 20)), Scalar(random.integer(-20, 20))},
                          Scalar(random.integer(0, 9))};
    const GridShadowReach* shadow = random.oneIn(2) ? &reach : nullptr;
    SlowLines slow = slowLines(axis, width, shadow, min, max, 3, 50);
    GridLineRun run = gridLinesIn(axis, width, shadow, min, max, 3, 50);
    Places got = positions(run);
    // Every line that shows, in order, and none that could not come near the area.
    ASSERT_TRUE(got.size() >= slow.positions.size() &&
                std::equal(slow.positions.rbegin(), slow.positions.rend(), got.rbegin()))
        << testing::PrintToString(got) << " instead of " << testing::PrintToString(slow.positions)
        << ": pitch " << axis.pitch << " spacing " << axis.spacing << " count " << axis.count
        << (axis.insideOnly ? " inside" : " open") << " width " << width << " from " << min
        << " to " << max << (shadow ? " with shadow " : " without shadow ") << reach.offset.width
        << " blur " << reach.blur;
    Scalar spare = width + 2;
    if (shadow) spare += std::max<Scalar>(reach.offset.width, 0) + 2 * reach.blur;
    if (!got.empty()) ASSERT_GE(got.front() + spare, min);
    if (got.empty()) continue;
    ASSERT_EQ(run.start, slow.start);
    ASSERT_EQ(run.end, slow.end);
  }
}

TEST(GridLines, NeverGoOnForEver) {
  EXPECT_EQ(positionsFor({0, 1, 3, false}, 1, 0, 300), Places{});
  EXPECT_EQ(positionsFor({-5, 1, 3, false}, 1, 0, 300), Places{});
  EXPECT_EQ(positionsFor({kNaN, 1, 3, false}, 1, 0, 300), Places{});
  auto count = [](const GridLineAxis& axis, Scalar width, Scalar min, Scalar max) {
    GridLineRun run = gridLinesIn(axis, width, nullptr, min, max, 0, 10);
    return run.last < run.first ? 0 : run.last - run.first + 1;
  };
  EXPECT_LE(count({1e-300, 0, 3, false}, 1, 0, 1e9), kMostGridLines);
  EXPECT_LE(count({5, 1, 3, false}, 1, 0, kInfinity), kMostGridLines);
  EXPECT_LE(count({5, 1, 3, false}, 1, -kInfinity, kInfinity), kMostGridLines);
  EXPECT_LE(count({5, 1, 3, false}, 1, kNaN, kNaN), kMostGridLines);
  EXPECT_LE(count({5, 1, 3, false}, kNaN, 0, 300), kMostGridLines);
  EXPECT_LE(count({5, kNaN, kNoIndex, true}, kInfinity, 0, 300), kMostGridLines);
}

}  // namespace
}  // namespace ov
