#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "Random.h"
#include "RulePrinting.h"
#include "extensions/PixelAlignment.h"

namespace ov {
namespace {

constexpr Affine kPlain{};
constexpr Affine kFlipped{1, 0, 0, -1, 0, 100};
constexpr Affine kHalf{0.5, 0, 0, 0.5, 0, 0};
constexpr Affine kOneAndAHalf{1.5, 0, 0, 1.5, 0, 0};
constexpr Affine kTwice{2, 0, 0, 2, 0, 0};
constexpr Affine kMoved{1, 0, 0, 1, 0.25, 0.75};
constexpr Affine kTurned{0, 1, -1, 0, 0, 0};  // a quarter, to the left

constexpr Scalar kNaN = std::numeric_limits<Scalar>::quiet_NaN();
constexpr Scalar kInfinity = std::numeric_limits<Scalar>::infinity();

void expectNear(Scalar a, Scalar b) { EXPECT_NEAR(a, b, 1e-5); }
void expectNear(Point a, Point b) {
  expectNear(a.x, b.x);
  expectNear(a.y, b.y);
}

TEST(PixelAlignment, APointComesDownToAPixel) {
  EXPECT_EQ(alignPoint({1.3, 2.7}, kPlain), (Point{1, 2}));
  EXPECT_EQ(alignPoint({-1.3, -2.7}, kPlain), (Point{-2, -3}));
  EXPECT_EQ(alignPoint({1.3, 2.7}, kTwice), (Point{1, 2.5}));
  EXPECT_EQ(alignPoint({1.3, 2.7}, kHalf), (Point{0, 2}));
  // 1.95 and 4.05 in the device
  expectNear(alignPoint({1.3, 2.7}, kOneAndAHalf), {Scalar(1 / 1.5), Scalar(4 / 1.5)});
}

TEST(PixelAlignment, DownIsTheDevicesDown) {
  EXPECT_EQ(alignPoint({1.3, 2.75}, kFlipped), (Point{1, 3}));
}

TEST(PixelAlignment, AFractionalOriginShiftsThePixels) {
  EXPECT_EQ(alignPoint({1.3, 2.7}, kMoved), (Point{0.75, 2.25}));
  EXPECT_EQ(alignPoint({1, 2}, kMoved), (Point{0.75, 1.25}));
}

TEST(PixelAlignment, TurnedAxesChangePlaces) {
  // (1.25, 2.75) is (-2.75, 1.25) in the device, (-3, 1) aligned.
  EXPECT_EQ(alignPoint({1.25, 2.75}, kTurned), (Point{1, 3}));
  EXPECT_EQ(alignSize({1.25, 2.75}, kTurned), (Size{1, 2}));
  EXPECT_EQ(alignRect({1.25, 2.75, 3.5, 4.5}, kTurned), (Rect{1, 4, 3, 4}));
}

TEST(PixelAlignment, ASizeGetsShorter) {
  EXPECT_EQ(alignSize({1.3, 2.7}, kPlain), (Size{1, 2}));
  EXPECT_EQ(alignSize({1.3, 2.7}, kFlipped), (Size{1, 2}));
  EXPECT_EQ(alignSize({1.3, 2.7}, kMoved), (Size{1, 2})) << "where it lies does not matter";
  EXPECT_EQ(alignSize({1.3, 2.7}, kTwice), (Size{1, 2.5}));
  EXPECT_EQ(alignSize({1.3, 2.7}, kHalf), (Size{0, 2}));
  EXPECT_EQ(alignSize({0.4, 0.4}, kPlain), (Size{0, 0}));
  EXPECT_EQ(alignSize({-1.3, 2.7}, kPlain), (Size{-1, 2}));
}

TEST(PixelAlignment, ARectanglesOriginAndSizeComeDown) {
  EXPECT_EQ(alignRect({1.5, 2.5, 3.75, 4.75}, kPlain), (Rect{1, 2, 3, 4}));
  EXPECT_EQ(alignRect({1.5, 2.5, 3.75, 4.75}, kTwice), (Rect{1.5, 2.5, 3.5, 4.5}));
  // From 92.75 to 97.5 in the device, 92 and 4 high aligned: 4 to 8 from above.
  EXPECT_EQ(alignRect({1.5, 2.5, 3.75, 4.75}, kFlipped), (Rect{1, 4, 3, 4}));
  EXPECT_EQ(alignRect({1.5, 2.5, 3.75, 4.75}, kMoved), (Rect{0.75, 2.25, 3, 4}));
}

TEST(PixelAlignment, ATurnedRectangleIsTheBoxAroundIt) {
  const Scalar s = std::sqrt(Scalar(0.5));
  // A diamond 20 wide and high around (0, 10 √2 …): its box is on whole numbers already.
  const Affine eighth{s, s, -s, s, 0, 0};
  const Scalar side = 10 / s / 2;
  const Rect aligned = alignRect({0, 0, side, side}, eighth);
  // The box in the device is (-5, 0, 10, 10); the box around it in user space is 10/s wide.
  expectNear(aligned.width, 10 / s);
  expectNear(aligned.height, 10 / s);
}

TEST(PixelAlignment, WhatIsAlignedStays) {
  test::Random random;
  SCOPED_TRACE(random.describe());
  const std::vector<Affine> all = {kPlain, kFlipped, kHalf,   kOneAndAHalf,
                                   kTwice, kMoved,   kTurned, {1.25, 0, 0, -1.25, 0.3, 700.7}};
  for (int i = 0; i < 20000; i++) {
    const Affine& m = random.pick(all);
    auto number = [&] { return Scalar(random.real(-2000, 2000)); };
    const Rect r{number(), number(), std::abs(number()), std::abs(number())};
    const Rect once = alignRect(r, m);
    const Rect twice = alignRect(once, m);
    EXPECT_NEAR(once.x, twice.x, 1e-2);
    EXPECT_NEAR(once.y, twice.y, 1e-2);
    EXPECT_NEAR(once.width, twice.width, 1e-2);
    EXPECT_NEAR(once.height, twice.height, 1e-2);
    EXPECT_LE(once.width, r.width + 1e-2) << "never grows";
    EXPECT_LE(once.height, r.height + 1e-2) << "never grows";
    const Point p = alignPoint({r.x, r.y}, m);
    const Point again = alignPoint(p, m);
    EXPECT_NEAR(p.x, again.x, 1e-2);
    EXPECT_NEAR(p.y, again.y, 1e-2);
    if (testing::Test::HasFailure()) break;
  }
}

TEST(PixelAlignment, WhatCannotBeAlignedComesBack) {
  const Affine flat{1, 0, 1, 0, 0, 0};
  EXPECT_FALSE(inverse(flat));
  EXPECT_EQ(alignPoint({1.5, 2.5}, flat), (Point{1.5, 2.5}));
  EXPECT_EQ(alignSize({1.5, 2.5}, flat), (Size{1.5, 2.5}));
  EXPECT_EQ(alignRect({1.5, 2.5, 3.5, 4.5}, flat), (Rect{1.5, 2.5, 3.5, 4.5}));
  EXPECT_FALSE(inverse({kNaN, 0, 0, 1, 0, 0}));
  EXPECT_FALSE(inverse({1, 0, 0, 1, kInfinity, 0}));

  EXPECT_EQ(alignPoint({kInfinity, 2.5}, kPlain), (Point{kInfinity, 2.5}));
  EXPECT_TRUE(std::isnan(alignPoint({kNaN, 2.5}, kPlain).x));
  EXPECT_EQ(alignPoint({kNaN, 2.5}, kPlain).y, Scalar(2.5));
  EXPECT_EQ(alignSize({1.5, -kInfinity}, kPlain), (Size{1.5, -kInfinity}));
  EXPECT_EQ(alignRect({1.5, 2.5, kInfinity, 4.5}, kPlain), (Rect{1.5, 2.5, kInfinity, 4.5}));
  EXPECT_EQ(alignRect({1.5, 2.5, 3.5, kNaN}, kPlain).x, Scalar(1.5));
}

TEST(PixelAlignment, HugeNumbersStayFinite) {
  const Scalar huge = std::numeric_limits<Scalar>::max();
  const Point p = alignPoint({huge, -huge}, kTwice);
  EXPECT_EQ(p, (Point{huge, -huge}));
  const Rect r = alignRect({huge, 0, huge, 1}, kPlain);
  EXPECT_TRUE(std::isfinite(r.x) && std::isfinite(r.width));
}

}  // namespace
}  // namespace ov
