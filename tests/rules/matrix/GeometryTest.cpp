#include <gtest/gtest.h>

#include <cmath>

#include "Random.h"
#include "RulePrinting.h"
#include "geometry/Geometry.h"

namespace ov {
namespace {

TEST(Geometry, NoIndexIsTheLargestSignedInteger) {
  EXPECT_EQ(kNoIndex, static_cast<Index>(INTPTR_MAX));
}

TEST(Geometry, ARectangleWithoutAreaIsEmpty) {
  EXPECT_FALSE((Rect{0, 0, 1, 1}).isEmpty());
  EXPECT_TRUE((Rect{0, 0, 0, 1}).isEmpty());
  EXPECT_TRUE((Rect{0, 0, 1, 0}).isEmpty());
  EXPECT_TRUE((Rect{0, 0, -1, 1}).isEmpty());
  EXPECT_TRUE((Rect{0, 0, Scalar(NAN), 1}).isEmpty());
}

TEST(Geometry, UnionSurroundsBothAndIgnoresEmptyOnes) {
  EXPECT_EQ(unite({0, 0, 10, 10}, {20, 5, 10, 10}), (Rect{0, 0, 30, 15}));
  EXPECT_EQ(unite({0, 0, 10, 10}, {50, 50, 0, 5}), (Rect{0, 0, 10, 10}));
  EXPECT_EQ(unite({50, 50, 0, 5}, {0, 0, 10, 10}), (Rect{0, 0, 10, 10}));
  EXPECT_TRUE(unite({1, 1, 0, 0}, {2, 2, 0, 0}).isEmpty());
}

TEST(Geometry, GrowingMovesEachEdgeOutward) {
  EXPECT_EQ(grow({10, 20, 30, 40}, 1), (Rect{9, 19, 32, 42}));
  EXPECT_EQ(grow({10, 20, 0, 40}, 1), (Rect{9, 19, 2, 42}));
}

TEST(Geometry, OverlapNeedsACommonArea) {
  EXPECT_TRUE(overlap({0, 0, 10, 10}, {9, 9, 10, 10}));
  EXPECT_FALSE(overlap({0, 0, 10, 10}, {10, 0, 10, 10}));
  EXPECT_FALSE(overlap({0, 0, 10, 10}, {2, 2, 0, 4}));
}

TEST(Geometry, OverlapIsSymmetricAndImpliedByACommonPoint) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  for (int i = 0; i < 20000; i++) {
    auto rect = [&] {
      return Rect{Scalar(random.integer(-5, 5)), Scalar(random.integer(-5, 5)),
                  Scalar(random.integer(-1, 6)), Scalar(random.integer(-1, 6))};
    };
    Rect a = rect(), b = rect();
    bool common = false;  // a unit square that lies in both
    for (int x = -6; x < 12; x++) {
      for (int y = -6; y < 12; y++) {
        auto inside = [&](const Rect& r) {
          return !r.isEmpty() && r.x <= x && x + 1 <= r.maxX() && r.y <= y && y + 1 <= r.maxY();
        };
        common = common || (inside(a) && inside(b));
      }
    }
    ASSERT_EQ(overlap(a, b), common) << testing::PrintToString(a) << testing::PrintToString(b);
    ASSERT_EQ(overlap(b, a), common);
  }
}

}  // namespace
}  // namespace ov
