#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "Random.h"
#include "RulePrinting.h"
#include "matrix/RubberBand.h"

namespace ov {
namespace {

std::vector<Rect> strips(const Rect& from, const Rect& to) {
  DirtyStrips strips = stripsBetween(from, to);
  return {strips.rects.begin(), strips.rects.begin() + strips.count};
}

using Rects = std::vector<Rect>;

TEST(RubberBand, ThePointerIsClampedIntoTheVisiblePart) {
  Rect visible{10, 20, 100, 50};
  EXPECT_EQ(clampInto({50, 40}, visible), (Point{50, 40}));
  EXPECT_EQ(clampInto({0, 0}, visible), (Point{10, 20}));
  EXPECT_EQ(clampInto({500, 40}, visible), (Point{110, 40}));
  EXPECT_EQ(clampInto({50, 500}, visible), (Point{50, 70}));
  EXPECT_EQ(clampInto({-5, 500}, visible), (Point{10, 70}));
}

TEST(RubberBand, SpansItsCornersWhicheverTheyAre) {
  EXPECT_EQ(rectBetween({10, 20}, {30, 50}), (Rect{10, 20, 20, 30}));
  EXPECT_EQ(rectBetween({30, 50}, {10, 20}), (Rect{10, 20, 20, 30}));
  EXPECT_EQ(rectBetween({30, 20}, {10, 50}), (Rect{10, 20, 20, 30}));
  EXPECT_EQ(rectBetween({5, 5}, {5, 5}), (Rect{5, 5, 0, 0}));
}

TEST(RubberBand, NothingIsMarkedBetweenTwoEmptyOnes) {
  EXPECT_EQ(strips({}, {}), Rects{});
  EXPECT_EQ(strips({0, 0, 0, 10}, {5, 5, 10, 0}), Rects{});
}

TEST(RubberBand, OneThatAppearsOrDisappearsIsMarkedWhole) {
  EXPECT_EQ(strips({}, {5, 6, 10, 20}), (Rects{{5, 6, 10, 20}}));
  EXPECT_EQ(strips({5, 6, 10, 20}, {}), (Rects{{5, 6, 10, 20}}));
}

TEST(RubberBand, NothingIsMarkedWhenItStays) {
  EXPECT_EQ(strips({5, 6, 10, 20}, {5, 6, 10, 20}), Rects{});
}

TEST(RubberBand, EachEdgeThatMovedMarksAStrip) {
  Rect band{10, 10, 20, 20};
  // The right edge from 30 to 40, over 10 to 30, one larger on every side.
  EXPECT_EQ(strips(band, {10, 10, 30, 20}), (Rects{{29, 9, 12, 22}}));
  EXPECT_EQ(strips({10, 10, 30, 20}, band), (Rects{{29, 9, 12, 22}}));
  EXPECT_EQ(strips(band, {4, 10, 26, 20}), (Rects{{3, 9, 8, 22}})) << "left";
  EXPECT_EQ(strips(band, {10, 4, 20, 26}), (Rects{{9, 3, 22, 8}})) << "top";
  EXPECT_EQ(strips(band, {10, 10, 20, 35}), (Rects{{9, 29, 22, 17}})) << "bottom";
}

TEST(RubberBand, StripsReachOverBothBands) {
  // Right edge 30 -> 40 and bottom edge 30 -> 50; each over the union of the extents.
  EXPECT_EQ(strips({10, 10, 20, 20}, {10, 10, 30, 40}), (Rects{{29, 9, 12, 42}, {9, 29, 32, 22}}));
}

TEST(RubberBand, AllFourEdgesCanMove) {
  EXPECT_EQ(strips({10, 10, 10, 10}, {100, 100, 5, 5}).size(), 4u);
}

TEST(RubberBand, WhatChangesIsMarked) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    auto band = [&] {
      return Rect{Scalar(random.integer(0, 8)), Scalar(random.integer(0, 8)),
                  Scalar(random.integer(0, 8)), Scalar(random.integer(0, 8))};
    };
    Rect from = band(), to = band();
    Rects marked = strips(from, to);
    auto inside = [](const Rect& r, Scalar x, Scalar y) {
      return !r.isEmpty() && r.x < x && x < r.maxX() && r.y < y && y < r.maxY();
    };
    // The middle of each pixel: filled, border or outside. One that changes is marked.
    auto kind = [&](const Rect& r, Scalar x, Scalar y) {
      if (!inside(r, x, y)) return 0;
      return inside(grow(r, -1), x, y) ? 2 : 1;
    };
    for (Scalar y = 0.5; y < 17; y++) {
      for (Scalar x = 0.5; x < 17; x++) {
        if (kind(from, x, y) == kind(to, x, y)) continue;
        bool covered = std::any_of(marked.begin(), marked.end(),
                                   [&](const Rect& r) { return inside(r, x, y); });
        ASSERT_TRUE(covered) << testing::PrintToString(from) << " to " << testing::PrintToString(to)
                             << " at " << x << ", " << y;
      }
    }
  }
}

}  // namespace
}  // namespace ov
